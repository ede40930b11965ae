/// @file
/// The lines that a command of the cell list becomes, picked from the menu or run by a double click. Nothing
/// is sent here, and nothing is known of menus.
///
/// The surprise: the two ways give different lines for one style. A double click has the design also in the
/// editor mode, encloses the selected cells without an option, and is wrapped for the log whatever it begins
/// with; hosts know both.
#pragma once

#include <set>

#include "vapp/browser/TLibCellView.h"
#include "vapp/browser/TLibraryBrowserTclInterfaceStyle.h"
#include "vapp/text/CStringU.h"

namespace vapp_library_browser {

/// What a command is run on.
struct CellCommandSubject {
    CStringU design;
    bool qedit = false;               ///< the editor mode
    TLibCellView focused;             ///< without a cell where none has the focus
    std::set<TLibCellView> selected;  ///< in the order in which they are told
};

/// The line that a command of the menu sends.
[[nodiscard]] CStringU MakeCellMenuLine(const CStringU& command, TLibraryBrowserTclInterfaceStyle style,
                                        const CellCommandSubject& subject);
/// The line that a double click sends.
[[nodiscard]] CStringU MakeDoubleClickLine(const CStringU& command, TLibraryBrowserTclInterfaceStyle style,
                                           const CellCommandSubject& subject);

}  // namespace vapp_library_browser
