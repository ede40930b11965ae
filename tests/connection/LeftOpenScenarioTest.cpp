/// @file
/// What a connection that fails leaves open: exactly what it had by then, until the object ends, and nothing
/// behind that.
#include <memory>
#include <string>

#include "tests/connection/ConnectionTest.h"
#include "tests/connection/Door.h"
#include "tests/connection/Worker.h"
#include "tests/platform/SystemHelpers.h"
#include "vapp/connection/TPipeModule.h"
#include "vapp/connection/TTCPModule.h"

namespace {

using connection_test::ConnectionTest;
using connection_test::Door;
using connection_test::LocalWorker;
using connection_test::TAfterKnock;
using connection_test::Text;
using platform_test::CountOpenHandles;
using std::chrono::milliseconds;
using vapp_platform::FaultSource;
using vapp_platform::SystemCall;
using Words = std::vector<std::string>;

struct LeftOpenTest : ConnectionTest {
    LeftOpenTest() {
        if (!gIsWine()) vapp_platform::SetWineAnswer(true);
        KillAtOnce();
        // The first of each kind can make the system's own handles.
        for (int round = 0; round < 2; ++round) {
            TPipeModule pipe(LocalWorker("pipe", {"say:KEY", "echo"}, "KEY"));
            EXPECT_TRUE(pipe.InitConnection(environment, message));
            TTCPModule tcp(LocalWorker("tcp", {"say:KEY", "echo"}, "KEY"));
            EXPECT_TRUE(tcp.InitConnection(environment, message));
            environment.clear();
        }
        before = CountOpenHandles();
    }
    static void KillAtOnce() {
        vapp_connection::Limits limits = vapp_connection::CurrentLimits();
        limits.childEnd = milliseconds(0);
        vapp_connection::SetLimits(limits);
    }
    /// How many handles are open that were not before.
    [[nodiscard]] int Left() const { return CountOpenHandles() - before; }

    std::vector<wchar_t> environment;
    CStringU message;
    int before = 0;
};

int gCalls = 0;

TEST_F(LeftOpenTest, APipeLeavesWhatItHadWhenItFailed) {
    struct Row {
        const char* message;
        FaultSource fault;
        int left;
    };
    const Row rows[] = {
        {"StdOutRd CreatePipe", [](SystemCall call) { return call == SystemCall::CreatePipe ? 24 : 0; }, 0},
        {"StdOutRd SetHandleInformation",
         [](SystemCall call) { return call == SystemCall::KeepFromChildren ? 6 : 0; }, 2},
        {"StdInRd CreatePipe",
         [](SystemCall call) { return call == SystemCall::CreatePipe && gCalls++ == 1 ? 24 : 0; }, 2},
        {"StdInRd SetHandleInformation",
         [](SystemCall call) { return call == SystemCall::KeepFromChildren && gCalls++ == 1 ? 6 : 0; }, 4},
        {"", [](SystemCall call) { return call == SystemCall::StartProcess ? 11 : 0; }, 4},
        // And the child.
        {"StdOutWr CloseHandle", [](SystemCall call) { return call == SystemCall::CloseHandle ? 6 : 0; }, 5},
    };
    for (const Row& row : rows) {
        gCalls = 0;
        const ConnectionInfo info = LocalWorker("pipe", {"say:KEY", "echo"}, "KEY");
        auto module = std::make_unique<TPipeModule>(info);
        vapp_platform::SetFaultSource(row.fault);
        EXPECT_FALSE(module->InitConnection(environment, message));
        vapp_platform::SetFaultSource(nullptr);
        EXPECT_EQ(Text(message), *row.message != '\0' ? row.message : Text(info.command) + "\n");
        EXPECT_EQ(Left(), row.left) << row.message;
        module->Disconnect();
        EXPECT_EQ(Left(), row.left) << row.message;
        module.reset();
        EXPECT_EQ(Left(), 0) << row.message;
    }
}

TEST_F(LeftOpenTest, APipesStreamsStayBehindAFailedHandshakeAlsoAcrossClose) {
    for (const char* const word : {"exit:0", "say:WRONG"}) {
        auto module = std::make_unique<TPipeModule>(LocalWorker("pipe", {word, "live"}, "KEY"));
        EXPECT_FALSE(module->InitConnection(environment, message));
        const int open = Left();
        EXPECT_GE(open, 3) << word;
        module->Close();
        // The child alone has gone.
        EXPECT_EQ(Left(), open - 1) << word;
        module.reset();
        EXPECT_EQ(Left(), 0) << word;
    }
}

TEST_F(LeftOpenTest, AListeningSocketThatIsNotOneIsNotLeft) {
    for (const SystemCall failing : {SystemCall::CreateSocket, SystemCall::Bind, SystemCall::Listen}) {
        static SystemCall asked;
        asked = failing;
        TTCPModule module(LocalWorker("tcp", {"say:KEY", "echo"}, "KEY"));
        vapp_platform::SetFaultSource([](SystemCall call) { return call == asked ? 77 : 0; });
        EXPECT_FALSE(module.InitConnection(environment, message));
        vapp_platform::SetFaultSource(nullptr);
        EXPECT_EQ(Left(), 0);
    }
}

TEST_F(LeftOpenTest, AListeningSocketStaysBehindAFailedStart) {
    ConnectionInfo info = LocalWorker("tcp", {}, "KEY");
    info.command = "vapp-no-such-worker";
    auto module = std::make_unique<TTCPModule>(info);
    EXPECT_FALSE(module->InitConnection(environment, message));
    EXPECT_EQ(Left(), 1);
    module->Close();
    EXPECT_EQ(Left(), 1);
    module.reset();
    EXPECT_EQ(Left(), 0);
}

TEST_F(LeftOpenTest, AListeningSocketStaysBehindAWorkerThatNeverCame) {
    vapp_connection::Limits limits = vapp_connection::CurrentLimits();
    limits.socketWait = milliseconds(10);
    vapp_connection::SetLimits(limits);
    auto module = std::make_unique<TTCPModule>(LocalWorker("pipe", {"live"}, "KEY"));
    EXPECT_FALSE(module->InitConnection(environment, message));
    EXPECT_EQ(Left(), 2);
    module->Close();
    EXPECT_EQ(Left(), 1);
    module.reset();
    EXPECT_EQ(Left(), 0);
}

TEST_F(LeftOpenTest, AClientStaysBehindAFailedHandshakeAlsoAcrossClose) {
    struct Row {
        const char* word;
        const char* message;
    };
    const Row rows[] = {
        {"say:WRONG", "Waiting keyword \"KEY\" mismatched.\n"},
        {"say:KE", "Timed out waiting keyword \"KEY\" for accept TCP connection.\n"},
        {"end", "Waiting keyword \"KEY\" mismatched.\n"},
    };
    vapp_connection::Limits limits = vapp_connection::CurrentLimits();
    limits.socketWait = milliseconds(50);
    for (const Row& row : rows) {
        LengthenWaits();
        KillAtOnce();
        auto door = std::make_unique<Door>();
        using TModule = TAfterKnock<TTCPModule>;
        auto module = std::make_unique<TModule>(LocalWorker("tcp", {row.word, door->Word(), "live"}, "KEY"),
                                                *door, limits);
        EXPECT_FALSE(module->InitConnection(environment, message));
        EXPECT_EQ(Text(message), row.message);
        environment.clear();
        door.reset();
        EXPECT_EQ(Left(), 2) << row.word;
        module->Close();
        EXPECT_EQ(Left(), 1) << row.word;
        module.reset();
        EXPECT_EQ(Left(), 0) << row.word;
    }
}

}  // namespace
