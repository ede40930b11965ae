#include "vapp/browser/THostMenu.h"

#include <gtest/gtest.h>

#include <string>

using namespace vapp_library_browser;

namespace {

std::string DrawnMenu(const CMenu& menu) {
    std::string drawn;
    for (int position = 0; position < menu.GetItemCount(); ++position) {
        const CMenu::TItem& item = *menu.GetItem(position);
        if (!drawn.empty()) drawn += " | ";
        if (item.kind == CMenu::TItem::TKind::Separator) {
            drawn += "-";
        } else if (item.subMenu) {
            drawn += std::string(item.text.Payload()) + " (" + DrawnMenu(*item.subMenu) + ")";
        } else {
            drawn += std::to_string(item.id) + " " + item.text.Payload();
            if (!item.isEnabled) drawn += " grey";
            if (item.isChecked) drawn += " checked";
            if (item.isDefault) drawn += " default";
        }
    }
    return drawn;
}

class THostMenuTest : public testing::Test {
protected:
    THostMenuTest() { m_menu.Append(7, "fixed"); }
    void Add(const char* text) { m_hostMenu.AddItem(m_hostMenu.GetNextId(), text, false, false, false); }

    CMenu m_menu;
    THostMenu m_hostMenu;
};

}  // namespace

TEST_F(THostMenuTest, ItemsComeInTheirOrderInFrontOfWhatIsThere) {
    m_hostMenu.Open(m_menu, 41000);
    Add("one");
    m_hostMenu.AddSeparator();
    Add("two");
    EXPECT_EQ(DrawnMenu(m_menu), "41000 one | - | 41001 two | 7 fixed");
    EXPECT_EQ(m_hostMenu.GetNextId(), 41002u) << "a separator takes no number";
}

TEST_F(THostMenuTest, AddsNothingOutsideOfTheBuilding) {
    Add("before");
    m_hostMenu.AddSeparator();
    m_hostMenu.BeginSubmenu("before");
    m_hostMenu.EndSubmenu();
    EXPECT_EQ(m_hostMenu.GetNextId(), 0u);
    {
        const THostMenu::TScope building(m_hostMenu, m_menu, 41000);
        EXPECT_TRUE(m_hostMenu.IsOpen());
    }
    EXPECT_FALSE(m_hostMenu.IsOpen());
    Add("behind");
    m_hostMenu.AddSeparator();
    m_hostMenu.BeginSubmenu("behind");
    Add("behind");
    m_hostMenu.EndSubmenu();
    EXPECT_EQ(DrawnMenu(m_menu), "7 fixed");
    EXPECT_EQ(m_hostMenu.GetNextId(), 41000u);
}

TEST_F(THostMenuTest, ItemsOfASubMenuLeaveThePlaceInTheMenuUntilItEnds) {
    m_hostMenu.Open(m_menu, 41000);
    Add("one");
    m_hostMenu.BeginSubmenu("more");
    Add("two");
    m_hostMenu.AddSeparator();
    Add("three");
    EXPECT_EQ(DrawnMenu(m_menu), "41000 one | 7 fixed");
    m_hostMenu.EndSubmenu();
    Add("four");
    EXPECT_EQ(DrawnMenu(m_menu), "41000 one | more (41001 two | - | 41002 three) | 41003 four | 7 fixed");
}

TEST_F(THostMenuTest, GreysChecksAndMakesTheDefaultAsAsked) {
    m_hostMenu.Open(m_menu, 5);
    m_hostMenu.AddItem(50, "a", true, false, false);
    m_hostMenu.AddItem(51, "b", false, true, false);
    m_hostMenu.AddItem(52, "c", false, false, true);
    m_hostMenu.BeginSubmenu("s");
    m_hostMenu.AddItem(53, "d", true, true, true);
    m_hostMenu.EndSubmenu();
    EXPECT_EQ(DrawnMenu(m_menu),
              "50 a grey | 51 b checked | 52 c default | s (53 d grey checked default) | 7 fixed");
    EXPECT_EQ(m_hostMenu.GetNextId(), 9u) << "whatever numbers the items have";
}

TEST_F(THostMenuTest, AnUnfinishedSubMenuIsLostAndDoesNotReachTheNextMenu) {
    m_hostMenu.Open(m_menu, 41000);
    m_hostMenu.BeginSubmenu("lost");
    Add("lost");
    m_hostMenu.BeginSubmenu("kept");
    Add("kept");
    m_hostMenu.EndSubmenu();
    m_hostMenu.BeginSubmenu("open");
    m_hostMenu.Close();
    EXPECT_EQ(DrawnMenu(m_menu), "kept (41001 kept) | 7 fixed");
    CMenu next;
    m_hostMenu.Open(next, 41000);
    Add("first");
    m_hostMenu.EndSubmenu();
    EXPECT_EQ(DrawnMenu(next), "41000 first");
}

TEST_F(THostMenuTest, AnItemsStateIsItsOwnWhateverElseHasItsNumber) {
    m_hostMenu.Open(m_menu, 41000);
    m_hostMenu.BeginSubmenu("more");
    m_hostMenu.AddItem(9, "first", false, false, false);
    m_hostMenu.EndSubmenu();
    m_hostMenu.AddItem(9, "second", true, true, true);
    m_hostMenu.AddItem(7, "third", true, false, true);
    EXPECT_EQ(DrawnMenu(m_menu), "more (9 first) | 9 second grey checked | 7 third grey default | 7 fixed");
}
