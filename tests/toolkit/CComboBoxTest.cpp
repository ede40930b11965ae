/// @file
/// The drop-down list.
#include "vapp/toolkit/CComboBox.h"

#include <gtest/gtest.h>

#include "tests/toolkit/RecordingParent.h"
#include "tests/toolkit/RecordingPeers.h"

TEST(CComboBox, SortedItemsGoByTextWithoutRegardToCase) {
    CComboBox combo(true);
    EXPECT_EQ(combo.AddString("beta"), 0);
    EXPECT_EQ(combo.AddString("ALPHA"), 0);
    EXPECT_EQ(combo.AddString("Gamma"), 2);
    EXPECT_EQ(combo.AddString("BETA"), 2) << "equals stand in the order of their coming";
    EXPECT_EQ(combo.GetLBText(0), "ALPHA");
    EXPECT_EQ(combo.GetLBText(1), "beta");
    EXPECT_EQ(combo.GetLBText(3), "Gamma");
}

TEST(CComboBox, UnsortedItemsStayInTheirOrder) {
    CComboBox combo;
    EXPECT_EQ(combo.AddString("b"), 0);
    EXPECT_EQ(combo.AddString("a"), 1);
    EXPECT_EQ(combo.GetLBText(-1), "");
    EXPECT_EQ(combo.GetLBText(2), "");
}

TEST(CComboBox, SelectedItemStaysSelectedWhenOneComesBeforeIt) {
    CComboBox combo(true);
    combo.AddString("m");
    combo.SetCurSel(0);
    combo.AddString("a");
    EXPECT_EQ(combo.GetCurSel(), 1);
    combo.AddString("z");
    EXPECT_EQ(combo.GetCurSel(), 1);
    combo.ResetContent();
    EXPECT_EQ(combo.GetCurSel(), -1);
    EXPECT_EQ(combo.GetCount(), 0);
}

TEST(CComboBox, ExactFindGoesRoundBehindTheStart) {
    CComboBox combo;
    for (const char* text : {"Top", "bus", "TOP", "other"})
        combo.AddString(text);
    EXPECT_EQ(combo.FindStringExact(-1, "top"), 0);
    EXPECT_EQ(combo.FindStringExact(0, "top"), 2);
    EXPECT_EQ(combo.FindStringExact(2, "top"), 0);
    EXPECT_EQ(combo.FindStringExact(1, "bus"), 1) << "the start itself comes last";
    EXPECT_EQ(combo.FindStringExact(99, "top"), 0);
    EXPECT_EQ(combo.FindStringExact(3, "to"), -1);
    EXPECT_EQ(CComboBox().FindStringExact(-1, "top"), -1);
}

TEST(CComboBox, FindKnowsNamesBeyondAscii) {
    CComboBox combo;
    combo.AddString(CStringU("\xC3\x84pfel", TextEncoding::Utf8));
    EXPECT_EQ(combo.FindStringExact(-1, CStringU("\xC3\xA4PFEL", TextEncoding::Utf8)), 0);
}

TEST(CComboBox, OnlyTheUsersPickIsToldToTheParent) {
    RecordingPeers peers;
    RecordingParent parent;
    CComboBox combo;
    ASSERT_TRUE(combo.Create(&parent, 7));
    combo.AddString("a");
    combo.AddString("b");
    peers.ForgetAll();
    combo.SetCurSel(1);
    combo.SetCurSel(1);
    EXPECT_EQ(peers.Of(combo).changes, std::vector<UINT>{cnChangeSelection});
    EXPECT_TRUE(parent.heard.empty());
    combo.PickedByUser(0);
    combo.PickedByUser(5);
    combo.ClosedByUser();
    EXPECT_EQ(combo.GetCurSel(), 0);
    EXPECT_EQ(parent.Count(cnComboSelectionChanged), 1);
    EXPECT_EQ(parent.Count(cnComboClosedUp), 1);
    combo.SetCurSel(-9);
    EXPECT_EQ(combo.GetCurSel(), -1);
}

TEST(CComboBox, InsertsInFrontOfAnItem) {
    CComboBox combo(true);
    EXPECT_EQ(combo.InsertString(0, "z"), 0);
    EXPECT_EQ(combo.InsertString(0, "y"), 0) << "sorted or not";
    EXPECT_EQ(combo.InsertString(-1, "a"), 2);
    EXPECT_EQ(combo.InsertString(3, "b"), 3);
    EXPECT_EQ(combo.InsertString(5, "c"), -1);
    EXPECT_EQ(combo.InsertString(-2, "c"), -1);
    ASSERT_EQ(combo.GetCount(), 4);
    combo.SetCurSel(1);
    EXPECT_EQ(combo.InsertString(1, "x"), 1);
    EXPECT_EQ(combo.GetLBText(combo.GetCurSel()), "z") << "the selected item stays selected";
    EXPECT_EQ(combo.GetLBText(1), "x");
}
