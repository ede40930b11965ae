/// @file
/// How a host's menu command wants its arguments.
#pragma once

#include <cstdint>

namespace vapp_library_browser {

/// What is appended to the text of a menu command before it is sent. The numbers are fixed: hosts keep them.
/// The library list knows the styles 0, 6 and 7 only. It appends nothing to commands of the others and wraps
/// them for the host's log twice. The cell list knows 0 to 5, and takes 6 and 7 as 0.
enum TLibraryBrowserTclInterfaceStyle : std::uint32_t {
    StyleCommandOnly = 0,       ///< in the library list the design
    StyleFocusedLcv = 1,        ///< the focused cell view
    StyleSelectedLcvs = 2,      ///< the selected cell views
    StyleMasterCell = 3,        ///< the focused cell as a master to place
    StyleCellLibraryView = 4,   ///< the focused cell view, cell first
    StyleLibraryCell = 5,       ///< the focused library and cell
    StyleBuiltIn = 6,           ///< the text names an action of the list itself
    StyleSelectedLibraries = 7  ///< the design and the selected libraries
};

}  // namespace vapp_library_browser
