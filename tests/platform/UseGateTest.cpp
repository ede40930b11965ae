#include "platform/UseGate.h"

#include <gtest/gtest.h>

#include <thread>
#include <vector>

namespace {

using vapp_platform::UseGate;

TEST(UseGate, TheLastOneOutGivesTheResourceBack) {
    UseGate gate;
    ASSERT_TRUE(gate.Enter());
    EXPECT_TRUE(gate.HasUsers());
    ASSERT_TRUE(gate.Close());
    EXPECT_TRUE(gate.IsClosed());
    EXPECT_FALSE(gate.Leave());  // the owner
    EXPECT_FALSE(gate.Enter());
    EXPECT_TRUE(gate.Leave());
}

TEST(UseGate, WithoutUsersTheOwnerIsLast) {
    UseGate gate;
    ASSERT_TRUE(gate.Enter());
    EXPECT_FALSE(gate.Leave());
    EXPECT_FALSE(gate.HasUsers());
    EXPECT_TRUE(gate.Close());
    EXPECT_FALSE(gate.Close());
    EXPECT_TRUE(gate.Leave());
}

TEST(UseGate, ExactlyOneOfManyIsLast) {
    for (int round = 0; round < 200; ++round) {
        UseGate gate;
        std::atomic<int> last = 0;
        std::vector<std::thread> users;
        for (int user = 0; user < 4; ++user) {
            users.emplace_back([&] {
                while (gate.Enter())
                    last += gate.Leave() ? 1 : 0;
            });
        }
        if (gate.Close()) last += gate.Leave() ? 1 : 0;
        for (std::thread& user : users)
            user.join();
        ASSERT_EQ(last, 1);
    }
}

}  // namespace
