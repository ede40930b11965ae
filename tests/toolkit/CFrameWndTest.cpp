/// @file
/// The frame and its first child.
#include "vapp/toolkit/CFrameWnd.h"

#include <gtest/gtest.h>

namespace {

class Frame : public CFrameWnd {
public:
    using CFrameWnd::OnSize;
};

}  // namespace

TEST(CFrameWnd, FirstChildFillsTheClientArea) {
    CFrameWnd frame;
    CWnd first;
    CWnd second;
    ASSERT_TRUE(frame.CreateFrame("title", {10, 10, 110, 60}));
    EXPECT_FALSE(frame.CreateFrame("other", {}));
    EXPECT_EQ(frame.GetWindowText(), "title");
    ASSERT_TRUE(first.Create(&frame, 1));
    ASSERT_TRUE(second.Create(&frame, 2));
    frame.MovedByPeer({0, 0, 300, 200});
    EXPECT_EQ(first.GetRect(), CRect(0, 0, 300, 200));
    EXPECT_EQ(second.GetRect(), CRect());
}

TEST(CFrameWnd, MinimisedFrameLeavesItsChildAlone) {
    Frame frame;
    CWnd child;
    ASSERT_TRUE(frame.CreateFrame("title", {0, 0, 100, 50}));
    ASSERT_TRUE(child.Create(&frame, 1, {0, 0, 100, 50}));
    frame.OnSize(cnSizeMinimized, 0, 0);
    EXPECT_EQ(child.GetRect(), CRect(0, 0, 100, 50));
}

TEST(CFrameWnd, StaysHiddenUntilItIsShown) {
    CFrameWnd frame;
    ASSERT_TRUE(frame.CreateFrame("title", {0, 0, 100, 50}));
    EXPECT_FALSE(frame.IsWindowVisible());
    frame.ShowWindow(true);
    EXPECT_TRUE(frame.IsWindowVisible());
}
