#include "vapp/connection/TTCPModule.h"

#include <gmock/gmock.h>

#include <atomic>
#include <cstdlib>
#include <thread>

#include "platform/ChildEnvironment.h"
#include "platform/KnownFolders.h"
#include "tests/connection/ConnectionTest.h"
#include "tests/connection/Worker.h"
#include "tests/platform/LocalPeer.h"
#include "tests/platform/SystemHelpers.h"
#include "text/PlatformText.h"

namespace {

using connection_test::ConnectionTest;
using connection_test::LocalWorker;
using connection_test::ReceiveAll;
using connection_test::Text;
using vapp_platform::FaultSource;
using vapp_platform::SystemCall;
using Words = std::vector<std::string>;

// The port at which a connection waits for its worker.
std::uint16_t PortIn(const std::vector<wchar_t>& environment) {
    const std::wstring all(environment.begin(), environment.end());
    return static_cast<std::uint16_t>(std::stoi(all.substr(all.rfind(L':') + 1)));
}

struct TTCPModuleTest : ConnectionTest {
    static void KillAtOnce() {
        vapp_connection::Limits limits = vapp_connection::CurrentLimits();
        limits.childEnd = std::chrono::milliseconds(0);
        vapp_connection::SetLimits(limits);
    }
    /// With the process's own environment, unless the test has filled it.
    bool Connect(TTCPModule& module) {
        if (m_filled) environment.clear();
        m_filled = environment.empty();
        return module.InitConnection(environment, message);
    }
    std::vector<wchar_t> environment;
    CStringU message;

private:
    bool m_filled = false;
};

TEST_F(TTCPModuleTest, AWorkerThatSaysTheKeywordIsConnected) {
    TTCPModule module(LocalWorker("tcp", {"say:KEY!", "echo"}, "KEY!"));
    EXPECT_FALSE(module.IsConnected());
    ASSERT_TRUE(Connect(module)) << Text(message);
    EXPECT_TRUE(module.IsConnected());
    EXPECT_TRUE(s_boxes.empty());
    EXPECT_TRUE(module.Send("hello", 5, message));
    EXPECT_EQ(ReceiveAll(module, 5), "hello");
    EXPECT_EQ(module.GetChildProcessID(), 0U);
    module.Close();
    EXPECT_FALSE(module.IsConnected());
}

TEST_F(TTCPModuleTest, SuccessLeavesTheCommandLineInTheMessage) {
    const ConnectionInfo info = LocalWorker("tcp", {"say:KEY", "echo"}, "KEY");
    TTCPModule module(info);
    message = "something older";
    ASSERT_TRUE(Connect(module));
    EXPECT_EQ(Text(message), Text(info.command) + "\n");
    EXPECT_EQ(Text(message).find("plink"), std::string::npos);
}

TEST_F(TTCPModuleTest, TheLogCallbackIsNeverCalled) {
    TTCPModule module(LocalWorker("tcp", {"say:KEY", "echo"}, "KEY"));
    module.SetLogCallback([](const CStringU&) { FAIL(); });
    EXPECT_TRUE(Connect(module));
}

TEST_F(TTCPModuleTest, AFoundWorkerIsToldOnceAfterTheHandshake) {
    TTCPModule module(LocalWorker("tcp", {"say:KEY", "echo"}, "KEY"));
    ASSERT_TRUE(Connect(module));
    EXPECT_TRUE(module.IsWorkerFound());
    EXPECT_FALSE(module.IsWorkerFound());
}

TEST_F(TTCPModuleTest, AnEmptyEnvironmentIsFilledFromTheProcess) {
    TTCPModule module(LocalWorker("tcp", {"say:KEY", "echo"}, "KEY"));
    std::vector<wchar_t> expected = vapp_platform::EnvironmentSnapshot();
    ASSERT_TRUE(Connect(module));
    ASSERT_GT(environment.size(), expected.size());
    EXPECT_TRUE(std::equal(expected.begin(), expected.end(), environment.begin()));
    const std::wstring tail(environment.begin() + static_cast<std::ptrdiff_t>(expected.size()),
                            environment.end());
    EXPECT_TRUE(tail.starts_with(L"TCONNECT_ADDRESS=localhost:"));
    EXPECT_TRUE(tail.ends_with(std::wstring(2, L'\0')));
    EXPECT_EQ(tail.find(L'\0'), tail.size() - 2);
}

TEST_F(TTCPModuleTest, AGivenEnvironmentGetsTheAddressAsItsLastEntry) {
    TTCPModule module(LocalWorker("tcp", {"say:KEY", "echo"}, "KEY"));
    // The process's own one, given by hand, with an entry more.
    environment = vapp_platform::EnvironmentSnapshot();
    const std::wstring own = L"VAPP_OWN=\u00e9" + std::wstring(2, L'\0');
    environment.insert(environment.end(), own.begin(), own.end());
    const std::size_t before = environment.size();
    ASSERT_TRUE(Connect(module)) << Text(message);
    const std::wstring tail(environment.begin() + static_cast<std::ptrdiff_t>(before - 1), environment.end());
    EXPECT_TRUE(tail.starts_with(L"TCONNECT_ADDRESS=localhost:"));
    EXPECT_TRUE(tail.ends_with(std::wstring(2, L'\0')));
    EXPECT_EQ(environment[before - 2], L'\0');
}

TEST_F(TTCPModuleTest, TheConstructorSetsTheProcessesVariables) {
    ConnectionInfo info = LocalWorker("tcp", {}, "KEY");
    info.hostName = "some-host";
    const TTCPModule module(info);
    const std::vector<wchar_t> snapshot = vapp_platform::EnvironmentSnapshot();
    const std::wstring all(snapshot.begin(), snapshot.end());
    EXPECT_NE(all.find(L"VORNEX_HOST_NAME=some-host" + std::wstring(1, L'\0')), std::wstring::npos);
    EXPECT_NE(all.find(L"CONNECTION_TYPE_TCP=" + std::wstring(1, L'\0')), std::wstring::npos);
}

TEST_F(TTCPModuleTest, TheHostsNameIsInTheActiveCodePage) {
    // On Windows the variables' own one, which no test can set.
    if (vapp_platform::IsWindowsBuild() && vapp_platform::ActiveCodePage() != 1252) GTEST_SKIP();
    vapp_platform::SetActiveCodePage(1252);
    ConnectionInfo info = LocalWorker("tcp", {}, "KEY");
    info.hostName = {"h\xc3\xbcte", TextEncoding::Utf8Auto};
    const TTCPModule module(info);
    vapp_platform::SetActiveCodePage(0);
    const std::vector<wchar_t> snapshot = vapp_platform::EnvironmentSnapshot();
    const std::wstring all(snapshot.begin(), snapshot.end());
    // Linux keeps the byte, which is no UTF-8, in a way that leads back to it.
    const wchar_t letter = vapp_platform::IsWindowsBuild() ? L'\x00fc' : L'\xdcfc';
    EXPECT_NE(all.find(std::wstring(L"VORNEX_HOST_NAME=h") + letter + L"te"), std::wstring::npos);
}

TEST_F(TTCPModuleTest, ARemoteWorkerIsStartedThroughTheLoginProgram) {
    ConnectionInfo info;
    info.sshTarget = "me@somewhere";
    info.command = "tcp say:KEY echo";
    info.runLocally = false;
    info.keyword = "KEY";
    TTCPModule module(info);
    ASSERT_TRUE(Connect(module)) << Text(message);
    EXPECT_EQ(Text(message), "\"" + Text(gGetModuleFolder()) +
                                 "\\putty\\bin\\plink.exe\" -batch -X -T me@somewhere tcp say:KEY echo\n");
    EXPECT_TRUE(module.Send("x", 1, message));
    EXPECT_EQ(ReceiveAll(module, 1), "x");
}

TEST_F(TTCPModuleTest, EachStepOfTheListeningSocketFailsWithItsMessage) {
    struct Row {
        FaultSource fault;
        const char* message;
    };
    const Row rows[] = {
        {[](SystemCall call) { return call == SystemCall::StartSocketLibrary ? 71 : 0; },
         "WSAStartup failed with error: 71\n"},
        {[](SystemCall call) { return call == SystemCall::ResolveAddress ? -2 : 0; },
         "getaddrinfo failed with error: -2\n"},
        {[](SystemCall call) { return call == SystemCall::CreateSocket ? 73 : 0; },
         "socket function failed with error = 73\n"},
        {[](SystemCall call) { return call == SystemCall::ReuseAddress ? 74 : 0; },
         "setsockopt failed with error: 74\n"},
        {[](SystemCall call) { return call == SystemCall::Bind ? 75 : 0; },
         "bind function failed with error: 75\n"},
        {[](SystemCall call) { return call == SystemCall::GetSocketName ? 76 : 0; },
         "getsockname failed with error: 76\n"},
        {[](SystemCall call) { return call == SystemCall::AddressFamily ? 77 : 0; },
         "unknown address family 77\n"},
        {[](SystemCall call) { return call == SystemCall::Listen ? 78 : 0; },
         "listen function failed with error: 78\n"},
    };
    for (const Row& row : rows) {
        TTCPModule module(LocalWorker("tcp", {"live"}, "KEY"));
        vapp_platform::SetFaultSource(row.fault);
        EXPECT_FALSE(Connect(module));
        EXPECT_EQ(Text(message), row.message);
        EXPECT_FALSE(module.IsConnected());
        EXPECT_TRUE(environment.empty());
    }
    EXPECT_TRUE(s_boxes.empty());
}

TEST_F(TTCPModuleTest, AStartThatFailsShowsABoxAndLeavesTheCommandLine) {
    ConnectionInfo info = LocalWorker("tcp", {}, "KEY");
    info.command = "vapp-no-such-worker --x";
    TTCPModule module(info);
    EXPECT_FALSE(Connect(module));
    EXPECT_EQ(Text(message), "vapp-no-such-worker --x\n");
    EXPECT_THAT(s_boxes, testing::ElementsAre("Create Process Failed/Create Process Failed"));
}

TEST_F(TTCPModuleTest, AWorkerThatConnectsAndClosesIsAMismatch) {
    TTCPModule module(LocalWorker("tcp", {"say:KE", "end"}, "KEY"));
    EXPECT_FALSE(Connect(module));
    EXPECT_EQ(Text(message), "Waiting keyword \"KEY\" mismatched.\n");
}

TEST_F(TTCPModuleTest, WrongFirstBytesAreAMismatch) {
    for (const char* const words : {"say:kEY", "say: KEY", "say:XKEY", "bytes:004b4559", "bytes:ffffff"}) {
        TTCPModule module(LocalWorker("tcp", {words, "exit:0"}, "KEY"));
        EXPECT_FALSE(Connect(module));
        EXPECT_EQ(Text(message), "Waiting keyword \"KEY\" mismatched.\n") << words;
        EXPECT_FALSE(module.IsConnected());
    }
}

TEST_F(TTCPModuleTest, AKeywordMayComeInPieces) {
    TTCPModule module(LocalWorker("tcp", {"dots:A LONG KEYWORD", "echo"}, "A LONG KEYWORD"));
    EXPECT_TRUE(Connect(module)) << Text(message);
}

TEST_F(TTCPModuleTest, WhatFollowsTheKeywordStaysForRecv) {
    TTCPModule module(LocalWorker("tcp", {"say:KEYrest of it", "end"}, "KEY"));
    ASSERT_TRUE(Connect(module));
    EXPECT_EQ(ReceiveAll(module, 100), "rest of it");
}

TEST_F(TTCPModuleTest, AKeywordOfOtherLettersIsComparedAsItsBytes) {
    TTCPModule module(LocalWorker("tcp", {"bytes:6bc3a9e4b8ad", "echo"}, "k\u00e9\u4e2d"));
    EXPECT_TRUE(Connect(module)) << Text(message);
}

TEST_F(TTCPModuleTest, AnEmptyKeywordMatchesAnything) {
    TTCPModule module(LocalWorker("tcp", {"say:first word", "end"}, ""));
    ASSERT_TRUE(Connect(module)) << Text(message);
    EXPECT_EQ(ReceiveAll(module, 100), "first word");
}

TEST_F(TTCPModuleTest, AKeywordLongerThanTheBufferNeverMatchesNorOverruns) {
    const std::string keyword(5000, 'k');
    TTCPModule module(LocalWorker("tcp", {"say:" + keyword, "exit:0"}, keyword));
    EXPECT_FALSE(Connect(module));
    EXPECT_EQ(Text(message), "Waiting keyword \"" + keyword + "\" mismatched.\n");
    const std::string longest(4096, 'k');
    TTCPModule fits(LocalWorker("tcp", {"say:" + longest, "echo"}, longest));
    EXPECT_TRUE(Connect(fits));
}

TEST_F(TTCPModuleTest, AnAcceptThatFailsIsASuccessWithoutAClient) {
    for (const SystemCall failing : {SystemCall::Accept, SystemCall::WaitForSocket}) {
        TTCPModule module(LocalWorker("pipe", {"live"}, "KEY"));
        if (failing == SystemCall::Accept) {
            // The wait is real, and a worker comes; only then does the accept fail.
            vapp_platform::SetFaultSource(
                [](SystemCall call) { return call == SystemCall::Accept ? 24 : 0; });
            TTCPModule other(LocalWorker("tcp", {"live"}, "KEY"));
            EXPECT_TRUE(Connect(other)) << Text(message);
            EXPECT_TRUE(other.IsConnected());
        }
        vapp_platform::SetFaultSource(
            [](SystemCall call) { return call == SystemCall::WaitForSocket ? 9 : 0; });
        EXPECT_TRUE(Connect(module)) << Text(message);
        EXPECT_TRUE(module.IsConnected());
        vapp_platform::SetFaultSource(nullptr);
        // Nobody is there: the first use says so, and never waits for ever.
        char buffer[8];
        EXPECT_EQ(module.Recv(buffer, 7, message), -1);
        EXPECT_TRUE(Text(message).starts_with("Recv lost failed with error: "));
        EXPECT_FALSE(module.Send("x", 1, message));
        EXPECT_TRUE(Text(message).starts_with("send failed with error: "));
        EXPECT_FALSE(module.IsConnected());
        KillAtOnce();
    }
}

TEST_F(TTCPModuleTest, AHostThatKnowsItsWorkerSkipsTheHandshake) {
    struct TKnowing : TTCPModule {
        using TTCPModule::SetWorkerHasFound;
        using TTCPModule::TTCPModule;
    };
    TKnowing module(LocalWorker("pipe", {"exit:0"}, "KEY"));
    module.SetWorkerHasFound();
    EXPECT_TRUE(Connect(module)) << Text(message);
    EXPECT_TRUE(module.IsConnected());
    EXPECT_FALSE(module.IsWorkerFound());
}

TEST_F(TTCPModuleTest, SendingNothingIsTrueAndTouchesNoSocket) {
    TTCPModule module(LocalWorker("tcp", {}, "KEY"));
    CStringU none;
    EXPECT_TRUE(module.Send(nullptr, 0, none));
    EXPECT_TRUE(module.Send(nullptr, 0x100000000ULL, none));
    // Above the signed numbers of 32 bits: a negative count.
    EXPECT_FALSE(module.Send(nullptr, 0x80000000ULL, none));
    EXPECT_TRUE(none.IsEmpty());
}

TEST_F(TTCPModuleTest, RecvAsksForTheConnectionFirstAndThenForTheBuffer) {
    TTCPModule module(LocalWorker("tcp", {"say:KEY", "echo"}, "KEY"));
    char buffer[8];
    CStringU none;
    EXPECT_EQ(module.Recv(buffer, 0, none), 0);
    EXPECT_EQ(module.Recv(nullptr, 8, none), 0);
    EXPECT_TRUE(none.IsEmpty());
    ASSERT_TRUE(Connect(module));
    for (const int capacity : {0, -1}) {
        message = "";
        EXPECT_EQ(module.Recv(buffer, capacity, message), -1);
        EXPECT_EQ(Text(message), "Recv buffer is null or recv buffer length <= 0.\n");
    }
    EXPECT_EQ(module.Recv(nullptr, 8, message), -1);
}

TEST_F(TTCPModuleTest, RecvWritesOneNulBehindWhatCameAndNothingFurther) {
    TTCPModule module(LocalWorker("tcp", {"say:KEYabcdefgh", "echo"}, "KEY"));
    ASSERT_TRUE(Connect(module));
    char buffer[8];
    std::fill(std::begin(buffer), std::end(buffer), '#');
    ASSERT_EQ(module.Recv(buffer, 4, message), 4);
    EXPECT_EQ(std::string(buffer, 8), std::string("abcd\0###", 8));
}

TEST_F(TTCPModuleTest, ThePeersEndIsZeroWithoutAMessageAndDoesNotDisconnect) {
    TTCPModule module(LocalWorker("tcp", {"say:KEY", "end"}, "KEY"));
    ASSERT_TRUE(Connect(module));
    char buffer[8];
    CStringU none;
    EXPECT_EQ(module.Recv(buffer, 7, none), 0);
    EXPECT_TRUE(none.IsEmpty());
    EXPECT_TRUE(module.IsConnected());
}

TEST_F(TTCPModuleTest, SendingToAPeerThatHasGoneFailsAndDisconnects) {
    TTCPModule module(LocalWorker("tcp", {"say:KEY", "end"}, "KEY"));
    ASSERT_TRUE(Connect(module));
    message = "";
    bool sent = true;
    for (int round = 0; round < 1000000 && sent; ++round)
        sent = module.Send("x", 1, message);
    EXPECT_FALSE(sent);
    EXPECT_TRUE(Text(message).starts_with("send failed with error: ")) << Text(message);
    EXPECT_FALSE(module.IsConnected());
    char buffer[8];
    EXPECT_EQ(module.Recv(buffer, 7, message), 0);
}

TEST_F(TTCPModuleTest, APeerThatTakesNothingStopsASendWithoutAWordOrADisconnect) {
    TTCPModule module(LocalWorker("tcp", {"say:KEY", "live"}, "KEY"));
    ASSERT_TRUE(Connect(module));
    vapp_connection::Limits limits = vapp_connection::CurrentLimits();
    limits.socketWait = std::chrono::milliseconds(30);
    limits.childEnd = std::chrono::milliseconds(0);
    vapp_connection::SetLimits(limits);
    // In pieces: a blocking send of more than the buffers take would wait in the system.
    const std::string block(4096, 'x');
    CStringU none;
    while (module.Send(block.data(), block.size(), none)) {
    }
    EXPECT_TRUE(none.IsEmpty()) << Text(none);
    EXPECT_TRUE(module.IsConnected());
}

TEST_F(TTCPModuleTest, DisconnectWakesABlockedRecvWithAFailure) {
    TTCPModule module(LocalWorker("tcp", {"say:KEY", "live"}, "KEY"));
    ASSERT_TRUE(Connect(module));
    int result = 1;
    CStringU reason;
    std::atomic<std::uint32_t> thread = 0;
    std::thread receiver([&] {
        char buffer[8];
        thread = platform_test::OwnThreadId();
        result = module.Recv(buffer, 7, reason);
    });
    while (thread == 0)
        std::this_thread::yield();
    EXPECT_TRUE(platform_test::WaitUntilAsleep(thread));
    module.Disconnect();
    receiver.join();
    // Where the system doesn't tell that the thread was inside it may have come later, and heard of no
    // failure.
    if (platform_test::TellsSleep()) {
        EXPECT_EQ(result, -1);
    }
    EXPECT_LE(result, 0);
    EXPECT_EQ(Text(reason).starts_with("Recv lost failed with error: "), result < 0);
    EXPECT_FALSE(module.IsConnected());
    module.Disconnect();
    KillAtOnce();
}

TEST_F(TTCPModuleTest, ARecvThatWouldBlockIsAFailureWithoutAWord) {
    TTCPModule module(LocalWorker("tcp", {"say:KEY", "live"}, "KEY"));
    ASSERT_TRUE(Connect(module));
    // Only the client is left at the port: nobody listens there any more.
    const auto sockets = platform_test::OwnSocketsAt(PortIn(environment));
    ASSERT_EQ(sockets.size(), 1U);
    platform_test::StopBlocking(sockets.front());
    char buffer[8];
    CStringU none;
    EXPECT_EQ(module.Recv(buffer, 7, none), -1);
    EXPECT_TRUE(none.IsEmpty()) << Text(none);
    EXPECT_TRUE(module.IsConnected());
    KillAtOnce();
}

TEST_F(TTCPModuleTest, NoChildGetsTheSockets) {
    struct TLooking : TTCPModule {
        TLooking(const ConnectionInfo& info, const std::vector<wchar_t>& given)
            : TTCPModule(info), environment(given) {}
        bool AcceptConnection(CStringU& message) override {
            const auto sockets = platform_test::OwnSocketsAt(PortIn(environment));
            EXPECT_EQ(sockets.size(), 1U);
            for (const auto socket : sockets)
                EXPECT_FALSE(platform_test::IsInheritable(socket));
            return TTCPModule::AcceptConnection(message);
        }
        const std::vector<wchar_t>& environment;
    };
    TLooking module(LocalWorker("tcp", {"say:KEY", "echo"}, "KEY"), environment);
    ASSERT_TRUE(Connect(module)) << Text(message);
    const auto sockets = platform_test::OwnSocketsAt(PortIn(environment));
    ASSERT_EQ(sockets.size(), 1U);
    EXPECT_FALSE(platform_test::IsInheritable(sockets.front()));
}

TEST_F(TTCPModuleTest, BothDirectionsRunAtOnceFromManyThreads) {
    TTCPModule module(LocalWorker("tcp", {"say:KEY", "echo"}, "KEY"));
    ASSERT_TRUE(Connect(module));
    constexpr std::size_t cnBlock = 100000;
    std::vector<std::thread> senders;
    for (const char letter : {'a', 'b', 'c', 'd'}) {
        senders.emplace_back([&module, letter] {
            CStringU reason;
            EXPECT_TRUE(module.Send(std::string(cnBlock, letter).data(), cnBlock, reason));
        });
    }
    const std::string all = ReceiveAll(module, 4 * cnBlock);
    for (std::thread& sender : senders)
        sender.join();
    // Whole blocks one behind the other, in some order.
    ASSERT_EQ(all.size(), 4 * cnBlock);
    for (std::size_t block = 0; block < 4; ++block) {
        EXPECT_EQ(all.substr(block * cnBlock, cnBlock), std::string(cnBlock, all[block * cnBlock]));
    }
}

TEST_F(TTCPModuleTest, CloseIsSafeTwiceAndWithoutAConnection) {
    TTCPModule unused(LocalWorker("tcp", {}, "KEY"));
    unused.Close();
    EXPECT_TRUE(unused.IsDefunct());
    EXPECT_FALSE(unused.IsDefunct());
    TTCPModule module(LocalWorker("tcp", {"say:KEY", "echo"}, "KEY"));
    ASSERT_TRUE(Connect(module));
    module.Close();
    module.Close();
    EXPECT_TRUE(module.IsDefunct());
    EXPECT_FALSE(module.IsDefunct());
}

}  // namespace
