#include "vapp/connection/TConnectionModule.h"

#include <gtest/gtest.h>

#include <atomic>
#include <thread>
#include <utility>
#include <vector>

namespace {

/// A transport without a channel: what a host derives.
class TFakeModule : public TConnectionModule {
public:
    using TConnectionModule::SetConnected;
    using TConnectionModule::SetDefunct;
    using TConnectionModule::SetWorkerHasFound;
    using TConnectionModule::TConnectionModule;

    bool InitConnection(std::vector<wchar_t>& /*environment*/, CStringU& /*message*/) override {
        return true;
    }
    bool AcceptConnection(CStringU& /*message*/) override { return true; }
    bool Send(const char* /*data*/, std::uint64_t /*size*/, CStringU& /*message*/) override { return true; }
    int Recv(char* /*buffer*/, int /*capacity*/, CStringU& /*message*/) override { return 0; }
    void Disconnect() override { ++disconnects; }

    [[nodiscard]] const ConnectionInfo& Info() const { return m_info; }
    int disconnects = 0;

private:
    int ReadKeyword(CStringU& /*received*/, CStringU& /*message*/) override { return 0; }
};

ConnectionInfo SomeInfo() {
    ConnectionInfo info;
    info.command = "command";
    info.runLocally = true;
    return info;
}

TEST(TConnectionModule, ANewOneIsNeitherConnectedNorDefunctAndKnowsNoWorker) {
    TFakeModule module{SomeInfo()};
    EXPECT_FALSE(module.IsConnected());
    EXPECT_FALSE(module.IsDefunct());
    EXPECT_FALSE(module.IsWorkerFound());
    EXPECT_EQ(module.GetChildProcessID(), 0U);
}

TEST(TConnectionModule, BothConstructorsCopyTheInfo) {
    ConnectionInfo info = SomeInfo();
    const TFakeModule moved(std::move(info));
    EXPECT_EQ(info.command, "command");  // NOLINT(bugprone-use-after-move): that is the point
    const TFakeModule copied(info);
    EXPECT_EQ(moved.Info().command, "command");
    EXPECT_EQ(copied.Info().command, "command");
}

TEST(TConnectionModule, DefunctIsAnsweredOnceForEachTimeItIsSet) {
    TFakeModule module{SomeInfo()};
    module.SetDefunct();
    EXPECT_TRUE(module.IsDefunct());
    EXPECT_FALSE(module.IsDefunct());
    module.SetDefunct();
    module.SetDefunct();
    EXPECT_TRUE(module.IsDefunct());
    EXPECT_FALSE(module.IsDefunct());
}

TEST(TConnectionModule, AFoundWorkerIsAnsweredOnce) {
    TFakeModule module{SomeInfo()};
    module.SetWorkerHasFound();
    EXPECT_TRUE(module.IsWorkerFound());
    EXPECT_FALSE(module.IsWorkerFound());
}

TEST(TConnectionModule, OfManyAskersOneGetsTheAnswer) {
    for (int round = 0; round < 100; ++round) {
        TFakeModule module{SomeInfo()};
        module.SetDefunct();
        std::atomic<int> yes = 0;
        std::vector<std::thread> askers;
        for (int asker = 0; asker < 4; ++asker)
            askers.emplace_back([&] { yes += module.IsDefunct() ? 1 : 0; });
        for (std::thread& asker : askers)
            asker.join();
        ASSERT_EQ(yes, 1);
    }
}

TEST(TConnectionModule, CloseWithoutAChildDisconnectsAndIsDefunctOnce) {
    TFakeModule module{SomeInfo()};
    module.SetConnected(true);
    EXPECT_TRUE(module.IsConnected());
    module.Close();
    EXPECT_EQ(module.disconnects, 1);
    EXPECT_FALSE(module.IsConnected());
    EXPECT_TRUE(module.IsDefunct());
    EXPECT_FALSE(module.IsDefunct());
}

}  // namespace
