/// @file
/// The installed sanitise hook, for the two places of this room that apply it.
#pragma once

#include "vapp/text/CStringU.h"

namespace vapp_library_browser {

using TSanitizeHook = CStringU (*)(const CStringU&);

/// The hook, or null.
[[nodiscard]] TSanitizeHook GetSanitizeHook() noexcept;

}  // namespace vapp_library_browser
