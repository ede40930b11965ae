/// Sizes of the first start, and how panes share a window that is too small for them.

#include "host/WindowLayout.h"

#include <gtest/gtest.h>

#include <numeric>

namespace navigator {
namespace {

constexpr int cnBar = 6;

TEST(WindowLayout, TheWantedWindowHasRoomForAllPanesAndTheConsole) {
    constexpr int cnMenuAndStatus = 48;
    EXPECT_GE(cnWantedWindow.height, 200 + 500 + 200 + 2 * cnBar + cnMenuAndStatus);
    EXPECT_TRUE(gHasRoomForConsole(cnWantedWindow.width));
    EXPECT_FALSE(gHasRoomForConsole(460));
}

TEST(WindowLayout, TheWindowFitsIntoTheScreenWithItsTitle) {
    EXPECT_EQ(cnWantedWindow, gDefaultWindowSize({2560, 1440}));
    for (const WindowSize screen : {WindowSize{1366, 768}, WindowSize{1024, 600}, WindowSize{800, 480}}) {
        const WindowSize size = gDefaultWindowSize(screen);
        EXPECT_LT(size.height, screen.height);
        EXPECT_LT(size.width, screen.width);
        EXPECT_GT(size.height, screen.height * 9 / 10 - 20);
    }
    EXPECT_EQ(cnWantedWindow, gDefaultWindowSize({0, 0})) << "nobody knows the screen";
    EXPECT_EQ((WindowSize{200, 200}), gDefaultWindowSize({1, 1}));
}

TEST(WindowLayout, PanesThatFitKeepTheirHeights) {
    const PaneHeights told{200, 500, 200};
    EXPECT_EQ(told, gFitPaneHeights(told, 900 + 2 * cnBar, cnBar));
    EXPECT_EQ(told, gFitPaneHeights(told, 5000, cnBar));
}

TEST(WindowLayout, TheCellsGiveFirstThenAllInProportion) {
    const PaneHeights told{200, 500, 200};
    EXPECT_EQ((PaneHeights{200, 300, 200}), gFitPaneHeights(told, 700 + 2 * cnBar, cnBar));
    EXPECT_EQ((PaneHeights{200, 200, 200}), gFitPaneHeights(told, 600 + 2 * cnBar, cnBar));
    EXPECT_EQ((PaneHeights{100, 250, 100}), gFitPaneHeights(told, 450 + 2 * cnBar, cnBar));
}

TEST(WindowLayout, EveryHeightLeavesAllPanesInsideOfTheWindow) {
    for (int height = 0; height < 1200; ++height) {
        const PaneHeights fitted = gFitPaneHeights({200, 500, 200}, height, cnBar);
        EXPECT_LE(std::accumulate(fitted.begin(), fitted.end(), 0), std::max(height - 2 * cnBar, 0));
        for (const int pane : fitted)
            EXPECT_GE(pane, height >= 60 ? 10 : 0) << height;
    }
    EXPECT_EQ((PaneHeights{0, 0, 0}), gFitPaneHeights({200, 500, 200}, -50, cnBar));
    EXPECT_EQ((PaneHeights{0, 88, 0}), gFitPaneHeights({0, 500, -7}, 100, cnBar));
    constexpr int cnHuge = 2147483647;
    EXPECT_EQ((PaneHeights{162, 162, 162}), gFitPaneHeights({cnHuge, cnHuge, cnHuge}, 500, cnBar));
}

}  // namespace
}  // namespace navigator
