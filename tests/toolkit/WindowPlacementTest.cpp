/// @file
/// Placements in the settings, and rectangles on monitors.
#include "vapp/toolkit/WindowPlacement.h"

#include <gtest/gtest.h>

#include <climits>

#include "tests/toolkit/RecordingPeers.h"
#include "vapp/toolkit/CWinAppEx.h"

namespace {

constexpr TWindowPlacement cnUntouched{.normal = {1, 2, 3, 4}, .isMaximized = true};

}  // namespace

TEST(WindowPlacement, WhatIsWrittenIsReadAgain) {
    CWinAppEx app;
    for (const TWindowPlacement& placement :
         {TWindowPlacement{.normal = {100, 200, 1000, 800}, .isMaximized = false},
          TWindowPlacement{.normal = {-1920, -5, -1, 0}, .isMaximized = true}}) {
        ASSERT_TRUE(gWriteWindowPlacement(placement, "WindowPos"));
        TWindowPlacement read = cnUntouched;
        ASSERT_TRUE(gReadWindowPlacement(&read, "WindowPos"));
        EXPECT_EQ(read, placement);
    }
    TWindowPlacement other = cnUntouched;
    EXPECT_FALSE(gReadWindowPlacement(&other, "OtherPos"));
    EXPECT_EQ(other, cnUntouched);
}

TEST(WindowPlacement, TheEntryIsAReadableLine) {
    CWinAppEx app;
    ASSERT_TRUE(gWriteWindowPlacement({.normal = {100, 200, 1000, 800}, .isMaximized = false}, "WindowPos"));
    EXPECT_EQ(app.GetProfileString("WindowPlacement", "WindowPos"), "normal 100 200 1000 800");
}

TEST(WindowPlacement, EntriesThatMakeNoSenseAreNone) {
    CWinAppEx app;
    for (const char* entry :
         {"", "normal", "normal 1 2 3", "normal 1 2 3 4 5", "normal  1 2 3 4", " normal 1 2 3 4",
          "Normal 1 2 3 4", "1 2 3 4", "hidden 1 2 3 4", "normal 1 2 3 x", "normal 1 2 3 4x",
          "normal 1 2 3 +4", "normal 3 2 1 4", "normal 1 2 1 4", "normal 1 4 3 2", "normal 0 0 2147483647 10",
          "normal 0 0 99999999999 10", "normal -2147483648 0 10 10"}) {
        app.WriteProfileString("WindowPlacement", "WindowPos", entry);
        TWindowPlacement read = cnUntouched;
        EXPECT_FALSE(gReadWindowPlacement(&read, "WindowPos")) << entry;
        EXPECT_EQ(read, cnUntouched) << entry;
    }
    app.WriteProfileInt("WindowPlacement", "WindowPos", 7);
    TWindowPlacement read;
    EXPECT_FALSE(gReadWindowPlacement(&read, "WindowPos")) << "a number is no text";
    EXPECT_FALSE(gReadWindowPlacement(nullptr, "WindowPos"));
}

TEST(WindowPlacement, RectanglesThatCouldNotBeReadAreNotWritten) {
    CWinAppEx app;
    for (const CRect& rect :
         {CRect(), CRect(0, 0, 10, 0), CRect(10, 0, 0, 10), CRect(INT_MIN, 0, INT_MAX, 10)})
        EXPECT_FALSE(gWriteWindowPlacement({.normal = rect, .isMaximized = false}, "WindowPos"));
    EXPECT_EQ(app.GetProfileString("WindowPlacement", "WindowPos", "none"), "none");
}

TEST(WindowPlacement, WithoutAnApplicationThereIsNone) {
    ASSERT_EQ(CWinAppEx::GetApp(), nullptr);
    TWindowPlacement read = cnUntouched;
    EXPECT_FALSE(gReadWindowPlacement(&read, "WindowPos"));
    EXPECT_FALSE(gWriteWindowPlacement(cnUntouched, "WindowPos"));
}

TEST(ClipOrCenterRectToMonitor, MovesOnTheMonitorThatHasMost) {
    RecordingPeers peers;
    peers.monitors = {{0, 0, 1000, 800}, {1000, 0, 3000, 1000}};
    const struct {
        CRect rect;
        UINT mode;
        CRect expected;
    } rows[] = {
        {{10, 20, 110, 70}, cnMonitorCenter, {450, 375, 550, 425}},
        {{10, 20, 110, 70}, cnMonitorClip, {10, 20, 110, 70}},
        {{940, 0, 1040, 50}, cnMonitorCenter, {450, 375, 550, 425}},
        {{960, 0, 1060, 50}, cnMonitorCenter, {1950, 475, 2050, 525}},
        {{960, -10, 1060, 40}, cnMonitorClip, {1000, 0, 1100, 50}},
        {{-500, 300, -400, 350}, cnMonitorClip, {0, 300, 100, 350}},
        {{5000, 5000, 5100, 5050}, cnMonitorClip, {2900, 950, 3000, 1000}},
        {{5000, 5000, 5100, 5050}, cnMonitorCenter, {1950, 475, 2050, 525}},
        {{0, 0, 1200, 100}, cnMonitorCenter, {0, 350, 1200, 450}},
        {{100, 100, 1500, 2000}, cnMonitorClip, {0, 0, 1400, 1900}},
        {{50, 50, 50, 50}, cnMonitorCenter, {500, 400, 500, 400}},
        // The lowest bit alone tells which of the two it is.
        {{10, 20, 110, 70}, 3, {450, 375, 550, 425}},
        {{10, 20, 110, 70}, 0x10001, {450, 375, 550, 425}},
        {{960, -10, 1060, 40}, 2, {1000, 0, 1100, 50}},
        {{960, -10, 1060, 40}, 0x10000, {1000, 0, 1100, 50}},
    };
    for (const auto& row : rows) {
        CRect rect = row.rect;
        ClipOrCenterRectToMonitor(&rect, row.mode);
        EXPECT_EQ(rect, row.expected) << row.rect.left << ' ' << row.rect.top << ' ' << row.mode << ": "
                                      << rect.left << ' ' << rect.top;
    }
}

TEST(ClipOrCenterRectToMonitor, WithoutMonitorsNothingMoves) {
    CRect rect(10, 20, 30, 40);
    ClipOrCenterRectToMonitor(&rect, cnMonitorCenter);
    EXPECT_EQ(rect, CRect(10, 20, 30, 40));
    RecordingPeers peers;
    ClipOrCenterRectToMonitor(&rect, cnMonitorCenter);
    EXPECT_EQ(rect, CRect(10, 20, 30, 40));
    ClipOrCenterRectToMonitor(nullptr, cnMonitorCenter);
}
