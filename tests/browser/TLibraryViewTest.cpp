/// @file
/// The library pane as a window: layout, accessors, notifications.
#include "vapp/browser/TLibraryView.h"

#include <gtest/gtest.h>
#include <tcl.h>

#include <cstdlib>
#include <optional>
#include <utility>

#include "tests/browser/NavigatorFixture.h"
#include "tests/browser/TclInterpreter.h"
#include "tests/toolkit/RecordingPeers.h"
#include "vapp/text/Translate.h"

using namespace vapp_library_browser;

class TLibraryViewTest : public NavigatorFixture {};

TEST_F(TLibraryViewTest, TheListIsSetUpOnce) {
    Initialize();
    const TLibraryListCtrl& list = Libraries().GetLibraryListCtrl();
    EXPECT_EQ(list.GetExtendedStyle(), 0x10020u);
    EXPECT_EQ(list.GetColumnCount(), 1);
    EXPECT_EQ(list.GetColumnCaption(0), CString("Library"));
    EXPECT_FALSE(list.AreToolTipsActive()) << "its own tips";
    EXPECT_TRUE(list.AreToolTipsEnabled()) << "ours";
    EXPECT_TRUE(Libraries().AreToolTipsEnabled());
    EXPECT_EQ(list.GetColumnWidth(0), 392 - 4 - 17) << "from the start, without a resize";
}

TEST_F(TLibraryViewTest, TheOrderIsAlphabeticalUnlessTheSettingSaysOtherwise) {
    Initialize();
    EXPECT_TRUE(Libraries().GetAlphabetical());
    EXPECT_TRUE(m_browser.GetAlphabeticalLibraryNames());
}

TEST_F(TLibraryViewTest, TheOrderIsReadFromTheSettings) {
    m_app.WriteProfileString("LibraryNavigator", "LibrariesInLibDefsOrder", "Yes");
    Initialize();
    EXPECT_FALSE(Libraries().GetAlphabetical());
}

TEST_F(TLibraryViewTest, ANewOrderIsWrittenAndAnOldOneIsNot) {
    auto* store = new MemoryProfileStore;
    m_app.SetProfileStore(std::unique_ptr<ProfileStore>(store));
    Initialize();
    const unsigned writes = store->GetWriteCount();
    Libraries().SetAlphabetical(true);
    EXPECT_EQ(store->GetWriteCount(), writes);
    Libraries().SetAlphabetical(false);
    EXPECT_EQ(m_app.GetProfileString("LibraryNavigator", "LibrariesInLibDefsOrder"), CString("true"));
    Libraries().SetAlphabetical(true);
    EXPECT_EQ(m_app.GetProfileString("LibraryNavigator", "LibrariesInLibDefsOrder"), CString("false"));
}

TEST_F(TLibraryViewTest, TheControlsFillThePaneWithinItsMargins) {
    Initialize();
    TLibraryView& view = Libraries();
    view.MoveWindow({0, 0, 300, 400});
    EXPECT_EQ(view.GetDesignCombo().GetRect(), CRect(4, 4, 296, 28));
    const CRect frame = view.GetDlgItem(TLibraryView::cnFrameId)->GetRect();
    EXPECT_EQ(frame, CRect(4, 36, 296, 36 + 400 - 28 - 12));
    EXPECT_EQ(view.GetLibraryListCtrl().GetRect(), CRect(5, 37, 295, frame.bottom - 1));
    EXPECT_EQ(view.GetLibraryListCtrl().GetColumnWidth(0), 292 - 4 - 17);
}

TEST_F(TLibraryViewTest, InTheEditorModeTheFrameTakesThePlaceOfTheCombo) {
    Initialize();
    m_browser.ModifyForQEdit();
    TLibraryView& view = Libraries();
    EXPECT_EQ(view.GetDlgItem(TLibraryView::cnFrameId)->GetRect(), CRect(4, 4, 396, 196)) << "at once";
    view.MoveWindow({0, 0, 300, 400});
    EXPECT_TRUE(view.GetQEdit());
    EXPECT_FALSE(view.GetDesignCombo().IsWindowVisible());
    EXPECT_EQ(view.GetDlgItem(TLibraryView::cnFrameId)->GetRect(), CRect(4, 4, 296, 396));
}

TEST_F(TLibraryViewTest, AWindowTooSmallForItsMarginsKeepsSaneSizes) {
    Initialize();
    for (const CRect& rect :
         {CRect(0, 0, 1, 1), CRect(0, 0, 3, 500), CRect(0, 0, 500, 3), CRect(0, 0, 0, 0)}) {
        Libraries().MoveWindow(rect);
        const CRect list = Libraries().GetLibraryListCtrl().GetRect();
        EXPECT_GE(list.Width(), 0);
        EXPECT_GE(list.Height(), 0);
        EXPECT_GE(Libraries().GetLibraryListCtrl().GetColumnWidth(0), 1);
    }
}

TEST_F(TLibraryViewTest, AMinimisedPaneKeepsItsLayout) {
    struct Opened : TLibraryView {
        using TLibraryView::OnSize;
    };
    Initialize();
    Libraries().MoveWindow({0, 0, 300, 400});
    const CRect list = Libraries().GetLibraryListCtrl().GetRect();
    (Libraries().*(&Opened::OnSize))(cnSizeMinimized, 50, 50);
    EXPECT_EQ(Libraries().GetLibraryListCtrl().GetRect(), list);
    EXPECT_EQ(Libraries().GetDesignCombo().GetRect(), CRect(4, 4, 296, 28));
    (Libraries().*(&Opened::OnSize))(0, 50, 50);
    EXPECT_EQ(Libraries().GetDesignCombo().GetRect(), CRect(4, 4, 46, 28));
}

TEST_F(TLibraryViewTest, AnEmptyListSaysNoDesignsInTheHostsLanguage) {
    Initialize();
    EXPECT_EQ(Libraries().GetLibraryListCtrl().GetEmptyText(), CStringU("No designs"));
    vlang::gSetTranslation("__$$Translatable$$_No designs", "Keine Entw\xC3\xBCrfe");
    EXPECT_EQ(std::string(Libraries().GetLibraryListCtrl().GetEmptyText().PayloadView()),
              "Keine Entw\xC3\xBCrfe");
    vlang::gSetTranslation("__$$Translatable$$_No designs", CString('x', 5000));
    EXPECT_EQ(Libraries().GetLibraryListCtrl().GetEmptyText().GetByteLength(), 2083);
    vlang::gClearTranslations();
}

TEST_F(TLibraryViewTest, OneDesignCountsAsSelectedWhateverTheComboSays) {
    Show({"a"});
    Libraries().GetDesignCombo().SetCurSel(-1);
    EXPECT_EQ(m_browser.GetSelectedDesign(), CStringU("top"));
}

TEST_F(TLibraryViewTest, OfSeveralDesignsTheSelectedOneCounts) {
    Initialize();
    m_host.Answer("database all_libs", "{one {a /a}} {two {b /b}}");
    m_browser.Populate();
    EXPECT_EQ(m_browser.GetSelectedDesign(), CStringU("one"));
    Libraries().GetDesignCombo().SetCurSel(-1);
    EXPECT_TRUE(m_browser.GetSelectedDesign().IsEmpty());
}

TEST_F(TLibraryViewTest, SelectingADesignRefreshesBothListsAtOnce) {
    Initialize();
    m_host.Answer("database all_libs", "{one {a /a}} {two {b /b}}");
    m_browser.Populate();
    m_host.ClearLines();
    m_browser.SetSelectedDesign("two");
    EXPECT_EQ(Shown(), std::vector<std::string>{"b"});
    EXPECT_EQ(m_host.LinesStarting("database cells -lcv -library two").size(), 2u);
    EXPECT_FALSE(Cells().NeedsPopulate());
}

TEST_F(TLibraryViewTest, SelectingTheSelectedOrAnUnknownDesignDoesNothing) {
    Initialize();
    m_host.Answer("database all_libs", "{one {a /a}} {two {b /b}}");
    m_browser.Populate();
    m_host.ClearLines();
    for (const char* name : {"one", "three", "", "TWO"})
        m_browser.SetSelectedDesign(name);
    EXPECT_TRUE(m_host.Lines().empty());
    EXPECT_EQ(m_browser.GetSelectedDesign(), CStringU("one"));
}

TEST_F(TLibraryViewTest, PickingADesignRefreshesBothListsAtOnce) {
    Initialize();
    m_host.Answer("database all_libs", "{one {a /a}} {two {b /b}}");
    m_browser.Populate();
    m_host.ClearLines();
    Libraries().GetDesignCombo().PickedByUser(1);
    EXPECT_EQ(Shown(), std::vector<std::string>{"b"});
    EXPECT_EQ(m_host.LinesStarting("database cells -lcv -library two").size(), 2u);
}

TEST_F(TLibraryViewTest, SelectInLibraryListSelectsThatOneAlone) {
    Show({"a", "b", "c"});
    Libraries().GetLibraryListCtrl().SetItemState(-1, cnListSelected, cnListSelected);
    m_browser.SelectInLibraryList("b");
    EXPECT_EQ(Selected(), std::vector<std::string>{"b"});
    m_browser.SelectInLibraryList("B");
    EXPECT_TRUE(Selected().empty()) << "names go by their bytes here";
    EXPECT_TRUE(m_host.Lines().empty()) << "the cell list waits for the next refresh";
}

TEST_F(TLibraryViewTest, ASelectionOfTheUserMarksTheCellListAndWaits) {
    Show({"a", "b"});
    ASSERT_FALSE(Cells().NeedsPopulate());
    Libraries().GetLibraryListCtrl().ClickedByUser(1, {});
    EXPECT_TRUE(Cells().NeedsPopulate());
    EXPECT_TRUE(m_host.Lines().empty());
    EXPECT_EQ(m_browser.GetFocusedLibrary(), CStringU("b"));
    m_browser.Populate();
    EXPECT_EQ(m_host.LinesStarting("database cells").size(), 2u);
}

TEST_F(TLibraryViewTest, OnlyChangesOfStateMarkTheCellList) {
    Show({"a"});
    NotifyListItem change;
    change.changed = 1;
    EXPECT_EQ(Libraries().OnItemChangedListLibraries(change), 0);
    EXPECT_FALSE(Cells().NeedsPopulate());
    change.changed = cnListChangedState;
    EXPECT_EQ(Libraries().OnItemChangedListLibraries(change), 0);
    EXPECT_TRUE(Cells().NeedsPopulate());
    Cells().SetNeedsPopulate(false);
    Libraries().OnSelchangeListLibraries();
    EXPECT_TRUE(Cells().NeedsPopulate());
    Cells().SetNeedsPopulate(false);
    Libraries().OnEditFilterChange();
    EXPECT_TRUE(Cells().NeedsPopulate());
}

TEST_F(TLibraryViewTest, NamesThatDifferInCaseCountOnceInTheSets) {
    Initialize();
    m_host.Answer("database all_libs", "{top {Lib /1} {lib /2}}");
    m_browser.Populate();
    EXPECT_EQ(Shown().size(), 2u);
    EXPECT_EQ(m_browser.GetAllLibrariesSet().size(), 1u);
    Libraries().GetLibraryListCtrl().SetItemState(-1, cnListSelected, cnListSelected);
    EXPECT_EQ(m_browser.GetSelectedLibrariesSet().size(), 1u);
}

TEST_F(TLibraryViewTest, ThePathOfAnUnknownLibraryIsEmptyAndMakesTheNextRefreshRebuild) {
    Show({"a", "b"});
    EXPECT_EQ(Libraries().GetAbsoluteLibraryPath("b"), CStringU("/b"));
    EXPECT_TRUE(Libraries().GetAbsoluteLibraryPath("gone").IsEmpty());
    Libraries().SetAlphabetical(true);
    ASSERT_FALSE(Cells().NeedsPopulate());
    Libraries().OnSelchangeComboActiveDesign();
    EXPECT_EQ(Shown(), (std::vector<std::string>{"a", "b", "gone"}));
}

TEST_F(TLibraryViewTest, WithoutADesignThereIsNoPath) {
    Initialize();
    EXPECT_TRUE(Libraries().GetAbsoluteLibraryPath("a").IsEmpty());
}

TEST_F(TLibraryViewTest, CommandHandlersAreKeptUntilCleared) {
    Initialize();
    m_browser.SetCommandHandler(41000, "edit", StyleSelectedLibraries);
    EXPECT_EQ(m_browser.GetCommandHandler(41000), std::pair(CStringU("edit"), StyleSelectedLibraries));
    EXPECT_EQ(m_browser.GetCommandHandler(1), std::pair(CStringU(), StyleCommandOnly));
    Libraries().ClearCommandHandlers();
    EXPECT_TRUE(m_browser.GetCommandHandler(41000).first.IsEmpty());
}

TEST_F(TLibraryViewTest, WithNothingOnAScreenTheCursorIsNowhere) {
    Show({"a"});
    EXPECT_FALSE(Libraries().IsCursorOverLibraryList());
}

TEST_F(TLibraryViewTest, AnInterpreterThatEndsIsForgotten) {
    Initialize();
    Tcl_Interp* other = MakeTclInterpreter();
    Libraries().SetTclInterp(other);
    EXPECT_EQ(Libraries().GetTclInterp(), other);
    EndTclInterpreter(other);
    EXPECT_EQ(Libraries().GetTclInterp(), nullptr);
    Refresh();
    EXPECT_TRUE(Libraries().NeedsPopulate());
}

TEST_F(TLibraryViewTest, TheEndOfAReplacedInterpreterMeansNothing) {
    Initialize();
    Tcl_Interp* other = MakeTclInterpreter();
    Libraries().SetTclInterp(other);
    Libraries().SetTclInterp(other);
    Libraries().SetTclInterp(m_host.GetInterp());
    EndTclInterpreter(other);
    EXPECT_EQ(Libraries().GetTclInterp(), m_host.GetInterp());
}

TEST_F(TLibraryViewTest, TheInterpreterMayEndAfterTheView) {
    Tcl_Interp* other = MakeTclInterpreter();
    {
        TLibraryView view;
        view.SetTclInterp(other);
    }
    EndTclInterpreter(other);
}

// In a process of its own, for Tcl ends there.
TEST_F(TLibraryViewTest, TclMayBeFinalizedBeforeTheViewEnds) {
    const auto endTclFirst = [this] {
        {
            std::optional<TLibraryView> view(std::in_place);
            view->SetTclInterp(m_host.GetInterp());
            Tcl_Finalize();
            if (view->GetTclInterp() != nullptr) std::_Exit(1);
            view.reset();
        }
        std::_Exit(0);
    };
    EXPECT_EXIT(endTclFirst(), testing::ExitedWithCode(0), "");
}

TEST_F(TLibraryViewTest, TheCursorIsOverTheListWithinItsLeftAndTopEdgesAlone) {
    RecordingPeers peers;
    Show({"a"});
    m_frame.MoveWindow({100, 50, 500, 990});  // the cursor is told by its place on the screen
    const CRect list = Libraries().GetLibraryListCtrl().GetWindowRect();
    ASSERT_GT(list.Width(), 2);
    ASSERT_GT(list.Height(), 2);
    const std::pair<CPoint, bool> cases[] = {
        {{list.left, list.top}, true},          {{list.right - 1, list.bottom - 1}, true},
        {{list.left + 1, list.top + 1}, true},  {{list.right, list.top + 1}, false},
        {{list.left + 1, list.bottom}, false},  {{list.left - 1, list.top + 1}, false},
        {{list.left + 1, list.top - 1}, false}, {{-10000, 10000}, false},
    };
    for (const auto& [cursor, over] : cases) {
        peers.cursor = cursor;
        EXPECT_EQ(Libraries().IsCursorOverLibraryList(), over) << cursor.x << ", " << cursor.y;
    }
}
