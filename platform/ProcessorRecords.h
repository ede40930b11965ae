/// @file
/// The system's own list of cores and packages. Implemented once for each system.
#pragma once

#include <optional>
#include <vector>

#include "platform/ProcessorCounts.h"

namespace vapp_platform {

/// The processors that are in use; nullopt where the system doesn't tell.
[[nodiscard]] std::optional<std::vector<TProcessorRecord>> ReadProcessorRecords() noexcept;

}  // namespace vapp_platform
