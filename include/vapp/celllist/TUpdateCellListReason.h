/// @file
/// Why somebody asks for a refresh of the cell list.
#pragma once

namespace vapp_library_browser {

/// Reason of `TCellListView::RequestDelayedPopulate`. Every value but 0 counts alike.
enum TUpdateCellListReason : int {
    UpdateIfFilterSaysSo = 0,  ///< only if the host's `database filter` says that the change matters
    UpdateAlways = 1           ///< in any case
};

}  // namespace vapp_library_browser
