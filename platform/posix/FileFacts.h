/// @file
/// What stat tells, in the terms of FileSystem.h.
#pragma once

#include <sys/types.h>

#include <cstdint>
#include <ctime>

namespace vapp_platform {

/// The attributes of a file mode.
[[nodiscard]] unsigned AttributesOf(mode_t mode) noexcept;

/// A time as units of 100 ns since 1601, cut to what the unsigned number can hold: 0 for anything before.
[[nodiscard]] std::uint64_t FileTimeOf(const timespec& time) noexcept;

}  // namespace vapp_platform
