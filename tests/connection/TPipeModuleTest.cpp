#include "vapp/connection/TPipeModule.h"

#include <gmock/gmock.h>

#include <atomic>
#include <optional>
#include <thread>

#include "platform/KnownFolders.h"
#include "tests/connection/ConnectionTest.h"
#include "tests/connection/Door.h"
#include "tests/connection/Worker.h"
#include "tests/platform/SystemHelpers.h"

namespace {

using connection_test::ConnectionTest;
using connection_test::Door;
using connection_test::LocalWorker;
using connection_test::ReceiveAll;
using connection_test::TAfterKnock;
using connection_test::Text;
using vapp_platform::FaultSource;
using vapp_platform::SystemCall;
using Words = std::vector<std::string>;

std::string gLogged;
int gPipeCalls = 0;

struct TPipeModuleTest : ConnectionTest {
    // Without the agent, which no test machine runs; where the system itself asks for none, as it is.
    TPipeModuleTest() {
        if (!gIsWine()) vapp_platform::SetWineAnswer(true);
        gLogged.clear();
        gPipeCalls = 0;
    }
    bool Connect(TPipeModule& module) { return module.InitConnection(environment, message); }
    static void WaitUntilAsleep(const std::atomic<std::uint32_t>& thread) {
        while (thread == 0)
            std::this_thread::yield();
        EXPECT_TRUE(platform_test::WaitUntilAsleep(thread));
    }
    static void KillAtOnce() {
        vapp_connection::Limits limits = vapp_connection::CurrentLimits();
        limits.childEnd = std::chrono::milliseconds(0);
        vapp_connection::SetLimits(limits);
    }
    std::vector<wchar_t> environment;
    CStringU message;
};

TEST_F(TPipeModuleTest, AWorkerThatSaysTheKeywordIsConnected) {
    TPipeModule module(LocalWorker("pipe", {"say:KEY!", "echo"}, "KEY!"));
    EXPECT_EQ(module.GetChildProcessID(), 0U);
    ASSERT_TRUE(Connect(module)) << Text(message);
    EXPECT_TRUE(module.IsConnected());
    EXPECT_NE(module.GetChildProcessID(), 0U);
    EXPECT_TRUE(module.Send("hello", 5, message));
    EXPECT_EQ(ReceiveAll(module, 5), "hello");
    EXPECT_TRUE(module.IsWorkerFound());
    EXPECT_FALSE(module.IsWorkerFound());
    module.Close();
    EXPECT_FALSE(module.IsConnected());
    EXPECT_TRUE(environment.empty());
}

TEST_F(TPipeModuleTest, TheAgentMustRunWhereThereIsOne) {
    vapp_platform::SetWineAnswer(false);
    const ConnectionInfo info = LocalWorker("pipe", {"say:KEY", "echo"}, "KEY");
    ASSERT_TRUE(info.runLocally);
    TPipeModule module(info);
    EXPECT_FALSE(Connect(module));
    EXPECT_EQ(Text(message), "Pageant is not running.  Please start Pageant and load your private key.");
    EXPECT_EQ(module.GetChildProcessID(), 0U);
    EXPECT_TRUE(s_boxes.empty());
}

TEST_F(TPipeModuleTest, TheCommandLineGoesToTheMessageWithoutACallback) {
    const ConnectionInfo info = LocalWorker("pipe", {"say:KEY", "echo"}, "KEY");
    TPipeModule module(info);
    message = "something older";
    ASSERT_TRUE(Connect(module));
    EXPECT_EQ(Text(message), Text(info.command) + "\n");
}

TEST_F(TPipeModuleTest, TheCommandLineGoesToTheCallbackAloneIfThereIsOne) {
    ConnectionInfo info = LocalWorker("pipe", {}, "KEY");
    info.command = "vapp-no-such-worker";
    TPipeModule module(info);
    module.SetLogCallback([](const CStringU& line) {
        gLogged = Text(line);
        ++gPipeCalls;
    });
    CStringU none;
    EXPECT_FALSE(module.InitConnection(environment, none));
    EXPECT_EQ(gLogged, "vapp-no-such-worker\n");
    EXPECT_EQ(gPipeCalls, 1);
    EXPECT_TRUE(none.IsEmpty());
    EXPECT_THAT(s_boxes, testing::ElementsAre("Create Process Failed/Create Process Failed"));
}

TEST_F(TPipeModuleTest, ARemoteWorkerIsStartedThroughTheLoginProgram) {
    ConnectionInfo info;
    info.sshTarget = "me@somewhere";
    info.command = "pipe say:KEY echo";
    info.runLocally = false;
    info.keyword = "KEY";
    TPipeModule module(info);
    ASSERT_TRUE(Connect(module)) << Text(message);
    EXPECT_EQ(Text(message), "\"" + Text(gGetModuleFolder()) +
                                 "\\putty\\bin\\plink.exe\" -batch -X -T me@somewhere pipe say:KEY echo\n");
    EXPECT_TRUE(module.Send("x", 1, message));
    EXPECT_EQ(ReceiveAll(module, 1), "x");
}

TEST_F(TPipeModuleTest, WhatTheLoginPrintsReachesTheUser) {
    ConnectionInfo info;
    info.sshTarget = "me@nowhere";
    info.command = "pipe say:KEY";
    info.runLocally = false;
    info.keyword = "KEY";
    TPipeModule module(info);
    EXPECT_FALSE(Connect(module));
    EXPECT_EQ(Text(message),
              "Waiting keyword \"KEY\" mismatched. Received message \"Host does not exist\"\n");
}

TEST_F(TPipeModuleTest, WithACallbackAFailureLeavesTheMessageFreeOfTheCommandLine) {
    const ConnectionInfo info = LocalWorker("pipe", {"exit:0"}, "KEY");
    TPipeModule module(info);
    module.SetLogCallback([](const CStringU& line) { gLogged += Text(line); });
    EXPECT_FALSE(Connect(module));
    EXPECT_EQ(gLogged, Text(info.command) + "\n");
    EXPECT_EQ(Text(message), "Connection failed, no data received.\n");
    // Nothing is started, nothing is told.
    gLogged.clear();
    TPipeModule none(info);
    none.SetLogCallback([](const CStringU& line) { gLogged += Text(line); });
    vapp_platform::SetFaultSource([](SystemCall call) { return call == SystemCall::CreatePipe ? 24 : 0; });
    EXPECT_FALSE(Connect(none));
    EXPECT_EQ(gLogged, "");
    EXPECT_EQ(Text(message), "StdOutRd CreatePipe");
}

TEST_F(TPipeModuleTest, EachStepBeforeTheStartFailsWithItsMessage) {
    struct Row {
        FaultSource fault;
        const char* message;
        bool started;
    };
    static int calls;
    const Row rows[] = {
        {[](SystemCall call) { return call == SystemCall::CreatePipe ? 24 : 0; }, "StdOutRd CreatePipe",
         false},
        {[](SystemCall call) { return call == SystemCall::KeepFromChildren ? 6 : 0; },
         "StdOutRd SetHandleInformation", false},
        {[](SystemCall call) { return call == SystemCall::CreatePipe && calls++ == 1 ? 24 : 0; },
         "StdInRd CreatePipe", false},
        {[](SystemCall call) { return call == SystemCall::KeepFromChildren && calls++ == 1 ? 6 : 0; },
         "StdInRd SetHandleInformation", false},
        {[](SystemCall call) { return call == SystemCall::CloseHandle ? 6 : 0; }, "StdOutWr CloseHandle",
         true},
    };
    const int before = platform_test::CountOpenHandles();
    for (const Row& row : rows) {
        calls = 0;
        TPipeModule module(LocalWorker("pipe", {"say:KEY", "echo"}, "KEY"));
        vapp_platform::SetFaultSource(row.fault);
        EXPECT_FALSE(Connect(module));
        vapp_platform::SetFaultSource(nullptr);
        EXPECT_EQ(Text(message), row.message);
        EXPECT_EQ(module.GetChildProcessID() != 0, row.started) << row.message;
        EXPECT_FALSE(module.IsConnected());
        KillAtOnce();
    }
    EXPECT_LE(platform_test::CountOpenHandles(), before);
}

TEST_F(TPipeModuleTest, TheChildsInputEndIsClosedOnPlainWindowsAndKeptUnderWine) {
    int keptOnWindows = 0;
    for (const bool isWine : {false, true}) {
        // The agent's window is asked for first, so the answer changes when the start begins.
        vapp_platform::SetWineAnswer(true);
        static bool answer;
        answer = isWine;
        TPipeModule module(LocalWorker("pipe", {"say:KEY", "live"}, "KEY"));
        module.SetLogCallback([](const CStringU&) { vapp_platform::SetWineAnswer(answer); });
        const int before = platform_test::CountOpenHandles();
        ASSERT_TRUE(Connect(module));
        const int kept = platform_test::CountOpenHandles() - before;
        if (!isWine) keptOnWindows = kept;
        EXPECT_EQ(kept, keptOnWindows + (isWine ? 1 : 0));
        KillAtOnce();
    }
}

TEST_F(TPipeModuleTest, AnInputEndThatCantBeClosedIsAFailureOnPlainWindows) {
    static int closes;
    closes = 0;
    TPipeModule module(LocalWorker("pipe", {"say:KEY", "live"}, "KEY"));
    module.SetLogCallback([](const CStringU&) { vapp_platform::SetWineAnswer(false); });
    vapp_platform::SetFaultSource(
        [](SystemCall call) { return call == SystemCall::CloseHandle && closes++ == 1 ? 6 : 0; });
    EXPECT_FALSE(Connect(module));
    EXPECT_EQ(Text(message), "StdInRd CloseHandle");
    vapp_platform::SetFaultSource(nullptr);
    KillAtOnce();
}

TEST_F(TPipeModuleTest, AWorkerThatNeverSpeaksTimesOut) {
    ShortenWaits();
    TPipeModule module(LocalWorker("pipe", {"live"}, "KEY"));
    EXPECT_FALSE(Connect(module));
    EXPECT_EQ(Text(message), "Timed out waiting keyword \"KEY\" for accept Pipe connection.\n");
}

TEST_F(TPipeModuleTest, AWorkerThatSaysTooLittleTimesOut) {
    Door door;
    vapp_connection::Limits few = vapp_connection::CurrentLimits();
    few.pipePolls = 3;
    few.childEnd = std::chrono::milliseconds(0);
    // Its bytes are there before the first look.
    TAfterKnock<TPipeModule> module(LocalWorker("pipe", {"say:KE", door.Word(), "live"}, "KEY"), door, few);
    EXPECT_FALSE(Connect(module));
    EXPECT_EQ(Text(message), "Timed out waiting keyword \"KEY\" for accept Pipe connection.\n");
}

TEST_F(TPipeModuleTest, AChildThatExitsAtOnceHasSaidNothing) {
    TPipeModule module(LocalWorker("pipe", {"exit:0"}, "KEY"));
    EXPECT_FALSE(Connect(module));
    EXPECT_EQ(Text(message), "Connection failed, no data received.\n");
    EXPECT_FALSE(module.IsConnected());
}

TEST_F(TPipeModuleTest, ALoginThatPrintsBeforeTheKeywordIsNoHindrance) {
    TPipeModule module(LocalWorker("pipe", {"say:Welcome.\nKEY", "echo"}, "KEY"));
    ASSERT_TRUE(Connect(module)) << Text(message);
    EXPECT_TRUE(module.Send("x", 1, message));
    EXPECT_EQ(ReceiveAll(module, 1), "x");
}

TEST_F(TPipeModuleTest, ABannerAloneAtLeastAsLongAsTheKeywordIsQuoted) {
    TPipeModule module(LocalWorker("pipe", {"say:BANNER", "get:1", "say:KEY", "echo"}, "KEY"));
    EXPECT_FALSE(Connect(module));
    EXPECT_EQ(Text(message), "Waiting keyword \"KEY\" mismatched. Received message \"BANNER\"\n");
    KillAtOnce();
}

TEST_F(TPipeModuleTest, NothingBehindTheKeywordIsTaken) {
    TPipeModule module(LocalWorker("pipe", {"say:noise KEYrest KEY", "echo"}, "KEY"));
    ASSERT_TRUE(Connect(module));
    EXPECT_EQ(ReceiveAll(module, 8), "rest KEY");
}

TEST_F(TPipeModuleTest, ExactlyTheKeywordIsOneReadHoweverLongItIs) {
    std::int64_t calls[2] = {};
    for (const std::size_t size : {3U, 3000U}) {
        const std::string keyword(size, 'k');
        // A start and a handshake of its own, with all of the keyword there at the first look.
        Door door;
        struct TCounting : TAfterKnock<TPipeModule> {
            using TAfterKnock<TPipeModule>::TAfterKnock;
            bool AcceptConnection(CStringU& message) override {
                const bool connected = TAfterKnock<TPipeModule>::AcceptConnection(message);
                after = platform_test::CountReadCalls();
                return connected;
            }
            std::optional<std::int64_t> after;
        };
        TCounting module(
            LocalWorker("pipe", {"say:" + keyword, door.Word(), "get:1", "say:later", "echo"}, keyword),
            door);
        const auto before = platform_test::CountReadCalls();
        ASSERT_TRUE(Connect(module)) << Text(message);
        EXPECT_TRUE(module.Send("x", 1, message));
        EXPECT_EQ(ReceiveAll(module, 5), "later");
        if (!before) GTEST_SKIP() << "the system counts no calls of a thread";
        calls[size == 3 ? 0 : 1] = *module.after - *before;
    }
    // The start reads a little by itself, the same both times.
    EXPECT_EQ(calls[0], calls[1]);
}

TEST_F(TPipeModuleTest, AtMostABufferOfWhatIsThereIsLookedAt) {
    TPipeModule beyond(LocalWorker("pipe", {"say:" + std::string(4096, 'n') + "KEY", "live"}, "KEY"));
    EXPECT_FALSE(Connect(beyond));
    EXPECT_EQ(Text(message),
              "Waiting keyword \"KEY\" mismatched. Received message \"" + std::string(4096, 'n') + "\"\n");
    TPipeModule within(LocalWorker("pipe", {"say:" + std::string(4093, 'n') + "KEY", "live"}, "KEY"));
    EXPECT_TRUE(Connect(within)) << Text(message).size();
    KillAtOnce();
}

TEST_F(TPipeModuleTest, AKeywordLongerThanTheBufferNeverMatchesNorOverruns) {
    const std::string keyword(5000, 'k');
    TPipeModule module(LocalWorker("pipe", {"say:" + keyword, "live"}, keyword));
    EXPECT_FALSE(Connect(module));
    EXPECT_TRUE(Text(message).starts_with("Waiting keyword \"" + keyword)) << Text(message);
    const std::string longest(4096, 'k');
    TPipeModule fits(LocalWorker("pipe", {"say:" + longest, "live"}, longest));
    EXPECT_TRUE(Connect(fits));
    KillAtOnce();
}

TEST_F(TPipeModuleTest, AnEmptyKeywordIsNeverFound) {
    TPipeModule module(LocalWorker("pipe", {"say:word", "echo"}, ""));
    EXPECT_FALSE(Connect(module));
    EXPECT_EQ(Text(message), "Timed out waiting keyword \"\" for accept Pipe connection.\n");
    KillAtOnce();
}

TEST_F(TPipeModuleTest, AKeywordOfOtherLettersIsComparedAsItsBytes) {
    TPipeModule module(LocalWorker("pipe", {"bytes:21ff6bc3a9", "echo"}, "k\u00e9"));
    EXPECT_TRUE(Connect(module)) << Text(message);
}

TEST_F(TPipeModuleTest, BytesThatAreNoTextMatchNothingButThemselves) {
    // Decoded, 0xFF is a question mark.
    TPipeModule wrong(LocalWorker("pipe", {"bytes:ff4559", "live"}, "?EY"));
    EXPECT_FALSE(Connect(wrong));
    EXPECT_EQ(Text(message), "Waiting keyword \"?EY\" mismatched. Received message \"\xff\x45\x59\"\n");
    TPipeModule behind(LocalWorker("pipe", {"bytes:ff45593f4559", "echo"}, "?EY"));
    EXPECT_TRUE(Connect(behind)) << Text(message);
    KillAtOnce();
}

TEST_F(TPipeModuleTest, AKnownWorkerSkipsTheHandshakeOnce) {
    struct TKnowing : TPipeModule {
        using TPipeModule::SetWorkerHasFound;
        using TPipeModule::TPipeModule;
    };
    TKnowing module(LocalWorker("pipe", {"say:not the keyword", "echo"}, "KEY"));
    module.SetWorkerHasFound();
    ASSERT_TRUE(Connect(module)) << Text(message);
    EXPECT_EQ(ReceiveAll(module, 15), "not the keyword");
    EXPECT_FALSE(module.IsWorkerFound());
}

TEST_F(TPipeModuleTest, DefunctIsToldOnlyWhileTheConnectionIsDown) {
    struct TLatched : TPipeModule {
        using TPipeModule::SetDefunct;
        using TPipeModule::TPipeModule;
    };
    TLatched module(LocalWorker("pipe", {"say:KEY", "echo"}, "KEY"));
    EXPECT_FALSE(module.IsDefunct());
    module.SetDefunct();
    EXPECT_TRUE(module.IsDefunct());
    ASSERT_TRUE(Connect(module));
    module.SetDefunct();
    EXPECT_FALSE(module.IsDefunct());
    module.Disconnect();
    EXPECT_FALSE(module.IsDefunct());
    module.Close();
    EXPECT_TRUE(module.IsDefunct());
    EXPECT_FALSE(module.IsDefunct());
}

TEST_F(TPipeModuleTest, RecvAsksForTheConnectionFirstAndThenForTheBuffer) {
    TPipeModule module(LocalWorker("pipe", {"say:KEY", "echo"}, "KEY"));
    char buffer[8];
    CStringU none;
    EXPECT_EQ(module.Recv(buffer, 0, none), 0);
    EXPECT_TRUE(none.IsEmpty());
    ASSERT_TRUE(Connect(module));
    EXPECT_EQ(module.Recv(buffer, 0, message), -1);
    EXPECT_EQ(Text(message), "Recv buffer is null or recv buffer length <= 0.\n");
    message = "";
    EXPECT_EQ(module.Recv(nullptr, 8, message), -1);
    EXPECT_EQ(Text(message), "Recv buffer is null or recv buffer length <= 0.\n");
}

TEST_F(TPipeModuleTest, RecvWritesOneNulBehindWhatCameAndNothingFurther) {
    TPipeModule module(LocalWorker("pipe", {"say:KEYabcdefgh", "echo"}, "KEY"));
    ASSERT_TRUE(Connect(module));
    char buffer[8];
    std::fill(std::begin(buffer), std::end(buffer), '#');
    ASSERT_EQ(module.Recv(buffer, 4, message), 4);
    EXPECT_EQ(std::string(buffer, 8), std::string("abcd\0###", 8));
}

TEST_F(TPipeModuleTest, RecvAfterTheChildsEndIsZeroWithAMessageAndDoesNotDisconnect) {
    TPipeModule module(LocalWorker("pipe", {"say:KEYlast", "exit:0"}, "KEY"));
    ASSERT_TRUE(Connect(module));
    EXPECT_EQ(ReceiveAll(module, 4), "last");
    char buffer[8];
    message = "";
    EXPECT_EQ(module.Recv(buffer, 7, message), 0);
    EXPECT_TRUE(Text(message).starts_with("Recv failed with error: ")) << Text(message);
    EXPECT_TRUE(module.IsConnected());
    module.Disconnect();
    EXPECT_FALSE(module.IsConnected());
}

TEST_F(TPipeModuleTest, SendingToAWorkerThatHasGoneFailsAndDisconnectsOnPlainWindows) {
    TPipeModule module(LocalWorker("pipe", {"say:KEY", "exit:0"}, "KEY"));
    module.SetLogCallback([](const CStringU&) { vapp_platform::SetWineAnswer(false); });
    ASSERT_TRUE(Connect(module));
    while (platform_test::IsRunning(module.GetChildProcessID()))
        std::this_thread::yield();
    message = "";
    EXPECT_FALSE(module.Send("x", 1, message));
    EXPECT_TRUE(Text(message).starts_with("send failed with error: ")) << Text(message);
    EXPECT_FALSE(module.IsConnected());
}

// To write to nobody fails, as anybody would expect; only under Wine the open end takes what fits.
TEST_F(TPipeModuleTest, SendingToAWorkerThatHasGoneFailsUnlessWineRunsTheProgram) {
    const bool kept = vapp_platform::IsWindowsUnderWine();
    TPipeModule module(LocalWorker("pipe", {"say:KEY", "exit:0"}, "KEY"));
    ASSERT_TRUE(Connect(module));
    while (platform_test::IsRunning(module.GetChildProcessID()))
        std::this_thread::yield();
    CStringU none;
    EXPECT_EQ(module.Send("x", 1, none), kept);
    EXPECT_EQ(module.IsConnected(), kept);
    EXPECT_EQ(Text(none).starts_with("send failed with error: "), !kept) << Text(none);
}

TEST_F(TPipeModuleTest, SendingToAWorkerThatHasGoneSucceedsUnderWineWhileThereIsRoom) {
    TPipeModule module(LocalWorker("pipe", {"say:KEY", "exit:0"}, "KEY"));
    module.SetLogCallback([](const CStringU&) { vapp_platform::SetWineAnswer(true); });
    ASSERT_TRUE(Connect(module));
    while (platform_test::IsRunning(module.GetChildProcessID()))
        std::this_thread::yield();
    CStringU none;
    EXPECT_TRUE(module.Send("x", 1, none));
    EXPECT_TRUE(none.IsEmpty());
    EXPECT_TRUE(module.IsConnected());
}

TEST_F(TPipeModuleTest, SendingWithoutAConnectionFailsAndSendingNothingDoesNot) {
    TPipeModule module(LocalWorker("pipe", {}, "KEY"));
    EXPECT_TRUE(module.Send(nullptr, 0, message));
    EXPECT_TRUE(module.Send(nullptr, 0x100000000ULL, message));
    EXPECT_TRUE(message.IsEmpty());
    EXPECT_FALSE(module.Send("x", 1, message));
    EXPECT_TRUE(Text(message).starts_with("send failed with error: "));
}

TEST_F(TPipeModuleTest, DisconnectWakesABlockedRecv) {
    TPipeModule module(LocalWorker("pipe", {"say:KEY", "live"}, "KEY"));
    ASSERT_TRUE(Connect(module));
    int result = 1;
    CStringU reason;
    std::atomic<std::uint32_t> thread = 0;
    std::thread receiver([&] {
        char buffer[8];
        thread = platform_test::OwnThreadId();
        result = module.Recv(buffer, 7, reason);
    });
    WaitUntilAsleep(thread);
    module.Disconnect();
    receiver.join();
    EXPECT_EQ(result, 0);
    // It was inside: one that asks a connection that is down says nothing.
    EXPECT_TRUE(Text(reason).starts_with("Recv failed with error: ") || !platform_test::TellsSleep());
    EXPECT_FALSE(module.IsConnected());
    KillAtOnce();
}

TEST_F(TPipeModuleTest, DisconnectWakesASendIntoAFullPipe) {
    TPipeModule module(LocalWorker("pipe", {"say:KEY", "live"}, "KEY"));
    ASSERT_TRUE(Connect(module));
    CStringU reason;
    bool sent = true;
    std::atomic<std::uint32_t> thread = 0;
    const std::string much(1 << 22, 'x');
    std::thread sender([&] {
        thread = platform_test::OwnThreadId();
        sent = module.Send(much.data(), much.size(), reason);
    });
    // It sleeps only where the pipe takes no more.
    WaitUntilAsleep(thread);
    module.Disconnect();
    sender.join();
    EXPECT_FALSE(sent);
    EXPECT_TRUE(Text(reason).starts_with("send failed with error: "));
    KillAtOnce();
}

TEST_F(TPipeModuleTest, FullPipesBothWaysRunOnOnceTheyAreRead) {
    TPipeModule module(LocalWorker("pipe", {"say:KEY", "blocks:20", "echo"}, "KEY"));
    ASSERT_TRUE(Connect(module));
    const std::string much(20 * 65536, 'x');
    std::thread sender([&] {
        CStringU reason;
        EXPECT_TRUE(module.Send(much.data(), much.size(), reason)) << Text(reason);
    });
    const std::string all = ReceiveAll(module, 40 * 65536);
    sender.join();
    EXPECT_EQ(all, std::string(20 * 65536, 'b') + much);
}

}  // namespace
