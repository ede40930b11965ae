/// @file
/// Every way in which a worker can end or refuse to, over both transports, and what Close makes of it.
#include <atomic>
#include <chrono>
#include <memory>
#include <string>
#include <thread>
#include <type_traits>

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

template <typename Module>
struct WorkerEndsTest : ConnectionTest {
    WorkerEndsTest() {
        if (!gIsWine()) vapp_platform::SetWineAnswer(true);
    }

    static constexpr bool cnTcp = std::is_same_v<Module, TTCPModule>;

    static milliseconds TimeOfClose(TConnectionModule& module) {
        const auto begin = std::chrono::steady_clock::now();
        module.Close();
        return std::chrono::duration_cast<milliseconds>(std::chrono::steady_clock::now() - begin);
    }
    /// A worker that says this, is known at the door from then on, and goes on with these words.
    ConnectionInfo Worker(const std::string& first, const std::vector<std::string>& words) {
        std::vector<std::string> all = {"say:" + first, door.Word()};
        all.insert(all.end(), words.begin(), words.end());
        return LocalWorker(cnTcp ? "tcp" : "pipe", all, "KEY");
    }
    std::unique_ptr<Module> Connected(const std::vector<std::string>& words) {
        auto module = std::make_unique<Module>(Worker("KEY", words));
        std::vector<wchar_t> environment;
        CStringU message;
        EXPECT_TRUE(module->InitConnection(environment, message)) << Text(message);
        door.WaitForKnock();
        return module;
    }
    static void KillSoon() { ConnectionTest::ShortenWaits(); }
    Door door;
};

using Transports = testing::Types<TPipeModule, TTCPModule>;
TYPED_TEST_SUITE(WorkerEndsTest, Transports);

TYPED_TEST(WorkerEndsTest, OneThatHasEndedIsNotWaitedFor) {
    const auto module = this->Connected({"exit:7"});
    this->door.WaitForTheEnd();
    EXPECT_LT(this->TimeOfClose(*module), milliseconds(1500));
}

TYPED_TEST(WorkerEndsTest, OneThatEndsWithItsInputEndsByItself) {
    const auto module = this->Connected({"echo"});
    EXPECT_LT(this->TimeOfClose(*module), milliseconds(1900));
    this->door.WaitForTheEnd();
}

TYPED_TEST(WorkerEndsTest, OneThatIgnoresTheEndOfItsInputIsKilledAfterTwoSeconds) {
    const auto module = this->Connected({"live"});
    const milliseconds took = this->TimeOfClose(*module);
    EXPECT_GE(took, milliseconds(1950));
    EXPECT_LT(took, milliseconds(4000));
    this->door.WaitForTheEnd();
}

TYPED_TEST(WorkerEndsTest, OneThatIsDeafIsKilledAllTheSame) {
    const auto module = this->Connected({"deaf"});
    this->KillSoon();
    module->Close();
    this->door.WaitForTheEnd();
}

TYPED_TEST(WorkerEndsTest, OneThatClosesItsOutputAndLivesOnIsKilled) {
    const auto module = this->Connected({"end", "live"});
    char buffer[8];
    CStringU message;
    EXPECT_EQ(module->Recv(buffer, 7, message), 0);
    EXPECT_EQ(message.IsEmpty(), this->cnTcp) << Text(message);
    EXPECT_TRUE(module->IsConnected());
    this->KillSoon();
    module->Close();
    this->door.WaitForTheEnd();
}

TYPED_TEST(WorkerEndsTest, ADestroyedConnectionLeavesNoChildRunning) {
    auto module = this->Connected({"live"});
    this->KillSoon();
    module.reset();
    this->door.WaitForTheEnd();
}

TYPED_TEST(WorkerEndsTest, AGrandchildThatHoldsTheChannelDoesNotHoldUpClose) {
    Door behind;
    const auto module = this->Connected({"grandchild:" + behind.Port(), "exit:0"});
    behind.WaitForKnock();
    // The worker is gone and its child keeps the channel open: only Disconnect can end a Recv now.
    this->door.WaitForTheEnd();
    std::thread receiver([&] {
        char later[8];
        CStringU reason;
        EXPECT_LE(module->Recv(later, 7, reason), 0);
    });
    EXPECT_LT(this->TimeOfClose(*module), milliseconds(1500));
    receiver.join();
    EXPECT_TRUE(behind.VisitorLives());
}

TYPED_TEST(WorkerEndsTest, CloseEndsARecvAndASendThatBothWait) {
    const auto module = this->Connected({"live"});
    std::atomic<std::uint32_t> threads[2] = {};
    std::thread receiver([&] {
        char buffer[8];
        CStringU reason;
        threads[0] = platform_test::OwnThreadId();
        EXPECT_LE(module->Recv(buffer, 7, reason), 0);
    });
    std::thread sender([&] {
        // More than any pipe or socket takes while nobody reads.
        const std::string much(64 << 20, 'x');
        CStringU reason;
        threads[1] = platform_test::OwnThreadId();
        EXPECT_FALSE(module->Send(much.data(), much.size(), reason));
        EXPECT_TRUE(Text(reason).starts_with("send failed with error: ")) << Text(reason);
    });
    for (const auto& thread : threads) {
        while (thread == 0)
            std::this_thread::yield();
        platform_test::WaitUntilAsleep(thread);
    }
    EXPECT_LT(this->TimeOfClose(*module), milliseconds(4000));
    receiver.join();
    sender.join();
    this->door.WaitForTheEnd();
}

TYPED_TEST(WorkerEndsTest, DisconnectLeavesTheChildToItself) {
    const auto module = this->Connected({"live"});
    module->Disconnect();
    EXPECT_TRUE(this->door.VisitorLives());
    this->KillSoon();
}

TYPED_TEST(WorkerEndsTest, AfterAFailedHandshakeTheChildRunsUntilClose) {
    TypeParam module(this->Worker("WRONG", {"live"}));
    std::vector<wchar_t> environment;
    CStringU message;
    EXPECT_FALSE(module.InitConnection(environment, message));
    this->door.WaitForKnock();
    EXPECT_TRUE(this->door.VisitorLives());
    this->KillSoon();
    module.Close();
    this->door.WaitForTheEnd();
}

// A Send is whole in the channel when it comes back: what follows it takes nothing away.
TYPED_TEST(WorkerEndsTest, AllOfASendArrivesAlsoWithADisconnectRightBehindIt) {
    for (const std::size_t size : {1U, 4000U, 300000U}) {
        Door later;
        const auto module = this->Connected({"get:" + std::to_string(size), later.Word(), "echo"});
        CStringU message;
        EXPECT_TRUE(module->Send(std::string(size, 'x').data(), size, message)) << Text(message);
        module->Disconnect();
        // The worker comes here only if it got every byte.
        later.WaitForKnock();
    }
}

// The long form of this is a soak.
TYPED_TEST(WorkerEndsTest, ManyCyclesLoseNoHandle) {
    std::vector<wchar_t> environment;
    CStringU message;
    int before = 0;
    for (int cycle = 0; cycle < 7; ++cycle) {
        auto module = std::make_unique<TypeParam>(
            LocalWorker(this->cnTcp ? "tcp" : "pipe", {"say:KEY", "echo"}, "KEY"));
        ASSERT_TRUE(module->InitConnection(environment, message)) << Text(message);
        EXPECT_TRUE(module->Send("talk", 4, message));
        EXPECT_EQ(connection_test::ReceiveAll(*module, 4), "talk");
        module.reset();
        environment.clear();
        // The first can make the system's own handles.
        if (cycle == 0) before = platform_test::CountOpenHandles();
    }
    EXPECT_LE(platform_test::CountOpenHandles(), before);
}

}  // namespace
