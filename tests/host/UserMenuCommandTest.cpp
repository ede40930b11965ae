/// What scripts add to the menus, and the lines that picking it sends.

#include "host/UserMenuCommand.h"

#include "tests/host/MenuFixture.h"

namespace navigator_test {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

class UserMenuCommandTest : public MenuFixture {
protected:
    void SetUp() override {
        MenuFixture::SetUp();
        Start();
        Answer("proc act args { set ::acted $args }");
        SelectRows(1, 2);
    }
    /// Adds an item with the style, picks it, and gives the words that its command got.
    std::string Acted(const std::string& style) {
        EXPECT_EQ(Answer("usermenu add cells Act {act " + style + "} -style " + style), "");
        Answer("set ::acted none");
        PickFromCells("Act");
        std::string acted = Answer("set ::acted");
        for (std::size_t at = acted.find(m_design); at != std::string::npos; at = acted.find(m_design))
            acted.replace(at, m_design.size(), "DESIGN");
        return acted;
    }
};

TEST_F(UserMenuCommandTest, EachStyleForCellsAppendsItsOwn) {
    EXPECT_EQ(Acted("command"), "command");
    EXPECT_EQ(Acted("focused"), "focused DESIGN lib b symbol");
    EXPECT_EQ(Acted("selected"), "selected DESIGN -lcvs { \"lib a symbol\"  \"lib b symbol\" }");
    EXPECT_EQ(Acted("master"), "master -mastercell b -masterdesign lib -add");
    EXPECT_EQ(Acted("cellview"), "cellview b lib symbol");
    EXPECT_EQ(Acted("cell"), "cell lib b");
}

TEST_F(UserMenuCommandTest, EachStyleForLibrariesAppendsItsOwn) {
    m_navigator->Browser().SelectInLibraryList("lib");
    Answer("usermenu add libraries One {act one}");
    Answer("usermenu add libraries Two {act two} -style libraries");
    Answer("usermenu add libraries Three LibDefsOrder -style builtin");
    PickFromLibraries("One");
    EXPECT_EQ(Answer("set ::acted"), "one " + m_design);
    PickFromLibraries("Two");
    EXPECT_EQ(Answer("set ::acted"), "two " + m_design + " -libraries { \"lib\" }");
    EXPECT_TRUE(m_navigator->Browser().GetAlphabeticalLibraryNames());
    PickFromLibraries("Three");
    EXPECT_FALSE(m_navigator->Browser().GetAlphabeticalLibraryNames());
}

TEST_F(UserMenuCommandTest, ATabsCommandGetsTheTabAndTheNewCheck) {
    Answer("set ::on 0; usermenu separator tabs");
    Answer("usermenu add tabs Keep {act keep} -checked {set ::on}");
    PickFromTab(1, "Keep");
    EXPECT_EQ(Answer("set ::acted"), "keep 1 1");
    Answer("set ::on 1");
    PickFromTab(2, "Keep");
    EXPECT_EQ(Answer("set ::acted"), "keep 2 0");
    EXPECT_THAT(m_seen, Contains("Keep *"));
    EXPECT_EQ(Log().back(), "act keep 2 0");
}

TEST_F(UserMenuCommandTest, ItemsStandBehindTheHostsOwnAndInFrontOfTheLists) {
    Answer("usermenu add cells &Mine act -submenu &User -default; usermenu separator cells -submenu &User");
    PickFromCells("");
    const auto mine = std::find(m_seen.begin(), m_seen.end(), "&User>&Mine !");
    ASSERT_NE(mine, m_seen.end());
    EXPECT_EQ(*std::prev(mine), "--");
    EXPECT_EQ(*std::next(mine), "&User>--");
    EXPECT_EQ(*std::next(mine, 2), "--");
    EXPECT_EQ(*std::next(mine, 3), "Select Hierarchy");
}

TEST_F(UserMenuCommandTest, ScriptsSayWhetherAnItemIsEnabledAndChecked) {
    Answer("usermenu add cells A act -enabled {expr 0}; usermenu add cells B act -checked {expr 1}");
    Answer("usermenu add cells C act -enabled nosuch -checked {list x}");
    Answer("set kept result");
    PickFromCells("A");
    EXPECT_THAT(m_seen, testing::IsSupersetOf({"A -", "B *", "C -"}));
    EXPECT_EQ(Answer("info exists ::acted"), "0");
    EXPECT_THAT(Log(), Contains(HasSubstr("invalid command name \"nosuch\"")));
}

TEST_F(UserMenuCommandTest, AScriptThatIsAskedMayRemoveItsItem) {
    Answer("usermenu add cells A act -enabled {usermenu remove cells; expr 1}; usermenu add cells B act");
    PickFromCells("A");
    EXPECT_EQ(Answer("set ::acted"), "") << "the item that was shown still runs";
    EXPECT_THAT(m_seen, Contains("B"));
    PickFromCells("");
    EXPECT_THAT(m_seen, Not(Contains("A")));
}

TEST_F(UserMenuCommandTest, TheDoubleClickIsASetting) {
    EXPECT_EQ(Answer("usermenu doubleclick {act twice} cellview"), "");
    PickFromCells("");
    EXPECT_THAT(m_seen, Contains("&Open as text")) << "it stands out no more";
    SelectRows(1, 1);
    auto& report = m_navigator->Browser().GetCellListView()->GetReport();
    report.DoubleClickedByUser({10, report.GetHeaderHeight() + report.GetRowHeight() + 1});
    EXPECT_EQ(Answer("set ::acted"), "twice a lib symbol");
}

TEST_F(UserMenuCommandTest, TheSameItemTwiceIsOne) {
    Answer("usermenu add cells A {act 1}; usermenu add cells A {act 2}; usermenu add cells A act -submenu S");
    EXPECT_EQ(Answer("usermenu items cells"), "{{} A {act 2}} {S A act}");
    EXPECT_EQ(Answer("usermenu items tabs"), "");
    EXPECT_EQ(Answer("usermenu remove cells A"), "2");
    EXPECT_EQ(Answer("usermenu items cells"), "");
}

TEST_F(UserMenuCommandTest, WrongLinesAddNothing) {
    for (const char* line :
         {"usermenu add rows A act", "usermenu add cells {} act", "usermenu add cells A {}",
          "usermenu add cells A act -style libraries", "usermenu add libraries A act -style focused",
          "usermenu add tabs A act -style focused", "usermenu add tabs A act -submenu S",
          "usermenu add tabs A act -enabled 1", "usermenu add cells A act -style",
          "usermenu add cells A act -nosuch 1", "usermenu separator libraries",
          "usermenu separator cells -sub", "usermenu separator cells -other S",
          "usermenu separator tabs -submenu S", "usermenu doubleclick act libraries", "usermenu items rows",
          "usermenu remove rows"})
        EXPECT_THAT(Answer(line), StartsWith("ERROR: ")) << line;
    for (const char* place : {"cells", "libraries", "tabs"})
        EXPECT_EQ(Answer(std::string("usermenu items ") + place), "");
    EXPECT_EQ(Answer("usermenu add cells A act -style libraries"),
              "ERROR: no style \"libraries\" of that menu; it has command, focused, selected, master, "
              "cellview, cell");
    EXPECT_EQ(Answer("usermenu add tabs A act -style focused"),
              "ERROR: no style \"focused\" of that menu, which has none");
}

}  // namespace
}  // namespace navigator_test
