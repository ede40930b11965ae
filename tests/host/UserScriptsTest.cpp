/// A folder of scripts, and the example that comes with the program.

#include "host/UserScripts.h"

#include "host/FileText.h"
#include "tests/host/MenuFixture.h"
#include "vapp/toolkit/Clipboard.h"

namespace navigator_test {
namespace {

using namespace navigator;
using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::StartsWith;

class UserScriptsTest : public MenuFixture {
protected:
    void SetUp() override {
        MenuFixture::SetUp();
        Start();
    }
    TempFolder m_scripts;
};

TEST_F(UserScriptsTest, AreSourcedInTheOrderOfTheirNames) {
    m_scripts.Write("2 second.tcl", "append ::ran 2");
    m_scripts.Write("1 first.tcl", "append ::ran 1");
    m_scripts.Write("note.txt", "append ::ran x");
    std::filesystem::create_directory(m_scripts.Path() / "folder.tcl");
    EXPECT_EQ(gSourceScripts(*m_navigator, m_scripts.Path()), 0);
    EXPECT_EQ(Answer("set ::ran"), "12");
}

TEST_F(UserScriptsTest, OneThatFailsIsToldOfAndTheOthersRun) {
    m_scripts.Write("a.tcl", "set ::ran 1\nnosuch");
    m_scripts.Write("b.tcl", "append ::ran 2");
    EXPECT_EQ(gSourceScripts(*m_navigator, m_scripts.Path()), 1);
    EXPECT_EQ(Answer("set ::ran"), "12");
    EXPECT_THAT(Log(), ElementsAre(HasSubstr("a.tcl\" line 2")));
}

TEST_F(UserScriptsTest, NoFolderHasNoScripts) {
    EXPECT_TRUE(gScriptsIn(m_scripts.Path() / "none").empty());
    EXPECT_EQ(gSourceScripts(*m_navigator, m_scripts.Path() / "none"), 0);
}

// The script of the examples, as a user would have it: each of its items is picked.
TEST_F(UserScriptsTest, TheExampleUsesEveryStyle) {
    EXPECT_EQ(gSourceScripts(*m_navigator, EXAMPLE_SCRIPTS), 0) << testing::PrintToString(Log());
    SelectRows(1, 2);
    const struct {
        const char* item;
        std::string said;
    } rows[] = {{"Count of cells", "4 cell views are listed."},
                {"Where is it?",
                 "lib/b/symbol of " + m_design + " is in " + (m_folder.Path() / "lib").string() + "."},
                {"Count selected", "2 cell views of 2 cells are selected."},
                {"As master", "The next cell to place is b of lib."},
                {"Other views", "b of lib has no view beside symbol."},
                {"Notes...", "There is no note about lib/b."}};
    for (const auto& row : rows) {
        PickFromCells(row.item);
        EXPECT_EQ(Answer("set example::said"), row.said) << row.item;
    }
    SelectRows(0, 0);
    PickFromCells("Other views");
    EXPECT_EQ(Answer("set example::said"), "a of lib also has symbol.");
    m_navigator->Browser().SelectInLibraryList("lib");
    PickFromLibraries("Size of libraries");
    EXPECT_EQ(Answer("set example::said"), "lib: 3 views");
    PickFromLibraries("Size of design");
    EXPECT_EQ(Answer("set example::said"), m_design + ": 4 views in 2 libraries");
    PickFromTab(0, "Marked");
    EXPECT_EQ(Answer("set example::said"), "Tab 0 is marked.");
    PickFromTab(1, "Marked");
    EXPECT_THAT(m_seen, Contains("Marked")) << "each tab has a mark of its own";
    EXPECT_EQ(Answer("set example::said"), "Tab 1 is marked.");
    PickFromTab(1, "Marked");
    EXPECT_THAT(m_seen, Contains("Marked *"));
    EXPECT_EQ(Answer("set example::said"), "Tab 1 is not marked any more.");
    PickFromTab(0, "");
    EXPECT_THAT(m_seen, Contains("Marked *"));
}

TEST_F(UserScriptsTest, AnExamplePlacesCellsOntoASchematic) {
    m_folder.Write("lib/sheet.sch", "v {}\n");
    m_navigator->Rescan();
    m_navigator->Populate();
    ASSERT_EQ(gSourceScripts(*m_navigator, EXAMPLE_SCRIPTS), 0) << testing::PrintToString(Log());
    SelectRows(1, 1);
    PickFromCells("Place");
    EXPECT_THAT(m_seen, Contains("&Place>Place -")) << "there is no sheet";
    EXPECT_THAT(m_seen, Contains("&Place>Place cells here -")) << "a symbol is none";
    SelectRows(4, 4);
    PickFromCells("Place cells here");
    EXPECT_THAT(m_seen, Contains("&Place>Place cells here"));
    SelectRows(1, 1);
    PickFromCells("Place");
    SelectRows(3, 3);
    PickFromCells("Place");
    EXPECT_EQ(gReadFileText(m_folder.Path() / "lib" / "sheet.sch").text,
              "v {}\nC {lib/a.sym} 0 0 0 0 {name=x1}\nC {other/c.sym} 200 0 0 0 {name=x2}\n");
    m_navigator->Populate();
    m_navigator->Populate();
    EXPECT_EQ(Answer("dict get [user state] cell"), "lib sheet schematic") << "the sheet is shown again";
    EXPECT_EQ(Answer("cell selecthierarchy " + m_design + " lib sheet schematic"), "4");
}

}  // namespace
}  // namespace navigator_test
