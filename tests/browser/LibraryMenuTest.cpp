#include <gtest/gtest.h>

#include "tests/browser/AnsweringWindow.h"
#include "tests/browser/NavigatorFixture.h"
#include "tests/toolkit/RecordingPeers.h"
#include "text/PlatformClipboard.h"
#include "toolkit/MemoryClipboard.h"
#include "vapp/toolkit/Clipboard.h"

namespace {

using namespace vapp_library_browser;
using TLibraryLines = std::vector<std::string>;

class LibraryMenuTest : public NavigatorFixture {
protected:
    void SetUp() override {
        Show({"std", "io"});
        m_window.answer = [this](UINT message, WPARAM wParam, LPARAM lParam) -> LRESULT {
            if (message == WM_LN_BUILDLIBRARYMENU && m_fill) m_fill();
            if (message == WM_LN_HOSTNOTIFY) m_notes.emplace_back(wParam, lParam);
            return 0;
        };
        m_peers.pick = [this](const CMenu& menu) {
            ++m_shown;
            if (m_look) m_look(menu);
            return m_pick;
        };
    }
    void RightClick() { Libraries().GetLibraryListCtrl().ContextMenuByPeer({30, 40}); }
    TLibraryLines Pick(const char* command, TLibraryBrowserTclInterfaceStyle style) {
        m_fill = [=, this] {
            m_browser.AddLibraryListMenuCommand("Act", command, style, false, false, false);
        };
        m_pick = 0xA0F0;
        m_host.ClearLines();
        m_notes.clear();
        RightClick();
        return m_host.Lines();
    }

    RecordingPeers m_peers;
    AnsweringWindow m_window{m_app};
    std::function<void()> m_fill;
    std::function<void(const CMenu&)> m_look;
    std::vector<std::pair<WPARAM, LPARAM>> m_notes;
    UINT m_pick = 0;
    int m_shown = 0;
};

TEST_F(LibraryMenuTest, IsWhatTheHostMakesIt) {
    m_fill = [this] {
        m_browser.AddLibraryListMenuCommand("Open", "open", StyleCommandOnly, false, true, true);
        m_browser.BeginLibraryListSubmenu("More");
        m_browser.AddLibraryListMenuCommand("Close", "close", StyleCommandOnly, true, false, false);
        m_browser.EndLibraryListSubmenu();
        m_browser.AddLibraryListMenuCommand("Last", "last", StyleCommandOnly, false, false, false);
        EXPECT_EQ(Libraries().GetLibraryListCtrl().GetNextLibraryListPopupCmdId(), 0xA0F3u);
    };
    m_look = [](const CMenu& menu) {
        ASSERT_EQ(menu.GetItemCount(), 3);
        EXPECT_EQ(menu.GetItem(0)->id, 0xA0F0u);
        EXPECT_TRUE(menu.GetItem(0)->isDefault);
        EXPECT_TRUE(menu.GetItem(0)->isChecked);
        EXPECT_EQ(menu.GetItem(1)->text, "More");
        EXPECT_FALSE(menu.GetSubMenu(1)->GetItem(0)->isEnabled);
        EXPECT_EQ(menu.GetItem(2)->id, 0xA0F2u);
    };
    RightClick();
    EXPECT_EQ(m_shown, 1);
    EXPECT_EQ(m_peers.menuPoint, CPoint(30, 40));
    EXPECT_EQ(m_host.Lines(), TLibraryLines()) << "nothing was picked";
}

TEST_F(LibraryMenuTest, SendsTheLineOfTheStyle) {
    EXPECT_EQ(Pick("act", StyleCommandOnly), TLibraryLines{"logaction act top"});
    EXPECT_EQ(Pick("act", StyleFocusedLcv), TLibraryLines{"logaction logaction act"});
    EXPECT_EQ(Pick("librarynavigator act", StyleBuiltIn), TLibraryLines{"librarynavigator act"});
    EXPECT_EQ(Pick("", StyleCommandOnly), TLibraryLines());
    Select("io");
    EXPECT_EQ(Pick("act", StyleSelectedLibraries), TLibraryLines{"logaction act top -libraries { \"io\" }"});
    m_browser.ModifyForQEdit();
    EXPECT_EQ(Pick("act", StyleCommandOnly), TLibraryLines{"logaction act"});
}

TEST_F(LibraryMenuTest, AnUnselectedListSendsCommandAndDesignOnly) {
    EXPECT_EQ(Pick("act", StyleSelectedLibraries), TLibraryLines{"logaction act top"});
}

TEST_F(LibraryMenuTest, EditCdfTellsTheHostAndSendsNoTcl) {
    for (const char* text : {"Edit CDF", "eDIT cdf"}) {
        EXPECT_EQ(Pick(text, StyleBuiltIn), TLibraryLines());
        using TNote = std::pair<WPARAM, LPARAM>;
        EXPECT_EQ(m_notes, (std::vector<TNote>{{0, 0}}));
    }
    EXPECT_EQ(Pick("Edit CDF", StyleCommandOnly), TLibraryLines{"logaction Edit CDF top"});
    EXPECT_TRUE(m_notes.empty()) << "only a built-in one";
}

TEST_F(LibraryMenuTest, CopiesTheSelectedNamesInTheOrderOfTheSet) {
    if (!SetClipboardText("before")) GTEST_SKIP() << "no clipboard can be opened here";
    Libraries().GetLibraryListCtrl().SetItemState(-1, cnListSelected, cnListSelected);
    EXPECT_EQ(Pick("copynamestoclipboard", StyleBuiltIn), TLibraryLines());
    EXPECT_EQ(GetClipboardText(), "io\r\nstd\r\n");
}

TEST_F(LibraryMenuTest, TheOrderOfTheListIsPickedAndShownWhenTheHostIsIdle) {
    EXPECT_EQ(Pick("libdefsorder", StyleBuiltIn), TLibraryLines());
    EXPECT_FALSE(m_browser.GetAlphabeticalLibraryNames());
    EXPECT_TRUE(Libraries().NeedsPopulate());
    m_browser.Populate();
    EXPECT_EQ(Shown(), (TLibraryLines{"std", "io"}));
    EXPECT_EQ(Pick("Alphabetical", StyleBuiltIn), TLibraryLines());
    m_browser.Populate();
    EXPECT_EQ(Shown(), (TLibraryLines{"io", "std"}));
}

TEST_F(LibraryMenuTest, HandlersOfAnEarlierMenuStay) {
    Pick("act", StyleCommandOnly);
    m_fill = [this] {
        Libraries().GetLibraryListCtrl().AddLibraryListMenuItem(0xA0F0, "bare", false, false, false);
    };
    m_host.ClearLines();
    RightClick();
    EXPECT_EQ(m_host.Lines(), TLibraryLines{"logaction act top"});
}

TEST_F(LibraryMenuTest, ItemsOutsideOfTheBuildingDoNothing) {
    const auto add = [this] {
        m_browser.AddLibraryListMenuCommand("x", "act", StyleCommandOnly, false, false, false);
        m_browser.BeginLibraryListSubmenu("x");
        m_browser.EndLibraryListSubmenu();
    };
    add();
    m_look = [&](const CMenu& menu) {
        add();
        EXPECT_EQ(menu.GetItemCount(), 1);
    };
    m_fill = [this] {
        RightClick();  // one menu at a time
        m_browser.AddLibraryListMenuCommand("x", "act", StyleCommandOnly, false, false, false);
    };
    RightClick();
    EXPECT_EQ(m_shown, 1);
    EXPECT_EQ(m_host.Lines(), TLibraryLines());
}

TEST_F(LibraryMenuTest, SurvivesTheEndOfTheWindowWhileItIsFilledShownOrRun) {
    for (int step = 0; step < 3; ++step) {
        SCOPED_TRACE(step);
        m_pick = 0xA0F0;
        m_fill = [&] {
            m_browser.AddLibraryListMenuCommand("x", "act", StyleCommandOnly, false, false, false);
            if (step == 0) m_browser.DestroyWindow();
        };
        m_look = [&](const CMenu&) {
            if (step == 1) m_browser.DestroyWindow();
        };
        m_host.Handle("logaction act top", [&](Tcl_Interp*) {
            m_browser.DestroyWindow();
            return 0;
        });
        RightClick();
        ASSERT_FALSE(m_browser.IsWindow());
        Show({"std", "io"});
    }
}

TEST_F(LibraryMenuTest, NamesAreCopiedInBothForms) {
    if (vapp_platform::HasSystemClipboard()) GTEST_SKIP() << "the system has a clipboard of its own";
    MemoryClipboard clipboard;
    m_peers.clipboard = &clipboard;
    Select("io");
    EXPECT_EQ(Pick("CopyNamestoClipboard", StyleBuiltIn), TLibraryLines());
    EXPECT_EQ(clipboard.GetText(), u"io\r\n");
    EXPECT_EQ(clipboard.GetNarrowText(), "io\r\n");
    Libraries().GetLibraryListCtrl().SetItemState(0, 0, cnListSelected);
    Libraries().GetLibraryListCtrl().SetItemState(1, 0, cnListSelected);
    ASSERT_TRUE(Selected().empty());
    Pick("CopyNamestoClipboard", StyleBuiltIn);
    EXPECT_EQ(clipboard.GetText(), u"") << "no names are copied as well";
}

// The handlers of both lists are one map: the 201st command of the cell list has the number of this list's
// first.
TEST_F(LibraryMenuTest, AnItemWithoutAHandlerMayRunACommandOfTheCellList) {
    m_browser.SetCommandHandler(41200, "cell command", StyleCommandOnly);
    m_fill = [this] {
        Libraries().GetLibraryListCtrl().AddLibraryListMenuItem(0xA0F0, "x", false, false, false);
    };
    m_pick = 0xA0F0;
    static_assert(0xA0F0 == 41200);
    m_host.ClearLines();
    RightClick();
    EXPECT_EQ(m_host.Lines(), TLibraryLines{"logaction cell command top"});
}

}  // namespace
