/// @file
/// The menu of a tab: its items are all the host's, and their check marks its own affair; the list only tells
/// which one was picked. It then shows that tab, whatever was picked and also if nothing was.
#include "vapp/browser/HostCallScope.h"
#include "vapp/browser/Messages.h"
#include "vapp/celllist/TCellListView.h"
#include "vapp/toolkit/CMenu.h"

namespace vapp_library_browser {

namespace {

// The number of the first item; a separator counts as an item.
constexpr UINT cnFirstTabItem = 101;
constexpr unsigned cnHighWordShift = 16;

// Takes the menu's address back also when an exception of the host ends the block.
class TBuildingScope {
public:
    TBuildingScope(CMenu*& place, CMenu& menu) : m_place(place) { m_place = &menu; }
    TBuildingScope(const TBuildingScope&) = delete;
    TBuildingScope& operator=(const TBuildingScope&) = delete;
    ~TBuildingScope() { m_place = nullptr; }

private:
    CMenu*& m_place;
};

}  // namespace

void TCellListView::AddCellTabsMenuItem(const CString& text, bool checked) {
    if (m_tabsMenu == nullptr) return;
    const UINT id = cnFirstTabItem + static_cast<UINT>(m_tabsMenu->GetItemCount());
    m_tabsMenu->Append(id, CStringU(text));
    m_tabsMenu->Check(id, checked);
}

void TCellListView::AddCellTabsMenuSeparator() {
    if (m_tabsMenu != nullptr) m_tabsMenu->AppendSeparator();
}

void TCellListView::OnTabRClick(int tab, CPoint screen) {
    // One menu at a time; what the host does to the window must leave this pane alive.
    if (m_tabsMenu != nullptr || tab < 0 || tab >= m_tabs.GetItemCount()) return;
    const HostCallScope scope;
    m_tabs.SetCurSel(tab);
    CMenu menu;
    {
        const TBuildingScope building(m_tabsMenu, menu);
        AskMainWindow(WM_LN_BUILDTABMENU, static_cast<WPARAM>(tab));
    }
    if (!IsWindow()) return;
    const UINT picked = menu.Track(*this, screen);
    if (picked >= cnFirstTabItem && IsWindow()) TellTabPick(tab, picked - cnFirstTabItem, menu);
    if (!IsWindow()) return;
    m_report.OnSwitchSetupTab(tab);
    m_report.Populate();
    m_needsPopulate = m_report.IsPopulationPostponed();
}

void TCellListView::TellTabPick(int tab, UINT item, const CMenu& menu) {
    const WPARAM becameChecked = menu.IsChecked(cnFirstTabItem + item) ? 0 : 1;
    AskMainWindow(WM_LN_TABMENUPICK, static_cast<WPARAM>(tab) | becameChecked << cnHighWordShift,
                  static_cast<LPARAM>(item));
}

}  // namespace vapp_library_browser
