/// @file
/// The system's performance counter.
#include "platform/PerformanceClock.h"

#include <windows.h>

namespace vapp_platform {

std::int64_t PerformanceFrequency() noexcept {
    LARGE_INTEGER frequency{};
    return QueryPerformanceFrequency(&frequency) != 0 ? frequency.QuadPart : 0;
}

std::int64_t PerformanceCounter() noexcept {
    LARGE_INTEGER counter{};
    return QueryPerformanceCounter(&counter) != 0 ? counter.QuadPart : 0;
}

}  // namespace vapp_platform
