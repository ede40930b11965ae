/// @file
/// The fixed items of the cell list's menu, as they stand before anybody checks, greys or adds any.
#pragma once

#include <memory>

#include "vapp/celllist/TCellListCommand.h"
#include "vapp/toolkit/CMenu.h"

namespace vapp_library_browser {

/// A menu of its own for each showing. The sub-menu of the view names holds one item that stands for them.
[[nodiscard]] std::unique_ptr<CMenu> MakeCellMenu();

}  // namespace vapp_library_browser
