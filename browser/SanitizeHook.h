/// @file
/// The installed sanitise hook, for the two places of this room that apply it.
#pragma once

#include "vapp/text/CStringU.h"

namespace vapp_library_browser {

/// Whether the host has set a hook: without one nothing is copied.
[[nodiscard]] bool HasSanitizeHook() noexcept;

/// What the hook makes of the name. The hook is the host's code: it gets a text of its own, whatever becomes
/// of the caller's meanwhile, and the navigator's panes outlive it.
[[nodiscard]] CStringU CallSanitizeHook(const CStringU& name);

}  // namespace vapp_library_browser
