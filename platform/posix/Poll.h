/// @file
/// Waiting for descriptors with a limit that interruptions do not stretch.
#pragma once

#include <poll.h>

#include <chrono>
#include <optional>
#include <span>

namespace vapp_platform {

/// What poll says: the number of descriptors with news, 0 when the limit is over, -1 with errno. Without a
/// limit it waits for ever. Signals don't count.
int PollFor(std::span<pollfd> descriptors, std::optional<std::chrono::milliseconds> limit);

}  // namespace vapp_platform
