/// @file
/// Whether a line is running, for those who must not free what its sender still works with.
#pragma once

namespace vapp_library_browser {

/// True while any line is evaluated in this process.
[[nodiscard]] bool IsLineRunning() noexcept;

}  // namespace vapp_library_browser
