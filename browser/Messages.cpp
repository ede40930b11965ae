/// @file
/// Questions to the main window.
#include "vapp/browser/Messages.h"

#include "browser/MainWindow.h"

namespace vapp_library_browser {

bool gIsDarkTheme() {
    return AskMainWindow(WM_LN_ISDARKTHEME) != 0;
}

}  // namespace vapp_library_browser
