/// Words for styles, and what becomes of items in the menus.

#include "host/MenuItems.h"

#include "tests/host/MenuFixture.h"
#include "vapp/browser/Messages.h"

namespace navigator_test {
namespace {

using namespace navigator;
using testing::ElementsAre;
using testing::Not;

class MenuItemsTest : public MenuFixture {
protected:
    /// Instead of the navigator's own items the test's are added.
    void Fill(std::vector<MenuItem> items) {
        m_navigator->Frame().SetMessageHandler(
            [this, items](UINT message, WPARAM, LPARAM) -> std::optional<LRESULT> {
                auto& browser = m_navigator->Browser();
                if (message == vapp_library_browser::WM_LN_BUILDCELLMENU) gAddCellItems(browser, items);
                if (message == vapp_library_browser::WM_LN_BUILDLIBRARYMENU) gAddLibraryItems(browser, items);
                if (message == vapp_library_browser::WM_LN_BUILDTABMENU)
                    m_tabCommands = gAddTabItems(browser, items);
                return std::nullopt;
            });
    }
    static MenuItem Of(const char* subMenu, const char* text) {
        MenuItem item;
        item.subMenu = subMenu;
        item.text = text;
        item.command = std::string("set ::ran ") + text;
        item.isSeparator = *text == '\0';
        return item;
    }
    std::vector<std::string> m_tabCommands;
};

TEST(MenuStyleTest, EachMenuHasItsStyles) {
    const struct {
        const char* word;
        bool isForCells;
        bool isForLibraries;
    } rows[] = {{"command", true, true},  {"focused", true, false},   {"selected", true, false},
                {"master", true, false},  {"cellview", true, false},  {"cell", true, false},
                {"builtin", false, true}, {"libraries", false, true}, {"", false, false},
                {"Focused", false, false}};
    for (const auto& row : rows) {
        EXPECT_EQ(gFindMenuStyle(TMenuPlace::Cells, row.word) != nullptr, row.isForCells) << row.word;
        EXPECT_EQ(gFindMenuStyle(TMenuPlace::Libraries, row.word) != nullptr, row.isForLibraries) << row.word;
        EXPECT_EQ(gFindMenuStyle(TMenuPlace::Tabs, row.word), nullptr) << row.word;
    }
    EXPECT_EQ(gMenuPlaceOf("tabs"), TMenuPlace::Tabs);
    EXPECT_EQ(gMenuPlaceOf("cell"), std::nullopt);
}

TEST_F(MenuItemsTest, ItemsOfOneSubMenuGoIntoItTogether) {
    Start();
    Fill({Of("", "one"), Of("Sub", "two"), Of("", "three"), Of("Sub", ""), Of("Sub", "four"), Of("", "")});
    PickFromCells("four");
    ASSERT_GE(m_seen.size(), 6U);
    m_seen.resize(6);
    EXPECT_THAT(m_seen, ElementsAre("one", "Sub>two", "Sub>--", "Sub>four", "three", "--"));
    EXPECT_EQ(Answer("set ::ran"), "four");
}

TEST_F(MenuItemsTest, TheMenuOfLibrariesHasNoSeparators) {
    Start();
    Fill({Of("", "one"), Of("", ""), Of("Sub", "two")});
    PickFromLibraries("");
    EXPECT_THAT(m_seen, ElementsAre("one", "Sub>two"));
}

TEST_F(MenuItemsTest, ATabsMenuHasNoSubMenusAndTellsItsCommands) {
    Start();
    Fill({Of("Sub", "one"), Of("", ""), Of("", "two")});
    PickFromTab(1, "");
    EXPECT_THAT(m_seen, ElementsAre("one", "--", "two"));
    EXPECT_THAT(m_tabCommands, ElementsAre("set ::ran one", "", "set ::ran two"));
}

TEST_F(MenuItemsTest, ALibraryWhoseNameWouldRunAsScriptGreysItsItem) {
    const std::string name = "x} ; set ::ran 1 ; #";
    m_folder.Write(name + "/d.sym", "v {}\n");
    Start();
    MenuItem item = Of("", "List");
    item.command = "list";
    item.style = vapp_library_browser::StyleSelectedLibraries;
    Fill({item, Of("", "other")});
    m_navigator->Browser().SelectInLibraryList("lib");
    PickFromLibraries("List");
    EXPECT_THAT(m_seen, ElementsAre("List", "other"));
    ASSERT_EQ(Log().size(), 1U);
    m_navigator->Browser().SelectInLibraryList(name.c_str());
    ASSERT_EQ(m_navigator->Browser().GetSelectedLibrariesSet().size(), 1U);
    PickFromLibraries("List");
    EXPECT_THAT(m_seen, ElementsAre("List -", "other"));
    EXPECT_EQ(Log().size(), 1U);
    EXPECT_EQ(Answer("info exists ::ran"), "0");
}

}  // namespace
}  // namespace navigator_test
