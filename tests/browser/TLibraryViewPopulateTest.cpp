/// @file
/// The refresh of the library pane: answers good and bad, selection, order, the selected master.
#include <gtest/gtest.h>
#include <tcl.h>

#include <algorithm>

#include "tests/browser/LibraryRefreshFixture.h"
#include "vapp/browser/TNaturalLess.h"
#include "vapp/toolkit/CDocument.h"

using namespace vapp_library_browser;

using TLibraryViewPopulate = LibraryRefreshFixture;

TEST_F(TLibraryViewPopulate, SendsWhatTheGoldenFileSays) {
    Initialize();
    AnswerLibraries({"lib10", "lib9"});
    m_browser.Populate();
    Refresh();
    m_host.Answer("database selected_master", "lib9 inv layout");
    UpdateSelectedMaster();
    m_browser.Populate();
    ExpectGolden("refresh.txt", m_host.Lines());
}

TEST_F(TLibraryViewPopulate, PaintingAndAskingSendWhatTheGoldenFileSays) {
    Initialize();
    m_host.AddCommand("column");
    m_browser.AddCellViewListFilterType("Locked cells");
    m_browser.AddCellViewListColumn("Size", "column -unit um", true, false);
    AnswerLibraries({"lib"});
    m_host.AnswerStart("database cells", "{lib inv layout}");
    m_browser.Populate();
    m_host.ClearLines();
    auto& list = Libraries().GetLibraryListCtrl();
    static_cast<void>(list.DrawItem(0));
    m_browser.ModifyForQEdit();
    static_cast<void>(list.DrawItem(0));
    m_browser.RequestCellListViewDelayedPopulate(UpdateIfFilterSaysSo);
    auto& report = Cells().GetReport();
    CXTPReportRecordItemMetrics metrics;
    report.MeasureItem(0, *report.GetColumns().GetAt(3), metrics);
    ExpectGolden("painting.txt", m_host.Lines());
}

TEST_F(TLibraryViewPopulate, AnEmptyAnswerShowsNoDesigns) {
    Initialize();
    m_host.Answer("database all_libs", "");
    m_browser.Populate();
    EXPECT_EQ(Libraries().GetDesignCombo().GetCount(), 0);
    EXPECT_TRUE(Shown().empty());
    EXPECT_EQ(Libraries().GetLibraryListCtrl().GetEmptyText(), CStringU("No designs"));
    EXPECT_TRUE(m_browser.GetSelectedDesign().IsEmpty());
    EXPECT_FALSE(Libraries().NeedsPopulate());
}

TEST_F(TLibraryViewPopulate, ACleanPaneSendsNothing) {
    Show({"a"});
    m_browser.Populate();
    EXPECT_EQ(Queries(), 0u);
    for (int i = 0; i < 10; ++i)
        m_browser.RequestLibraryViewDelayedPopulate();
    m_browser.Populate();
    m_browser.Populate();
    EXPECT_EQ(Queries(), 1u);
}

TEST_F(TLibraryViewPopulate, AFailedLineLeavesThePaneDirtyAndItsOldState) {
    Show({"a", "b"});
    m_host.AnswerCode("database all_libs", TCL_ERROR, "no database");
    Refresh();
    EXPECT_TRUE(Libraries().NeedsPopulate());
    EXPECT_EQ(Shown(), (Names{"a", "b"}));
    EXPECT_EQ(m_browser.GetSelectedDesign(), CStringU("top"));
    EXPECT_TRUE(Libraries().GetAbsoluteLibraryPath("a").IsEmpty()) << "the paths are gone with the answer";
    AnswerLibraries({"c"});
    m_browser.Populate();
    EXPECT_EQ(Shown(), Names{"c"});
    EXPECT_FALSE(Libraries().NeedsPopulate());
}

TEST_F(TLibraryViewPopulate, AnswersOfAnotherFormLeaveThePaneDirty) {
    Initialize();
    for (const char* answer : {"{", "{top {a /a}} {", "{top {a /a} \\{}", "{top \"{a\"}", "a {b}c"}) {
        m_host.Answer("database all_libs", answer);
        Refresh();
        EXPECT_TRUE(Libraries().NeedsPopulate()) << answer;
        EXPECT_TRUE(Shown().empty()) << answer;
    }
}

TEST_F(TLibraryViewPopulate, AnAnswerThatBreaksOffKeepsWhatCameBefore) {
    Initialize();
    m_host.Answer("database all_libs", "{top {a /a} \\{}");
    Libraries().GetDesignCombo().AddString("top");
    m_browser.Populate();
    EXPECT_EQ(Libraries().GetAbsoluteLibraryPath("a"), CStringU("/a"));
    EXPECT_TRUE(Libraries().NeedsPopulate());
}

TEST_F(TLibraryViewPopulate, OddElementsAreSkipped) {
    Initialize();
    m_host.Answer("database all_libs", "{} {top {a /a} one {b /b extra} {} {c /c}} {other {d /d}} {empty}");
    m_browser.Populate();
    EXPECT_FALSE(Libraries().NeedsPopulate());
    EXPECT_EQ(Libraries().GetDesignCombo().GetCount(), 2);
    m_browser.SetSelectedDesign("top");
    EXPECT_EQ(Shown(), (Names{"a", "c"}));
}

TEST_F(TLibraryViewPopulate, ADesignWithoutLibrariesIsNotOffered) {
    Initialize();
    m_host.Answer("database all_libs", "{empty} {full {a /a}} {odd {b /b extra} word}");
    m_browser.Populate();
    EXPECT_EQ(Libraries().GetDesignCombo().GetCount(), 1);
    EXPECT_EQ(Libraries().GetSelectedDesign(), CStringU("full"));
    EXPECT_EQ(Shown(), (Names{"a"}));
}

TEST_F(TLibraryViewPopulate, TheSelectedDesignThatLosesItsLibrariesGivesWayToTheFirst) {
    Initialize();
    m_host.Answer("database all_libs", "{first {a /a}} {second {b /b}}");
    m_browser.Populate();
    m_browser.SetSelectedDesign("second");
    m_host.Answer("database all_libs", "{first {a /a}} {second}");
    m_browser.RequestLibraryViewDelayedPopulate();
    m_browser.Populate();
    EXPECT_EQ(Libraries().GetSelectedDesign(), CStringU("first"));
    EXPECT_EQ(Shown(), (Names{"a"}));
}

TEST_F(TLibraryViewPopulate, OddCompletionCodesFailLikeErrors) {
    Initialize();
    m_host.Inside([this] {
        for (const int code : {TCL_RETURN, TCL_BREAK, TCL_CONTINUE, 9}) {
            m_host.AnswerCode("database all_libs", code, "{top {a /a}}");
            Refresh();
            EXPECT_TRUE(Libraries().NeedsPopulate());
            EXPECT_TRUE(Shown().empty());
        }
    });
}

TEST_F(TLibraryViewPopulate, NumbersInNamesCountInTheAlphabeticalOrder) {
    Show({"lib10", "lib9", "alpha"});
    EXPECT_EQ(Shown(), (Names{"alpha", "lib9", "lib10"}));
    Libraries().SetAlphabetical(false);
    Refresh();
    EXPECT_EQ(Shown(), (Names{"lib10", "lib9", "alpha"}));
    Libraries().SetAlphabetical(true);
    Refresh();
    EXPECT_EQ(Shown(), (Names{"alpha", "lib9", "lib10"}));
}

TEST_F(TLibraryViewPopulate, AnUnchangedOrderIsNoReasonToRebuild) {
    Show({"b", "a"});
    Libraries().SetAlphabetical(true);
    Refresh();
    EXPECT_FALSE(Cells().NeedsPopulate());
    EXPECT_TRUE(m_host.LinesStarting("database cells").empty());
}

TEST_F(TLibraryViewPopulate, ANewOrderOfTheDefinitionsWaitsForAnotherReason) {
    Show({"b", "a"});
    Libraries().SetAlphabetical(false);
    Refresh();
    AnswerLibraries({"a", "b"});
    Refresh();
    EXPECT_EQ(Shown(), (Names{"b", "a"}));
    AnswerLibraries({"a", "b", "c"});
    Refresh();
    EXPECT_EQ(Shown(), (Names{"a", "b", "c"}));
}

TEST_F(TLibraryViewPopulate, ALibraryGivenTwiceKeepsTheLastPathAndStandsTwiceInDefinitionOrder) {
    Initialize();
    m_host.Answer("database all_libs", "{top {a /1} {b /b} {a /2}}");
    m_browser.Populate();
    EXPECT_EQ(Shown(), (Names{"a", "b"}));
    EXPECT_EQ(Libraries().GetAbsoluteLibraryPath("a"), CStringU("/2"));
    Libraries().SetAlphabetical(false);
    Refresh();
    EXPECT_EQ(Shown(), (Names{"a", "b", "a"}));
}

TEST_F(TLibraryViewPopulate, NamesOfEqualNaturalOrderAreOneEntry) {
    Initialize();
    m_host.Answer("database all_libs", "{top {lib3 /ascii} {lib\xD9\xA3 /arabic}}");
    m_browser.Populate();
    EXPECT_EQ(Shown(), Names{"lib3"}) << "the first name and the last path stay";
    EXPECT_EQ(Libraries().GetAbsoluteLibraryPath("lib3"), CStringU("/arabic"));
}

TEST_F(TLibraryViewPopulate, ADesignGivenTwiceIsOneDesign) {
    Initialize();
    m_host.Answer("database all_libs", "{top {a /a}} {top {b /b}}");
    m_browser.Populate();
    EXPECT_EQ(Libraries().GetDesignCombo().GetCount(), 1);
    EXPECT_EQ(Shown(), (Names{"a", "b"}));
}

TEST_F(TLibraryViewPopulate, TheSelectedDesignStaysWhileItExists) {
    Initialize();
    m_host.Answer("database all_libs", "{one {a /a}} {two {b /b}}");
    m_browser.Populate();
    m_browser.SetSelectedDesign("two");
    m_host.Answer("database all_libs", "{alpha} {one {a /a}} {two {b /b}}");
    Refresh();
    EXPECT_EQ(m_browser.GetSelectedDesign(), CStringU("two"));
}

TEST_F(TLibraryViewPopulate, WhenTheSelectedDesignVanishesTheFirstIsSelected) {
    Initialize();
    m_host.Answer("database all_libs", "{one {a /a}} {two {b /b}}");
    m_browser.Populate();
    m_browser.SetSelectedDesign("two");
    m_host.Answer("database all_libs", "{three {c /c}} {one {a /a}}");
    Refresh();
    EXPECT_EQ(m_browser.GetSelectedDesign(), CStringU("one")) << "the first in the order of the combo box";
    EXPECT_EQ(Shown(), Names{"a"});
}

// The combo box looks names up without regard to case, and hosts whose designs differ in case alone rely on
// getting the first.
TEST_F(TLibraryViewPopulate, OfDesignsThatDifferInCaseARefreshSelectsTheFirst) {
    Initialize();
    m_host.Answer("database all_libs", "{top {a /a}} {Top {b /b}}");
    m_browser.Populate();
    auto& combo = Libraries().GetDesignCombo();
    ASSERT_EQ(combo.GetCount(), 2);
    const CStringU first = combo.GetLBText(0);
    const CStringU second = combo.GetLBText(1);
    ASSERT_NE(first, second);
    m_browser.SetSelectedDesign(second);
    ASSERT_EQ(m_browser.GetSelectedDesign(), second);
    const Names ofSecond = Shown();
    Refresh();
    EXPECT_EQ(m_browser.GetSelectedDesign(), first);
    EXPECT_NE(Shown(), ofSecond);
}

TEST_F(TLibraryViewPopulate, TheComboBoxIsPaintedAnewInEveryRefreshThatSucceeds) {
    Show({"a"});
    auto& combo = Libraries().GetDesignCombo();
    const unsigned paints = combo.GetInvalidateCount();
    Refresh();
    EXPECT_EQ(combo.GetInvalidateCount(), paints + 1);
    m_host.AnswerCode("database all_libs", TCL_ERROR);
    Refresh();
    EXPECT_EQ(combo.GetInvalidateCount(), paints + 1);
}

TEST_F(TLibraryViewPopulate, ANewOrderAloneChangesNoRow) {
    Show({"b", "a"});
    Libraries().SetAlphabetical(false);
    EXPECT_EQ(Shown(), (Names{"a", "b"}));
    m_browser.Populate();
    EXPECT_EQ(Shown(), (Names{"a", "b"})) << "not without a request";
    EXPECT_TRUE(m_host.Lines().empty());
    Refresh();
    EXPECT_EQ(Shown(), (Names{"b", "a"}));
}

TEST_F(TLibraryViewPopulate, ARefreshWithTheSameNamesDisturbsNothing) {
    Show({"a", "b", "c"});
    Select("b");
    m_browser.Populate();
    auto& list = Libraries().GetLibraryListCtrl();
    list.MoveWindow({5, 37, 235, 60});
    list.SetTopIndex(2);
    ASSERT_EQ(list.GetTopIndex(), 2);
    m_host.ClearLines();
    Refresh();
    EXPECT_EQ(Selected(), Names{"b"});
    EXPECT_EQ(list.GetTopIndex(), 2);
    EXPECT_FALSE(Cells().NeedsPopulate());
    EXPECT_EQ(m_host.Lines(), Names{"database all_libs"});
}

TEST_F(TLibraryViewPopulate, OneNameMoreRebuildsAndKeepsTheSelectionByName) {
    Show({"b", "c"});
    Select("c");
    m_browser.Populate();
    AnswerLibraries({"a", "b", "C"});
    m_host.ClearLines();
    Libraries().RequestDelayedPopulate();
    Libraries().Populate();
    EXPECT_EQ(Shown(), (Names{"C", "a", "b"}));
    EXPECT_EQ(Selected(), Names{"C"}) << "names are remembered without regard to case";
    EXPECT_TRUE(Cells().NeedsPopulate());
}

TEST_F(TLibraryViewPopulate, NoLibraryIsSelectedByItself) {
    Show({"a", "b"});
    EXPECT_TRUE(Selected().empty());
}

TEST_F(TLibraryViewPopulate, TheListsBackgroundFollowsTheTheme) {
    Show({"a"});
    auto& list = Libraries().GetLibraryListCtrl();
    EXPECT_EQ(list.GetBkColor(), 0xFFFFFFu);
    EXPECT_EQ(list.GetEmptyTextColor(), cnNoColor);
    m_frame.dark = true;
    const unsigned paints = list.GetInvalidateCount();
    Refresh();
    EXPECT_EQ(list.GetBkColor(), 0x2D2D2Du);
    EXPECT_EQ(list.GetEmptyTextColor(), 0xA0A0A0u);
    EXPECT_EQ(list.GetInvalidateCount(), paints + 2) << "once for the request, once for the colour";
    m_frame.dark = false;
    Refresh();
    EXPECT_EQ(list.GetBkColor(), 0xFFFFFFu);
}

TEST_F(TLibraryViewPopulate, TheThemeIsAppliedEvenIfTheQuestionFailsThen) {
    Show({"a"});
    m_frame.dark = true;
    m_host.AnswerCode("database all_libs", TCL_ERROR);
    Refresh();
    EXPECT_TRUE(Libraries().NeedsPopulate());
    EXPECT_EQ(Libraries().GetLibraryListCtrl().GetBkColor(), 0x2D2D2Du);
}

TEST_F(TLibraryViewPopulate, WithoutAnInterpreterNothingHappens) {
    ASSERT_TRUE(m_browser.Initialize(&m_frame, nullptr, nullptr));
    m_browser.Populate();
    EXPECT_TRUE(Libraries().NeedsPopulate());
    UpdateSelectedMaster();
    EXPECT_TRUE(m_host.Lines().empty());
}

// --- The selected master -------------------------------------------------------------------------------

TEST_F(TLibraryViewPopulate, AnyUpdateMarksThePane) {
    Show({"a"});
    Libraries().OnUpdate(nullptr, 0, nullptr);
    EXPECT_TRUE(Libraries().NeedsPopulate());
    EXPECT_TRUE(m_host.Lines().empty());
}

TEST_F(TLibraryViewPopulate, TheSelectedMasterSelectsItsLibraryBesidesAndStaysPendingForTheCellList) {
    Show({"a", "b", "c"});
    Select("a");
    m_browser.Populate();
    m_host.Answer("database selected_master", "b inv layout");
    UpdateSelectedMaster();
    EXPECT_TRUE(Libraries().NeedsPopulate());
    ASSERT_NE(gPendingHighlight(), nullptr);
    EXPECT_EQ(*gPendingHighlight(), TLibCellView("b", "inv", "layout"));
    Libraries().Populate();
    EXPECT_EQ(Selected(), (Names{"a", "b"})) << "the old selection stays";
    EXPECT_EQ(gPendingHighlight(), nullptr) << "consumed by the cell list, which was refreshed at once";
}

TEST_F(TLibraryViewPopulate, AMasterInASelectedLibraryLeavesEvenADirtyCellListToItsOwnRefresh) {
    Show({"a", "b"});
    Select("b");
    m_host.Answer("database selected_master", "b inv layout");
    UpdateSelectedMaster();
    ASSERT_TRUE(Cells().NeedsPopulate());
    Libraries().Populate();
    EXPECT_TRUE(m_host.LinesStarting("database cells").empty());
    EXPECT_TRUE(Cells().NeedsPopulate());
    EXPECT_NE(gPendingHighlight(), nullptr);
    m_browser.Populate();
    EXPECT_EQ(gPendingHighlight(), nullptr);
}

TEST_F(TLibraryViewPopulate, AMasterInALibraryThatAppearsInThisRefreshSelectsNone) {
    Show({"a"});
    AnswerLibraries({"a", "b"});
    m_host.Answer("database selected_master", "b inv layout");
    UpdateSelectedMaster();
    m_browser.Populate();
    EXPECT_EQ(Shown(), (Names{"a", "b"}));
    EXPECT_TRUE(Selected().empty()) << "only the rows of the refresh before are looked at";
}

TEST_F(TLibraryViewPopulate, TheLibraryOfAMasterIsKnownByItsBytes) {
    Show({"a", "b"});
    m_host.Answer("database selected_master", "B inv layout");
    UpdateSelectedMaster();
    m_browser.Populate();
    EXPECT_TRUE(Selected().empty());
}

TEST_F(TLibraryViewPopulate, AMasterOfAnUnknownLibraryLeavesTheSelection) {
    Show({"a", "b"});
    Select("a");
    m_browser.Populate();
    m_host.Answer("database selected_master", "gone inv layout");
    UpdateSelectedMaster();
    m_browser.Populate();
    EXPECT_EQ(Selected(), Names{"a"});
}

TEST_F(TLibraryViewPopulate, AMasterOfAnotherFormIsNone) {
    Show({"a"});
    for (const char* answer : {"", "a inv", "a inv layout more", "{} inv layout"}) {
        gPendingHighlight() = std::make_unique<TLibCellView>("old", "old", "old");
        m_host.Answer("database selected_master", answer);
        Refresh();
        UpdateSelectedMaster();
        EXPECT_EQ(gPendingHighlight(), nullptr) << answer;
        EXPECT_TRUE(Libraries().NeedsPopulate()) << answer;
    }
}

TEST_F(TLibraryViewPopulate, AFailedMasterLineMarksNothingAndForgetsTheOldOne) {
    Show({"a"});
    for (const int code : {TCL_ERROR, TCL_OK}) {
        gPendingHighlight() = std::make_unique<TLibCellView>("old", "old", "old");
        m_host.AnswerCode("database selected_master", code, "{ no list");
        UpdateSelectedMaster();
        EXPECT_EQ(gPendingHighlight(), nullptr);
        EXPECT_FALSE(Libraries().NeedsPopulate());
    }
}

TEST_F(TLibraryViewPopulate, DocumentUpdatesReachThePane) {
    Show({"a"});
    CDocument document;
    m_browser.AddViewsToDoc(&document);
    m_host.Answer("database selected_master", "a inv layout");
    document.UpdateAllViews(nullptr, cnHintSelectedMaster);
    EXPECT_TRUE(Libraries().NeedsPopulate());
    EXPECT_EQ(m_host.LinesStarting("database selected_master").size(), 1u);
}

// --- Host script that comes back -----------------------------------------------------------------------
