#include "vapp/toolkit/CMenu.h"

#include <gtest/gtest.h>

#include "tests/toolkit/RecordingPeers.h"

namespace {

// first, -, More > (second, Deeper > (third))
std::unique_ptr<CMenu> NestedMenu() {
    auto menu = std::make_unique<CMenu>();
    menu->Append(1, "first");
    menu->AppendSeparator();
    CMenu& more = menu->AppendPopup("More");
    more.Append(2, "second");
    more.AppendPopup("Deeper").Append(3, "third");
    return menu;
}

TEST(CMenuTest, HoldsItsItemsInOrder) {
    const auto menu = NestedMenu();
    ASSERT_EQ(menu->GetItemCount(), 3);
    EXPECT_EQ(menu->GetItem(0)->text, "first");
    EXPECT_EQ(menu->GetItem(1)->kind, CMenu::TItem::TKind::Separator);
    EXPECT_EQ(menu->GetItem(2)->kind, CMenu::TItem::TKind::Popup);
    EXPECT_EQ(menu->GetSubMenu(2)->GetItem(0)->id, 2u);
    EXPECT_EQ(menu->GetSubMenu(0), nullptr);
    EXPECT_EQ(menu->GetItem(3), nullptr);
    EXPECT_EQ(menu->GetItem(-1), nullptr);
}

TEST(CMenuTest, FindsCommandsAtAnyDepth) {
    const auto menu = NestedMenu();
    EXPECT_EQ(menu->FindItem(3)->text, "third");
    EXPECT_EQ(menu->FindOwner(1), menu.get());
    EXPECT_EQ(menu->FindOwner(3), menu->GetSubMenu(2)->GetSubMenu(1));
    EXPECT_EQ(menu->FindItem(9), nullptr);
    EXPECT_EQ(menu->FindOwner(9), nullptr);
    EXPECT_EQ(menu->FindItem(0), nullptr) << "separators and sub-menus are no commands";
}

TEST(CMenuTest, InsertsWhereItIsToldOrAtTheNearerEnd) {
    CMenu menu;
    menu.Insert(5, 1, "a");
    menu.Insert(-5, 2, "b");
    menu.Insert(1, 3, "c");
    menu.InsertSeparator(1);
    menu.InsertPopup(0, "none", nullptr);
    menu.InsertPopup(0, "sub", std::make_unique<CMenu>());
    ASSERT_EQ(menu.GetItemCount(), 5);
    EXPECT_NE(menu.GetSubMenu(0), nullptr);
    EXPECT_EQ(menu.GetItem(1)->id, 2u);
    EXPECT_EQ(menu.GetItem(3)->id, 3u);
    EXPECT_EQ(menu.GetItem(4)->id, 1u);
}

TEST(CMenuTest, ChecksAndEnablesByIdentifier) {
    const auto menu = NestedMenu();
    EXPECT_FALSE(menu->IsChecked(3));
    EXPECT_TRUE(menu->IsEnabled(3));
    menu->Check(3, true);
    menu->Enable(3, false);
    menu->Check(9, true);
    menu->Enable(9, true);
    EXPECT_TRUE(menu->IsChecked(3));
    EXPECT_FALSE(menu->IsEnabled(3));
    EXPECT_FALSE(menu->IsChecked(9));
    EXPECT_FALSE(menu->IsEnabled(9));
}

TEST(CMenuTest, AppendsCheckedItemsWhateverStandsBeforeThem) {
    CMenu menu;
    menu.Append(7, "same number");
    menu.AppendChecked(7, "on", true);
    menu.AppendChecked(8, "off", false);
    EXPECT_FALSE(menu.GetItem(0)->isChecked);
    EXPECT_TRUE(menu.GetItem(1)->isChecked);
    EXPECT_FALSE(menu.GetItem(2)->isChecked);
}

TEST(CMenuTest, HasOneDefaultInEachMenu) {
    CMenu menu;
    menu.Append(1, "a");
    menu.Append(2, "b");
    menu.SetDefault(1);
    menu.SetDefault(2);
    menu.SetDefault(3);
    EXPECT_FALSE(menu.FindItem(1)->isDefault);
    EXPECT_TRUE(menu.FindItem(2)->isDefault);
}

TEST(CMenuTest, DeletesByIdentifierAndByPosition) {
    const auto menu = NestedMenu();
    menu->Delete(3);
    menu->Delete(3);
    EXPECT_EQ(menu->FindItem(3), nullptr);
    EXPECT_EQ(menu->GetSubMenu(2)->GetItemCount(), 2) << "the sub-menu stays, empty";
    menu->RemoveAt(2);
    menu->RemoveAt(7);
    menu->RemoveAt(-1);
    EXPECT_EQ(menu->GetItemCount(), 2);
}

TEST(CMenuTest, NothingIsPickedWhereNobodyShowsMenus) {
    CWnd owner;
    EXPECT_EQ(NestedMenu()->Track(owner, {}), 0u);
}

TEST(CMenuTest, GivesWhatTheUserPickedIfItCouldBePicked) {
    RecordingPeers peers;
    CWnd owner;
    const auto menu = NestedMenu();
    UINT answer = 3;
    peers.pick = [&answer](const CMenu& /*shown*/) { return answer; };
    EXPECT_EQ(menu->Track(owner, {7, 8}, TMenuAlign::Right), 3u);
    EXPECT_EQ(peers.menuPoint, CPoint(7, 8));
    EXPECT_EQ(peers.menuAlign, TMenuAlign::Right);
    menu->Enable(3, false);
    EXPECT_EQ(menu->Track(owner, {}), 0u);
    answer = 77;
    EXPECT_EQ(menu->Track(owner, {}), 0u);
    answer = 0;
    EXPECT_EQ(menu->Track(owner, {}), 0u);
    peers.pick = [](const CMenu& /*shown*/) -> UINT { throw "an empty menu is not shown"; };
    EXPECT_EQ(CMenu().Track(owner, {}), 0u);
}

TEST(CMenuTest, TextsOfNamesHaveNoKeys) {
    EXPECT_EQ(gMenuTextOf("plain"), "plain");
    EXPECT_EQ(gMenuTextOf("a&b&&c"), "a&&b&&&&c");
    EXPECT_EQ(gMenuTextOf(CStringU("\xC3\xA4&", TextEncoding::Utf8Auto)),
              CStringU("\xC3\xA4&&", TextEncoding::Utf8Auto));
    EXPECT_EQ(gMenuTextOf(""), "");
}

TEST(CMenuTest, OfTwoItemsWithOneNumberTheOneThatCanBePickedCounts) {
    RecordingPeers peers;
    peers.pick = [](const CMenu&) { return 7U; };
    CWnd owner;
    CMenu menu;
    menu.Insert(0, 7, "grey").isEnabled = false;
    EXPECT_FALSE(menu.Offers(7));
    EXPECT_EQ(menu.Track(owner, {}), 0u);
    menu.AppendPopup("more").Append(7, "below");
    EXPECT_TRUE(menu.Offers(7));
    EXPECT_EQ(menu.Track(owner, {}), 7u);
    EXPECT_FALSE(menu.Offers(0)) << "a sub-menu is no command";
}

TEST(CMenuTest, OfSeveralItemsWithOneNumberTheLastIsMeant) {
    CMenu menu;
    menu.Append(7, "first");
    menu.AppendPopup("more").Append(7, "below");
    menu.GetSubMenu(1)->Append(8, "other");
    EXPECT_EQ(menu.FindItem(7)->text, "below");
    EXPECT_EQ(menu.FindOwner(7), menu.GetSubMenu(1));
    menu.Append(7, "last");
    menu.Check(7, true);
    menu.Enable(7, false);
    menu.SetDefault(7);
    EXPECT_TRUE(menu.GetItem(2)->isChecked && menu.GetItem(2)->isDefault && !menu.GetItem(2)->isEnabled);
    EXPECT_FALSE(menu.GetItem(0)->isChecked || menu.GetItem(0)->isDefault || !menu.GetItem(0)->isEnabled);
    menu.Delete(7);
    menu.Delete(7);
    EXPECT_EQ(menu.GetItemCount(), 2);
    EXPECT_EQ(menu.GetSubMenu(1)->GetItemCount(), 1);
    EXPECT_EQ(menu.FindItem(7)->text, "first");
}

TEST(CMenuTest, ThereIsOneDefaultItemInAMenu) {
    CMenu menu;
    menu.Append(1, "one");
    menu.Append(1, "other");
    menu.SetDefaultAt(1);
    EXPECT_FALSE(menu.GetItem(0)->isDefault);
    EXPECT_TRUE(menu.GetItem(1)->isDefault);
    menu.SetDefaultAt(0);
    EXPECT_FALSE(menu.GetItem(1)->isDefault);
    menu.SetDefaultAt(9);
    EXPECT_TRUE(menu.GetItem(0)->isDefault) << "there is no such place";
}

}  // namespace
