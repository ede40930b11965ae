/// @file
/// Every way in which a worker can end or refuse to, and what Close makes of it.
#include <chrono>
#include <thread>

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
using connection_test::Text;
using std::chrono::milliseconds;

struct WorkerEndsTest : ConnectionTest {
    WorkerEndsTest() {
        if (!gIsWine()) vapp_platform::SetWineAnswer(true);
    }

    static milliseconds TimeOfClose(TConnectionModule& module) {
        const auto begin = std::chrono::steady_clock::now();
        module.Close();
        return std::chrono::duration_cast<milliseconds>(std::chrono::steady_clock::now() - begin);
    }
    /// A connected pipe worker that goes on with these words.
    static std::unique_ptr<TPipeModule> Connected(const std::vector<std::string>& words) {
        std::vector<std::string> all = {"say:KEY"};
        all.insert(all.end(), words.begin(), words.end());
        auto module = std::make_unique<TPipeModule>(LocalWorker("pipe", all, "KEY"));
        std::vector<wchar_t> environment;
        CStringU message;
        EXPECT_TRUE(module->InitConnection(environment, message)) << Text(message);
        return module;
    }
    static void WaitForTheEnd(std::uint32_t id) {
        while (platform_test::IsRunning(id))
            std::this_thread::yield();
    }
};

TEST_F(WorkerEndsTest, OneThatHasEndedIsNotWaitedFor) {
    const auto module = Connected({"exit:7"});
    WaitForTheEnd(module->GetChildProcessID());
    EXPECT_LT(TimeOfClose(*module), milliseconds(1500));
}

TEST_F(WorkerEndsTest, OneThatEndsWithItsInputEndsByItself) {
    const auto module = Connected({"echo"});
    EXPECT_LT(TimeOfClose(*module), milliseconds(1900));
    EXPECT_FALSE(platform_test::IsRunning(module->GetChildProcessID()));
}

TEST_F(WorkerEndsTest, OneThatIgnoresTheEndOfItsInputIsKilledAfterTwoSeconds) {
    const auto module = Connected({"live"});
    const milliseconds took = TimeOfClose(*module);
    EXPECT_GE(took, milliseconds(1950));
    EXPECT_LT(took, milliseconds(4000));
    EXPECT_FALSE(platform_test::IsRunning(module->GetChildProcessID()));
}

TEST_F(WorkerEndsTest, OneThatIsDeafIsKilledAllTheSame) {
    const auto module = Connected({"deaf"});
    ShortenWaits();
    module->Close();
    WaitForTheEnd(module->GetChildProcessID());
}

TEST_F(WorkerEndsTest, OneThatClosesItsOutputAndLivesOnIsKilled) {
    const auto module = Connected({"end", "live"});
    char buffer[8];
    CStringU message;
    EXPECT_EQ(module->Recv(buffer, 7, message), 0);
    EXPECT_FALSE(message.IsEmpty());
    ShortenWaits();
    module->Close();
    WaitForTheEnd(module->GetChildProcessID());
}

TEST_F(WorkerEndsTest, ADestroyedConnectionLeavesNoChildRunning) {
    ShortenWaits();
    vapp_connection::Limits limits = vapp_connection::CurrentLimits();
    limits.pipePolls = 60000;
    vapp_connection::SetLimits(limits);
    auto module = Connected({"live"});
    const std::uint32_t id = module->GetChildProcessID();
    module.reset();
    WaitForTheEnd(id);
}

TEST_F(WorkerEndsTest, AGrandchildThatHoldsThePipeDoesNotHoldUpClose) {
    Door door;
    const auto module = Connected({"grandchild:" + door.Port(), "exit:0"});
    door.WaitForKnock();
    // The worker is gone and its child keeps the stream open: only Disconnect can end a Recv now.
    WaitForTheEnd(module->GetChildProcessID());
    std::thread receiver([&] {
        char later[8];
        CStringU reason;
        EXPECT_EQ(module->Recv(later, 7, reason), 0);
    });
    EXPECT_LT(TimeOfClose(*module), milliseconds(1500));
    receiver.join();
    EXPECT_TRUE(door.VisitorLives());
}

TEST_F(WorkerEndsTest, DisconnectLeavesTheChildToItself) {
    const auto module = Connected({"live"});
    module->Disconnect();
    EXPECT_TRUE(platform_test::IsRunning(module->GetChildProcessID()));
    ShortenWaits();
}

TEST_F(WorkerEndsTest, AfterAFailedHandshakeTheChildRunsUntilClose) {
    TPipeModule module(LocalWorker("pipe", {"say:WRONG", "live"}, "KEY"));
    std::vector<wchar_t> environment;
    CStringU message;
    EXPECT_FALSE(module.InitConnection(environment, message));
    EXPECT_TRUE(platform_test::IsRunning(module.GetChildProcessID()));
    ShortenWaits();
    module.Close();
    WaitForTheEnd(module.GetChildProcessID());
}

// The long form of this is a soak.
TEST_F(WorkerEndsTest, ManyCyclesOfBothTransportsLoseNoHandle) {
    std::vector<wchar_t> environment;
    CStringU message;
    int before = 0;
    for (int cycle = 0; cycle < 12; ++cycle) {
        std::unique_ptr<TConnectionModule> module;
        if (cycle % 2 == 0) {
            module = std::make_unique<TPipeModule>(LocalWorker("pipe", {"say:KEY", "echo"}, "KEY"));
        } else {
            module = std::make_unique<TTCPModule>(LocalWorker("tcp", {"say:KEY", "echo"}, "KEY"));
        }
        ASSERT_TRUE(module->InitConnection(environment, message)) << Text(message);
        EXPECT_TRUE(module->Send("talk", 4, message));
        EXPECT_EQ(connection_test::ReceiveAll(*module, 4), "talk");
        module.reset();
        environment.clear();
        // The first of each kind can make the system's own handles.
        if (cycle == 1) before = platform_test::CountOpenHandles();
    }
    EXPECT_LE(platform_test::CountOpenHandles(), before);
}

}  // namespace
