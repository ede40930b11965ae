/// @file
/// The pending highlight: the cell view that the database selected last, until a refresh shows it.
///
/// One for the process, because there is one selected master in the database. The library pane sets it when
/// the selected master has changed; the next population of the cell list takes it away. Anyone who runs host
/// script between looking and using must copy it first: the script may replace it.
#pragma once

#include <memory>

#include "vapp/Export.h"
#include "vapp/browser/TLibCellView.h"

namespace vapp_library_browser {

/// The one pending highlight; null for none. Window thread only.
[[nodiscard]] VAPP_EXPORT std::unique_ptr<TLibCellView>& gPendingHighlight();

}  // namespace vapp_library_browser
