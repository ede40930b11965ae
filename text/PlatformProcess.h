/// @file
/// What this library asks of the platform about its own process.
///
/// Implemented once for each system in platform/posix and platform/win32.
#pragma once

namespace vapp_platform {

/// The number by which the system knows this process. Any thread.
[[nodiscard]] unsigned long OwnProcessNumber() noexcept;

}  // namespace vapp_platform
