/// @file
/// Corrections to the numbers of a version as the system gives them.
#pragma once

#include "vapp/platform/SystemStructs.h"

namespace vapp_platform {

/// The old line of Windows keeps its version again in the high half of the build number; only the NT line
/// (platform 2) has a build that may need it.
[[nodiscard]] TVersionInfo WithPlainBuildNumber(TVersionInfo version) noexcept;

}  // namespace vapp_platform
