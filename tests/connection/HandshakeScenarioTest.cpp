/// @file
/// Malformed handshakes: cut keywords, more than the keyword, NULs, bytes that are no text, noise. Each takes
/// a real worker; the long form of this is a soak.
#include <algorithm>
#include <iostream>
#include <random>
#include <string>
#include <thread>

#include "tests/connection/ConnectionTest.h"
#include "tests/connection/Door.h"
#include "tests/connection/Worker.h"
#include "vapp/connection/TPipeModule.h"
#include "vapp/connection/TTCPModule.h"

namespace {

using connection_test::ConnectionTest;
using connection_test::Door;
using connection_test::LocalWorker;
using connection_test::TAfterKnock;
using connection_test::Text;

struct HandshakeTest : ConnectionTest {
    HandshakeTest() {
        if (!gIsWine()) vapp_platform::SetWineAnswer(true);
    }
};

std::string Hex(const std::string& bytes) {
    constexpr const char* csDigits = "0123456789abcdef";
    std::string digits;
    for (const char byte : bytes) {
        digits += csDigits[static_cast<unsigned char>(byte) / 16];
        digits += csDigits[static_cast<unsigned char>(byte) % 16];
    }
    return digits;
}

std::string SomeBytes(std::mt19937& random, std::size_t most) {
    const std::string interesting("KEYW\0\n\r\x80\xc3\xa9\xff%s\"\\", 15);
    std::string bytes;
    for (std::size_t left = random() % (most + 1); left > 0; --left)
        bytes += interesting[random() % interesting.size()];
    return bytes;
}

// What a text says of bytes: those up to the first NUL; a byte at the front that looks like the text type's
// own mark counts as one.
std::string AsText(const std::string& bytes) {
    const std::string text = bytes.substr(0, bytes.find('\0'));
    return text.starts_with('\x80') ? text.substr(1) : text;
}

TEST_F(HandshakeTest, TheTcpHandshakeAnswersAnyBytesByItsRule) {
    const std::uint32_t seed = std::random_device()();
    std::cout << "seed " << seed << '\n';
    std::mt19937 random(seed);
    const std::string keyword = "KEYW";
    for (int round = 0; round < 25; ++round) {
        std::string bytes = random() % 3 == 0 ? keyword + SomeBytes(random, 8) : SomeBytes(random, 12);
        if (round <= 4) bytes = keyword.substr(0, static_cast<std::size_t>(round));
        TTCPModule module(LocalWorker("tcp", {"bytes:" + Hex(bytes), "end"}, keyword));
        std::vector<wchar_t> environment;
        CStringU message;
        const bool connected = module.InitConnection(environment, message);
        ASSERT_EQ(connected, bytes.starts_with(keyword)) << Hex(bytes);
        if (!connected) {
            ASSERT_EQ(Text(message), "Waiting keyword \"KEYW\" mismatched.\n");
        }
    }
}

TEST_F(HandshakeTest, ThePipeHandshakeAnswersAnyBytesByItsRule) {
    const std::uint32_t seed = std::random_device()();
    std::cout << "seed " << seed << '\n';
    std::mt19937 random(seed);
    const std::string keyword = "KEYW";
    for (int round = 0; round < 25; ++round) {
        std::string bytes = SomeBytes(random, 20);
        if (random() % 2 == 0) bytes += keyword + SomeBytes(random, 3);
        if (round <= 4) bytes = keyword.substr(0, static_cast<std::size_t>(round));
        // All that the worker says is there before the first look.
        Door door;
        vapp_connection::Limits limits = vapp_connection::CurrentLimits();
        limits.pipePolls = 3;
        limits.childEnd = std::chrono::milliseconds(0);
        TAfterKnock<TPipeModule> module(
            LocalWorker("pipe", {"bytes:" + Hex(bytes), door.Word(), "live"}, keyword), door, limits);
        std::vector<wchar_t> environment;
        CStringU message;
        const bool connected = module.InitConnection(environment, message);
        const bool found = AsText(bytes).find(keyword) != std::string::npos;
        ASSERT_EQ(connected, found) << Hex(bytes) << ' ' << Text(message);
        if (bytes.size() < keyword.size()) {
            ASSERT_EQ(Text(message), "Timed out waiting keyword \"KEYW\" for accept Pipe connection.\n");
        } else if (!connected) {
            const std::string text = AsText(bytes);
            ASSERT_EQ(Text(message),
                      text.empty()
                          ? "Connection failed, no data received.\n"
                          : "Waiting keyword \"KEYW\" mismatched. Received message \"" + text + "\"\n")
                << Hex(bytes);
        }
    }
}

TEST_F(HandshakeTest, SixtyFourKilobytesOfNoiseAreOneMismatch) {
    for (const std::string transport : {"pipe", "tcp"}) {
        std::unique_ptr<TConnectionModule> module;
        const ConnectionInfo info = LocalWorker(transport, {"blocks:1", "end"}, "KEY");
        if (transport == "tcp") {
            module = std::make_unique<TTCPModule>(info);
        } else {
            module = std::make_unique<TPipeModule>(info);
        }
        std::vector<wchar_t> environment;
        CStringU message;
        EXPECT_FALSE(module->InitConnection(environment, message));
        EXPECT_TRUE(Text(message).starts_with("Waiting keyword \"KEY\" mismatched.")) << Text(message);
    }
}

}  // namespace
