#include "vapp/browser/TLibraryBrowser.h"

#include <gtest/gtest.h>

#include "tests/browser/NavigatorFixture.h"
#include "vapp/browser/ColumnChooser.h"
#include "vapp/toolkit/CDocument.h"

using namespace vapp_library_browser;

class TLibraryBrowserTest : public NavigatorFixture {
protected:
    /// All that needs a pane, where there is none.
    void CallEverything();
};

void TLibraryBrowserTest::CallEverything() {
    m_browser.Populate();
    m_browser.RequestLibraryViewDelayedPopulate();
    m_browser.RequestCellListViewDelayedPopulate(UpdateAlways);
    m_browser.RequestCellListViewDelayedPopulate(UpdateIfFilterSaysSo);
    m_browser.PopulateCellListView();
    m_browser.UpdateWindowCellListView();
    m_browser.SerializeSetup(true);
    m_browser.SerializeSetup(false);
    m_browser.ModifyForQEdit();
    m_browser.SetSelectedDesign("x");
    m_browser.SelectInLibraryList("x");
    m_browser.SetCommandHandler(1, "x", StyleBuiltIn);
    m_browser.SetOaViewReserved({}, true);
    m_browser.SetLcvModified({}, true);
    m_browser.AddCellViewListColumn("x", "x", true, false);
    m_browser.AddCellViewListColumn(
        "x", [](const TLibCellView&) { return CStringU(); }, true, false);
    m_browser.AddCellViewListFilterType("x");
    m_browser.ResetCellViewListFilter();
    m_browser.SetCellTabsText(0, "x");
    m_browser.AddToCellListSelections({});
    m_browser.HighlightCellInList("x", "x");
    m_browser.SetPreview(true, "", nullptr);
    m_browser.ClearCaches();
    CDocument document;
    m_browser.AddViewsToDoc(&document);
    EXPECT_TRUE(document.GetViews().empty());
    EXPECT_TRUE(m_browser.GetSelectedDesign().IsEmpty());
    EXPECT_TRUE(m_browser.GetFocusedLibrary().IsEmpty());
    EXPECT_TRUE(m_browser.GetAllLibrariesSet().empty());
    EXPECT_TRUE(m_browser.GetSelectedLibrariesSet().empty());
    EXPECT_FALSE(m_browser.GetAlphabeticalLibraryNames());
    EXPECT_EQ(m_browser.GetCommandHandler(1), std::pair(CStringU(), StyleCommandOnly));
    EXPECT_FALSE(m_browser.HasOaReservedViews(""));
    EXPECT_FALSE(m_browser.HasModifiedLcvs(""));
    EXPECT_FALSE(m_browser.IsLcvModified({}));
    EXPECT_TRUE(m_browser.GetFocusedCell().cell.IsEmpty());
    EXPECT_TRUE(m_browser.GetSelectedCells().empty());
    EXPECT_FALSE(m_browser.AreAnyCellsSelected());
    EXPECT_EQ(m_browser.GetCellViewCount(), 0u);
    EXPECT_TRUE(m_browser.GetShownCellList().IsEmpty());
    EXPECT_TRUE(m_browser.GetShownCellViewList().IsEmpty());
    EXPECT_TRUE(m_browser.GetExcludeViews().IsEmpty());
}

TEST_F(TLibraryBrowserTest, AFirstStartGivesTheDefaultHeights) {
    Initialize();
    EXPECT_EQ(m_browser.GetRowHeight(0), 200);
    EXPECT_EQ(m_browser.GetRowHeight(1), 500);
    EXPECT_EQ(m_browser.GetRowHeight(2), 200);
}

TEST_F(TLibraryBrowserTest, ASecondInitializeDoesNothing) {
    Initialize();
    TLibraryView* libraries = &Libraries();
    auto* other = reinterpret_cast<CXTPReportSubListControl*>(&m_app);  // opaque: only its address counts
    EXPECT_FALSE(m_browser.Initialize(&m_frame, nullptr, other));
    EXPECT_EQ(&Libraries(), libraries);
    EXPECT_EQ(Libraries().GetTclInterp(), m_host.GetInterp());
    EXPECT_EQ(gColumnChooser(), nullptr);
}

TEST_F(TLibraryBrowserTest, TheChooserIsKeptForTheProcess) {
    auto* chooser = reinterpret_cast<CXTPReportSubListControl*>(&m_app);  // opaque: only its address counts
    ASSERT_TRUE(m_browser.Initialize(&m_frame, m_host.GetInterp(), chooser));
    EXPECT_EQ(gColumnChooser(), chooser);
    gColumnChooser() = nullptr;
}

TEST_F(TLibraryBrowserTest, ThePanesKnowOneAnother) {
    Initialize();
    EXPECT_EQ(Libraries().GetCellListView(), &Cells());
    EXPECT_EQ(Libraries().GetPreviewView(), &Preview());
    EXPECT_EQ(Cells().GetLibraryView(), &Libraries());
    EXPECT_EQ(Cells().GetPreviewView(), &Preview());
    EXPECT_EQ(Preview().GetLibraryView(), &Libraries());
}

TEST_F(TLibraryBrowserTest, HeightsAreSavedWhenTheWindowGoesAndComeBack) {
    Initialize();
    m_browser.SetRowHeight(0, 150);
    m_browser.SetRowHeight(1, 300);
    m_browser.DestroyWindow();
    EXPECT_EQ(m_app.GetProfileInt("LibraryNavigator", "toolLibrariesPaneHeight", 0), 150);
    EXPECT_EQ(m_app.GetProfileInt("LibraryNavigator", "toolCellsPaneHeight", 0), 300);
    EXPECT_EQ(m_app.GetProfileInt("LibraryNavigator", "toolPreviewPaneHeight", 0), 940 - 450 - 12);
    TLibraryBrowser again;
    ASSERT_TRUE(again.Initialize(&m_frame, m_host.GetInterp(), nullptr));
    EXPECT_EQ(again.GetRowHeight(0), 150);
    EXPECT_EQ(again.GetRowHeight(1), 300);
    EXPECT_EQ(again.GetRowHeight(2), 940 - 450 - 12);
}

TEST_F(TLibraryBrowserTest, ToolsOfDifferentNamesKeepHeightsOfTheirOwn) {
    Initialize();
    m_browser.SetRowHeight(0, 150);
    m_browser.DestroyWindow();
    m_app.SetAppName("editor");
    TLibraryBrowser other;
    ASSERT_TRUE(other.Initialize(&m_frame, m_host.GetInterp(), nullptr));
    EXPECT_EQ(other.GetRowHeight(0), 200);
    other.SetRowHeight(0, 99);
    other.DestroyWindow();
    EXPECT_EQ(m_app.GetProfileInt("LibraryNavigator", "toolLibrariesPaneHeight", 0), 150);
    EXPECT_EQ(m_app.GetProfileInt("LibraryNavigator", "editorLibrariesPaneHeight", 0), 99);
}

TEST_F(TLibraryBrowserTest, HostileHeightsAreSurvived) {
    m_app.WriteProfileInt("LibraryNavigator", "toolLibrariesPaneHeight", -5);
    m_app.WriteProfileInt("LibraryNavigator", "toolCellsPaneHeight", 2147483647);
    Initialize();
    for (const int height : {100, 1000}) {
        m_frame.MoveWindow({0, 0, 1000, height});
        EXPECT_EQ(Libraries().GetRect().Height(), 0);
        EXPECT_LE(Cells().GetRect().bottom, height);
        EXPECT_GT(Cells().GetRect().Height(), height / 2);
        EXPECT_GE(Preview().GetRect().Height(), 0);
    }
}

TEST_F(TLibraryBrowserTest, HeightsAreThoseOnTheScreenThoughTheFrameIsSmall) {
    Initialize();
    m_frame.MoveWindow({0, 0, 400, 100});
    const int shown[] = {Libraries().GetWindowRect().Height(), Cells().GetWindowRect().Height(),
                         Preview().GetWindowRect().Height()};
    ASSERT_LT(shown[0], 200) << "what was wanted doesn't fit";
    m_browser.DestroyWindow();
    EXPECT_EQ(m_app.GetProfileInt("LibraryNavigator", "toolLibrariesPaneHeight", -1), shown[0]);
    EXPECT_EQ(m_app.GetProfileInt("LibraryNavigator", "toolCellsPaneHeight", -1), shown[1]);
    EXPECT_EQ(m_app.GetProfileInt("LibraryNavigator", "toolPreviewPaneHeight", -1), shown[2]);
}

TEST_F(TLibraryBrowserTest, AFrameWithoutAWindowIsNoPlaceForPanes) {
    CFrameWnd frame;
    EXPECT_FALSE(m_browser.Initialize(&frame, m_host.GetInterp(), nullptr));
    EXPECT_EQ(m_browser.GetRowCount(), 0);
    EXPECT_EQ(m_browser.GetLibraryView(), nullptr);
    Initialize();
}

TEST_F(TLibraryBrowserTest, ADocumentGetsEachPaneOnce) {
    Initialize();
    CDocument document;
    m_browser.AddViewsToDoc(&document);
    m_browser.AddViewsToDoc(&document);
    EXPECT_EQ(document.GetViews(), (std::vector<CView*>{&Libraries(), &Cells(), &Preview()}));
    m_browser.AddViewsToDoc(nullptr);
}

TEST_F(TLibraryBrowserTest, CallsBeforeInitializeAnswerEmptyAndDoNotFail) {
    CallEverything();
    EXPECT_TRUE(m_host.Lines().empty());
}

TEST_F(TLibraryBrowserTest, WhatTheBrowserKeepsItselfIsThereBeforeInitialize) {
    const TLibCellView view("lib", "inv", "layout");
    EXPECT_TRUE(m_browser.GetReservedBy(view).IsEmpty());
    EXPECT_TRUE(m_browser.GetRepoState(view).IsEmpty());
    EXPECT_TRUE(m_browser.GetVersion(view).IsEmpty());
    m_browser.SetReservedBy(view, "ann");
    m_browser.SetRepoState(view, "locked");
    m_browser.SetVersion(view, "1.2");
    EXPECT_EQ(m_browser.GetReservedBy(view), CStringU("ann"));
    EXPECT_EQ(m_browser.GetRepoState(view), CStringU("locked"));
    EXPECT_EQ(m_browser.GetVersion(view), CStringU("1.2"));
    EXPECT_FALSE(m_browser.GetExcludeViewNames().IsEmpty());
    Initialize();
    EXPECT_EQ(m_browser.GetReservedBy(view), CStringU("ann")) << "the window is no reason to forget";
}

TEST_F(TLibraryBrowserTest, CallsAfterTheEndOfTheWindowDoNotFail) {
    Show({"a"});
    ASSERT_FALSE(m_browser.GetSelectedDesign().IsEmpty());
    m_browser.DestroyWindow();
    m_host.ClearLines();
    CallEverything();
    EXPECT_TRUE(m_host.Lines().empty());
    EXPECT_EQ(m_browser.GetLibraryView(), nullptr);
}

TEST_F(TLibraryBrowserTest, CellsAreHighlightedInTheirLibrary) {
    m_host.AnswerStart("database cells -lcv -library top -count", "2");
    m_host.AnswerStart("database cells -lcv -library top -filter", "{lib inv layout} {lib nand layout}");
    Show({"lib", "other"});
    m_browser.HighlightCellInList("lib", "nand");
    EXPECT_EQ(Selected(), std::vector<std::string>{"lib"});
    EXPECT_EQ(m_browser.GetSelectedCells(), (std::vector<TLibCellView>{{"lib", "nand", "layout"}}));
    EXPECT_TRUE(m_browser.AreAnyCellsSelected());
}

TEST_F(TLibraryBrowserTest, TheExcludedViewsAreASettingWithADefault) {
    EXPECT_EQ(m_browser.GetExcludeViewNames(),
              CString("ads; ARVance_MS; ams; auCdl; auLvs; orvo; orvoD; hspiceD; hspiceS; ivpcell; spectre; "
                      "symbol_xform"));
    m_app.WriteProfileString("LibraryNavigator", "ExcludeViewNames", "");
    EXPECT_TRUE(m_browser.GetExcludeViewNames().IsEmpty()) << "set to nothing is set";
    m_app.WriteProfileString("LibraryNavigator", "ExcludeViewNames", "verst\xC3\xA4rker");
    EXPECT_EQ(CStringU(m_browser.GetExcludeViewNames()), CStringU(u"verst\u00E4rker"))
        << "in the active code page, as other narrow texts";
}
