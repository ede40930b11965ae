#include <tcl.h>

#include "tests/celllist/CellListFixture.h"
#include "tests/celllist/ListeningWindow.h"
#include "vapp/text/Translate.h"

namespace {

using namespace vapp_library_browser;
using TLines = std::vector<std::string>;

class ReportPopulationTest : public CellListFixture {};

constexpr char csCountLine[] = "database cells -lcv -library top -count -showvias";
constexpr char csListLine[] = "database cells -lcv -library top -filter  -showvias";

TEST_F(ReportPopulationTest, SendsNoLineAndBlanksTheTextsWithoutADesign) {
    ShowCells({{"l1", "a", "v"}}, 7);
    ASSERT_NE(FilteredColor(), cnNoColor);
    m_host.Answer("database all_libs", "");
    Refresh();
    m_host.ClearLines();
    Report().Populate();
    EXPECT_EQ(m_host.LinesStarting("database"), TLines());
    EXPECT_EQ(Report().GetCellViewCount(), 0u);
    EXPECT_EQ(Report().GetRows().GetCount(), 0);
    EXPECT_EQ(Status(), "");
    EXPECT_EQ(NoItems(), "");
    EXPECT_EQ(FilteredColor(), cnNoColor);
}

TEST_F(ReportPopulationTest, SaysThatADesignHasNoCells) {
    ShowCells({});
    EXPECT_EQ(NoItems(), "No cells");
    EXPECT_EQ(Status(), "0 cells");
}

TEST_F(ReportPopulationTest, SaysThatAllCellsAreFilteredOut) {
    ShowCells({{"l1", "a", "v"}, {"l1", "b", "v"}});
    Type("nothing");
    Repopulate();
    EXPECT_EQ(NoItems(), "All 2 cells are filtered out");
    EXPECT_EQ(Status(), "0 of 2 cells");
}

TEST_F(ReportPopulationTest, WordsTheStatusByRowsAndTotal) {
    ShowCells({{"l1", "a", "v"}, {"l1", "b", "v"}});
    EXPECT_EQ(Status(), "2 cells");
    AnswerCells({{"l1", "a", "v"}, {"l1", "b", "v"}}, 5);
    Repopulate();
    EXPECT_EQ(Status(), "2 of 5 cells");
    AnswerCells({{"l1", "a", "v"}, {"l1", "b", "v"}}, 1);
    Repopulate();
    EXPECT_EQ(Status(), "2 of 1 cells");
    m_host.AnswerStart(csCount, "many");
    Repopulate();
    EXPECT_EQ(Status(), "2 of 0 cells");
    m_host.AnswerStart(csCount, "-3");
    Repopulate();
    EXPECT_EQ(Status(), "2 of 0 cells");
}

TEST_F(ReportPopulationTest, TranslatesItsTexts) {
    vlang::gSetTranslation("__$$Translatable$$_%Iu of %Iu cells", "%Iu von %Iu Zellen");
    ShowCells({{"l1", "a", "v"}}, 2);
    EXPECT_EQ(Status(), "1 von 2 Zellen");
    vlang::gClearTranslations();
}

TEST_F(ReportPopulationTest, KeepsTheColourOfAFilteredListWhileADesignIsSelected) {
    ShowCells({{"l1", "a", "v"}, {"l1", "b", "v"}});
    EXPECT_EQ(FilteredColor(), cnNoColor);
    Type("a");
    Repopulate();
    EXPECT_EQ(FilteredColor(), 0xE8FAFFu);
    Type("");
    Repopulate();
    EXPECT_EQ(FilteredColor(), 0xE8FAFFu);
    m_frame.dark = true;
    Type("a");
    Repopulate();
    EXPECT_EQ(FilteredColor(), 0x003C46u);
}

TEST_F(ReportPopulationTest, ColoursNoFilteredListIfTheUserDoesNotWantIt) {
    ShowCells({});
    SetOptions([](auto& options) { options.colorFilteredList = false; });
    AnswerCells({{"l1", "a", "v"}}, 2);
    Repopulate();
    EXPECT_EQ(FilteredColor(), cnNoColor);
}

TEST_F(ReportPopulationTest, FollowsTheDarkTheme) {
    ShowCells({});
    const std::vector<std::pair<TReportColor, COLORREF>> dark = {{TReportColor::ControlBack, 0x2D2D2D},
                                                                 {TReportColor::ControlText, 0xFFFFFF},
                                                                 {TReportColor::HeaderBack, 0x2D2D2D},
                                                                 {TReportColor::HeaderText, 0xFFFFFF},
                                                                 {TReportColor::GrayText, 0xA0A0A0}};
    m_frame.dark = true;
    Report().Populate();
    for (const auto& [color, value] : dark)
        EXPECT_EQ(Report().GetPaintManager().GetColor(color), value);
    m_frame.dark = false;
    Report().Populate();
    for (const auto& [color, value] : dark)
        EXPECT_TRUE(Report().GetPaintManager().IsDefaultColor(color));
}

TEST_F(ReportPopulationTest, SendsTheCountLineAndThenTheListLine) {
    ShowCells({});
    Report().Populate();
    EXPECT_EQ(m_host.LinesStarting("database"), (TLines{csCountLine, csListLine}));
}

TEST_F(ReportPopulationTest, TellsTheTabInTheSchematicEditorsMode) {
    ShowCells({});
    m_browser.ModifyForQEdit();
    Cells().SwitchSetupTab(2);
    Cells().AddFilterType("All");
    SetOptions([](auto& options) {
        options.showHiddenCells = true;
        options.viewFilter = {"sym", "lay"};
    });
    Select("l2");
    m_host.ClearLines();
    Report().Populate();
    EXPECT_EQ(
        m_host.LinesStarting("database cells"),
        (TLines{"database cells -lcv -library top -count -showhiddencells -showvias -libraries {l2} "
                "-views {lay sym} -tab 2",
                "database cells -lcv -library top -filter All -showhiddencells -showvias -libraries {l2} "
                "-views {lay sym} -tab 2"}));
}

TEST_F(ReportPopulationTest, LeavesAllAsItWasWhenTheCountFails) {
    ShowCells({{"l1", "a", "v"}, {"l1", "b", "v"}});
    const CXTPReportRecord* record = Report().GetVirtualRecord();
    m_host.HandleStart(csCount, [](Tcl_Interp*) { return TCL_ERROR; });
    m_host.ClearLines();
    Report().Populate();
    EXPECT_EQ(m_host.Lines(), TLines{csCountLine});
    EXPECT_EQ(Report().GetCellViewCount(), 0u);
    EXPECT_EQ(Status(), "2 cells");
    EXPECT_EQ(Report().GetVirtualRecord(), record);
    EXPECT_EQ(Report().GetRows().GetCount(), 2);
    const CXTPReportRow row(0);
    EXPECT_TRUE(Report().GetCell(&row).cell.IsEmpty());
    EXPECT_EQ(Measure(0, "Cell").text, "");
    EXPECT_FALSE(Report().GetIgnoreSelectionChange());
}

TEST_F(ReportPopulationTest, LeavesAllAsItWasOnAMalformedList) {
    ShowCells({{"l1", "a", "v"}});
    for (const char* answer : {"{l c", "{l1 a v} \"{b\"", "{l1 a v} {b}x"}) {
        SCOPED_TRACE(answer);
        m_host.AnswerStart(csList, answer);
        Report().Populate();
        EXPECT_EQ(Report().GetCellViewCount(), 0u);
        EXPECT_EQ(Report().GetRows().GetCount(), 1);
        EXPECT_EQ(Status(), "1 cells");
        const CXTPReportRow row(0);
        EXPECT_TRUE(Report().GetCell(&row).cell.IsEmpty());
    }
}

TEST_F(ReportPopulationTest, LeavesTheHostsResultAlone) {
    ShowCells({{"l1", "a", "v"}});
    m_host.SetResult("the host's");
    Report().Populate();
    EXPECT_EQ(m_host.GetResult(), "the host's");
}

TEST_F(ReportPopulationTest, SelectsTheSameCellsAndFocusesTheSameRow) {
    ShowCells({{"l1", "b", "v"}, {"l1", "d", "v"}, {"l1", "f", "v"}});
    SelectRow(0);
    Report().GetSelectedRows().AddBlock(2, 2);
    Report().SetFocusedRow(CXTPReportRow(1));
    AnswerCells({{"l1", "A", "v"}, {"l1", "B", "V"}, {"l1", "d", "v"}, {"l1", "e", "v"}});
    Repopulate();
    EXPECT_EQ(SelectedCells(), TLines{"l1 B V"});
    EXPECT_EQ(Report().GetFocusedRow()->GetIndex(), 1);
    EXPECT_EQ(Cells().GetFocusedCell().cell, "B");
}

class ReportScrollTest : public ReportPopulationTest {
protected:
    void SetUp() override {
        TTriples triples;
        for (int cell = 0; cell < 100; ++cell)
            triples.push_back({"l1", "c" + std::to_string(cell), "v"});
        ShowCells(triples);
        ASSERT_LT(Report().GetCountPerPage(), 40);
    }
    // The top row after a population with this top and focus.
    int TopAfter(int top, int focus) {
        Report().SetFocusedRow(CXTPReportRow(focus), false);
        Report().SetTopRow(top);
        EXPECT_EQ(Report().GetTopRowIndex(), top);
        Repopulate();
        EXPECT_EQ(Report().GetFocusedRow()->GetIndex(), focus);
        return Report().GetTopRowIndex();
    }
};

TEST_F(ReportScrollTest, KeepsTheDistanceBetweenFocusAndTop) {
    EXPECT_EQ(TopAfter(40, 43), 40);
    EXPECT_EQ(TopAfter(40, 99), 40) << "a focus below the page stays there";
}

TEST_F(ReportScrollTest, BringsAFocusAboveThePageIntoView) {
    EXPECT_EQ(TopAfter(40, 10), 10);
}

TEST_F(ReportScrollTest, DoesNotScrollBackToTheFirstRow) {
    const int top = TopAfter(0, 90);
    EXPECT_GT(top, 0) << "where the focus is brought into view, it stays";
    EXPECT_GT(top + Report().GetCountPerPage(), 90);
}

TEST_F(ReportPopulationTest, ShowsThePendingHighlightInsteadOfTheOldSelection) {
    ShowCells({{"l1", "a", "v"}, {"l1", "b", "v"}, {"l2", "b", "v"}});
    SelectRow(0);
    gPendingHighlight() = std::make_unique<TLibCellView>("L2", "B", "V");
    m_host.ClearLines();
    Repopulate();
    EXPECT_EQ(SelectedCells(), TLines{"l2 b v"});
    EXPECT_EQ(Report().GetFocusedRow()->GetIndex(), 2);
    EXPECT_EQ(CWnd::GetFocus(), &Report());
    EXPECT_EQ(gPendingHighlight(), nullptr);
    EXPECT_EQ(m_host.LinesStarting("librarynavigator preview"), TLines());
}

TEST_F(ReportPopulationTest, SelectsNothingIfThePendingCellIsNotListed) {
    ShowCells({{"l1", "a", "v"}});
    SelectRow(0);
    gPendingHighlight() = std::make_unique<TLibCellView>("l1", "gone", "v");
    Repopulate();
    EXPECT_FALSE(Cells().AreAnyCellsSelected());
    EXPECT_EQ(gPendingHighlight(), nullptr);
}

TEST_F(ReportPopulationTest, KeepsThePendingHighlightWhenTheHostFails) {
    ShowCells({{"l1", "a", "v"}});
    m_host.HandleStart(csList, [](Tcl_Interp*) { return TCL_ERROR; });
    gPendingHighlight() = std::make_unique<TLibCellView>("l1", "a", "v");
    Repopulate();
    EXPECT_NE(gPendingHighlight(), nullptr);
}

TEST_F(ReportPopulationTest, RefreshesThePreviewAndTellsNobodyOfTheSelection) {
    ShowCells({{"l1", "a", "v"}});
    SelectRow(0);
    m_host.ClearLines();
    const ListeningWindow listener(m_app);
    ASSERT_FALSE(Cells().NeedsPopulate());
    Report().Populate();
    EXPECT_EQ(SelectedCells(), TLines{"l1 a v"});
    EXPECT_EQ(m_host.LinesStarting("librarynavigator preview").size(), 1u);
    EXPECT_EQ(listener.m_messages, (std::vector<std::pair<UINT, WPARAM>>{{WM_LN_ISDARKTHEME, 0}}));
}

TEST_F(ReportPopulationTest, TellsNobodyOfTheSelectionWhenItShowsThePendingHighlight) {
    ShowCells({{"l1", "a", "v"}, {"l1", "b", "v"}});
    SelectRow(0);
    gPendingHighlight() = std::make_unique<TLibCellView>("l1", "b", "v");
    const ListeningWindow listener(m_app);
    Report().Populate();
    EXPECT_EQ(SelectedCells(), TLines{"l1 b v"});
    EXPECT_EQ(listener.m_messages, (std::vector<std::pair<UINT, WPARAM>>{{WM_LN_ISDARKTHEME, 0}}));
}

TEST_F(ReportPopulationTest, NamesTheLibrariesOnlyIfSomeAreSelectedAndNotAll) {
    ShowCells({});
    Report().Populate();
    EXPECT_EQ(m_host.LinesStarting("database cells"), (TLines{csCountLine, csListLine}));
    Select("l2");
    m_host.ClearLines();
    Report().Populate();
    EXPECT_EQ(m_host.LinesStarting("database cells").front(), std::string(csCountLine) + " -libraries {l2}");
    Libraries().GetLibraryListCtrl().SetItemState(-1, cnListSelected, cnListSelected);
    ASSERT_EQ(Selected(), (TLines{"l1", "l2"}));
    m_host.ClearLines();
    Report().Populate();
    EXPECT_EQ(m_host.LinesStarting("database cells"), (TLines{csCountLine, csListLine}));
}

TEST_F(ReportPopulationTest, FetchesNothingIfTheNeighbourGoesWhileTheThemeIsAsked) {
    ShowCells({{"l1", "a", "v"}});
    m_host.ClearLines();
    ListeningWindow listener(m_app);
    listener.m_whenAsked = [this] { Cells().SetLibraryView(nullptr); };
    Report().Populate();
    EXPECT_EQ(m_host.LinesStarting("database"), TLines());
    EXPECT_EQ(Report().GetCellViewCount(), 0u);
    EXPECT_EQ(Status(), "1 cells");
}

TEST_F(ReportPopulationTest, WordsTheStatusByItsOwnTextIfATranslationDoesNotFit) {
    vlang::gSetTranslation("__$$Translatable$$_%Iu cells", "%s%n cells");
    vlang::gSetTranslation("__$$Translatable$$_No cells", "%s");
    ShowCells({});
    EXPECT_EQ(Status(), "0 cells");
    EXPECT_EQ(NoItems(), "No cells");
    vlang::gClearTranslations();
}

TEST_F(ReportPopulationTest, DoesNothingWithoutAWindow) {
    TCellListView pane;
    pane.GetReport().Populate();
    EXPECT_EQ(pane.GetReport().GetVirtualRecord(), nullptr);
}

TEST_F(ReportPopulationTest, AsksForTheKeysOfAHostColumnOnceForEachRowInTheOrderOfTheSet) {
    ShowCells({{"l2", "a", "v"}, {"l1", "c10", "v"}, {"l1", "c9", "v"}, {"l1", "a", "v"}});
    m_host.AddCommand("rank");
    m_host.Answer("rank top l1 a v", "K2");
    m_host.Answer("rank top l2 a v", "k10");
    m_host.Answer("rank top l1 c10 v", "k1");
    m_host.Answer("rank top l1 c9 v", "k02");
    Report().AddColumn("Rank", "rank", true, false);
    Report().GetColumns().SetSortColumn(&Column("Rank"), true);
    Report().Populate();
    EXPECT_EQ(m_host.LinesStarting("rank"),
              (TLines{"rank top l1 a v", "rank top l2 a v", "rank top l1 c10 v", "rank top l1 c9 v"}));
    EXPECT_EQ(Rows(), (TLines{"l1 c10 v", "l1 a v", "l1 c9 v", "l2 a v"}));
}

TEST_F(ReportPopulationTest, TurnsTheOrderAroundForAColumnThatSortsBackward) {
    ShowCells({{"l1", "a", "v"}, {"l1", "b", "v"}, {"l1", "c", "v"}});
    Report().AddColumn(
        "Name", [](const TLibCellView& cell) { return cell.cell; }, false, false);
    Report().GetColumns().SetSortColumn(&Column("Name"), true);
    Report().Populate();
    EXPECT_EQ(Rows(), (TLines{"l1 c v", "l1 b v", "l1 a v"}));
    Report().GetColumns().SetSortColumn(&Column("Name"), false);
    Report().Populate();
    EXPECT_EQ(Rows(), (TLines{"l1 a v", "l1 b v", "l1 c v"}));
}

TEST_F(ReportPopulationTest, SortsRowsTogetherWhoseColumnFails) {
    ShowCells({{"l1", "c", "v"}, {"l1", "a", "v"}, {"l1", "b", "v"}});
    m_host.AddCommand("state");
    m_host.Answer("state top l1 b v", "New");
    Report().AddColumn("State", "state", true, false);
    Report().GetColumns().SetSortColumn(&Column("State"), true);
    Report().Populate();
    EXPECT_EQ(Rows(), (TLines{"l1 a v", "l1 c v", "l1 b v"}));
    EXPECT_EQ(Measure(0, "State").text, "");
}

TEST_F(ReportPopulationTest, IgnoresAHostColumnThatIsNotTheFirstToSortBy) {
    ShowCells({{"l1", "b", "v"}, {"l2", "a", "v"}, {"l1", "c", "v"}});
    m_host.AddCommand("rank");
    Report().AddColumn("Rank", "rank", true, false);
    Report().GetColumns().SetSortColumn(&Column("Library"), false);
    Report().GetColumns().GetSortOrder().Add(&Column("Rank"), true);
    Report().Populate();
    EXPECT_EQ(m_host.LinesStarting("rank"), TLines());
    EXPECT_EQ(Rows(), (TLines{"l2 a v", "l1 b v", "l1 c v"}));
}

TEST_F(ReportPopulationTest, BreaksTiesByTheOtherColumnsAsTheyStand) {
    ShowCells({{"l2", "a", "x"}, {"l1", "a", "y"}, {"l1", "a", "x"}, {"l1", "b", "x"}});
    EXPECT_EQ(Rows(), (TLines{"l1 a x", "l2 a x", "l1 a y", "l1 b x"}));
    Report().GetColumns().ChangeColumnOrder(0, &Column("Library"));
    Report().Populate();
    EXPECT_EQ(Rows(), (TLines{"l1 a x", "l1 a y", "l1 b x", "l2 a x"}));
}

}  // namespace
