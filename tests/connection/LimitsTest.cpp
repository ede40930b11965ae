#include "connection/Limits.h"

#include <gtest/gtest.h>

namespace {

TEST(Limits, BothTransportsWaitThirtySecondsAndTheChildGetsTwo) {
    const vapp_connection::Limits& limits = vapp_connection::CurrentLimits();
    EXPECT_EQ(limits.socketWait, std::chrono::seconds(30));
    EXPECT_EQ(limits.pipePolls, 120);
    EXPECT_EQ(limits.pipePause, std::chrono::milliseconds(250));
    EXPECT_EQ(limits.childEnd, std::chrono::milliseconds(2000));
    EXPECT_EQ(limits.forcedEnd, std::chrono::milliseconds(2000));
}

}  // namespace
