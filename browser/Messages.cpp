/// @file
/// Questions to the main window, each of them a call of the host.
#include "vapp/browser/Messages.h"

#include "vapp/browser/HostCallScope.h"
#include "vapp/toolkit/CWinAppEx.h"
#include "vapp/toolkit/CWnd.h"

namespace vapp_library_browser {

LRESULT AskMainWindow(UINT message, WPARAM wParam, LPARAM lParam) {
    CWnd* window = gGetMainWnd();
    const HostCallScope scope;
    return window != nullptr ? window->SendMessage(message, wParam, lParam) : 0;
}

bool gIsDarkTheme() {
    return AskMainWindow(WM_LN_ISDARKTHEME) != 0;
}

}  // namespace vapp_library_browser
