/// @file
/// The tab strip.
#include "vapp/toolkit/CTabCtrl.h"

#include <gtest/gtest.h>

#include "tests/toolkit/RecordingParent.h"
#include "tests/toolkit/RecordingPeers.h"

TEST(CTabCtrl, FirstTabBecomesCurrentAndStaysSo) {
    CTabCtrl tabs;
    EXPECT_EQ(tabs.GetCurSel(), -1);
    tabs.InsertItem(9, "b");
    EXPECT_EQ(tabs.GetCurSel(), 0);
    tabs.InsertItem(-1, "a");
    EXPECT_EQ(tabs.GetItemText(0), "a");
    EXPECT_EQ(tabs.GetCurSel(), 1) << "the tab, not the number, is current";
    tabs.SetItemText(1, "B");
    tabs.SetItemText(2, "nowhere");
    EXPECT_EQ(tabs.GetItemText(1), "B");
    EXPECT_EQ(tabs.GetItemText(2), "");
}

TEST(CTabCtrl, OnlyTheUsersPickIsToldToTheParent) {
    RecordingPeers peers;
    RecordingParent parent;
    CTabCtrl tabs;
    ASSERT_TRUE(tabs.Create(&parent, 7));
    for (const char* text : {"a", "b", "c"})
        tabs.InsertItem(3, text);
    peers.ForgetAll();
    tabs.SetCurSel(2);
    EXPECT_EQ(peers.Of(tabs).changes, std::vector<UINT>{cnChangeSelection});
    EXPECT_TRUE(parent.heard.empty());
    tabs.PickedByUser(1);
    tabs.PickedByUser(1);
    tabs.PickedByUser(3);
    EXPECT_EQ(tabs.GetCurSel(), 1);
    EXPECT_EQ(parent.Count(cnTabSelectionChanged), 1);
    tabs.SetCurSel(3);
    EXPECT_EQ(tabs.GetCurSel(), -1);
}

TEST(CTabCtrl, TellsItsPeerOfTheTextThatLimitsTheWidth) {
    RecordingPeers peers;
    CTabCtrl tabs;
    EXPECT_TRUE(tabs.GetMinWidthText().IsEmpty());
    ASSERT_TRUE(tabs.Create(nullptr, 7));
    peers.ForgetAll();
    tabs.SetMinWidthText("WWW");
    tabs.SetMinWidthText("WWW");
    EXPECT_EQ(tabs.GetMinWidthText(), "WWW");
    EXPECT_EQ(peers.Of(tabs).changes.size(), 1u);
}

TEST(CTabCtrl, TellsItsParentForWhichTabAMenuIsWanted) {
    class Parent : public CWnd {
    public:
        ~Parent() override { DestroyWindow(); }
        int tab = -1;
        CPoint screen;

    protected:
        bool OnNotify(Notification& notification, LRESULT& result) override {
            EXPECT_EQ(notification.code, cnTabContextClicked);
            const auto& click = static_cast<const NotifyTabClick&>(notification);
            tab = click.tab;
            screen = click.screen;
            result = 0;
            return true;
        }
    };
    Parent parent;
    parent.Create(nullptr, 0);
    CTabCtrl tabs;
    ASSERT_TRUE(tabs.Create(&parent, 7));
    tabs.InsertItem(0, "a");
    tabs.ContextClickedByUser(1, {3, 4});
    tabs.ContextClickedByUser(-1, {3, 4});
    EXPECT_EQ(parent.tab, -1);
    tabs.ContextClickedByUser(0, {3, 4});
    EXPECT_EQ(parent.tab, 0);
    EXPECT_EQ(parent.screen, CPoint(3, 4));
}
