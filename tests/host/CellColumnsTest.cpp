/// The host's own columns and narrowings in the list that a user sees, without a screen.

#include "host/CellColumns.h"

#include <gmock/gmock.h>

#include <memory>

#include "host/Navigator.h"
#include "host/NavigatorApp.h"
#include "host/ViewText.h"
#include "tests/host/TempFolder.h"
#include "vapp/browser/ExcludeViewNames.h"
#include "vapp/browser/StateWords.h"
#include "vapp/browser/TProfileSection.h"
#include "vapp/celllist/TCellListCommand.h"
#include "vapp/celllist/TCellListView.h"
#include "vapp/text/ActiveCodePage.h"

namespace navigator_test {
namespace {

using namespace vapp_library_browser;
using navigator::Navigator;
using testing::AllOf;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

class CellColumnsTest : public testing::Test {
protected:
    CellColumnsTest() {
        gSetActiveCodePage(cnUtf8CodePage);
        m_folder.Write("lib/inv.sym", "v {}\n");
        m_folder.Write("lib/inv.sch", SchematicOf("absent"));
        m_folder.Write("lib/inv/spectre/inv.sym", "v {}\n");
        m_folder.Write("lib/old.sym", "K {hidden=true}\n");
        m_folder.Write("lib/via.sym", "K {type=stdvia}\n");
        Start();
    }
    ~CellColumnsTest() override { gSetActiveCodePage(0); }

    /// A navigator as after a start of the program with these settings.
    void Start() {
        m_navigator.reset();
        m_navigator = std::make_unique<Navigator>(m_app);
        ASSERT_FALSE(m_navigator->OpenFolder(m_folder.Path()));
        m_navigator->CreateWindow(700, 900, false);
        m_navigator->AddColumns();
        m_navigator->LoadSetup();
        m_navigator->ShowLastView();
    }
    [[nodiscard]] TCellNamesReportCtrl& Report() const {
        return m_navigator->Browser().GetCellListView()->GetReport();
    }
    /// The columns that are shown, and the rows.
    [[nodiscard]] std::string Shown() const {
        CStringU text;
        Report().DumpContents({}, text);
        return text.Payload();
    }
    [[nodiscard]] CXTPReportColumn& Column(const char* caption) const {
        CXTPReportColumns& columns = Report().GetColumns();
        int position = 0;
        while (columns.GetAt(position)->GetCaption() != caption)
            ++position;
        return *columns.GetAt(position);
    }

    TempFolder m_folder;
    navigator::NavigatorApp m_app;
    std::unique_ptr<Navigator> m_navigator;
};

TEST_F(CellColumnsTest, AreHiddenInTheCompactArrangementAndShownInTheDetailedOne) {
    EXPECT_THAT(Shown(), StartsWith("Cell,View,Library\n"));
    Report().SwitchSetup(TCellNamesReportCtrl::Setup2);
    EXPECT_THAT(Shown(), AllOf(StartsWith("Cell,View,Library,State,Changed,Bytes\n"),
                               HasSubstr("\ninv,schematic,lib,Unresolved,20"), HasSubstr(",5\n")));
    Report().SwitchSetup(TCellNamesReportCtrl::Setup3);
    EXPECT_THAT(Shown(), StartsWith("Cell,View,Library\n"));
}

TEST_F(CellColumnsTest, HaveRoomForTheirTextsUntilTheUserGivesAnother) {
    Report().SwitchSetup(TCellNamesReportCtrl::Setup2);
    EXPECT_EQ(125, Column("Changed").GetWidth());
    Column("Changed").SetWidth(61);
    m_navigator->Browser().SerializeSetup(true);
    Start();
    EXPECT_EQ(61, Column("Changed").GetWidth());
    EXPECT_EQ(70, Column("Bytes").GetWidth());
}

TEST_F(CellColumnsTest, EachArrangementBeginsWithRoomForTheUsualNames) {
    EXPECT_EQ(0, m_navigator->Browser().GetCellListView()->GetSetupTab());
    for (const int tab : {0, 1, 2}) {
        Report().OnSwitchSetupTab(tab);
        EXPECT_EQ(160, Column("Cell").GetWidth()) << tab;
        EXPECT_EQ(90, Column("View").GetWidth()) << "for a schematic, in " << tab;
        EXPECT_EQ(100, Column("Library").GetWidth()) << tab;
    }
}

TEST_F(CellColumnsTest, SortByTimeAndSizeAndNotByLetters) {
    m_folder.Write("lib/inv.sym", std::string(1200, ' '));
    m_folder.Write("lib/inv.sch", std::string(99, ' '));
    m_navigator->Rescan();
    m_navigator->Populate();
    Report().SwitchSetup(TCellNamesReportCtrl::Setup2);
    Report().GetColumns().SetSortColumn(&Column("Bytes"), true);
    m_navigator->Browser().GetCellListView()->OnReportSortOrderChanged();
    const std::string shown = Shown();
    EXPECT_LT(shown.find("inv,schematic"), shown.find("inv,symbol")) << shown;
}

TEST_F(CellColumnsTest, StateIsWordedByAScriptThatTakesThePlaceOfTheDatabase) {
    const char line[] =
        "rename database disk\n"
        "proc database {what args} {\n"
        "  if {$what eq {viewtext}} { return TapedOut }\n"
        "  uplevel 1 [list disk $what {*}$args]\n"
        "}";
    ASSERT_EQ(TCL_OK, Tcl_EvalEx(m_navigator->Interp(), line, -1, TCL_EVAL_GLOBAL));
    Report().SwitchSetup(TCellNamesReportCtrl::Setup2);
    EXPECT_THAT(Shown(), HasSubstr("\ninv,schematic,lib,TapedOut,20"));
}

TEST_F(CellColumnsTest, WordsAreThoseThatAllHostsUse) {
    navigator::DesignStore& store = m_navigator->Store();
    const std::pair<navigator::CellKey, const CStringU*> rows[] = {
        {navigator::CellKey::IsModified, &csModified},      {navigator::CellKey::IsReserved, &csReserved},
        {navigator::CellKey::IsLockedByUser, &csLocked},    {navigator::CellKey::IsStdViaDef, &csStdVia},
        {navigator::CellKey::IsCustomViaDef, &csCustomVia}, {navigator::CellKey::IsVCell, &csVCell}};
    const std::string design = store.Designs().front().name;
    for (const auto& [key, word] : rows) {
        store.SetMark({"", "lib", "inv", "symbol"}, key, "1");
        EXPECT_STREQ(word->Payload(), navigator::gViewText(store, store.Find(design, "lib", "inv", "symbol"),
                                                           navigator::ViewTextKey::State)
                                          .c_str());
        store.SetMark({"", "lib", "inv", "symbol"}, key, "");
    }
}

TEST_F(CellColumnsTest, ViewsThatTheUserLeavesOutAreNeitherListedNorCounted) {
    EXPECT_THAT(Shown(), Not(HasSubstr("spectre"))) << "left out until the user says otherwise";
    EXPECT_EQ(3u, Report().GetCellViewCount()) << Shown();
    m_app.WriteProfileString(csNavigatorSection, csExcludeViewNamesKey, "SYMBOL;");
    Start();
    EXPECT_THAT(Shown(), AllOf(HasSubstr("spectre"), HasSubstr("schematic"), Not(HasSubstr("symbol"))));
}

TEST_F(CellColumnsTest, HiddenCellsAndViasFollowTheMenu) {
    EXPECT_THAT(Shown(), AllOf(Not(HasSubstr("old,")), HasSubstr("via,")));
    ASSERT_TRUE(Report().OnMenuCommand(ShowHiddenCells));
    EXPECT_THAT(Shown(), AllOf(HasSubstr("old,"), HasSubstr("via,")));
    ASSERT_TRUE(Report().OnMenuCommand(ShowVias));
    EXPECT_THAT(Shown(), AllOf(HasSubstr("old,"), Not(HasSubstr("via,"))));
}

TEST_F(CellColumnsTest, TwoViewsInTheFilterSurviveEverySwitchOfTheArrangement) {
    const std::set<CStringIU> views{"schematic", "symbol"};
    ASSERT_TRUE(Report().ProcessViewNameFilterMenu(static_cast<int>(TCellNamesReportCtrl::cnBaseID), views));
    ASSERT_TRUE(
        Report().ProcessViewNameFilterMenu(static_cast<int>(TCellNamesReportCtrl::cnBaseID) + 1, views));
    const std::string both = Shown();
    EXPECT_THAT(both, AllOf(HasSubstr("schematic"), HasSubstr("symbol")));
    Report().OnSwitchSetupTab(1);
    Report().OnSwitchSetupTab(0);
    EXPECT_EQ(both, Shown());
    m_navigator->Browser().SerializeSetup(true);
    Start();
    EXPECT_EQ(both, Shown());
}

}  // namespace
}  // namespace navigator_test
