/// @file
/// The strip of tabs, from both sides.
#include "toolkit/qt/QtTabPeer.h"

#include <QContextMenuEvent>
#include <QTabBar>
#include <QTest>
#include <QWheelEvent>

#include "tests/qt/QtTestFrame.h"
#include "vapp/toolkit/CTabCtrl.h"

namespace {

void ClickTab(QTabBar& bar, int index) {
    QTest::mouseClick(&bar, Qt::LeftButton, Qt::NoModifier, bar.tabRect(index).center());
}

class QtTabPeerTest : public testing::Test {
protected:
    void SetUp() override {
        tabs.InsertItem(0, "All");
        tabs.InsertItem(1, "A & B");
        ASSERT_TRUE(tabs.Create(&shown.form, 9, {0, 0, 300, 24}));
        tabs.InsertItem(2, "Metrics");
        bar = gWidgetAs<QTabBar>(tabs);
        ASSERT_NE(bar, nullptr);
    }

    ShownFrame shown;
    CTabCtrl tabs;
    QTabBar* bar = nullptr;
};

}  // namespace

TEST_F(QtTabPeerTest, ShowsTheTabsOfTheControl) {
    ASSERT_EQ(bar->count(), 3);
    EXPECT_EQ(bar->tabText(0), "All");
    EXPECT_EQ(bar->tabText(1), "A && B") << "an ampersand is shown, not taken for a key";
    EXPECT_EQ(bar->currentIndex(), 0);
    tabs.SetItemText(2, "Views");
    tabs.SetCurSel(2);
    EXPECT_EQ(bar->tabText(2), "Views");
    EXPECT_EQ(bar->currentIndex(), 2);
    EXPECT_TRUE(shown.form.heard.empty()) << "only what the user picks is told";
}

TEST_F(QtTabPeerTest, PickedTabIsToldOnce) {
    ClickTab(*bar, 1);
    EXPECT_EQ(tabs.GetCurSel(), 1);
    EXPECT_EQ(shown.form.Count(cnTabSelectionChanged), 1);
    ClickTab(*bar, 1);
    EXPECT_EQ(shown.form.Count(cnTabSelectionChanged), 1);
}

TEST_F(QtTabPeerTest, TheTabUnderTheMenuClickIsTold) {
    const QPoint place = bar->tabRect(2).center();
    QContextMenuEvent click(QContextMenuEvent::Mouse, place, bar->mapToGlobal(place));
    QCoreApplication::sendEvent(bar, &click);
    EXPECT_EQ(shown.form.Count(cnTabContextClicked), 1);
    EXPECT_EQ(shown.form.Count(cnTabSelectionChanged), 0) << "what the click means is the parent's to say";
    const QPoint beside(bar->tabRect(2).right() + 20, 5);
    QContextMenuEvent off(QContextMenuEvent::Mouse, beside, bar->mapToGlobal(beside));
    QCoreApplication::sendEvent(bar, &off);
    EXPECT_EQ(shown.form.Count(cnTabContextClicked), 1) << "no tab is there";
    QContextMenuEvent key(QContextMenuEvent::Keyboard, beside, bar->mapToGlobal(beside));
    QCoreApplication::sendEvent(bar, &key);
    EXPECT_EQ(shown.form.Count(cnTabContextClicked), 2)
        << "the key means the current one, wherever it asks from";
}

TEST_F(QtTabPeerTest, TheWheelPicksNoTab) {
    QWheelEvent notch(QPointF(5, 5), bar->mapToGlobal(QPointF(5, 5)), QPoint(), QPoint(0, -120), Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(bar, &notch);
    EXPECT_EQ(tabs.GetCurSel(), 0);
    EXPECT_EQ(bar->currentIndex(), 0);
    EXPECT_TRUE(shown.form.heard.empty());
}

TEST_F(QtTabPeerTest, WithNoCurrentTabEachOneCanBePicked) {
    for (int tab = 0; tab < 3; ++tab) {
        SCOPED_TRACE(tab);
        tabs.SetCurSel(7);
        ASSERT_EQ(tabs.GetCurSel(), -1);
        shown.form.heard.clear();
        ClickTab(*bar, tab);
        EXPECT_EQ(tabs.GetCurSel(), tab);
        EXPECT_EQ(shown.form.Count(cnTabSelectionChanged), 1);
    }
}

TEST_F(QtTabPeerTest, TabInsertedInFrontLeavesTheCurrentOneCurrent) {
    tabs.SetCurSel(1);
    tabs.InsertItem(0, "First");
    EXPECT_EQ(bar->currentIndex(), 2);
    EXPECT_EQ(bar->tabText(2), "A && B");
    EXPECT_TRUE(shown.form.heard.empty());
}

TEST_F(QtTabPeerTest, ParentMayTakeThePickBack) {
    shown.form.answer = [this](const Notification&) { tabs.SetCurSel(0); };
    ClickTab(*bar, 2);
    EXPECT_EQ(tabs.GetCurSel(), 0);
    EXPECT_EQ(bar->currentIndex(), 0);
}

TEST_F(QtTabPeerTest, PickMayEndTheStrip) {
    const QPointer<QWidget> widget = bar;
    shown.form.answer = [&](const Notification&) {
        tabs.DestroyWindow();
        EXPECT_FALSE(widget.isNull()) << "Qt is still in the middle of the widget's own event";
    };
    ClickTab(*bar, 2);
    EXPECT_FALSE(tabs.IsWindow());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(widget.isNull());
}
