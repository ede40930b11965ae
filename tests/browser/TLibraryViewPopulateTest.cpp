/// @file
/// The refresh of the library pane: answers good and bad, selection, order, the selected master, and host
/// script that comes back in the middle.
#include <gtest/gtest.h>
#include <tcl.h>

#include <algorithm>

#include "tests/browser/NavigatorFixture.h"
#include "vapp/browser/TNaturalLess.h"
#include "vapp/toolkit/CDocument.h"

using namespace vapp_library_browser;

class TLibraryViewPopulate : public NavigatorFixture {
protected:
    using Names = std::vector<std::string>;

    [[nodiscard]] std::size_t Queries() const { return m_host.LinesStarting("database all_libs").size(); }
    void UpdateSelectedMaster() { Libraries().OnUpdate(nullptr, cnHintSelectedMaster, nullptr); }
};

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
    m_host.Answer("database all_libs", "{} {top {a /a} one {b /b extra} {} {c /c}} {empty}");
    m_browser.Populate();
    EXPECT_FALSE(Libraries().NeedsPopulate());
    EXPECT_EQ(Libraries().GetDesignCombo().GetCount(), 2);
    m_browser.SetSelectedDesign("top");
    EXPECT_EQ(Shown(), (Names{"a", "c"}));
    m_browser.SetSelectedDesign("empty");
    EXPECT_TRUE(Shown().empty());
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
    m_frame.dark = true;
    const unsigned paints = list.GetInvalidateCount();
    Refresh();
    EXPECT_EQ(list.GetBkColor(), 0x2D2D2Du);
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

TEST_F(TLibraryViewPopulate, ARefreshInsideOfARefreshReturnsAtOnce) {
    Initialize();
    m_host.Handle("database all_libs", [this](Tcl_Interp* interp) {
        m_browser.Populate();
        m_browser.Populate();
        Tcl_SetObjResult(interp, Tcl_NewStringObj("{top {a /a}}", -1));
        return TCL_OK;
    });
    m_browser.Populate();
    EXPECT_EQ(Queries(), 1u);
    EXPECT_EQ(Shown(), Names{"a"});
    EXPECT_FALSE(Libraries().NeedsPopulate());
}

TEST_F(TLibraryViewPopulate, ARequestInsideOfARefreshIsServedByIt) {
    Initialize();
    bool first = true;
    m_host.Handle("database all_libs", [&](Tcl_Interp* interp) {
        if (std::exchange(first, false)) m_browser.RequestLibraryViewDelayedPopulate();
        Tcl_SetObjResult(interp, Tcl_NewStringObj("{top {a /a}}", -1));
        return TCL_OK;
    });
    m_browser.Populate();
    EXPECT_FALSE(Libraries().NeedsPopulate());
    m_browser.Populate();
    EXPECT_EQ(Queries(), 1u);
}

TEST_F(TLibraryViewPopulate, SelectingADesignInsideOfARefreshFindsItsLibrariesOnlyAfterwards) {
    Initialize();
    m_host.Answer("database all_libs", "{one {a /a}} {two {b /b}}");
    m_browser.Populate();
    Names inside;
    m_host.Handle("database all_libs", [&](Tcl_Interp* interp) {
        m_browser.SetSelectedDesign("two");
        m_browser.SelectInLibraryList("b");
        inside = Shown();
        Tcl_SetObjResult(interp, Tcl_NewStringObj("{one {a /a}} {two {b /b} {c /c}}", -1));
        return TCL_OK;
    });
    Refresh();
    EXPECT_TRUE(inside.empty()) << "what was known is forgotten before the question";
    EXPECT_EQ(m_browser.GetSelectedDesign(), CStringU("two"));
    EXPECT_EQ(Shown(), (Names{"b", "c"}));
    EXPECT_TRUE(Selected().empty());
}

TEST_F(TLibraryViewPopulate, TheCommandMayDeleteOrReplaceItself) {
    Show({"a"});
    m_host.Handle("database all_libs", [this](Tcl_Interp* interp) {
        m_host.Eval("rename database {}; proc database args {error gone}");
        Tcl_SetObjResult(interp, Tcl_NewStringObj("{top {a /a} {b /b}}", -1));
        return TCL_OK;
    });
    Refresh();
    EXPECT_EQ(Shown(), (Names{"a", "b"}));
    Refresh();
    EXPECT_TRUE(Libraries().NeedsPopulate());
    m_host.Eval("rename database {}");
    Refresh();
    EXPECT_TRUE(Libraries().NeedsPopulate());
    EXPECT_EQ(Shown(), (Names{"a", "b"}));
}

TEST_F(TLibraryViewPopulate, AnUpdateInsideOfTheMasterQuestionComesToAnEnd) {
    Show({"a"});
    CDocument document;
    m_browser.AddViewsToDoc(&document);
    m_host.Handle("database selected_master", [&](Tcl_Interp* interp) {
        document.UpdateAllViews(nullptr, cnHintSelectedMaster);
        document.UpdateAllViews(nullptr, cnHintSelectedMaster);
        Tcl_SetObjResult(interp, Tcl_NewStringObj("a inv layout", -1));
        return TCL_OK;
    });
    UpdateSelectedMaster();
    EXPECT_EQ(m_host.LinesStarting("database selected_master").size(), 1u);
    ASSERT_NE(gPendingHighlight(), nullptr);
    EXPECT_EQ(gPendingHighlight()->cell, CStringU("inv"));
}

TEST_F(TLibraryViewPopulate, ANewMasterDuringTheHighlightIsTakenByTheCellListAlone) {
    Show({"a", "b"});
    m_host.Answer("database selected_master", "b inv layout");
    UpdateSelectedMaster();
    m_host.Answer("database selected_master", "a nand layout");
    bool first = true;
    m_host.HandleStart("database cells", [&](Tcl_Interp*) {
        if (std::exchange(first, false)) UpdateSelectedMaster();
        return TCL_OK;
    });
    m_browser.Populate();
    EXPECT_FALSE(Libraries().NeedsPopulate());
    EXPECT_EQ(gPendingHighlight(), nullptr) << "the population that was running took the newer one";
    EXPECT_EQ(Selected(), Names{"b"});
}

TEST_F(TLibraryViewPopulate, EveryExportedCallFromInsideOfEveryLineIsSurvived) {
    Initialize();
    CDocument document;
    m_browser.AddViewsToDoc(&document);
    int budget = 200;
    const auto everything = [&](const char* answer) {
        return [&, answer](Tcl_Interp* interp) {
            if (--budget > 0) {
                m_browser.RequestLibraryViewDelayedPopulate();
                m_browser.RequestCellListViewDelayedPopulate(UpdateAlways);
                m_browser.RequestCellListViewDelayedPopulate(UpdateIfFilterSaysSo);
                m_browser.SetSelectedDesign(budget % 2 == 0 ? "one" : "two");
                m_browser.SelectInLibraryList("a");
                m_browser.Populate();
                m_browser.PopulateCellListView();
                m_browser.UpdateWindowCellListView();
                m_browser.ClearCaches();
                m_browser.SetLcvModified({"a", "b", "c"}, true);
                document.UpdateAllViews(nullptr, cnHintSelectedMaster);
                m_browser.SetPreview(true, "", nullptr);
                m_browser.ResetCellViewListFilter();
                m_browser.HighlightCellInList("a", "inv");
                m_browser.SerializeSetup(budget % 3 == 0);
                static_cast<void>(m_browser.Initialize(&m_frame, interp, nullptr));
                static_cast<void>(Libraries().GetLibraryListCtrl().DrawItem(0));
            }
            Tcl_SetObjResult(interp, Tcl_NewStringObj(answer, -1));
            return TCL_OK;
        };
    };
    m_host.Handle("database all_libs", everything("{one {a /a} {b /b}} {two {c /c}}"));
    m_host.Handle("database selected_master", everything("a inv layout"));
    m_host.HandleStart("database cells", everything("{a inv layout} {a nand layout}"));
    m_host.HandleStart("database filter", everything("1"));
    m_host.HandleStart("database top_level", everything("a"));
    m_host.HandleStart("librarynavigator", everything(""));
    for (int round = 0; round < 5; ++round) {
        document.UpdateAllViews(nullptr, cnHintSelectedMaster);
        m_browser.Populate();
        static_cast<void>(Libraries().GetLibraryListCtrl().DrawItem(0));
    }
    budget = 0;
    gPendingHighlight().reset();
    Refresh();
    m_browser.SetSelectedDesign("one");
    m_browser.PopulateCellListView();
    EXPECT_EQ(Shown(), (Names{"a", "b"}));
    EXPECT_EQ(m_browser.GetCellViewCount(), 2u);
}

TEST_F(TLibraryViewPopulate, HostileNamesAreShownAsTheyWereTold) {
    const Names names = {"two words",
                         "{",
                         "}",
                         "[set ::ran 1]",
                         "$x",
                         "\"q\"",
                         "line\nfeed",
                         "back\\",
                         ";",
                         "#",
                         "caf\xC3\xA9",
                         "\xC0\x80z",
                         std::string(10000, 'n'),
                         "a\xFFz"};
    for (const bool hooked : {false, true}) {
        const HookGuard hook(hooked ? &RecordingHost::Brace : nullptr);
        if (!hooked) Initialize();
        AnswerLibraries(names);
        Refresh();
        Libraries().SetAlphabetical(!Libraries().GetAlphabetical());
        Libraries().SetAlphabetical(false);
        Refresh();
        EXPECT_EQ(Shown(), names);
        Libraries().GetLibraryListCtrl().SetItemState(-1, cnListSelected, cnListSelected);
        m_browser.Populate();
        for (int row = 0; row < static_cast<int>(names.size()); ++row) {
            static_cast<void>(Libraries().GetLibraryListCtrl().DrawItem(row));
        }
    }
}

TEST_F(TLibraryViewPopulate, HostileNamesStandInTheAlphabeticalOrderToo) {
    const Names names = {"two words",
                         "{",
                         "}",
                         "[set ::ran 1]",
                         "$x",
                         "\"q\"",
                         "a\nb",
                         "back\\",
                         ";",
                         "#",
                         "caf\xC3\xA9",
                         "a10",
                         "a9",
                         "-",
                         std::string(10000, 'n'),
                         "\xF0\x9F\x98\x80",
                         "\xC0\x80z",
                         "a\xFFz"};
    const HookGuard hook;
    Show(names);
    Names shown = Shown();
    EXPECT_TRUE(std::is_sorted(shown.begin(), shown.end(), [](const auto& left, const auto& right) {
        return TNaturalLess()(CStringU(left.c_str(), TextEncoding::Utf8Auto),
                              CStringU(right.c_str(), TextEncoding::Utf8Auto));
    }));
    for (const std::string& name : names) {
        const CStringU library(name.c_str(), TextEncoding::Utf8Auto);
        EXPECT_EQ(std::string(Libraries().GetAbsoluteLibraryPath(library).PayloadView()), "/" + name);
        Libraries().SelectInLibraryList(library);
        EXPECT_EQ(Selected(), Names{name});
    }
    std::sort(shown.begin(), shown.end());
    Names all = names;
    std::sort(all.begin(), all.end());
    EXPECT_EQ(shown, all);
    EXPECT_EQ(m_host.Eval("info exists ::ran"), "0");
}
