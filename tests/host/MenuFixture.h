#pragma once
/// A navigator without a screen on a small design, and a user of its menus: what each menu shows is noted,
/// and one of its items is picked.

#include <gmock/gmock.h>

#include <optional>
#include <string>
#include <vector>

#include "host/Navigator.h"
#include "host/NavigatorApp.h"
#include "tests/host/TempFolder.h"
#include "tests/toolkit/RecordingPeers.h"
#include "vapp/browser/TLibraryView.h"
#include "vapp/celllist/TCellListView.h"
#include "vapp/text/ActiveCodePage.h"
#include "vapp/toolkit/CTabCtrl.h"

namespace navigator_test {

class MenuFixture : public testing::Test {
protected:
    void SetUp() override {
        gSetActiveCodePage(cnUtf8CodePage);
        m_peers.pick = [this](const CMenu& menu) { return Look(menu); };
        m_folder.Write("lib/a.sym", "v {}\n");
        m_folder.Write("lib/a.sch", SchematicOf("b", "other/c"));
        m_folder.Write("lib/b.sym", "v {}\n");
        m_folder.Write("other/c.sym", "v {}\n");
        m_navigator.emplace(m_app);
    }
    void TearDown() override {
        m_navigator.reset();
        gSetActiveCodePage(0);
    }
    /// Opens the folder in a window and fills the lists: rows a schematic, a symbol, b symbol, c symbol.
    void Start() {
        ASSERT_FALSE(m_navigator->OpenFolder(m_folder.Path()));
        m_design = m_navigator->Store().Designs().front().name;
        m_navigator->CreateWindow(600, 800, false);
        m_navigator->LoadSetup();
        m_navigator->ShowLastView();
    }

    std::string Answer(const std::string& line) {
        const int code = Tcl_EvalEx(m_navigator->Interp(), line.c_str(), -1, TCL_EVAL_GLOBAL);
        const std::string result = Tcl_GetStringResult(m_navigator->Interp());
        return code == TCL_OK ? result : "ERROR: " + result;
    }

    /// Opens a menu and picks the item with that text; an empty one picks none.
    void PickFromCells(const std::string& text) {
        m_wanted = text;
        m_seen.clear();
        auto& report = m_navigator->Browser().GetCellListView()->GetReport();
        report.ContextMenuByPeer(report.ClientToScreen({10, report.GetHeaderHeight() + 1}));
    }
    void PickFromLibraries(const std::string& text) {
        m_wanted = text;
        m_seen.clear();
        auto& list = m_navigator->Browser().GetLibraryView()->GetLibraryListCtrl();
        list.ContextMenuByPeer(list.ClientToScreen({1, 1}));
    }
    void PickFromTab(int tab, const std::string& text) {
        m_wanted = text;
        m_seen.clear();
        Tabs().ContextClickedByUser(tab, {1, 1});
    }
    CTabCtrl& Tabs() {
        using vapp_library_browser::TCellListView;
        return dynamic_cast<CTabCtrl&>(
            *m_navigator->Browser().GetCellListView()->GetDlgItem(TCellListView::cnTabs));
    }
    void SelectRows(int first, int last) {
        auto& report = m_navigator->Browser().GetCellListView()->GetReport();
        report.ClickedByUser(first, {});
        for (int row = first + 1; row <= last; ++row)
            report.ClickedByUser(row, {.control = true});
    }

    /// The lines and sentences of the log.
    [[nodiscard]] std::vector<std::string> Log() {
        std::vector<std::string> texts;
        for (const auto& entry : m_navigator->Commands().Log().Entries())
            texts.push_back(entry.text);
        return texts;
    }

    TempFolder m_folder;
    RecordingPeers m_peers;
    navigator::NavigatorApp m_app;
    std::optional<navigator::Navigator> m_navigator;
    std::string m_design;
    /// The items of the last menu: titles of sub-menus in front, " *" checked, " -" greyed, " !" default.
    std::vector<std::string> m_seen;

private:
    UINT Look(const CMenu& menu, const std::string& above = {}) {
        UINT picked = 0;
        for (int place = 0; place < menu.GetItemCount(); ++place) {
            const CMenu::TItem& item = *menu.GetItem(place);
            if (item.kind == CMenu::TItem::TKind::Separator) m_seen.push_back(above + "--");
            if (item.subMenu) {
                const UINT below = Look(*item.subMenu, above + item.text.Payload() + ">");
                picked = below != 0 ? below : picked;
            }
            if (item.kind != CMenu::TItem::TKind::Command) continue;
            m_seen.push_back(above + item.text.Payload() + (item.isChecked ? " *" : "") +
                             (item.isEnabled ? "" : " -") + (item.isDefault ? " !" : ""));
            if (item.text == m_wanted.c_str() && item.isEnabled) picked = item.id;
        }
        return picked;
    }

    std::string m_wanted;
};

}  // namespace navigator_test
