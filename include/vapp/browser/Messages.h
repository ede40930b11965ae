/// @file
/// The messages that the navigator sends to the application's main window, and the document update that it
/// listens to. The host's main window answers them in its WindowProc; an unanswered message counts as 0.
#pragma once

#include <cstdint>

#include "vapp/Export.h"
#include "vapp/toolkit/BasicTypes.h"

namespace vapp_library_browser {

inline constexpr UINT WM_LN_BUILDCELLMENU = 0x8212;     ///< the cell list's menu is about to show
inline constexpr UINT WM_LN_CELLDBLCLK = 0x8213;        ///< a cell was double-clicked
inline constexpr UINT WM_LN_COLCHOOSERSHOWN = 0x8214;   ///< not 0: the column chooser is on the screen
inline constexpr UINT WM_LN_BUILDLIBRARYMENU = 0x8215;  ///< the library list's menu is about to show
inline constexpr UINT WM_LN_BUILDTABMENU = 0x8216;      ///< a tab's menu is about to show
inline constexpr UINT WM_LN_TABMENUPICK = 0x8217;       ///< an item of a tab's menu was picked
inline constexpr UINT WM_LN_HOSTNOTIFY = 0x8218;        ///< the user did something that the host may follow
inline constexpr UINT WM_LN_ISDARKTHEME = 0x8219;       ///< not 0: the dark theme is on

// What WM_LN_HOSTNOTIFY is about, by its wParam.
inline constexpr WPARAM cnNotifyEditCdf = 0;           ///< the user picked "Edit CDF" in the library list
inline constexpr WPARAM cnNotifySelectionChanged = 1;  ///< the cell list's selection is another
/// A text for the host's status line: lParam points to a `const CStringU`, valid during the message; 0 for
/// none any more.
inline constexpr WPARAM cnNotifyStatusText = 2;

/// Hint of CDocument::UpdateAllViews: the selected master of the database has changed.
inline constexpr std::int64_t cnHintSelectedMaster = 110;

/// Background of lists in the dark theme.
inline constexpr COLORREF cnDarkBackground = 0x2D2D2D;

/// Sends a message to the main window and gives its answer; 0 without a main window. The host's code runs in
/// it and may end the navigator's window: the panes outlive the call all the same.
VAPP_EXPORT LRESULT AskMainWindow(UINT message, WPARAM wParam = 0, LPARAM lParam = 0);

/// What the main window answers to WM_LN_ISDARKTHEME; false without a main window.
[[nodiscard]] VAPP_EXPORT bool gIsDarkTheme();

}  // namespace vapp_library_browser
