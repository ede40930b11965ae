/// @file
/// The facade's part in the menus of the lists. A host may call these whenever it likes; they count while a
/// list asks it for items of its own, and no list does so yet.
#include "vapp/browser/TLibraryBrowser.h"

namespace vapp_library_browser {

void TLibraryBrowser::AddCellListMenuCommand(const CString& /*text*/, const CStringU& /*command*/,
                                             TLibraryBrowserTclInterfaceStyle /*style*/, bool /*disabled*/,
                                             bool /*checked*/, bool /*isDefault*/) {}

void TLibraryBrowser::AddCellListMenuSeparator() {}

void TLibraryBrowser::BeginCellListSubmenu(const CString& /*title*/) {}

void TLibraryBrowser::EndCellListSubmenu() {}

void TLibraryBrowser::SetCellListDefaultMenuCommand(const CStringU& /*command*/,
                                                    TLibraryBrowserTclInterfaceStyle /*style*/) {}

void TLibraryBrowser::AddCellTabsMenuItem(const CString& /*text*/, bool /*checked*/) {}

void TLibraryBrowser::AddCellTabsMenuSeparator() {}

void TLibraryBrowser::AddLibraryListMenuCommand(const CString& /*text*/, const CStringU& /*command*/,
                                                TLibraryBrowserTclInterfaceStyle /*style*/, bool /*disabled*/,
                                                bool /*checked*/, bool /*isDefault*/) {}

void TLibraryBrowser::BeginLibraryListSubmenu(const CString& /*title*/) {}

void TLibraryBrowser::EndLibraryListSubmenu() {}

}  // namespace vapp_library_browser
