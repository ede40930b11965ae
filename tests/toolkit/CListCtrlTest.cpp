/// @file
/// The list: states and their notifications, scrolling, what the user does.
#include "vapp/toolkit/CListCtrl.h"

#include <gtest/gtest.h>

#include "tests/toolkit/RecordingParent.h"
#include "tests/toolkit/RecordingPeers.h"

namespace {

constexpr UINT cnBoth = cnListFocused | cnListSelected;

class CListCtrlTest : public testing::Test {
protected:
    CListCtrlTest() {
        list.Create(&parent, 7, {0, 0, 100, 90});
        list.SetRowHeight(18);
        for (const char* text : {"alpha", "beta", "gamma", "delta", "Beta2"})
            list.InsertItem(99, text);
        peers.ForgetAll();
    }
    void Fill(int count) {
        while (list.GetItemCount() < count)
            list.InsertItem(list.GetItemCount(), "row");
    }

    RecordingPeers peers;
    RecordingParent parent;
    CListCtrl list;
};

}  // namespace

TEST_F(CListCtrlTest, RowsStandWhereTheyWereInserted) {
    EXPECT_EQ(list.InsertItem(1, "second"), 1);
    EXPECT_EQ(list.InsertItem(-5, "first"), 0);
    EXPECT_EQ(list.GetItemText(2), "second");
    EXPECT_EQ(list.GetItemText(7), "");
    EXPECT_EQ(list.GetItemText(-1), "");
    EXPECT_EQ(peers.Of(list).Count(cnChangeItems), 2);
}

TEST_F(CListCtrlTest, SelectionAndFocusStayWithTheirRowsOnInsertion) {
    list.SetItemState(2, cnBoth, cnBoth);
    parent.Forget();
    list.InsertItem(0, "new");
    EXPECT_EQ(list.GetItemState(3, cnBoth), cnBoth);
    EXPECT_EQ(list.GetItemState(2, cnBoth), 0u);
    EXPECT_TRUE(parent.heard.empty());
}

TEST_F(CListCtrlTest, ParentIsToldOncePerChangedRow) {
    list.SetItemState(1, cnBoth, cnBoth);
    ASSERT_EQ(parent.items.size(), 1u);
    EXPECT_EQ(parent.items[0].item, 1);
    EXPECT_EQ(parent.items[0].changed, cnListChangedState);
    EXPECT_EQ(parent.items[0].oldState, 0u);
    EXPECT_EQ(parent.items[0].newState, cnBoth);
    parent.Forget();
    list.SetItemState(1, cnBoth, cnBoth);
    EXPECT_TRUE(parent.items.empty());
    list.SetItemState(-1, cnListSelected, cnListSelected);
    EXPECT_EQ(parent.items.size(), 4u) << "the row that is selected already has not changed";
    parent.Forget();
    list.SetItemState(3, cnListFocused, cnListFocused);
    EXPECT_EQ(parent.items.size(), 2u) << "one row loses the focus, the other gets it";
    list.SetItemState(-1, 0, cnBoth);
    EXPECT_EQ(list.GetSelectedCount(), 0);
    EXPECT_EQ(list.GetFocusedItem(), -1);
}

TEST_F(CListCtrlTest, OneOperationTellsThePeerOnce) {
    list.SetItemState(-1, cnListSelected, cnListSelected);
    EXPECT_EQ(peers.Of(list).Count(cnChangeSelection), 1);
}

TEST_F(CListCtrlTest, StatesOutOfRangeChangeNothing) {
    for (const int row : {-2, 5, 1000})
        list.SetItemState(row, cnBoth, cnBoth);
    list.SetItemState(-1, cnListFocused, cnListFocused);
    EXPECT_TRUE(parent.heard.empty());
    EXPECT_EQ(list.GetItemState(-1, cnBoth), 0u);
    list.DeleteAllItems();
    list.SetItemState(-1, cnListSelected, cnListSelected);
    EXPECT_EQ(list.GetSelectedCount(), 0);
}

TEST_F(CListCtrlTest, SelectedItemsJoinTheOthersInOneChange) {
    list.SetItemState(1, cnListSelected, cnListSelected);
    parent.Forget();
    RowSelection rows;
    rows.Add(1, 2);
    rows.Add(50, 60);
    list.SelectItems(rows);
    EXPECT_EQ(list.GetSelection().GetRanges(), (std::vector<RowSelection::Range>{{1, 2}}));
    EXPECT_EQ(parent.items.size(), 1u) << "the first was selected already";
    list.SelectItems({});
    list.DeleteAllItems();
    list.SelectItems(rows);
    EXPECT_EQ(list.GetSelectedCount(), 0);
}

TEST_F(CListCtrlTest, NextItemHasAllTheStates) {
    list.SetItemState(1, cnListSelected, cnListSelected);
    list.SetItemState(3, cnBoth, cnBoth);
    EXPECT_EQ(list.GetNextItem(-1, cnListSelected), 1);
    EXPECT_EQ(list.GetNextItem(1, cnListSelected), 3);
    EXPECT_EQ(list.GetNextItem(3, cnListSelected), -1);
    EXPECT_EQ(list.GetNextItem(-1, cnBoth), 3);
    EXPECT_EQ(list.GetNextItem(-1, 0), 0);
    EXPECT_EQ(list.GetNextItem(2147483647, 0), -1);
}

TEST_F(CListCtrlTest, DeletingAllTellsNothingToTheParent) {
    list.SetItemState(-1, cnListSelected, cnListSelected);
    parent.Forget();
    list.DeleteAllItems();
    EXPECT_EQ(list.GetItemCount(), 0);
    EXPECT_TRUE(list.GetSelection().IsEmpty());
    EXPECT_EQ(list.GetFocusedItem(), -1);
    EXPECT_TRUE(parent.heard.empty());
}

TEST_F(CListCtrlTest, ParentMayEmptyTheListWhileItIsTold) {
    parent.answer = [this](Notification& notification, LRESULT&) {
        if (notification.code == cnListItemChanged) list.DeleteAllItems();
        return false;
    };
    list.SetItemState(-1, cnListSelected, cnListSelected);
    EXPECT_EQ(parent.items.size(), 1u);
}

TEST_F(CListCtrlTest, ParentMayEndTheListWhileItIsTold) {
    parent.answer = [this](Notification&, LRESULT&) {
        list.DestroyWindow();
        return false;
    };
    list.KeyPressedByUser(TKey::SelectAll, {});
    EXPECT_FALSE(list.IsWindow());
    EXPECT_EQ(parent.items.size(), 1u);
}

TEST_F(CListCtrlTest, ClicksAndKeysFollowTheRulesOfTheCursor) {
    list.ClickedByUser(1, {});
    list.ClickedByUser(3, {.shift = true, .control = false});
    EXPECT_EQ(list.GetSelectedCount(), 3);
    EXPECT_EQ(list.GetFocusedItem(), 3);
    list.ContextClickedByUser(2);
    EXPECT_EQ(list.GetSelectedCount(), 3);
    list.KeyPressedByUser(TKey::Home, {});
    EXPECT_EQ(list.GetFocusedItem(), 0);
    list.ClickedByUser(77, {});
    EXPECT_EQ(list.GetSelectedCount(), 0) << "below the last row is the empty area";
}

TEST_F(CListCtrlTest, APressLeavesARowThatIsPartlyShownWhereItIs) {
    Fill(20);
    list.MoveWindow({0, 0, 100, 100});
    ASSERT_EQ(list.GetCountPerPage(), 5);
    list.ClickedByUser(5, {});
    EXPECT_EQ(list.GetFocusedItem(), 5);
    EXPECT_EQ(list.GetTopIndex(), 0);
    list.ClickedByUser(0, {});
    list.ContextClickedByUser(5);
    EXPECT_EQ(list.GetTopIndex(), 0);
    list.ClickedByUser(4, {});
    list.KeyPressedByUser(TKey::Down, {});
    EXPECT_EQ(list.GetTopIndex(), 1) << "a key shows the whole row";
    list.ClickedByUser(9, {});
    EXPECT_EQ(list.GetTopIndex(), 5) << "nothing of that row was shown";
}

TEST_F(CListCtrlTest, TypingGoesToTheRowAndSelectsIt) {
    list.TypedByUser("b", 0);
    EXPECT_EQ(list.GetFocusedItem(), 1);
    list.TypedByUser("e", 10);
    EXPECT_EQ(list.GetFocusedItem(), 1);
    list.TypedByUser("b", 5000);
    EXPECT_EQ(list.GetFocusedItem(), 4);
    EXPECT_EQ(list.GetSelectedCount(), 1);
    list.TypedByUser("q", 10'000);
    EXPECT_EQ(list.GetFocusedItem(), 4);
}

TEST_F(CListCtrlTest, ScrollingStaysWithinTheRows) {
    Fill(20);
    EXPECT_EQ(list.GetCountPerPage(), 5);
    list.SetTopIndex(100);
    EXPECT_EQ(list.GetTopIndex(), 15);
    list.SetTopIndex(-3);
    EXPECT_EQ(list.GetTopIndex(), 0);
    list.EnsureVisible(7);
    EXPECT_EQ(list.GetTopIndex(), 3);
    list.EnsureVisible(2);
    EXPECT_EQ(list.GetTopIndex(), 2);
    list.EnsureVisible(99);
    EXPECT_EQ(list.GetTopIndex(), 2);
    list.KeyPressedByUser(TKey::End, {});
    EXPECT_EQ(list.GetTopIndex(), 15);
    list.MoveWindow({0, 0, 100, 180});
    EXPECT_EQ(list.GetTopIndex(), 10) << "a larger window shows no rows that are not there";
    list.DeleteAllItems();
    EXPECT_EQ(list.GetTopIndex(), 0);
}

TEST_F(CListCtrlTest, HitTestKnowsTheCaptionAndTheScrolling) {
    Fill(20);
    EXPECT_EQ(list.HitTest({5, 0}), 0);
    EXPECT_EQ(list.HitTest({5, 18}), 1);
    EXPECT_EQ(list.HitTest({5, 90}), -1);
    EXPECT_EQ(list.HitTest({-1, 5}), -1);
    list.SetHeaderHeight(18);
    EXPECT_EQ(list.GetCountPerPage(), 4);
    EXPECT_EQ(list.HitTest({5, 17}), -1);
    EXPECT_EQ(list.HitTest({5, 18}), 0);
    list.SetTopIndex(4);
    EXPECT_EQ(list.HitTest({5, 89}), 7);
    list.SetRowHeight(-3);
    EXPECT_EQ(list.GetRowHeight(), 1);
}

TEST_F(CListCtrlTest, EmptyTextIsAskedOfTheParent) {
    EXPECT_EQ(list.GetEmptyText(), "") << "there are rows";
    list.DeleteAllItems();
    EXPECT_EQ(list.GetEmptyText(), "") << "nobody answers";
    parent.answer = [](Notification& notification, LRESULT& result) {
        auto& question = static_cast<NotifyEmptyMarkup&>(notification);
        std::fill(std::begin(question.markup), std::end(question.markup), u'\u00E9');
        result = 1;
        return true;
    };
    EXPECT_EQ(list.GetEmptyText().GetCharCount(), 2084) << "a forgotten end is no overrun";
}

TEST_F(CListCtrlTest, ColumnsStylesAndColoursAreTold) {
    list.InsertColumn(0, "Library");
    list.SetColumnWidth(0, 80);
    list.SetColumnWidth(1, 80);
    list.SetExtendedStyle(0, cnListFullRowSelect | cnListDoubleBuffer);
    list.SetExtendedStyle(cnListDoubleBuffer, 0);
    list.SetBkColor(0x2D2D2D);
    EXPECT_EQ(list.GetColumnCaption(0), "Library");
    EXPECT_EQ(list.GetColumnWidth(0), 80);
    EXPECT_EQ(list.GetColumnWidth(1), 0);
    EXPECT_EQ(list.GetExtendedStyle(), cnListFullRowSelect);
    EXPECT_EQ(list.GetBkColor(), 0x2D2D2Du);
    EXPECT_EQ(peers.Of(list).Count(cnChangeColumns), 2);
    EXPECT_EQ(peers.Of(list).Count(cnChangeLook), 3);
    EXPECT_EQ(list.DrawItem(0).text, "alpha");
    EXPECT_EQ(list.DrawItem(50).text, "");
}

TEST_F(CListCtrlTest, PlainRowsShowSelectionAndFocus) {
    list.ClickedByUser(1, {});
    EXPECT_TRUE(list.DrawItem(1).highlighted);
    EXPECT_FALSE(list.DrawItem(0).highlighted);
    EXPECT_FALSE(list.DrawItem(1).focusRect) << "the keyboard is elsewhere";
    list.SetFocus();
    EXPECT_TRUE(list.DrawItem(1).focusRect);
    EXPECT_FALSE(list.DrawItem(0).focusRect);
}
