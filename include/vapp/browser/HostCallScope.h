/// @file
/// Whether a line is running, for those who must not free what its sender still works with.
#pragma once

#include "vapp/Export.h"

namespace vapp_library_browser {

/// True while any line is evaluated in this process, or any `HostCallScope` lives.
[[nodiscard]] VAPP_EXPORT bool IsLineRunning() noexcept;

/// Counts as a running line while it lives: for work that calls functions of the host without a line around
/// them, such as the sanitise hook, the text of a column, or the question for the theme.
class VAPP_EXPORT HostCallScope {
public:
    HostCallScope() noexcept;
    HostCallScope(const HostCallScope&) = delete;
    HostCallScope& operator=(const HostCallScope&) = delete;
    ~HostCallScope();
};

}  // namespace vapp_library_browser
