/// @file
/// One interpreter of words over two kinds of channel.
#include "tests/connection/Worker.h"

#include <chrono>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <map>
#include <memory>
#include <string_view>
#include <thread>
#include <utility>

#include "platform/ChildProcess.h"
#include "platform/Pipe.h"
#include "tests/platform/ChildRoles.h"
#include "tests/platform/LocalPeer.h"
#include "tests/platform/SystemHelpers.h"

namespace connection_test {

namespace {

using Words = std::vector<std::string>;
using platform_test::LocalPeer;
using vapp_platform::OwnedHandle;

class SocketChannel : public Channel {
public:
    explicit SocketChannel(std::uint16_t port) : m_peer(port) {}
    bool Say(std::string_view bytes) override { return m_peer.Send(bytes); }
    std::string Get(std::size_t size) override { return m_peer.ReceiveSome(size); }
    void End() override { m_peer.Close(); }
    [[nodiscard]] vapp_platform::NativeHandle Handle() const override { return m_peer.Handle(); }

private:
    LocalPeer m_peer;
};

class StreamChannel : public Channel {
public:
    StreamChannel() : m_input(platform_test::StandardStream(0)), m_output(platform_test::StandardStream(1)) {}
    bool Say(std::string_view bytes) override {
        return !vapp_platform::WriteOnce(m_output, bytes.data(), bytes.size()).Failed();
    }
    std::string Get(std::size_t size) override {
        std::string bytes(size, '\0');
        bytes.resize(static_cast<std::size_t>(vapp_platform::ReadOnce(m_input, bytes.data(), size).count));
        return bytes;
    }
    void End() override {
        m_output.Drop();
        OwnedHandle(platform_test::StandardStream(2)).Drop();
    }
    [[nodiscard]] vapp_platform::NativeHandle Handle() const override { return m_output.Get(); }

private:
    OwnedHandle m_input;
    OwnedHandle m_output;
};

// Not for ever: a grandchild has nobody who would end it.
void LiveOn() {
    std::this_thread::sleep_for(std::chrono::minutes(10));
}

void Echo(Channel& channel) {
    for (std::string bytes = channel.Get(65536); !bytes.empty(); bytes = channel.Get(65536))
        channel.Say(bytes);
}

// A worker that gets less than it waits for says and does nothing more.
void Forget(Channel& channel, std::size_t count, std::size_t most) {
    while (count > 0) {
        const std::size_t got = channel.Get(std::min(count, most)).size();
        if (got == 0) std::_Exit(5);
        count -= got;
    }
}

std::string FromHex(const std::string& digits) {
    std::string bytes;
    for (std::size_t at = 0; at + 1 < digits.size(); at += 2) {
        bytes += static_cast<char>(std::stoi(digits.substr(at, 2), nullptr, 16));
    }
    return bytes;
}

std::vector<LocalPeer>& Knocked() {
    static std::vector<LocalPeer> knocked;
    return knocked;
}

void StartGrandchild(const Channel& channel, const std::string& port) {
    vapp_platform::ChildStart start;
    const Words words = port.empty() ? Words{"live"} : Words{"knock:" + port, "stay"};
    start.commandLine = platform_test::RoleCommand("pipe", words);
    start.output = channel.Handle();
    start.error = start.output;
    static_cast<void>(vapp_platform::ChildProcess::Start(start));
}

std::map<std::string, std::function<void(Channel&, const std::string&)>>& AddedWords() {
    static std::map<std::string, std::function<void(Channel&, const std::string&)>> words;
    return words;
}

void Obey(Channel& channel, const std::string& word) {
    const std::string name = word.substr(0, word.find(':'));
    const std::string value = name == word ? std::string() : word.substr(name.size() + 1);
    if (name == "say") channel.Say(value);
    if (name == "bytes") channel.Say(FromHex(value));
    if (name == "echo") Echo(channel);
    if (name == "get") Forget(channel, std::stoul(value), 65536);
    if (name == "end") channel.End();
    if (name == "deaf") platform_test::IgnoreRequestsToEnd();
    if (name == "live" || name == "deaf") LiveOn();
    if (name == "grandchild") StartGrandchild(channel, value);
    if (name == "knock") Knocked().emplace_back(static_cast<std::uint16_t>(std::stoi(value)));
    if (name == "tell") Knocked().back().Send(value);
    if (name == "stay") static_cast<void>(Knocked().back().Receive(1));
    if (name == "exit") std::_Exit(std::stoi(value));
    if (name == "dots") {
        for (const char byte : value) {
            channel.Say({&byte, 1});
            std::this_thread::sleep_for(std::chrono::milliseconds(2));
        }
    }
    if (name == "blocks") {
        const std::string block(65536, 'b');
        for (int left = std::stoi(value); left > 0; --left)
            channel.Say(block);
    }
    if (name == "slow-echo") {
        Forget(channel, std::stoul(value), 1);
        Echo(channel);
    }
    const auto added = AddedWords().find(name);
    if (added != AddedWords().end()) added->second(channel, value);
}

int Work(Channel& channel, const Words& words) {
    for (const std::string& word : words)
        Obey(channel, word);
    return 0;
}

int WorkOverStreams(const Words& words) {
    StreamChannel channel;
    return Work(channel, words);
}

// As a real worker does: the variable says that there is an address, the other one what it is.
int WorkOverSocket(const Words& words) {
    const char* const address = std::getenv("TCONNECT_ADDRESS");
    if (std::getenv("CONNECTION_TYPE_TCP") == nullptr || address == nullptr) return 3;
    const std::string text = address;
    const std::string front = "localhost:";
    if (!text.starts_with(front)) return 4;
    SocketChannel channel(static_cast<std::uint16_t>(std::stoi(text.substr(front.size()))));
    return Work(channel, words);
}

constexpr const char* csLoginProgram = "plink";

}  // namespace

void AddWorkerWord(const std::string& name, std::function<void(Channel&, const std::string&)> obey) {
    AddedWords().insert_or_assign(name, std::move(obey));
}

void AddWorkerRoles() {
    platform_test::AddRole("pipe", WorkOverStreams);
    platform_test::AddRole("tcp", WorkOverSocket);
}

bool IsLoginProgram(const char* ownName) {
    return std::filesystem::path(ownName).stem() == csLoginProgram;
}

int PlayLoginProgram(const Words& arguments) {
    StreamChannel output;
    if (arguments.size() < 5 ||
        Words(arguments.begin(), arguments.begin() + 3) != Words{"-batch", "-X", "-T"}) {
        output.Say("wrong usage");
        return 1;
    }
    if (arguments[3] != "me@somewhere") {
        output.Say("Host does not exist");
        return 1;
    }
    const Words words(arguments.begin() + 5, arguments.end());
    return arguments[4] == "tcp" ? WorkOverSocket(words) : WorkOverStreams(words);
}

void LayLoginProgram() {
    namespace fs = std::filesystem;
    std::error_code ignored;
    const fs::path own = platform_test::OwnProgram();
    const fs::path place = own.parent_path() / "putty" / "bin";
    fs::create_directories(place, ignored);
    std::error_code failed;
    fs::create_symlink(own, place / "plink.exe", failed);
    // Where there are no links; another run of this program may have been first.
    if (failed) fs::copy_file(own, place / "plink.exe", fs::copy_options::skip_existing, ignored);
}

ConnectionInfo LocalWorker(const std::string& transport, const Words& words, const std::string& keyword) {
    ConnectionInfo info;
    info.command = platform_test::RoleCommand(transport, words);
    info.hostName = "testhost";
    info.runLocally = true;
    info.keyword = {keyword.c_str(), TextEncoding::Utf8Auto};
    return info;
}

}  // namespace connection_test
