// What happens when the host's script comes back into the list, or answers what no host should.
#include <tcl.h>

#include "tests/celllist/CellListFixture.h"

namespace {

using namespace vapp_library_browser;
using TLines = std::vector<std::string>;

class NestedPopulationScenarioTest : public CellListFixture {
protected:
    // Runs the function in the middle of the line and gives the answer then.
    void Inside(const std::string& start, const std::string& answer, std::function<void()> function) {
        m_host.HandleStart(start, [answer, function = std::move(function)](Tcl_Interp* interp) {
            function();
            Tcl_SetObjResult(interp, Tcl_NewStringObj(answer.c_str(), -1));
            return TCL_OK;
        });
    }
};

TEST_F(NestedPopulationScenarioTest, PostponesAPopulationThatIsAskedForInTheMiddleOfOne) {
    ShowCells({{"l1", "a", "v"}});
    int nested = 0;
    Inside(csList, "{l1 b v}", [&] {
        if (++nested > 5) return;
        EXPECT_EQ(Report().GetCellViewCount(), 0u);
        Report().Populate();
        m_browser.PopulateCellListView();
        m_browser.Populate();
        Report().SwitchSetup(TReport::Setup2);
    });
    Repopulate();
    EXPECT_EQ(nested, 1);
    EXPECT_EQ(Rows(), TLines{"l1 b v"});
    EXPECT_TRUE(Cells().NeedsPopulate());
    AnswerCells({{"l1", "c", "v"}});
    Cells().Populate();
    EXPECT_EQ(Rows(), TLines{"l1 c v"});
    EXPECT_FALSE(Cells().NeedsPopulate());
}

TEST_F(NestedPopulationScenarioTest, LeavesTheMarkAlsoAfterADirectPopulation) {
    ShowCells({{"l1", "a", "v"}});
    Inside(csCount, "1", [&] { m_browser.PopulateCellListView(); });
    Cells().SetNeedsPopulate(true);
    Report().Populate();
    EXPECT_TRUE(Cells().NeedsPopulate());
    Cells().SetNeedsPopulate(false);
    EXPECT_TRUE(Cells().NeedsPopulate()) << "the postponed population is still due";
}

TEST_F(NestedPopulationScenarioTest, LeavesNoMarkIfNobodyAskedForMore) {
    ShowCells({{"l1", "a", "v"}});
    Cells().SetNeedsPopulate(true);
    Report().Populate();
    EXPECT_TRUE(Cells().NeedsPopulate());
    Cells().SetNeedsPopulate(false);
    EXPECT_FALSE(Cells().NeedsPopulate());
}

TEST_F(NestedPopulationScenarioTest, SurvivesEveryOperationInTheMiddleOfEveryLine) {
    // Each turn sends many lines, and each line may be a turn: bounded in depth and number.
    int depth = 0;
    int turns = 0;
    const auto everything = [this, &depth, &turns] {
        if (depth > 1 || turns > 200) return;
        ++depth;
        ++turns;
        m_browser.Populate();
        m_browser.PopulateCellListView();
        Report().Populate();
        Report().OnSelectAll();
        Report().AddToCellListSelections({{"l1", "a", "v"}});
        Report().HighlightCellInList("l1", "a");
        for (const TLibCellView& cell : Report().GetSelected())
            static_cast<void>(cell.Join(" "));
        Report().SwitchSetup(TReport::Setup3);
        Report().SwitchSetup(TReport::Setup1);
        Report().GetReportHeader().ClickedByUser(&Column("View"), false);
        Report().GetColumns().ChangeColumnOrder(0, &Column("Library"));
        Column("Library").SetVisible(!Column("Library").IsVisible());
        Type("a");
        Cells().ResetFilter();
        Measure(0, "Cell");
        CStringU dump;
        Report().DumpContents({}, dump);
        if (turns % 50 == 0) Report().AddColumn("More", "state", true, false);
        Cells().RequestDelayedPopulate(UpdateIfFilterSaysSo);
        m_browser.RequestLibraryViewDelayedPopulate();
        gPendingHighlight() = std::make_unique<TLibCellView>("l1", "b", "v");
        Report().GetColumns().SetSortColumn(&Column("State"), false);
        --depth;
    };
    ShowCells({{"l1", "a", "v"}});
    m_host.AddCommand("state");
    Report().AddColumn("State", "state", true, false);
    Report().GetColumns().SetSortColumn(&Column("State"), true);
    SetOptions([](auto& options) { options.filterAllColumns = true; });
    Inside(csCount, "3", everything);
    Inside(csList, "{l1 a v} {l1 b v} {l1 c v}", everything);
    Inside("state", "word", everything);
    Inside("database cellviewinfo", "1", everything);
    Inside("database filter", "1", everything);
    Inside("librarynavigator preview", "", everything);
    Repopulate();
    for (int row = 0; row < 3; ++row)
        Measure(row, "Cell");
    Cells().RequestDelayedPopulate(UpdateIfFilterSaysSo);
    EXPECT_GT(turns, 100);
    AnswerCells({{"l1", "z", "v"}});
    m_host.AnswerStart("state", "");
    m_host.AnswerStart("librarynavigator preview", "");
    Repopulate();
    EXPECT_EQ(Rows(), TLines{"l1 z v"});
}

TEST_F(NestedPopulationScenarioTest, SurvivesRowsThatGoWhileAColumnIsAskedForTheirKeys) {
    ShowCells({{"l1", "a", "v"}, {"l1", "b", "v"}});
    m_host.AddCommand("state");
    Report().AddColumn("State", "state", true, false);
    Report().GetColumns().SetSortColumn(&Column("State"), true);
    Inside("state", "x", [&] {
        AnswerCells({});
        Report().Populate();
    });
    Repopulate();
    EXPECT_EQ(Rows(), (TLines{"l1 a v", "l1 b v"}));
    EXPECT_TRUE(Cells().NeedsPopulate());
    Cells().Populate();
    EXPECT_EQ(Rows(), TLines());
}

TEST_F(NestedPopulationScenarioTest, SurvivesAHostWithoutItsCommands) {
    ShowCells({{"l1", "a", "v"}});
    Inside(csCount, "1", [&] { m_host.Eval("rename database {}"); });
    Repopulate();
    EXPECT_EQ(Report().GetCellViewCount(), 0u);
    EXPECT_EQ(Status(), "1 cells");
    Measure(0, "Cell");
    Cells().RequestDelayedPopulate(UpdateIfFilterSaysSo);
    EXPECT_FALSE(Cells().NeedsPopulate());
}

TEST_F(NestedPopulationScenarioTest, TakesOtherCompletionCodesForFailures) {
    ShowCells({{"l1", "a", "v"}});
    for (const int code : {TCL_RETURN, TCL_BREAK, TCL_CONTINUE, 77}) {
        SCOPED_TRACE(code);
        m_host.HandleStart(csList, [code](Tcl_Interp* interp) {
            Tcl_SetObjResult(interp, Tcl_NewStringObj("{l1 x v}", -1));
            return code;
        });
        m_host.Inside([&] { Repopulate(); });
        EXPECT_EQ(Report().GetCellViewCount(), 0u);
        EXPECT_EQ(Status(), "1 cells");
    }
}

TEST_F(NestedPopulationScenarioTest, ShowsNamesOfAnyKindAsTheyAre) {
    const HookGuard hook;
    const std::string names[] = {"{",
                                 "}",
                                 "[exec ls]",
                                 "$x",
                                 "a b\nc",
                                 "\"",
                                 "\\",
                                 ";",
                                 std::string(10000, 'n'),
                                 "%s%n",
                                 "\xE4\xB8\xAD",
                                 "#"};
    TTriples triples;
    for (const std::string& name : names)
        triples.push_back({name, name, name});
    ShowCells(triples);
    EXPECT_EQ(Report().GetCellViewCount(), std::size(names));
    m_host.AnswerStart("database cellviewinfo", "0");
    for (int row = 0; row < static_cast<int>(std::size(names)); ++row) {
        const std::string cell = Report().GetCell(row).cell.Payload();
        EXPECT_EQ(CStringU(Measure(row, "Cell").text), CStringU(cell.c_str(), TextEncoding::Utf8Auto));
    }
    // Each went out as one word: the host's command received every line whole.
    EXPECT_EQ(m_host.LinesStarting("database cellviewinfo cache").size(), std::size(names));
}

TEST_F(NestedPopulationScenarioTest, TakesBytesThatAreNoText) {
    m_host.HandleStart(csCount, [](Tcl_Interp* interp) {
        Tcl_SetObjResult(interp, Tcl_NewIntObj(3));
        return TCL_OK;
    });
    m_host.HandleStart(csList, [](Tcl_Interp* interp) {
        Tcl_SetObjResult(interp,
                         Tcl_NewStringObj("{\xFF \x80\x80 \xC3} {\xE4 a\xF0 \xBF} {l\xC0\x80m c v}", -1));
        return TCL_OK;
    });
    Show({"l1"});
    EXPECT_EQ(Report().GetCellViewCount(), 3u);
    SelectRow(1);
    Repopulate();
    EXPECT_EQ(Report().GetSelectedRows().GetCount(), 1);
    Measure(0, "Cell");
}

}  // namespace
