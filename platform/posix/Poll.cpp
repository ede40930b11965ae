/// @file
/// The end of the wait is a point in time; each interruption waits for what is left.
#include "platform/posix/Poll.h"

#include <algorithm>
#include <cerrno>
#include <cstdint>
#include <limits>

namespace vapp_platform {

namespace {

using Clock = std::chrono::steady_clock;

int MillisecondsTo(Clock::time_point end) {
    const auto left = std::chrono::ceil<std::chrono::milliseconds>(end - Clock::now()).count();
    return static_cast<int>(std::clamp<std::int64_t>(left, 0, std::numeric_limits<int>::max()));
}

}  // namespace

int PollFor(std::span<pollfd> descriptors, std::optional<std::chrono::milliseconds> limit) {
    const Clock::time_point end = Clock::now() + limit.value_or(std::chrono::milliseconds(0));
    while (true) {
        const int milliseconds = limit ? MillisecondsTo(end) : -1;
        const int result = poll(descriptors.data(), descriptors.size(), milliseconds);
        if (result >= 0 || errno != EINTR) return result;
    }
}

}  // namespace vapp_platform
