/// @file
/// What the navigator asks the application's main window.
#pragma once

#include "vapp/toolkit/BasicTypes.h"

namespace vapp_library_browser {

/// Sends a message to the main window and gives its answer; 0 without a main window. The host's code runs in
/// it and may end the navigator's window: the panes outlive the call all the same.
LRESULT AskMainWindow(UINT message, WPARAM wParam = 0);

}  // namespace vapp_library_browser
