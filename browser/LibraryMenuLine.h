/// @file
/// The line that a command of the library list's menu becomes. It sends nothing, and knows neither the menu
/// nor the actions of the list itself (a built-in text comes here only if it names none of them).
///
/// Two surprises. The names of the selected libraries don't go through the hook: they stand in quotes, and a
/// host that has names with a quote or a bracket sees them as Tcl does. And a style that is none of this
/// list's is wrapped for the log twice, so that the host is told to log a logging: hosts know it.
#pragma once

#include <optional>
#include <set>

#include "vapp/browser/TLibraryBrowserTclInterfaceStyle.h"
#include "vapp/text/CStringIU.h"
#include "vapp/text/CStringU.h"

namespace vapp_library_browser {

/// The line to send, or nothing: for an empty text, and outside of the editor mode for a style that appends
/// the design while there is none.
/// @param qedit      the editor mode, in which no design is appended
/// @param libraries  the selected ones
[[nodiscard]] std::optional<CStringU> MakeLibraryMenuLine(const CStringU& text,
                                                          TLibraryBrowserTclInterfaceStyle style, bool qedit,
                                                          const CStringU& design,
                                                          const std::set<CStringIU>& libraries);

}  // namespace vapp_library_browser
