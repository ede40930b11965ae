/// @file
/// Panes, and the bars that the user drags.
#include "toolkit/qt/QtSplitterPeer.h"

#include <QTest>

#include "tests/qt/QtTestFrame.h"
#include "vapp/toolkit/CEdit.h"
#include "vapp/toolkit/CSplitterWnd.h"

namespace {

class Pane : public CView {
public:
    ~Pane() override { DestroyWindow(); }
};

/// A pane with something in it that takes the keyboard.
class FieldPane : public CView {
public:
    ~FieldPane() override { DestroyWindow(); }

protected:
    void OnCreate() override {
        CView::OnCreate();
        m_field.Create(this, 7, {0, 0, 50, 20});
    }

private:
    CEdit m_field;
};

constexpr int cnBar = CSplitterWnd::cnBarHeight;

// Three rows of 60, 80 and what is left of 300.
class QtSplitterPeerTest : public testing::Test {
protected:
    void SetUp() override {
        frame.CreateFrame("frame", {0, 0, 200, 300});
        ASSERT_TRUE(splitter.CreateStatic(&frame, 3, 1, 1));
        ASSERT_TRUE(splitter.CreateView(0, 0, gRuntimeClass<Pane>("Pane"), {0, 60}));
        ASSERT_TRUE(splitter.CreateView(1, 0, gRuntimeClass<Pane>("Pane"), {0, 80}));
        ASSERT_TRUE(splitter.CreateView(2, 0, gRuntimeClass<Pane>("Pane"), {0, 0}));
        frame.ShowWindow(true);
        QApplication::processEvents();
    }

    [[nodiscard]] QWidget* Bar(int row) const {
        return gWidgetOf(splitter)->findChild<QWidget*>(QStringLiteral("bar%1").arg(row));
    }
    static void Drag(QWidget* bar, int by) {
        const QPoint grab(50, 2);
        QTest::mousePress(bar, Qt::LeftButton, Qt::NoModifier, grab);
        // The bar goes with the pointer, and so each step starts at the same place of it.
        QMouseEvent move(QEvent::MouseMove, grab + QPoint(0, by), bar->mapToGlobal(grab + QPoint(0, by)),
                         Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(bar, &move);
        QTest::mouseRelease(bar, Qt::LeftButton, Qt::NoModifier, grab);
    }

    CFrameWnd frame;
    CSplitterWnd splitter;
};

}  // namespace

TEST_F(QtSplitterPeerTest, PanesAndBarsCoverTheClientArea) {
    EXPECT_EQ(gWidgetOf(splitter)->geometry(), QRect(0, 0, 200, 300));
    EXPECT_EQ(gWidgetOf(*splitter.GetPane(0, 0))->geometry(), QRect(0, 0, 200, 60));
    ASSERT_NE(Bar(0), nullptr);
    EXPECT_EQ(Bar(0)->geometry(), QRect(0, 60, 200, cnBar));
    EXPECT_EQ(gWidgetOf(*splitter.GetPane(1, 0))->geometry(), QRect(0, 60 + cnBar, 200, 80));
    EXPECT_EQ(Bar(1)->geometry(), QRect(0, 140 + cnBar, 200, cnBar));
    EXPECT_EQ(gWidgetOf(*splitter.GetPane(2, 0))->geometry(),
              QRect(0, 140 + 2 * cnBar, 200, 160 - 2 * cnBar));
    EXPECT_EQ(Bar(2), nullptr);
    EXPECT_EQ(Bar(0)->cursor().shape(), Qt::SplitVCursor);
}

TEST_F(QtSplitterPeerTest, DraggedBarGivesItsRowTheHeight) {
    Drag(Bar(0), 15);
    EXPECT_EQ(splitter.GetRowHeight(0), 75);
    EXPECT_EQ(Bar(0)->y(), 75);
    EXPECT_EQ(gWidgetOf(*splitter.GetPane(1, 0))->y(), 75 + cnBar);
    Drag(Bar(0), -25);
    EXPECT_EQ(splitter.GetRowHeight(0), 50);
}

TEST_F(QtSplitterPeerTest, BarCanAlwaysBeCaughtAgain) {
    Drag(Bar(1), 5000);
    EXPECT_LE(Bar(1)->geometry().bottom(), 300);
    EXPECT_GT(Bar(1)->geometry().bottom(), 290);
    Drag(Bar(0), -5000);
    EXPECT_EQ(Bar(0)->y(), 0);
    EXPECT_EQ(splitter.GetRowHeight(0), 0);
}

TEST_F(QtSplitterPeerTest, HeightSetByTheProgramMovesTheBars) {
    splitter.SetRowHeight(0, 100);
    EXPECT_EQ(Bar(0)->y(), 100);
    EXPECT_EQ(Bar(1)->y(), 180 + cnBar);
}

TEST_F(QtSplitterPeerTest, GrowingWindowGivesTheRoomToTheLastRow) {
    gWidgetOf(frame)->resize(260, 400);
    QApplication::processEvents();
    EXPECT_EQ(splitter.GetRect(), CRect(0, 0, 260, 400));
    EXPECT_EQ(Bar(0)->geometry(), QRect(0, 60, 260, cnBar));
    EXPECT_EQ(splitter.GetPane(2, 0)->GetRect().bottom, 400);
    EXPECT_EQ(gWidgetOf(*splitter.GetPane(2, 0))->geometry().bottom(), 399);
}

TEST(QtSplitterKeyboard, GoesThroughAPaneThenToTheBarBelowIt) {
    CFrameWnd frame;
    CSplitterWnd splitter;
    frame.CreateFrame("frame", {0, 0, 200, 300});
    ASSERT_TRUE(splitter.CreateStatic(&frame, 2, 1, 1));
    for (const int row : {0, 1})
        ASSERT_TRUE(splitter.CreateView(row, 0, gRuntimeClass<FieldPane>("FieldPane"), {0, 100}));
    std::vector<QWidget*> way;
    QWidget* const start = gWidgetOf(frame);
    for (QWidget* next = start->nextInFocusChain(); next != start; next = next->nextInFocusChain()) {
        if ((next->focusPolicy() & Qt::TabFocus) != 0) way.push_back(next);
    }
    QWidget* const bar = gWidgetOf(splitter)->findChild<QWidget*>(QStringLiteral("bar0"));
    const auto* const above = gWidgetOf(*splitter.GetPane(0, 0));
    const auto* const below = gWidgetOf(*splitter.GetPane(1, 0));
    ASSERT_EQ(way.size(), 3u);
    EXPECT_TRUE(above->isAncestorOf(way[0]));
    EXPECT_EQ(way[1], bar);
    EXPECT_TRUE(below->isAncestorOf(way[2]));
}
