/// @file
/// Each call of the facade reaches its pane, with its arguments and its answer.
#include <gtest/gtest.h>

#include "tests/browser/NavigatorFixture.h"
#include "tests/toolkit/RecordingPeers.h"
#include "vapp/toolkit/CDocument.h"

using namespace vapp_library_browser;

class TLibraryBrowserForwardTest : public NavigatorFixture {
protected:
    /// Designs one and two; one has libraries a and b, with three rows.
    void SetUp() override {
        m_host.Answer("database all_libs", "{one {a /a} {b /b}} {two {c /c}}");
        m_host.AnswerStart("database cells -lcv -library one -count", "3");
        m_host.AnswerStart("database cells -lcv -library one -filter",
                           "{a inv layout} {a nand symbol} {b inv layout}");
        Initialize();
        m_browser.Populate();
        m_host.ClearLines();
    }

    const TLibCellView m_view{"a", "inv", "layout"};
};

// --- The library pane ----------------------------------------------------------------------------------

TEST_F(TLibraryBrowserForwardTest, DesignsAndLibraries) {
    EXPECT_EQ(m_browser.GetSelectedDesign(), CStringU("one"));
    EXPECT_EQ(m_browser.GetAllLibrariesSet(), (std::set<CStringIU>{CStringIU("a"), CStringIU("b")}));
    EXPECT_TRUE(m_browser.GetSelectedLibrariesSet().empty());
    m_browser.SelectInLibraryList("b");
    EXPECT_EQ(m_browser.GetSelectedLibrariesSet(), std::set<CStringIU>{CStringIU("b")});
    Libraries().GetLibraryListCtrl().ClickedByUser(0, {});
    EXPECT_EQ(m_browser.GetFocusedLibrary(), CStringU("a"));
}

TEST_F(TLibraryBrowserForwardTest, ChoosingADesignRefreshesTheCellListAtOnce) {
    m_browser.SetSelectedDesign("two");
    EXPECT_EQ(m_browser.GetSelectedDesign(), CStringU("two"));
    EXPECT_EQ(Shown(), std::vector<std::string>{"c"});
    EXPECT_FALSE(m_host.LinesStarting("database cells -lcv -library two").empty());
    m_host.ClearLines();
    m_browser.SetSelectedDesign("unknown");
    EXPECT_EQ(m_browser.GetSelectedDesign(), CStringU("two"));
    EXPECT_TRUE(m_host.Lines().empty());
}

TEST_F(TLibraryBrowserForwardTest, TheOrderOfTheLibraries) {
    EXPECT_TRUE(m_browser.GetAlphabeticalLibraryNames());
    Libraries().SetAlphabetical(false);
    EXPECT_FALSE(m_browser.GetAlphabeticalLibraryNames());
}

TEST_F(TLibraryBrowserForwardTest, RequestsWaitForTheIdleCall) {
    m_browser.RequestLibraryViewDelayedPopulate();
    m_browser.RequestLibraryViewDelayedPopulate();
    EXPECT_TRUE(Libraries().NeedsPopulate());
    EXPECT_TRUE(m_host.Lines().empty());
    m_browser.Populate();
    EXPECT_EQ(m_host.Lines(), std::vector<std::string>{"database all_libs"}) << "and the cell list is clean";
    EXPECT_FALSE(Libraries().NeedsPopulate());
}

TEST_F(TLibraryBrowserForwardTest, CommandHandlersOfBothListsStandInOnePlace) {
    m_browser.SetCommandHandler(41000, "place", StyleFocusedLcv);
    EXPECT_EQ(m_browser.GetCommandHandler(41000), std::pair(CStringU("place"), StyleFocusedLcv));
    EXPECT_EQ(Libraries().GetCommandHandler(41000).first, CStringU("place"));
    EXPECT_TRUE(m_browser.GetCommandHandler(41001).first.IsEmpty());
}

TEST_F(TLibraryBrowserForwardTest, ReservedAndModifiedViews) {
    m_browser.SetOaViewReserved(m_view, true);
    EXPECT_TRUE(m_browser.HasOaReservedViews("a"));
    EXPECT_FALSE(m_browser.HasOaReservedViews("b"));
    m_browser.SetLcvModified(m_view, true);
    EXPECT_TRUE(m_browser.HasModifiedLcvs("a"));
    EXPECT_TRUE(m_browser.IsLcvModified(m_view));
    EXPECT_TRUE(Libraries().NeedsPopulate());
    m_browser.SetOaViewReserved(m_view, false);
    EXPECT_FALSE(m_browser.HasOaReservedViews("a"));
}

TEST_F(TLibraryBrowserForwardTest, ClearCachesForgetsAllThatTheHostToldOfViews) {
    m_browser.SetOaViewReserved(m_view, true);
    m_browser.SetLcvModified(m_view, true);
    m_browser.SetReservedBy(m_view, "ann");
    m_browser.SetRepoState(m_view, "locked");
    m_browser.SetVersion(m_view, "1.2");
    m_browser.ClearCaches();
    EXPECT_FALSE(m_browser.HasOaReservedViews("a"));
    EXPECT_FALSE(m_browser.HasModifiedLcvs("a"));
    EXPECT_FALSE(m_browser.IsLcvModified(m_view));
    EXPECT_TRUE(m_browser.GetReservedBy(m_view).IsEmpty());
    EXPECT_TRUE(m_browser.GetRepoState(m_view).IsEmpty());
    EXPECT_TRUE(m_browser.GetVersion(m_view).IsEmpty());
}

TEST_F(TLibraryBrowserForwardTest, TheSchematicEditorHasNoChoiceOfDesigns) {
    EXPECT_TRUE(Libraries().GetDesignCombo().IsWindowVisible());
    m_browser.ModifyForQEdit();
    EXPECT_TRUE(Libraries().GetQEdit());
    EXPECT_FALSE(Libraries().GetDesignCombo().IsWindowVisible());
}

TEST_F(TLibraryBrowserForwardTest, ThePreviewShowsWhatTheHostGives) {
    int pixels = 0;
    const auto bitmap = reinterpret_cast<HBITMAP>(&pixels);
    m_browser.SetPreview(false, "inv", bitmap);
    EXPECT_EQ(Preview().GetCaption().GetWindowText(), CString("inv"));
    EXPECT_EQ(Preview().GetPicture().GetImage(), bitmap);
    m_browser.SetPreview(true, "ignored", nullptr);
    EXPECT_TRUE(Preview().GetCaption().GetWindowText().IsEmpty());
    EXPECT_EQ(Preview().GetPicture().GetImage(), nullptr);
}

// --- The cell pane -------------------------------------------------------------------------------------

TEST_F(TLibraryBrowserForwardTest, TheShownCells) {
    EXPECT_EQ(m_browser.GetCellViewCount(), 3u);
    EXPECT_EQ(m_browser.GetShownCellList(), CStringU("inv\r\ninv\r\nnand\r\n"));
    EXPECT_EQ(m_browser.GetShownCellViewList(),
              CStringU("a inv layout\r\nb inv layout\r\na nand symbol\r\n"));
}

TEST_F(TLibraryBrowserForwardTest, TheSelectedCells) {
    EXPECT_FALSE(m_browser.AreAnyCellsSelected());
    m_browser.AddToCellListSelections({{"b", "inv", "layout"}});
    EXPECT_TRUE(m_browser.AreAnyCellsSelected());
    m_browser.AddToCellListSelections({m_view});
    EXPECT_EQ(m_browser.GetSelectedCells(), (std::vector<TLibCellView>{m_view, {"b", "inv", "layout"}}));
    m_browser.AddToCellListSelections({});
    EXPECT_EQ(m_browser.GetSelectedCells().size(), 2u);
    Cells().GetReport().ClickedByUser(2, {});
    EXPECT_EQ(m_browser.GetFocusedCell(), TLibCellView("a", "nand", "symbol"));
}

TEST_F(TLibraryBrowserForwardTest, RefreshesOfTheCellListAlone) {
    m_browser.PopulateCellListView();
    EXPECT_TRUE(m_host.LinesStarting("database cells").empty()) << "it is clean";
    m_browser.RequestCellListViewDelayedPopulate(UpdateAlways);
    EXPECT_TRUE(Cells().NeedsPopulate());
    m_browser.PopulateCellListView();
    EXPECT_FALSE(m_host.LinesStarting("database cells").empty());
    EXPECT_TRUE(m_host.LinesStarting("database all_libs").empty());
    EXPECT_FALSE(Cells().NeedsPopulate());
}

TEST_F(TLibraryBrowserForwardTest, ColumnsOfTheHost) {
    m_host.AddCommand("column");
    m_host.AnswerStart("column", "text");
    const int before = Cells().GetReport().GetColumns().GetCount();
    m_browser.AddCellViewListColumn("By command", "column", false, true);
    m_browser.AddCellViewListColumn(
        "By function", [](const TLibCellView& cell) { return cell.cell; }, true, false);
    auto& columns = Cells().GetReport().GetColumns();
    ASSERT_EQ(columns.GetCount(), before + 2);
    auto* command = dynamic_cast<TCellNamesReportCtrl::TCustomColumn*>(columns.GetAt(before));
    auto* function = dynamic_cast<TCellNamesReportCtrl::TCustomColumn*>(columns.GetAt(before + 1));
    ASSERT_TRUE(command != nullptr && function != nullptr);
    EXPECT_EQ(command->GetCaption(), CString("By command"));
    EXPECT_EQ(command->GetCellText(m_view), CStringU("text"));
    EXPECT_EQ(function->GetCellText(m_view), CStringU("inv"));
    EXPECT_FALSE(command->GetSortForward());
    EXPECT_FALSE(command->GetDefaultVisible(TCellNamesReportCtrl::Setup3));
    EXPECT_TRUE(function->GetSortForward());
    EXPECT_TRUE(function->GetDefaultVisible(TCellNamesReportCtrl::Setup3));
}

TEST_F(TLibraryBrowserForwardTest, FilterTypesAndTheirReset) {
    m_browser.AddCellViewListFilterType("All");
    m_browser.AddCellViewListFilterType("Modified");
    auto& combo = dynamic_cast<TComboBoxCtrl&>(*Cells().GetDlgItem(TCellListView::cnFilterCombo));
    combo.SetCurSel(1);
    EXPECT_EQ(Cells().GetDropDownFilter(), CStringU("Modified"));
    Cells().GetDlgItem(TCellListView::cnFilterEdit)->SetWindowText("na");
    m_browser.ResetCellViewListFilter();
    EXPECT_EQ(Cells().GetDropDownFilter(), CStringU("All"));
    EXPECT_TRUE(Cells().GetFilterText().IsEmpty());
}

TEST_F(TLibraryBrowserForwardTest, TabsAndExcludedViews) {
    m_browser.SetCellTabsText(1, "Details");
    EXPECT_EQ(dynamic_cast<CTabCtrl&>(*Cells().GetDlgItem(TCellListView::cnTabs)).GetItemText(1),
              CString("Details"));
    EXPECT_EQ(m_browser.GetExcludeViews(), Cells().GetExcludeViews());
    EXPECT_FALSE(m_browser.GetExcludeViews().IsEmpty());
}

TEST_F(TLibraryBrowserForwardTest, SettingsOfTheCellList) {
    m_app.WriteProfileString("LibraryNavigator", "ShowVias", "false");
    m_browser.SerializeSetup(false);
    EXPECT_EQ(m_app.GetProfileString("LibraryNavigator", "ShowVias", "none"), CString("false"))
        << "read only";
    m_app.WriteProfileString("LibraryNavigator", "ShowVias", "overwritten");
    m_browser.SerializeSetup(true);
    EXPECT_EQ(m_app.GetProfileString("LibraryNavigator", "ShowVias", "none"), CString("false"));
}

TEST_F(TLibraryBrowserForwardTest, DocumentUpdatesReachThePanes) {
    CDocument document;
    m_browser.AddViewsToDoc(&document);
    document.UpdateAllViews(nullptr, 1);
    EXPECT_TRUE(Libraries().NeedsPopulate());
    EXPECT_TRUE(m_host.Lines().empty());
    m_host.AnswerStart("database selected_master", "a nand symbol");
    document.UpdateAllViews(nullptr, cnHintSelectedMaster);
    EXPECT_EQ(m_host.Lines(), std::vector<std::string>{"database selected_master"});
    m_browser.Populate();
    EXPECT_EQ(Selected(), std::vector<std::string>{"a"});
    EXPECT_EQ(m_browser.GetFocusedCell(), TLibCellView("a", "nand", "symbol"));
}

/// The same on a toolkit that writes down what it is told.
class TLibraryBrowserShownTest : public TLibraryBrowserForwardTest {
protected:
    RecordingPeers m_peers;
};

TEST_F(TLibraryBrowserShownTest, TheCellPaneIsPaintedWhenTheHostWantsIt) {
    m_peers.ForgetAll();
    m_browser.UpdateWindowCellListView();
    EXPECT_EQ(m_peers.Of(Cells()).updates, 1u);
    EXPECT_EQ(m_peers.Of(Libraries()).updates + m_peers.Of(Preview()).updates, 0u);
    EXPECT_TRUE(m_host.Lines().empty()) << "painted as it is, not refreshed";
}

// --- Menus ---------------------------------------------------------------------------------------------

TEST_F(TLibraryBrowserForwardTest, MenuCallsOutsideOfTheBuildingOfAMenuDoNothing) {
    m_browser.AddCellListMenuCommand("Open", "open", StyleFocusedLcv, false, false, true);
    m_browser.AddCellListMenuSeparator();
    m_browser.BeginCellListSubmenu("More");
    m_browser.EndCellListSubmenu();
    m_browser.SetCellListDefaultMenuCommand("open", StyleFocusedLcv);
    m_browser.AddCellTabsMenuItem("Rename", true);
    m_browser.AddCellTabsMenuSeparator();
    m_browser.AddLibraryListMenuCommand("Open", "open", StyleSelectedLibraries, false, false, false);
    m_browser.BeginLibraryListSubmenu("More");
    m_browser.EndLibraryListSubmenu();
    EXPECT_TRUE(m_host.Lines().empty());
    for (const unsigned id : {0u, 101u, 0xA0F0u, 41000u})
        EXPECT_TRUE(m_browser.GetCommandHandler(id).first.IsEmpty()) << id;
}
