/// @file
/// Two streams, one thread for each; the end of either ends the process.
#include "tests/connection/LoginProxy.h"

#include <cstdlib>
#include <fstream>
#include <string_view>
#include <thread>
#include <vector>

#include "platform/Pipe.h"
#include "tests/platform/ChildRoles.h"
#include "tests/platform/LocalPeer.h"
#include "tests/platform/SystemHelpers.h"

namespace connection_test {

namespace {

using vapp_platform::OwnedHandle;

constexpr std::size_t cnBlock = 4096;

bool WriteWhole(const OwnedHandle& output, std::string_view bytes) {
    while (!bytes.empty()) {
        const auto written = vapp_platform::WriteOnce(output, bytes.data(), bytes.size());
        if (written.Failed()) return false;
        bytes.remove_prefix(static_cast<std::size_t>(written.count));
    }
    return true;
}

void PassDown(const platform_test::LocalPeer& server) {
    const OwnedHandle output(platform_test::StandardStream(1));
    while (true) {
        const std::string bytes = server.ReceiveSome(cnBlock);
        if (bytes.empty() || !WriteWhole(output, bytes)) std::_Exit(0);
    }
}

void PassUp(const platform_test::LocalPeer& server) {
    const OwnedHandle input(platform_test::StandardStream(0));
    char buffer[cnBlock];
    while (true) {
        const auto got = vapp_platform::ReadOnce(input, buffer, sizeof buffer);
        if (got.Failed() || !server.Send({buffer, static_cast<std::size_t>(got.count)})) std::_Exit(0);
    }
}

int PlayLoginProxy(const std::vector<std::string>& arguments) {
    const char* const address = std::getenv("TCONNECT_ADDRESS");
    const std::string_view whole = address != nullptr ? address : "";
    // "localhost:PORT"
    std::ofstream(arguments.at(1), std::ios::binary) << whole.substr(whole.find(':') + 1);
    const platform_test::LocalPeer server(static_cast<std::uint16_t>(std::stoi(arguments.at(0))));
    if (!server.IsConnected()) return 1;
    std::thread([&server] { PassDown(server); }).detach();
    PassUp(server);
    return 0;
}

}  // namespace

void AddLoginProxyRole() {
    platform_test::AddRole("login-proxy", PlayLoginProxy);
}

// The client reads `\` in this option as the begin of an escape: paths go without on every system.
std::string LoginProxyOption(const std::string& serverPort, const std::filesystem::path& portFile) {
    return "-proxycmd \"" + std::filesystem::path(platform_test::OwnProgram()).generic_string() +
           " --child=login-proxy " + serverPort + " " + portFile.generic_string() + "\" ";
}

}  // namespace connection_test
