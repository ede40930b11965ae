#include "platform/World.h"

#include <gtest/gtest.h>

#include "text/PlatformScreen.h"

namespace {

using vapp_platform::CurrentWorld;
using vapp_platform::SetWineAnswer;
using vapp_platform::World;

struct WorldTest : testing::Test {
    ~WorldTest() override { SetWineAnswer(std::nullopt); }
};

TEST_F(WorldTest, TheAnswerIsTheSystemsOwn) {
    EXPECT_EQ(gIsWine(), vapp_platform::IsWineSystem());
    EXPECT_EQ(gIsWine(), gIsWine());
}

TEST_F(WorldTest, ATestSwitchesTheAnswerAndGivesItBack) {
    SetWineAnswer(false);
    EXPECT_FALSE(gIsWine());
    EXPECT_EQ(CurrentWorld(), World::Windows);
    SetWineAnswer(true);
    EXPECT_TRUE(gIsWine());
    EXPECT_EQ(CurrentWorld(), World::Wine);
    SetWineAnswer(std::nullopt);
    EXPECT_EQ(gIsWine(), vapp_platform::IsWineSystem());
}

TEST_F(WorldTest, NativeLinuxIsWinesWorldButNotWine) {
    EXPECT_EQ(vapp_platform::IsWindowsUnderWine(), gIsWine() && vapp_platform::IsWindowsBuild());
    for (const bool answer : {false, true}) {
        SetWineAnswer(answer);
        EXPECT_EQ(vapp_platform::IsWindowsUnderWine(), answer);
    }
}

TEST_F(WorldTest, OnlyWineMovesPixelsAlong) {
    for (const bool answer : {false, true}) {
        SetWineAnswer(answer);
        EXPECT_EQ(vapp_platform::MovedWindowsKeepOldPixels(), answer);
    }
}

}  // namespace
