/// @file
/// What the expansion of texts asks of the platform: the values of environment variables, and which of them
/// are absolute paths.
///
/// Implemented in platform/, over the environment and the world of this process. Not for callers: they expand
/// whole texts (ExpandEnvironment.h).
#pragma once

#include "text/EnvironmentReferences.h"

namespace vapp_platform {

/// The variables of this process as a walk over references asks for them. To be taken anew for each text: it
/// remembers what it was asked, and variables may change between two texts. Nobody may change them meanwhile.
[[nodiscard]] vapp_text::JudgedEnvironmentLookup AskEnvironment();

}  // namespace vapp_platform
