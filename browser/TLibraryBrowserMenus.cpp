/// @file
/// The facade's part in the menus of the lists. A host may call these whenever it likes; they count while a
/// list asks it for items.
#include "vapp/browser/TLibraryBrowser.h"
#include "vapp/browser/TLibraryView.h"

namespace vapp_library_browser {

void TLibraryBrowser::AddCellListMenuCommand(const CString& text, const CStringU& command,
                                             TLibraryBrowserTclInterfaceStyle style, bool disabled,
                                             bool checked, bool isDefault) {
    TCellListView* cells = GetCellListView();
    if (cells == nullptr || !cells->GetReport().IsBuildingMenu()) return;
    const UINT id = cells->GetReport().GetNextCellListPopupCmdId();
    cells->GetReport().AddCellListMenuItem(id, text, disabled, checked, isDefault);
    SetCommandHandler(id, command, style);
}

void TLibraryBrowser::AddCellListMenuSeparator() {
    if (TCellListView* cells = GetCellListView()) cells->GetReport().AddCellListMenuSeparator();
}

void TLibraryBrowser::BeginCellListSubmenu(const CString& title) {
    if (TCellListView* cells = GetCellListView()) cells->GetReport().BeginCellListSubmenu(title);
}

void TLibraryBrowser::EndCellListSubmenu() {
    if (TCellListView* cells = GetCellListView()) cells->GetReport().EndCellListSubmenu();
}

void TLibraryBrowser::SetCellListDefaultMenuCommand(const CStringU& command,
                                                    TLibraryBrowserTclInterfaceStyle style) {
    if (TCellListView* cells = GetCellListView())
        cells->GetReport().SetCellListDefaultMenuCommand(command, style);
}

void TLibraryBrowser::AddCellTabsMenuItem(const CString& text, bool checked) {
    if (TCellListView* cells = GetCellListView()) cells->AddCellTabsMenuItem(text, checked);
}

void TLibraryBrowser::AddCellTabsMenuSeparator() {
    if (TCellListView* cells = GetCellListView()) cells->AddCellTabsMenuSeparator();
}

void TLibraryBrowser::AddLibraryListMenuCommand(const CString& text, const CStringU& command,
                                                TLibraryBrowserTclInterfaceStyle style, bool disabled,
                                                bool checked, bool isDefault) {
    TLibraryView* view = GetLibraryView();
    if (view == nullptr || !view->GetLibraryListCtrl().IsBuildingMenu()) return;
    const UINT id = view->GetLibraryListCtrl().GetNextLibraryListPopupCmdId();
    view->GetLibraryListCtrl().AddLibraryListMenuItem(id, text, disabled, checked, isDefault);
    view->SetCommandHandler(id, command, style);
}

void TLibraryBrowser::BeginLibraryListSubmenu(const CString& title) {
    if (TLibraryView* view = GetLibraryView()) view->GetLibraryListCtrl().BeginLibraryListSubmenu(title);
}

void TLibraryBrowser::EndLibraryListSubmenu() {
    if (TLibraryView* view = GetLibraryView()) view->GetLibraryListCtrl().EndLibraryListSubmenu();
}

}  // namespace vapp_library_browser
