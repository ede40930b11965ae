/// @file
/// Questions to the main window.
#include "vapp/browser/Messages.h"

#include "vapp/toolkit/CWinAppEx.h"
#include "vapp/toolkit/CWnd.h"

namespace vapp_library_browser {

bool gIsDarkTheme() {
    CWnd* window = gGetMainWnd();
    return window != nullptr && window->SendMessage(WM_LN_ISDARKTHEME) != 0;
}

}  // namespace vapp_library_browser
