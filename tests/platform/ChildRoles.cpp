/// @file
/// The roles, and how a test casts one.
#include "tests/platform/ChildRoles.h"

#include <cstdlib>
#include <filesystem>
#include <functional>
#include <map>
#include <string_view>
#include <thread>
#include <utility>

#include "platform/ChildEnvironment.h"
#include "platform/CommandLine.h"
#include "platform/ProgramArguments.h"
#include "tests/platform/SystemHelpers.h"

namespace platform_test {

namespace {

using vapp_platform::OwnedHandle;
using Arguments = std::vector<std::string>;

std::string& ProgramPath() {
    static std::string path;
    return path;
}

void Say(const std::string& text) {
    OwnedHandle output(StandardStream(1));
    static_cast<void>(vapp_platform::WriteOnce(output, text.data(), text.size()));
    static_cast<void>(output.Release());
}

int Exit(const Arguments& arguments) {
    return std::stoi(arguments.at(0));
}

int Echo(const Arguments& /*arguments*/) {
    OwnedHandle input(StandardStream(0));
    char buffer[65536];
    while (true) {
        const auto got = vapp_platform::ReadOnce(input, buffer, sizeof buffer);
        if (got.Failed()) return 0;
        Say(std::string(buffer, static_cast<std::size_t>(got.count)));
    }
}

int SayArguments(const Arguments& arguments) {
    std::string all;
    for (const std::string& argument : arguments)
        all += argument + '\0';
    Say(all);
    return 0;
}

int SayProgramArguments(const Arguments& /*arguments*/) {
    std::string all;
    for (const CStringU& word : vapp_platform::ProgramArguments())
        all += '[' + std::string(word.Payload()) + ']';
    Say(all);
    return 0;
}

int SayVariable(const Arguments& arguments) {
    const char* const value = std::getenv(arguments.at(0).c_str());
    Say(value != nullptr ? '=' + std::string(value) : "unset");
    return 0;
}

int SayFolder(const Arguments& /*arguments*/) {
    Say(std::filesystem::current_path().filename().string());
    return 0;
}

int SayAboutSelf(const Arguments& arguments) {
    Say(AnswerAboutSelf(arguments.at(0)));
    return 0;
}

int SayOnBothStreams(const Arguments& /*arguments*/) {
    Say("out ");
    OwnedHandle error(StandardStream(2));
    static_cast<void>(vapp_platform::WriteOnce(error, "error", 5));
    static_cast<void>(error.Release());
    return 0;
}

// Until it is killed. A test that fails half-way leaves it running, so not for ever.
int LiveOn() {
    std::this_thread::sleep_for(std::chrono::minutes(10));
    return 98;
}

int Hang(const Arguments& /*arguments*/) {
    Say("here");
    return LiveOn();
}

int StayDeaf(const Arguments& /*arguments*/) {
    IgnoreRequestsToEnd();
    Say("here");
    return LiveOn();
}

int CloseStreams(const Arguments& /*arguments*/) {
    for (int number = 0; number < 3; ++number)
        OwnedHandle(StandardStream(number)).Drop();
    return LiveOn();
}

int Flood(const Arguments& arguments) {
    const std::string block(4096, 'x');
    for (int left = std::stoi(arguments.at(0)); left > 0; --left)
        Say(block);
    return 0;
}

std::map<std::string, Role, std::less<>>& Roles() {
    static std::map<std::string, Role, std::less<>> roles = {
        {"about-self", SayAboutSelf},
        {"arguments", SayArguments},
        {"both-streams", SayOnBothStreams},
        {"close-streams", CloseStreams},
        {"deaf", StayDeaf},
        {"echo", Echo},
        {"exit", Exit},
        {"flood", Flood},
        {"folder", SayFolder},
        {"hang", Hang},
        {"program-arguments", SayProgramArguments},
        {"variable", SayVariable},
    };
    return roles;
}

}  // namespace

const std::string& OwnProgram() {
    return ProgramPath();
}

void AddRole(const std::string& name, Role role) {
    Roles().insert_or_assign(name, std::move(role));
}

void PlayChildRole(int count, char** arguments) {
    ProgramPath() = std::filesystem::absolute(arguments[0]).string();
    constexpr std::string_view csSwitch = "--child=";
    if (count < 2 || !std::string_view(arguments[1]).starts_with(csSwitch)) return;
    const auto role = Roles().find(std::string_view(arguments[1]).substr(csSwitch.size()));
    std::_Exit(role != Roles().end() ? role->second(Arguments(arguments + 2, arguments + count)) : 99);
}

// On Linux there is nothing to find: the path of the libraries is written in the program.
void ShareLibraries() {
    const std::string folder = std::filesystem::path(OwnProgram()).parent_path().string();
    const char* const path = std::getenv("PATH");
    const char* const separator = folder.find('\\') != std::string::npos ? ";" : ":";
    const std::string all = folder + separator + (path != nullptr ? path : "");
    vapp_platform::SetEnvironmentValue("PATH", all.c_str());
}

CStringU RoleCommand(const std::string& role, const std::vector<std::string>& arguments) {
    Arguments all = {OwnProgram(), "--child=" + role};
    all.insert(all.end(), arguments.begin(), arguments.end());
    return {vapp_platform::JoinCommandLine(all).c_str(), TextEncoding::Utf8Auto};
}

PipedChild StartPiped(vapp_platform::ChildStart start) {
    OwnedHandle childInput, input, output, childOutput;
    if (CreatePipe(childInput, input) != 0 || CreatePipe(output, childOutput) != 0) return {};
    if (KeepFromChildren(input) != 0 || KeepFromChildren(output) != 0) return {};
    start.input = childInput.Get();
    start.output = childOutput.Get();
    start.error = childOutput.Get();
    PipedChild piped;
    piped.child = vapp_platform::ChildProcess::Start(start).child;
    piped.input = std::make_unique<vapp_platform::PipeWriter>(std::move(input));
    piped.output = std::make_unique<vapp_platform::PipeReader>(std::move(output));
    return piped;
}

PipedChild StartRole(const std::string& role, const std::vector<std::string>& arguments) {
    vapp_platform::ChildStart start;
    start.commandLine = RoleCommand(role, arguments);
    return StartPiped(std::move(start));
}

std::string ReadAll(vapp_platform::PipeReader& reader) {
    std::string all;
    char buffer[65536];
    while (true) {
        const auto got = reader.Read(buffer, sizeof buffer);
        if (got.Failed()) return all;
        all.append(buffer, static_cast<std::size_t>(got.count));
    }
}

bool WriteAll(vapp_platform::PipeWriter& writer, const std::string& bytes) {
    std::size_t done = 0;
    while (done < bytes.size()) {
        const auto written = writer.Write(bytes.data() + done, bytes.size() - done);
        if (written.Failed()) return false;
        done += static_cast<std::size_t>(written.count);
    }
    return true;
}

}  // namespace platform_test
