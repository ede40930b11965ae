#include <gtest/gtest.h>

#include <algorithm>
#include <memory>

#include "tests/browser/AnsweringWindow.h"
#include "tests/celllist/CellListFixture.h"
#include "tests/toolkit/RecordingPeers.h"
#include "text/PlatformClipboard.h"
#include "toolkit/MemoryClipboard.h"
#include "vapp/browser/TclBridge.h"
#include "vapp/celllist/TCellListCommand.h"
#include "vapp/toolkit/Clipboard.h"

namespace {

using namespace vapp_library_browser;
using TSentLines = std::vector<std::string>;

class CellCommandsTest : public CellListFixture {
protected:
    void SetUp() override {
        ShowCells({{"l1", "a", "sym"}, {"l2", "A", "lay"}, {"l1", "b", "sch"}});
        m_host.Answer("database cells -lcv -library top", "{l1 a sym} {l2 A lay} {l1 b sch}");
        m_host.AddCommand("act");
        m_window.answer = [this](UINT message, WPARAM, LPARAM) -> LRESULT {
            m_messages.push_back(message);
            if (message == WM_LN_BUILDCELLMENU && m_fill) m_fill();
            if (message == WM_LN_CELLDBLCLK && m_doubleClicked) m_doubleClicked();
            return message == WM_LN_COLCHOOSERSHOWN && m_chooserShown ? 1 : 0;
        };
        m_peers.pick = [this](const CMenu& menu) {
            ++m_shown;
            if (m_look) m_look(menu);
            return m_pick;
        };
        m_host.ClearLines();
    }
    void RightClick() {
        Report().ContextMenuByPeer(Report().ClientToScreen({10, Report().GetHeaderHeight() + 1}));
    }
    // What is sent, beside questions, when the user picks the host's one command.
    TSentLines PickCommand(const char* command, TLibraryBrowserTclInterfaceStyle style) {
        m_fill = [=, this] { m_browser.AddCellListMenuCommand("Act", command, style, false, false, false); };
        m_pick = FirstHostCommand;
        m_host.ClearLines();
        RightClick();
        return Sent();
    }
    [[nodiscard]] TSentLines Sent() {
        TSentLines sent;
        for (const std::string& line : m_host.Lines()) {
            if (!line.starts_with("database ")) sent.push_back(line);
        }
        return sent;
    }
    [[nodiscard]] CPoint PointInRow(int row) {
        return {10, Report().GetHeaderHeight() + row * Report().GetRowHeight() + 1};
    }
    // Rows are shown as A lay, a sym, b sch.
    void FocusRow(int row) { Report().ClickedByUser(row, {}); }
    [[nodiscard]] bool Heard(UINT message) const {
        return std::find(m_messages.begin(), m_messages.end(), message) != m_messages.end();
    }

    RecordingPeers m_peers;
    AnsweringWindow m_window{m_app};
    std::function<void()> m_fill;
    std::function<void()> m_doubleClicked;
    std::function<void(const CMenu&)> m_look;
    std::vector<UINT> m_messages;
    UINT m_pick = 0;
    int m_shown = 0;
    bool m_chooserShown = false;
};

// --- The menu ----------------------------------------------------------------------------------------------

TEST_F(CellCommandsTest, TheHostsItemsComeAheadOfTheFixedOnes) {
    m_fill = [this] {
        m_browser.AddCellListMenuCommand("Open", "open", StyleFocusedLcv, false, false, true);
        m_browser.AddCellListMenuSeparator();
        m_browser.BeginCellListSubmenu("More");
        m_browser.AddCellListMenuCommand("Copy", "copy", StyleCommandOnly, true, true, false);
        m_browser.EndCellListSubmenu();
    };
    m_look = [](const CMenu& menu) {
        ASSERT_GE(menu.GetItemCount(), 4);
        EXPECT_EQ(menu.GetItem(0)->id, 41000u);
        EXPECT_TRUE(menu.GetItem(0)->isDefault);
        EXPECT_EQ(menu.GetItem(1)->kind, CMenu::TItem::TKind::Separator);
        EXPECT_EQ(menu.GetItem(2)->text, "More");
        const CMenu::TItem& copy = *menu.GetSubMenu(2)->GetItem(0);
        EXPECT_EQ(copy.id, 41001u);
        EXPECT_FALSE(copy.isEnabled);
        EXPECT_TRUE(copy.isChecked);
        EXPECT_EQ(menu.GetItem(3)->id, SelectHierarchy);
    };
    RightClick();
    EXPECT_EQ(m_shown, 1);
}

TEST_F(CellCommandsTest, TheHostsHandlersAreForgottenBeforeEachMenu) {
    m_browser.SetCommandHandler(SelectHierarchy, "act", StyleCommandOnly);
    m_pick = SelectHierarchy;
    RightClick();
    EXPECT_EQ(Sent(), TSentLines());
    ASSERT_EQ(m_peers.boxes.size(), 1u);
    EXPECT_EQ(m_peers.boxes[0].GetTitle(), "tool");
    EXPECT_EQ(m_peers.boxes[0].GetText(), "Not yet implemented.");
    m_fill = [this] { m_browser.SetCommandHandler(SelectHierarchy, "act", StyleCommandOnly); };
    RightClick();
    EXPECT_EQ(Sent(), TSentLines{"logaction act"});
    m_pick = ColumnChooser;
    RightClick();
    EXPECT_EQ(m_peers.boxes.size(), 2u) << "the column chooser is the host's too";
}

TEST_F(CellCommandsTest, ChecksTheColumnChooserAsTheHostAnswers) {
    for (const bool shown : {false, true}) {
        m_chooserShown = shown;
        m_look = [shown](const CMenu& menu) { EXPECT_EQ(menu.IsChecked(ColumnChooser), shown); };
        RightClick();
    }
    EXPECT_EQ(m_shown, 2);
}

// The list looks up its own items by number when it greys and checks them.
TEST_F(CellCommandsTest, AHostsItemWithAFixedNumberStaysAsTheHostMadeIt) {
    m_chooserShown = true;
    for (const bool isSchematicEditor : {false, true}) {
        if (isSchematicEditor) m_browser.ModifyForQEdit();
        SetOptions([](TReport::TOptions& options) { options.showHiddenCells = true; });
        m_fill = [this] {
            for (const UINT id : {UINT{SelectAll}, UINT{ShowHiddenCells}})
                Report().AddCellListMenuItem(id, "mine", false, false, false);
            m_browser.BeginCellListSubmenu("More");
            Report().AddCellListMenuItem(ColumnChooser, "mine", true, false, false);
            m_browser.EndCellListSubmenu();
        };
        m_look = [isSchematicEditor](const CMenu& menu) {
            EXPECT_TRUE(menu.GetItem(0)->isEnabled) << "though nothing is selected";
            EXPECT_FALSE(menu.GetItem(1)->isChecked) << "though hidden cells are shown";
            EXPECT_FALSE(menu.GetSubMenu(2)->GetItem(0)->isChecked) << "though the chooser is shown";
            EXPECT_FALSE(menu.IsEnabled(SelectAll));
            EXPECT_EQ(menu.IsChecked(ShowHiddenCells), !isSchematicEditor);
            EXPECT_TRUE(menu.IsChecked(ColumnChooser));
        };
        Report().GetSelectedRows().Clear();
        RightClick();
    }
    EXPECT_EQ(m_shown, 2);
}

TEST_F(CellCommandsTest, AHostsNumbersMayReachIntoThoseOfViewNames) {
    m_fill = [this] {
        Report().AddCellListMenuItem(43001, "mine", false, false, false);
        m_browser.SetCommandHandler(43001, "act", StyleCommandOnly);
    };
    m_pick = 43001;
    RightClick();
    EXPECT_EQ(Sent(), TSentLines{"logaction act"});
    EXPECT_TRUE(Report().GetOptions().viewFilter.empty());
}

TEST_F(CellCommandsTest, ItemsOutsideOfTheBuildingDoNothing) {
    m_browser.AddCellListMenuCommand("early", "act", StyleCommandOnly, false, false, false);
    m_browser.BeginCellListSubmenu("early");
    m_browser.AddCellListMenuSeparator();
    m_browser.EndCellListSubmenu();
    EXPECT_TRUE(m_browser.GetCommandHandler(0).first.IsEmpty());
    m_look = [this](const CMenu& menu) {
        m_browser.AddCellListMenuCommand("late", "act", StyleCommandOnly, false, false, false);
        EXPECT_EQ(menu.GetItem(0)->id, SelectHierarchy);
    };
    RightClick();
    EXPECT_EQ(m_shown, 1);
}

TEST_F(CellCommandsTest, AMenuThatIsAskedForWhileOneIsFilledIsNotShown) {
    m_fill = [this] { RightClick(); };
    RightClick();
    EXPECT_EQ(m_shown, 1);
}

// --- What is sent ------------------------------------------------------------------------------------------

TEST_F(CellCommandsTest, TheFocusedAndTheSelectedCellsGoIntoTheLine) {
    FocusRow(1);
    Report().GetSelectedRows().AddBlock(0, 0);
    EXPECT_EQ(PickCommand("act", StyleFocusedLcv), TSentLines{"logaction act top l1 a sym"});
    EXPECT_EQ(PickCommand("act", StyleSelectedLcvs),
              TSentLines{"logaction act top -lcvs { \"l2 A lay\"  \"l1 a sym\" }"});
    EXPECT_EQ(PickCommand("librarynavigator act", StyleLibraryCell), TSentLines{"librarynavigator act l1 a"});
    m_browser.ModifyForQEdit();
    EXPECT_EQ(PickCommand("act", StyleFocusedLcv), TSentLines{"logaction act l1 a sym"});
}

TEST_F(CellCommandsTest, ALineLeavesTheHostsResultAlone) {
    m_host.SetResult("mine");
    m_host.AnswerStart("logaction", "other");
    PickCommand("act", StyleCommandOnly);
    EXPECT_EQ(m_host.GetResult(), "mine");
}

TEST_F(CellCommandsTest, AFailedLineIsNotReported) {
    EXPECT_EQ(PickCommand("act", StyleCommandOnly), TSentLines{"logaction act"}) << "which has no answer";
    EXPECT_TRUE(m_peers.boxes.empty());
}

// --- The clipboard -----------------------------------------------------------------------------------------

TEST_F(CellCommandsTest, ClipboardWordsCopyInPlaceOfALine) {
    if (!SetClipboardText("before")) GTEST_SKIP() << "no clipboard can be opened here";
    const auto copied = [this](const char* word) {
        EXPECT_EQ(PickCommand(word, StyleSelectedLcvs), TSentLines()) << word;
        return std::string(GetClipboardText().Payload());
    };
    Report().GetSelectedRows().Clear();
    EXPECT_EQ(copied("CopySelectedCellNamesToClipboard"), "before");
    EXPECT_EQ(copied("CopySelectedCellViewsToClipboard"), "before");
    Report().GetSelectedRows().AddBlock(2, 2);
    Report().GetSelectedRows().AddBlock(0, 0);
    EXPECT_EQ(copied("CopySelectedCellNamesToClipboard"), "A\nb\n");
    EXPECT_EQ(copied("CopySelectedCellViewsToClipboard"), "l2 A lay\nl1 b sch\n");
    EXPECT_EQ(copied("CopyAllCellNamesToClipboard"), "A\r\na\r\nb\r\n");
    EXPECT_EQ(copied("CopyAllCellViewsToClipboard"), "l2 A lay\r\nl1 a sym\r\nl1 b sch\r\n");
    EXPECT_EQ(PickCommand("copyAllCellViewsToClipboard", StyleCommandOnly),
              TSentLines{"logaction copyAllCellViewsToClipboard"})
        << "the words are exact";
}

// Some programs know the system's code page alone: they get all names, and none of the selected ones.
TEST_F(CellCommandsTest, TheSelectedNamesAreCopiedAsUnicodeAlone) {
    if (vapp_platform::HasSystemClipboard()) GTEST_SKIP() << "the system has a clipboard of its own";
    MemoryClipboard clipboard;
    m_peers.clipboard = &clipboard;
    Report().OnSelectAll();
    struct Case {
        const char* word;
        const char16_t* text;
        const char* narrow;
    };
    for (const Case& test : {Case{"CopySelectedCellNamesToClipboard", u"A\na\nb\n", ""},
                             Case{"CopySelectedCellViewsToClipboard", u"l2 A lay\nl1 a sym\nl1 b sch\n", ""},
                             Case{"CopyAllCellNamesToClipboard", u"A\r\na\r\nb\r\n", "A\r\na\r\nb\r\n"},
                             Case{"CopyAllCellViewsToClipboard", u"l2 A lay\r\nl1 a sym\r\nl1 b sch\r\n",
                                  "l2 A lay\r\nl1 a sym\r\nl1 b sch\r\n"}}) {
        PickCommand(test.word, StyleCommandOnly);
        EXPECT_EQ(clipboard.GetText(), test.text) << test.word;
        EXPECT_EQ(clipboard.GetNarrowText(), test.narrow) << test.word;
    }
}

TEST_F(CellCommandsTest, CopyingAllOfAnEmptyListEmptiesTheClipboard) {
    if (!SetClipboardText("before")) GTEST_SKIP() << "no clipboard can be opened here";
    AnswerCells({});
    Repopulate();
    PickCommand("CopyAllCellNamesToClipboard", StyleCommandOnly);
    EXPECT_EQ(GetClipboardText(), "");
}

// --- The double click --------------------------------------------------------------------------------------

TEST_F(CellCommandsTest, ADoubleClickOnTheFocusedRowTellsTheHostAndRunsItsDefaultCommand) {
    FocusRow(1);
    m_host.ClearLines();
    Report().DoubleClickedByUser(PointInRow(1));
    EXPECT_TRUE(Heard(WM_LN_CELLDBLCLK));
    EXPECT_EQ(Sent(), TSentLines()) << "no default command";
    m_browser.ModifyForQEdit();
    m_browser.SetCellListDefaultMenuCommand("librarynavigator act", StyleFocusedLcv);
    Report().DoubleClickedByUser(PointInRow(1));
    EXPECT_EQ(Sent(), TSentLines{"logaction librarynavigator act top l1 a sym"});
}

TEST_F(CellCommandsTest, ADoubleClickOnAnotherRowOrTheHeaderDoesNothing) {
    FocusRow(1);
    m_browser.SetCellListDefaultMenuCommand("act", StyleFocusedLcv);
    Type("a");
    m_messages.clear();
    m_host.ClearLines();
    Report().DoubleClickedByUser(PointInRow(0));
    Report().DoubleClickedByUser({10, 1});
    EXPECT_FALSE(Heard(WM_LN_CELLDBLCLK));
    EXPECT_EQ(Sent(), TSentLines());
    EXPECT_EQ(FilterEdit().GetWindowText(), "a");
    Report().DoubleClickedByUser(PointInRow(3));
    EXPECT_EQ(FilterEdit().GetWindowText(), "") << "below the rows, the sub-string goes";
}

TEST_F(CellCommandsTest, TheHostMaySetTheDefaultCommandWhileItIsTold) {
    FocusRow(0);
    m_doubleClicked = [this] { m_browser.SetCellListDefaultMenuCommand("act", StyleCellLibraryView); };
    m_host.ClearLines();
    Report().DoubleClickedByUser(PointInRow(0));
    EXPECT_EQ(Sent(), TSentLines{"logaction act A l2 lay"});
}

// --- Hosts that do much ------------------------------------------------------------------------------------

TEST_F(CellCommandsTest, SurvivesTheEndOfTheWindowAtEveryStep) {
    enum { Building, Chooser, Open, Running, DoubleClick, cnSteps };
    for (int step = 0; step < cnSteps; ++step) {
        SCOPED_TRACE(step);
        const auto end = [&](int at) {
            if (at == step) m_browser.DestroyWindow();
        };
        AnsweringWindow window(m_app);
        window.answer = [&](UINT message, WPARAM, LPARAM) -> LRESULT {
            if (message == WM_LN_BUILDCELLMENU) {
                m_browser.AddCellListMenuCommand("Act", "act", StyleFocusedLcv, false, false, false);
                end(Building);
            }
            if (message == WM_LN_COLCHOOSERSHOWN) end(Chooser);
            if (message == WM_LN_CELLDBLCLK) end(DoubleClick);
            return 0;
        };
        m_look = [&](const CMenu&) { end(Open); };
        m_host.Handle("logaction act top l2 A lay", [&](Tcl_Interp*) {
            end(Running);
            return 0;
        });
        FocusRow(0);
        m_browser.SetCellListDefaultMenuCommand("act", StyleCommandOnly);
        m_pick = FirstHostCommand;
        if (step == DoubleClick) {
            Report().DoubleClickedByUser(PointInRow(0));
        } else {
            RightClick();
        }
        ASSERT_FALSE(m_browser.IsWindow());
        ShowCells({{"l1", "a", "sym"}, {"l2", "A", "lay"}, {"l1", "b", "sch"}});
    }
}

TEST_F(CellCommandsTest, SurvivesAHookThatEndsTheWindow) {
    static TLibraryBrowser* s_browser = nullptr;
    static int s_calls = 0;
    s_browser = &m_browser;
    s_calls = 0;
    FocusRow(0);
    const HookGuard hook(nullptr);
    m_look = [](const CMenu&) {
        vapp::gSetTclSanitizeInputUPointer([](const CStringU& name) {
            ++s_calls;
            s_browser->DestroyWindow();
            return name;
        });
    };
    EXPECT_EQ(PickCommand("act", StyleFocusedLcv), TSentLines{"logaction act top l2 A lay"})
        << "what was picked is done; the names were read before";
    EXPECT_GE(s_calls, 1);
    EXPECT_FALSE(m_browser.IsWindow());
}

TEST_F(CellCommandsTest, SurvivesTheEndOfTheWindowWhileTheMenuOfAHeaderIsOpen) {
    m_look = [this](const CMenu&) { m_browser.DestroyWindow(); };
    m_pick = FirstViewName;
    int left = 1;
    for (int at = 0; Report().GetColumns().GetAt(at) != &Column("View"); ++at)
        left += Report().GetColumns().GetAt(at)->GetShownWidth();
    Report().ContextMenuByPeer(Report().ClientToScreen({left, 1}));
    EXPECT_EQ(m_shown, 1);
    EXPECT_FALSE(m_browser.IsWindow());
    EXPECT_TRUE(m_host.LinesStarting(csCount).empty()) << "and nothing was fetched";
}

TEST_F(CellCommandsTest, RowsThatAreGoneAreNotAmongTheSelectedCells) {
    Report().OnSelectAll();
    m_host.AnswerCode(csCount, 1);
    m_host.HandleStart(csList, [](Tcl_Interp*) { return 1; });
    Repopulate();
    ASSERT_EQ(Report().GetCellViewCount(), 0u);
    Report().GetSelectedRows().AddBlock(0, 0);
    EXPECT_EQ(PickCommand("act", StyleSelectedLcvs), TSentLines{"logaction act top -lcvs {}"});
    if (!SetClipboardText("before")) GTEST_SKIP() << "no clipboard can be opened here";
    PickCommand("CopySelectedCellNamesToClipboard", StyleCommandOnly);
    PickCommand("CopySelectedCellViewsToClipboard", StyleCommandOnly);
    EXPECT_EQ(GetClipboardText(), "before");
}

TEST_F(CellCommandsTest, TheHeaderOfAHostsOwnColumnHasNoMenuAndIsNoEmptyPlace) {
    CXTPReportControl& report = Report();
    CXTPReportColumn* column = report.AddColumn(std::make_unique<CXTPReportColumn>(90, "Own", "Own", 60));
    ASSERT_NE(column, nullptr);
    int left = 1;
    for (int at = 0; report.GetColumns().GetAt(at) != column; ++at)
        left += report.GetColumns().GetAt(at)->GetShownWidth();
    Report().ContextMenuByPeer(Report().ClientToScreen({left, 1}));
    EXPECT_EQ(m_shown, 0);
    Type("a");
    Report().DoubleClickedByUser({left, 1});
    EXPECT_EQ(FilterEdit().GetWindowText(), "a");
}

TEST_F(CellCommandsTest, AMenuWithinAnOpenMenuTakesItsHandlers) {
    int depth = 0;
    m_fill = [&] {
        m_browser.AddCellListMenuCommand("Act", depth == 0 ? "outer" : "inner", StyleCommandOnly, false,
                                         false, false);
    };
    m_look = [&](const CMenu&) {
        if (depth++ > 0) return;
        m_pick = 0;
        RightClick();
        m_pick = FirstHostCommand;
    };
    RightClick();
    EXPECT_EQ(m_shown, 2);
    EXPECT_EQ(Sent(), TSentLines{"logaction inner"}) << "handlers are one map, which each menu begins anew";
}

TEST_F(CellCommandsTest, AMenuItemMayStartAPopulation) {
    FocusRow(0);
    m_host.Handle("logaction act", [this](Tcl_Interp*) {
        Repopulate();
        return 0;
    });
    m_fill = [this] { Repopulate(); };
    m_look = [this](const CMenu&) { Repopulate(); };
    RightClick();
    EXPECT_EQ(PickCommand("act", StyleCommandOnly).size(), 3u)
        << "the line, and a preview for each population";
    EXPECT_EQ(Rows().size(), 3u);
}

}  // namespace
