/// @file
/// The refresh of the library pane while host script comes back in the middle, and with hostile names.
#include <gtest/gtest.h>
#include <tcl.h>

#include <algorithm>

#include "tests/browser/LibraryRefreshFixture.h"
#include "vapp/browser/TNaturalLess.h"
#include "vapp/toolkit/CDocument.h"

using namespace vapp_library_browser;

using TLibraryViewPopulateReentry = LibraryRefreshFixture;

TEST_F(TLibraryViewPopulateReentry, ARefreshInsideOfARefreshReturnsAtOnce) {
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

TEST_F(TLibraryViewPopulateReentry, ARequestInsideOfARefreshIsServedByIt) {
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

TEST_F(TLibraryViewPopulateReentry, SelectingADesignInsideOfARefreshFindsItsLibrariesOnlyAfterwards) {
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

TEST_F(TLibraryViewPopulateReentry, TheCommandMayDeleteOrReplaceItself) {
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

TEST_F(TLibraryViewPopulateReentry, AnUpdateInsideOfTheMasterQuestionComesToAnEnd) {
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

TEST_F(TLibraryViewPopulateReentry, ANewMasterDuringTheHighlightIsTakenByTheCellListAlone) {
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

TEST_F(TLibraryViewPopulateReentry, EveryExportedCallFromInsideOfEveryLineIsSurvived) {
    Initialize();
    CDocument document;
    m_browser.AddViewsToDoc(&document);
    m_host.AddCommand("column");
    m_browser.AddCellViewListColumn("Column", "column", true, false);
    m_browser.SerializeSetup(false);
    int budget = 200;
    const TLibCellView inv("a", "inv", "layout");
    const auto callTheRest = [&](int turn) {
        m_browser.AddViewsToDoc(&document);
        m_browser.SetCommandHandler(static_cast<unsigned>(turn), "command", StyleFocusedLcv);
        static_cast<void>(m_browser.GetCommandHandler(7));
        m_browser.SetCellTabsText(turn % 4 - 1, "tab");
        if (turn % 40 == 0) m_browser.AddCellViewListFilterType("type");
        if (turn % 50 == 0) m_browser.AddCellViewListColumn("More", "column", false, true);
        if (turn == 60) m_browser.ModifyForQEdit();
        m_browser.SetOaViewReserved(inv, turn % 2 == 0);
        m_browser.SetReservedBy(inv, "ann");
        m_browser.SetRepoState(inv, "state");
        m_browser.SetVersion(inv, "1");
        m_browser.AddToCellListSelections({inv});
        m_browser.AddCellListMenuCommand("text", "command", StyleSelectedLcvs, false, false, true);
        m_browser.AddCellListMenuSeparator();
        m_browser.BeginCellListSubmenu("title");
        m_browser.EndCellListSubmenu();
        m_browser.SetCellListDefaultMenuCommand("command", StyleCommandOnly);
        m_browser.AddCellTabsMenuItem("text", true);
        m_browser.AddCellTabsMenuSeparator();
        m_browser.AddLibraryListMenuCommand("text", "command", StyleSelectedLibraries, false, false, false);
        m_browser.BeginLibraryListSubmenu("title");
        m_browser.EndLibraryListSubmenu();
        std::size_t told =
            m_browser.GetShownCellList().IsEmpty() + m_browser.GetShownCellViewList().IsEmpty();
        told += m_browser.GetSelectedCells().size() + m_browser.GetCellViewCount();
        told += m_browser.GetAllLibrariesSet().size() + m_browser.GetSelectedLibrariesSet().size();
        told += m_browser.AreAnyCellsSelected() + m_browser.HasOaReservedViews("a") +
                m_browser.HasModifiedLcvs("a") + m_browser.IsLcvModified(inv);
        told += m_browser.GetAlphabeticalLibraryNames() + m_browser.GetFocusedCell().cell.IsEmpty() +
                m_browser.GetFocusedLibrary().IsEmpty() + m_browser.GetSelectedDesign().IsEmpty() +
                m_browser.GetExcludeViews().IsEmpty();
        EXPECT_LT(told, 1000u);
    };
    const auto measure = [&] {
        auto& report = m_browser.GetCellListView()->GetReport();
        for (int column = 0; column < report.GetColumns().GetCount(); ++column) {
            CXTPReportRecordItemMetrics metrics;
            report.MeasureItem(0, *report.GetColumns().GetAt(column), metrics);
        }
    };
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
                callTheRest(budget);
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
    m_host.HandleStart("database libraryinfo", everything("1"));
    m_host.HandleStart("database cellviewinfo", everything("1"));
    m_host.HandleStart("column", everything("text"));
    m_host.HandleStart("librarynavigator", everything(""));
    for (int round = 0; round < 5; ++round) {
        budget = 200;
        document.UpdateAllViews(nullptr, cnHintSelectedMaster);
        m_browser.Populate();
        static_cast<void>(Libraries().GetLibraryListCtrl().DrawItem(0));
        measure();
    }
    budget = 0;
    gPendingHighlight().reset();
    Refresh();
    m_browser.SetSelectedDesign("one");
    m_browser.PopulateCellListView();
    EXPECT_EQ(Shown(), (Names{"a", "b"}));
    EXPECT_EQ(m_browser.GetCellViewCount(), 2u);
}

TEST_F(TLibraryViewPopulateReentry, HostileNamesAreShownAsTheyWereTold) {
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

TEST_F(TLibraryViewPopulateReentry, HostileNamesStandInTheAlphabeticalOrderToo) {
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
