/// @file
/// The top-level window: shown when the host says so, sized and closed by the user.
#include "toolkit/qt/QtFramePeer.h"

#include <QMainWindow>
#include <QMenuBar>
#include <QTest>

#include "tests/qt/QtTestFrame.h"

TEST(QtFramePeer, NewFrameIsHiddenUntilItIsShown) {
    CFrameWnd frame;
    ASSERT_TRUE(frame.CreateFrame("Navigator", {0, 0, 400, 300}));
    QApplication::processEvents();
    EXPECT_FALSE(gWidgetOf(frame)->isVisible());
    frame.ShowWindow(true);
    EXPECT_TRUE(gWidgetOf(frame)->isVisible());
    EXPECT_EQ(gWidgetOf(frame)->windowTitle(), "Navigator");
    frame.ShowWindow(false);
    EXPECT_FALSE(gWidgetOf(frame)->isVisible());
}

TEST(QtFramePeer, FirstChildFollowsTheUsersResizing) {
    ShownFrame shown({400, 300});
    EXPECT_EQ(gWidgetOf(shown.form)->size(), QSize(400, 300));
    gWidgetOf(shown.frame)->resize(500, 350);
    QApplication::processEvents();
    EXPECT_EQ(shown.frame.GetRect().Size(), (CSize{500, 350}));
    EXPECT_EQ(shown.form.GetRect(), CRect(0, 0, 500, 350));
    EXPECT_EQ(gWidgetOf(shown.form)->size(), QSize(500, 350));
}

TEST(QtFramePeer, ProgramsSizeIsThatOfTheClientArea) {
    ShownFrame shown({400, 300});
    shown.frame.MoveWindow({20, 30, 320, 230});
    QApplication::processEvents();
    EXPECT_EQ(gWidgetOf(shown.form)->size(), QSize(300, 200));
    EXPECT_EQ(shown.frame.GetRect(), CRect(20, 30, 320, 230));
}

TEST(QtFramePeer, MenuBarLeavesTheRestToTheClientArea) {
    CFrameWnd frame;
    RecordingForm form;
    ASSERT_TRUE(frame.CreateFrame("frame", {0, 0, 400, 300}));
    ASSERT_TRUE(form.Create(&frame, 1, frame.GetClientRect()));
    auto* window = gWidgetAs<QMainWindow>(frame);
    window->menuBar()->addMenu("File");
    frame.ShowWindow(true);
    QApplication::processEvents();
    ASSERT_GT(window->menuBar()->height(), 0);
    EXPECT_EQ(frame.GetRect().Height(), window->height() - window->menuBar()->height());
    EXPECT_EQ(gWidgetOf(form)->height(), frame.GetRect().Height());
}

TEST(QtFramePeer, ScreenPositionsAreThoseOfTheWidgets) {
    CFrameWnd frame;
    RecordingForm form;
    ASSERT_TRUE(frame.CreateFrame("frame", {30, 40, 430, 340}));
    ASSERT_TRUE(form.Create(&frame, 1, frame.GetClientRect()));
    gWidgetAs<QMainWindow>(frame)->menuBar()->addMenu("File");
    frame.ShowWindow(true);
    QApplication::processEvents();
    const QPoint screen = gWidgetOf(form)->mapToGlobal(QPoint(5, 6));
    EXPECT_EQ(form.ClientToScreen({5, 6}), (CPoint{screen.x(), screen.y()}));
    gWidgetOf(frame)->move(100, 120);
    QApplication::processEvents();
    const QPoint moved = gWidgetOf(form)->mapToGlobal(QPoint(5, 6));
    EXPECT_EQ(form.ClientToScreen({5, 6}), (CPoint{moved.x(), moved.y()}));
}

TEST(QtFramePeer, ClosedByTheUserItIsHiddenAndLivesOn) {
    ShownFrame shown;
    gWidgetOf(shown.frame)->close();
    QApplication::processEvents();
    EXPECT_TRUE(shown.frame.IsWindow());
    EXPECT_TRUE(shown.form.IsWindow());
    EXPECT_FALSE(shown.frame.IsWindowVisible());
    shown.frame.ShowWindow(true);
    EXPECT_TRUE(gWidgetOf(shown.frame)->isVisible());
}

TEST(QtFramePeer, TitleFollowsTheText) {
    ShownFrame shown;
    shown.frame.SetWindowText("other");
    EXPECT_EQ(gWidgetOf(shown.frame)->windowTitle(), "other");
}
