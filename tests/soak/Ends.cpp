/// @file
/// Each kind with the limits that hosts have; the rounds of all kinds at the same time, as most of them wait.
#include <algorithm>
#include <array>
#include <chrono>
#include <thread>

#include "platform/ChildProcess.h"
#include "tests/connection/Worker.h"
#include "tests/platform/ChildRoles.h"
#include "tests/platform/SystemHelpers.h"
#include "tests/soak/Parts.h"

namespace soak_test {

namespace {

using connection_test::Channel;
using std::chrono::milliseconds;

enum class Host {
    /// Receives until nothing comes any more, then closes.
    Listens,
    /// A thread is in Recv when another closes.
    WaitsForBytes,
    /// A thread is in Send, whose channel is full, when another closes.
    Pours,
    /// Both.
    WaitsAndPours,
};

struct Kind {
    const char* name;
    const char* transport;
    std::vector<std::string> words;
    Host host;
};

std::vector<Kind> Kinds() {
    std::vector<Kind> kinds;
    for (const char* transport : {"pipe", "tcp"}) {
        kinds.push_back({"crashes", transport, {"crash"}, Host::Listens});
        kinds.push_back({"crashes behind some talk", transport, {"get:5", "crash"}, Host::Pours});
        kinds.push_back({"closes its output and lives on", transport, {"end", "live"}, Host::Listens});
        kinds.push_back({"ignores the end of its input", transport, {"deaf"}, Host::WaitsForBytes});
        kinds.push_back({"leaves a grandchild with its streams",
                         transport,
                         {"orphan", "say:x", "exit:0"},
                         Host::WaitsForBytes});
        kinds.push_back({"reads one byte a second", transport, {"slow"}, Host::Pours});
        kinds.push_back({"fills its channel and reads nothing", transport, {"flood"}, Host::Pours});
        kinds.push_back({"floods and is flooded", transport, {"flood"}, Host::WaitsAndPours});
    }
    return kinds;
}

void Flood(Channel& channel, const std::string& /*value*/) {
    const std::string block(65536, 'f');
    while (channel.Say(block)) {
    }
}

void ReadSlowly(Channel& channel, const std::string& /*value*/) {
    while (!channel.Get(1).empty())
        std::this_thread::sleep_for(std::chrono::seconds(1));
}

// Outlives its parent by some seconds, not by more: nobody is there to end it.
void LeaveGrandchild(Channel& /*channel*/, const std::string& /*value*/) {
    vapp_platform::ChildStart start;
    start.commandLine = platform_test::RoleCommand("pipe", {"nap"});
    start.output = platform_test::StandardStream(1);
    start.error = platform_test::StandardStream(2);
    static_cast<void>(vapp_platform::ChildProcess::Start(start));
}

void ReceiveToTheEnd(TConnectionModule& connection) {
    char buffer[4097];
    CStringU message;
    while (connection.Recv(buffer, 4096, message) > 0) {
    }
}

// Far more than any channel holds, in one Send.
const std::string& Bytes() {
    static const std::string bytes(32U << 20U, 'p');
    return bytes;
}

void PourToTheEnd(TConnectionModule& connection, const std::string& what, Tally& tally) {
    const std::string& bytes = Bytes();
    CStringU message;
    tally.Expect(!connection.Send(bytes.data(), bytes.size(), message), what + ": all of it was sent");
}

void RunEnd(const Kind& kind, milliseconds delay, Tally& tally) {
    const std::string what = std::string(kind.transport) + " worker " + kind.name;
    std::vector<std::string> words = {"say:KEY"};
    words.insert(words.end(), kind.words.begin(), kind.words.end());
    const auto connection = MakeConnection(kind.transport, words, "KEY");
    std::vector<wchar_t> environment;
    CStringU message;
    if (!connection->InitConnection(environment, message)) {
        tally.Expect(false, what + ": not connected: " + std::string(message.PayloadView()));
        return;
    }
    const bool pours = kind.host == Host::Pours || kind.host == Host::WaitsAndPours;
    const bool waits = kind.host == Host::WaitsForBytes || kind.host == Host::WaitsAndPours;
    std::jthread sender;
    std::jthread receiver;
    if (pours) sender = std::jthread([&] { PourToTheEnd(*connection, what, tally); });
    if (waits) receiver = std::jthread([&] { ReceiveToTheEnd(*connection); });
    if (kind.host == Host::Listens) ReceiveToTheEnd(*connection);
    std::this_thread::sleep_for(delay);
    // Nothing but this brings the two out, who go before the connection does.
    tally.Close(*connection, what);
}

}  // namespace

void AddEndWords() {
    connection_test::AddWorkerWord("crash", [](Channel&, const std::string&) { Crash(); });
    connection_test::AddWorkerWord("flood", Flood);
    connection_test::AddWorkerWord("slow", ReadSlowly);
    connection_test::AddWorkerWord("orphan", LeaveGrandchild);
    connection_test::AddWorkerWord(
        "nap", [](Channel&, const std::string&) { std::this_thread::sleep_for(std::chrono::seconds(5)); });
}

void SoakEnds(int rounds, std::mt19937& random, Tally& tally) {
    vapp_connection::Limits limits;
    limits.pipePause = milliseconds(1);
    limits.pipePolls = 60000;
    vapp_connection::SetLimits(limits);
    const std::vector<Kind> kinds = Kinds();
    // They stay: nothing that is lost.
    static_cast<void>(Bytes());
    tally.Begin("ends");
    for (int round = 0; round < rounds; ++round) {
        if (round == 1) tally.Settle();
        std::vector<std::jthread> hosts;
        for (const Kind& kind : kinds) {
            const milliseconds delay(random() % 200);
            hosts.emplace_back([&kind, delay, &tally] { RunEnd(kind, delay, tally); });
        }
    }
    tally.End(rounds * static_cast<int>(kinds.size()));
}

}  // namespace soak_test
