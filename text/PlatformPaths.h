/// @file
/// What this library asks of the platform about the paths that people read.
///
/// Implemented in platform/, by the world that the process lives in.
#pragma once

#include "vapp/text/CStringU.h"

namespace vapp_platform {

/// The path with "\" for "/", and where people know it by its Unix name, that one.
[[nodiscard]] CStringU PathForPeople(const CStringU& path);

}  // namespace vapp_platform
