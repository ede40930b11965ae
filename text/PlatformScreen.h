/// @file
/// What this library asks of the platform about how it shows windows.
///
/// Implemented in platform/, by the world that the process lives in.
#pragma once

namespace vapp_platform {

/// Whether a window that is moved brings along the pixels of its old place, also those of others that stood
/// in its way, so that it must be painted whole.
[[nodiscard]] bool MovedWindowsKeepOldPixels() noexcept;

}  // namespace vapp_platform
