/// @file
/// The system's finest clock that never goes backward, for measuring durations. Implemented once for each
/// system.
#pragma once

#include <cstdint>

namespace vapp_platform {

/// Ticks of the counter in a second; 0 where there is no such counter.
[[nodiscard]] std::int64_t PerformanceFrequency() noexcept;

/// The counter, from a beginning that means nothing.
[[nodiscard]] std::int64_t PerformanceCounter() noexcept;

}  // namespace vapp_platform
