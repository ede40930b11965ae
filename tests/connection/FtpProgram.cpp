/// @file
/// Words, one after the other.
#include "tests/connection/FtpProgram.h"

#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string_view>
#include <thread>

#include "platform/Pipe.h"
#include "tests/platform/SystemHelpers.h"

namespace connection_test {

namespace {

namespace fs = std::filesystem;
using vapp_platform::OwnedHandle;

void Say(std::string_view text, int stream = 1) {
    OwnedHandle output(platform_test::StandardStream(stream));
    static_cast<void>(vapp_platform::WriteOnce(output, text.data(), text.size()));
    static_cast<void>(output.Release());
}

std::string Script() {
    OwnedHandle input(platform_test::StandardStream(0));
    std::string all;
    char buffer[4096];
    while (true) {
        const auto got = vapp_platform::ReadOnce(input, buffer, sizeof buffer);
        if (got.Failed() || got.count == 0) break;
        all.append(buffer, static_cast<std::size_t>(got.count));
    }
    static_cast<void>(input.Release());
    return all;
}

std::string FromHex(const std::string& digits) {
    std::string bytes;
    for (std::size_t at = 0; at + 1 < digits.size(); at += 2)
        bytes += static_cast<char>(std::stoi(digits.substr(at, 2), nullptr, 16));
    return bytes;
}

void CloseStream(int number) {
    OwnedHandle(platform_test::StandardStream(number)).Drop();
}

void MakeFile(const std::string& path, const std::string& bytes) {
    std::ofstream(path, std::ios::binary) << bytes;
}

void Obey(const std::string& word, const std::string& switches) {
    const std::string name = word.substr(0, word.find(':'));
    const std::string value = name == word ? std::string() : word.substr(name.size() + 1);
    if (name == "arguments") Say(switches);
    if (name == "script") Say(Script());
    if (name == "folder") Say(fs::current_path().filename().string());
    if (name == "say") Say(value);
    if (name == "bytes") Say(FromHex(value));
    if (name == "error") Say(value, 2);
    if (name == "save") MakeFile(value, Script());
    if (name == "deaf") {
        CloseStream(0);
        MakeFile(value, {});
    }
    if (name == "mute") {
        CloseStream(1);
        CloseStream(2);
    }
    if (name == "until") {
        // Not for ever: the test can have failed.
        for (int pause = 0; pause < 30000 && !fs::exists(value); ++pause)
            std::this_thread::sleep_for(std::chrono::milliseconds(1));
    }
    if (name == "exit") {
        static_cast<void>(Script());
        std::_Exit(std::stoi(value));
    }
}

}  // namespace

bool IsFtpProgram(const char* ownName) {
    return fs::path(ownName).stem() == "psftp";
}

int PlayFtpProgram(const std::vector<std::string>& arguments) {
    std::string switches;
    for (const std::string& argument : arguments) {
        if (argument.starts_with('-')) {
            switches += argument + ' ';
        } else {
            Obey(argument, switches);
        }
    }
    static_cast<void>(Script());
    return 0;
}

void LayFtpProgram(const std::string& program, const std::string& folder) {
    const fs::path place = fs::path(folder) / "putty" / "bin";
    std::error_code failed;
    fs::create_directories(place, failed);
    fs::create_directories(fs::path(folder) / "LinuxUtils", failed);
    const fs::path client = place / "psftp.exe";
    // Not a link to another program: a copy would go through it.
    if (fs::is_symlink(client, failed) && fs::read_symlink(client, failed) != program)
        fs::remove(client, failed);
    fs::create_symlink(program, client, failed);
    // Where there are no links; another run of this program may have been first.
    if (failed && !fs::is_symlink(client))
        fs::copy_file(program, client, fs::copy_options::update_existing, failed);
}

}  // namespace connection_test
