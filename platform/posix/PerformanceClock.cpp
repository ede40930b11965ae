/// @file
/// The clock that no one sets, in nanoseconds.
#include "platform/PerformanceClock.h"

#include <time.h>

namespace vapp_platform {

namespace {

constexpr std::int64_t cnNanosecondsInSecond = 1'000'000'000;

}  // namespace

std::int64_t PerformanceFrequency() noexcept {
    timespec resolution{};
    return clock_getres(CLOCK_MONOTONIC, &resolution) == 0 ? cnNanosecondsInSecond : 0;
}

std::int64_t PerformanceCounter() noexcept {
    timespec now{};
    if (clock_gettime(CLOCK_MONOTONIC, &now) != 0) return 0;
    return now.tv_sec * cnNanosecondsInSecond + now.tv_nsec;
}

}  // namespace vapp_platform
