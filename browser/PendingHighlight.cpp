/// @file
/// The one pending highlight of the process.
#include "vapp/browser/PendingHighlight.h"

namespace vapp_library_browser {

std::unique_ptr<TLibCellView>& gPendingHighlight() {
    static std::unique_ptr<TLibCellView> s_pending;
    return s_pending;
}

}  // namespace vapp_library_browser
