/// @file
/// Whole menus of both lists as the user sees them, in both modes, with and without a selection, and with
/// names that hold what menus and scripts give a meaning to.
#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "tests/browser/AnsweringWindow.h"
#include "tests/celllist/CellListFixture.h"
#include "tests/toolkit/RecordingPeers.h"
#include "vapp/celllist/TCellListCommand.h"

namespace {

using namespace vapp_library_browser;

void OutlineWhole(const CMenu& menu, const std::string& indent, std::vector<std::string>& lines) {
    for (int position = 0; position < menu.GetItemCount(); ++position) {
        const CMenu::TItem& item = *menu.GetItem(position);
        std::string line = indent;
        if (item.kind == CMenu::TItem::TKind::Separator) {
            line += "-";
        } else {
            line += item.text.Payload();
        }
        if (item.kind == CMenu::TItem::TKind::Command) line += " " + std::to_string(item.id);
        if (!item.isEnabled) line += " [grey]";
        if (item.isChecked) line += " [checked]";
        if (item.isDefault) line += " [default]";
        lines.push_back(line);
        if (item.subMenu) OutlineWhole(*item.subMenu, indent + "  ", lines);
    }
}

class WholeMenus : public CellListFixture {
protected:
    void SetUp() override {
        ShowCells({{"l1", "a", "sym"}, {"l2", "b", "lay"}});
        m_browser.SerializeSetup(false);
        m_host.Answer("database cells -lcv -library top",
                      RecordingHost::List(
                          {RecordingHost::List({"l", "c", "a&b"}), RecordingHost::List({"l", "c", "b c"}),
                           RecordingHost::List({"l", "c", "{x}"}), RecordingHost::List({"l", "c", "[y]"}),
                           RecordingHost::List({"l", "c", "$z"}), RecordingHost::List({"l", "c", "q\""}),
                           RecordingHost::List({"l", "c", "n\nl"})}));
        m_window.answer = [this](UINT message, WPARAM, LPARAM) -> LRESULT {
            if (message == WM_LN_BUILDCELLMENU) FillCellMenu();
            if (message == WM_LN_BUILDLIBRARYMENU) FillLibraryMenu();
            if (message == WM_LN_BUILDTABMENU) FillTabMenu();
            return message == WM_LN_COLCHOOSERSHOWN ? 1 : 0;
        };
        m_peers.pick = [this](const CMenu& menu) {
            OutlineWhole(menu, "  ", m_lines);
            return 0U;
        };
    }
    void FillCellMenu() {
        m_browser.AddCellListMenuCommand("&Open", "open", StyleFocusedLcv, false, false, true);
        m_browser.AddCellListMenuSeparator();
        m_browser.BeginCellListSubmenu("Copy");
        m_browser.AddCellListMenuCommand("Names", "CopySelectedCellNamesToClipboard", StyleCommandOnly, true,
                                         true, false);
        m_browser.AddCellListMenuSeparator();
        m_browser.AddCellListMenuCommand("Names, and more", "copy", StyleSelectedLcvs, false, false, true);
        m_browser.EndCellListSubmenu();
        m_browser.AddCellListMenuCommand("Last", "last", StyleMasterCell, false, true, false);
        m_browser.BeginCellListSubmenu("Never ended");
        m_browser.AddCellListMenuCommand("Lost", "lost", StyleCommandOnly, false, false, false);
    }
    void FillLibraryMenu() {
        m_browser.AddLibraryListMenuCommand("Edit CDF", "Edit CDF", StyleBuiltIn, false, false, true);
        m_browser.BeginLibraryListSubmenu("Order");
        m_browser.AddLibraryListMenuCommand("By name", "Alphabetical", StyleBuiltIn, false, true, false);
        m_browser.AddLibraryListMenuCommand("As told", "LibDefsOrder", StyleBuiltIn, true, false, false);
        m_browser.EndLibraryListSubmenu();
        m_browser.AddLibraryListMenuCommand("Show", "show", StyleSelectedLibraries, false, false, false);
    }
    void FillTabMenu() {
        Cells().AddCellTabsMenuItem("Rename", false);
        Cells().AddCellTabsMenuSeparator();
        Cells().AddCellTabsMenuItem("Keep", true);
    }
    void Take(const char* what, const std::function<void()>& open) {
        m_lines.emplace_back(std::string(what) + ":");
        open();
    }
    void OpenRows() {
        Report().ContextMenuByPeer(Report().ClientToScreen({10, Report().GetHeaderHeight() + 1}));
    }
    void OpenHeader(int position) {
        int left = 1;
        for (int at = 0; at < position; ++at)
            left += Report().GetColumns().GetAt(at)->GetShownWidth();
        Report().ContextMenuByPeer(Report().ClientToScreen({left, 1}));
    }

    RecordingPeers m_peers;
    AnsweringWindow m_window{m_app};
    std::vector<std::string> m_lines;
};

TEST_F(WholeMenus, AreWhatTheGoldenFileSays) {
    Take("rows, nothing selected", [this] { OpenRows(); });
    Report().OnMenuCommand(UseSetup3);
    SelectRow(0);
    SetOptions([](auto& options) {
        options.viewFilter = {"$z", "a&b"};
        options.showHiddenCells = true;
        options.colorReservedCells = false;
    });
    Take("rows, one selected, other options", [this] { OpenRows(); });
    Take("header of the cells", [this] { OpenHeader(0); });
    Take("header of the views", [this] { OpenHeader(1); });
    Take("tab", [this] {
        dynamic_cast<CTabCtrl&>(*Cells().GetDlgItem(TCellListView::cnTabs)).ContextClickedByUser(1, {});
    });
    Take("libraries", [this] { Libraries().GetLibraryListCtrl().ContextMenuByPeer({30, 40}); });
    m_browser.ModifyForQEdit();
    Take("rows, in the schematic editor", [this] { OpenRows(); });
    ExpectGolden("menus.txt", m_lines);
}

}  // namespace
