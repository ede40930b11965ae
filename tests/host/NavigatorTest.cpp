/// The host put together, without a screen: what a script and the disk do to it, seen in the list that it
/// dumps.

#include "host/Navigator.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <filesystem>

#include "host/NavigatorApp.h"
#include "tests/host/TempFolder.h"
#include "vapp/browser/TLibraryView.h"
#include "vapp/celllist/TCellListView.h"
#include "vapp/text/ActiveCodePage.h"

namespace navigator_test {
namespace {

using navigator::Navigator;
using testing::AllOf;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

class NavigatorTest : public testing::Test {
protected:
    void SetUp() override { gSetActiveCodePage(cnUtf8CodePage); }
    void TearDown() override { gSetActiveCodePage(0); }

    /// Opens the folder in a navigator of its own with a window.
    void Start() {
        ASSERT_FALSE(m_navigator.OpenFolder(m_folder.Path()));
        m_navigator.CreateWindow(600, 800, false);
        m_navigator.LoadSetup();
    }

    std::string Eval(const std::string& line) {
        const int code = Tcl_EvalEx(m_navigator.Interp(), line.c_str(), -1, TCL_EVAL_GLOBAL);
        EXPECT_EQ(TCL_OK, code) << line << ": " << Tcl_GetStringResult(m_navigator.Interp());
        return Tcl_GetStringResult(m_navigator.Interp());
    }

    [[nodiscard]] std::string Status() {
        return m_navigator.Browser()
            .GetCellListView()
            ->GetDlgItem(vapp_library_browser::TCellListView::cnStatus)
            ->GetWindowText()
            .GetString();
    }

    TempFolder m_folder;
    navigator::NavigatorApp m_app;
    Navigator m_navigator{m_app};
};

TEST_F(NavigatorTest, ShowsFilesAndFoldersAsCellViews) {
    m_folder.Write("lib/inv.sym", "v {}\n");
    m_folder.Write("lib/inv.sch", "v {}\n");
    m_folder.Write("lib/inv/layout/rows.txt", "x");
    Start();
    EXPECT_EQ("Cell,View,Library\ninv,layout,lib\ninv,schematic,lib\ninv,symbol,lib\n", m_navigator.Dump());
    EXPECT_EQ("3 cells", Status());
}

// A script may take a caption that is there; each column tells its own texts all the same.
TEST_F(NavigatorTest, DumpsColumnsOfOneCaptionEachByItself) {
    m_folder.Write("lib/inv.sym", "v {}\n");
    Start();
    Eval("proc mycell {design library cell view} {return <$cell>}");
    Eval("navigator addcolumn Cell mycell");
    CXTPReportColumns& columns = m_navigator.Browser().GetCellListView()->GetReport().GetColumns();
    columns.GetAt(3)->SetVisible(false);
    EXPECT_EQ("Cell,View,Library,Cell\ninv,symbol,lib,<inv>\n", m_navigator.Dump());
    EXPECT_FALSE(columns.GetAt(3)->IsVisible()) << "as it was before";
}

TEST_F(NavigatorTest, SortsByTheNumbersInNames) {
    for (const char* cell : {"lib/bank10.sym", "lib/bank2.sym", "lib/Bank1.sym"})
        m_folder.Write(cell, "v {}\n");
    Start();
    EXPECT_EQ("Cell,View,Library\nBank1,symbol,lib\nbank2,symbol,lib\nbank10,symbol,lib\n",
              m_navigator.Dump());
}

TEST_F(NavigatorTest, ShowsHostileNamesAndRunsNoneOfThem) {
    const std::filesystem::path trap = m_folder.Path() / "trap";
    const std::vector<std::string> names{"a b", "[set ::ran 1]", "$env(HOME)", "q\"u{o}te\\",
                                         "{",   "new\nline",     "#x",         ";exit 7;"};
    for (const std::string& name : names)
        m_folder.Write("l [set ::ran 1]/" + name + ".sym", "v {}\n");
    Start();
    const std::string dump = m_navigator.Dump();
    for (const std::string& name : names)
        EXPECT_THAT(dump, HasSubstr(name + ",symbol,l [set ::ran 1]\n"));
    // Painting asks for the state of each view; nothing of it may run either.
    auto& report = m_navigator.Browser().GetCellListView()->GetReport();
    CXTPReportRecordItemMetrics metrics;
    for (int row = 0; row < static_cast<int>(names.size()); ++row)
        EXPECT_TRUE(report.MeasureItem(row, *report.GetColumns().GetAt(0), metrics));
    EXPECT_EQ("0", Eval("info exists ::ran"));
}

TEST_F(NavigatorTest, FollowsAnEmptiedAndARefilledFolder) {
    m_folder.Write("one/a.sym", "v {}\n");
    m_folder.Write("two/b.sym", "v {}\n");
    Start();
    EXPECT_THAT(m_navigator.Dump(), AllOf(HasSubstr("a,symbol,one"), HasSubstr("b,symbol,two")));
    std::filesystem::remove_all(m_folder.Path() / "two");
    m_folder.Write("three/c.sym", "v {}\n");
    m_navigator.Rescan();
    EXPECT_THAT(m_navigator.Dump(),
                AllOf(HasSubstr("a,symbol,one"), Not(HasSubstr("two")), HasSubstr("c,symbol,three")));
}

TEST_F(NavigatorTest, SurvivesALibraryThatVanishesBetweenScanAndPaint) {
    m_folder.Write("lib/a.sym", "v {}\n");
    Start();
    ASSERT_THAT(m_navigator.Dump(), HasSubstr("a,symbol,lib"));
    std::filesystem::remove_all(m_folder.Path() / "lib");
    auto& report = m_navigator.Browser().GetCellListView()->GetReport();
    CXTPReportRecordItemMetrics metrics;
    ASSERT_TRUE(report.MeasureItem(0, *report.GetColumns().GetAt(0), metrics));
    EXPECT_STREQ("a", metrics.text);
    m_navigator.Rescan();
    EXPECT_EQ("Cell,View,Library\n", m_navigator.Dump());
}

TEST_F(NavigatorTest, SelectedMasterIsHighlighted) {
    m_folder.Write("lib/a.sym", "v {}\n");
    m_folder.Write("lib/b.sym", "v {}\n");
    Start();
    (void)m_navigator.Dump();
    Eval("database select lib b symbol");
    m_navigator.Populate();
    m_navigator.Populate();
    EXPECT_TRUE(m_navigator.Browser().GetFocusedCell() ==
                vapp_library_browser::TLibCellView("lib", "b", "symbol"));
}

TEST_F(NavigatorTest, ScriptAddsAColumnThatIsDumped) {
    m_folder.Write("lib/a.sym", "v {}\n");
    const auto script = m_folder.Write("host script.tcl",
                                       "proc upper {design lib cell view} { string toupper $cell }\n"
                                       "navigator addcolumn Upper upper -backward\n"
                                       "navigator tabtext 0 First\n");
    Start();
    EXPECT_EQ(std::nullopt, m_navigator.SourceScript(script.string()));
    EXPECT_EQ("Cell,View,Library,Upper\na,symbol,lib,A\n", m_navigator.Dump());
}

TEST_F(NavigatorTest, ScriptSortsByAColumnEitherWay) {
    m_folder.Write("x/a.sym", "v {}\n");
    m_folder.Write("w/b.sym", "v {}\n");
    Start();
    (void)m_navigator.Dump();
    Eval("navigator sortby Library");
    EXPECT_EQ("Cell,View,Library\nb,symbol,w\na,symbol,x\n", m_navigator.Dump());
    Eval("navigator sortby Cell decreasing");
    EXPECT_EQ("Cell,View,Library\nb,symbol,w\na,symbol,x\n", m_navigator.Dump());
    Eval("navigator sortby Cell");
    EXPECT_EQ("Cell,View,Library\na,symbol,x\nb,symbol,w\n", m_navigator.Dump());
    EXPECT_EQ(TCL_ERROR, Tcl_Eval(m_navigator.Interp(), "navigator sortby Nowhere"));
}

TEST_F(NavigatorTest, SelectedLibraryNarrowsTheList) {
    m_folder.Write("x/a.sym", "v {}\n");
    m_folder.Write("w/b.sym", "v {}\n");
    Start();
    (void)m_navigator.Dump();
    Eval("navigator selectlibrary w");
    EXPECT_EQ("Cell,View,Library\nb,symbol,w\n", m_navigator.Dump());
}

TEST_F(NavigatorTest, FailedScriptTellsItsErrorAndPlace) {
    Start();
    const auto script = m_folder.Write("broken.tcl", "set ok 1\nnosuchcommand\n");
    const auto failure = m_navigator.SourceScript(script.string());
    ASSERT_TRUE(failure);
    EXPECT_THAT(*failure, AllOf(HasSubstr("nosuchcommand"), HasSubstr("line 2")));
}

TEST_F(NavigatorTest, ReplacedDatabaseCommandAnswersInsteadOfTheDisk) {
    m_folder.Write("lib/a.sym", "v {}\n");
    Start();
    Eval(
        "rename database disk\n"
        "proc database {what args} {\n"
        "  if {$what eq {cells}} {\n"
        "    if {[lsearch -exact $args -count] >= 0} { return 1 }\n"
        "    return {{lib replaced symbol}}\n"
        "  }\n"
        "  uplevel 1 [list disk $what {*}$args]\n"
        "}");
    EXPECT_EQ("Cell,View,Library\nreplaced,symbol,lib\n", m_navigator.Dump());
}

TEST_F(NavigatorTest, DeletedDatabaseCommandLeavesAnEmptyListAndNoCrash) {
    m_folder.Write("lib/a.sym", "v {}\n");
    Start();
    (void)m_navigator.Dump();
    Eval("rename database {}");
    m_navigator.Browser().RequestLibraryViewDelayedPopulate();
    m_navigator.Browser().RequestCellListViewDelayedPopulate(vapp_library_browser::UpdateAlways);
    m_navigator.Populate();
    EXPECT_EQ(0, m_navigator.Browser().GetCellViewCount());
}

TEST_F(NavigatorTest, UnreadableFolderIsASentence) {
    const auto failure = m_navigator.OpenFolder(m_folder.Path() / "nowhere");
    ASSERT_TRUE(failure);
    EXPECT_THAT(*failure, AllOf(HasSubstr("nowhere"), testing::EndsWith(".")));
}

TEST(NavigatorCommandTest, HelpNamesEverySubCommandInOrder) {
    const auto help = navigator::NavigatorCommand::Help();
    ASSERT_FALSE(help.empty());
    for (const auto& row : help)
        EXPECT_THAT(row.usage, StartsWith(std::string("navigator ") + row.name));
    EXPECT_TRUE(std::is_sorted(help.begin(), help.end(), [](const auto& left, const auto& right) {
        return std::string_view(left.name) < right.name;
    }));
}

}  // namespace
}  // namespace navigator_test
