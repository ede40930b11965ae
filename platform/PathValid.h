/// @file
/// Whether a text can be a path at all, by its characters; nothing is looked up.
///
/// The surprise: in the world of Wine, and for Unix paths, the first part may hold anything; and a relative
/// path of Windows gets no test of its first part either.
#pragma once

#include "platform/PathRules.h"

namespace vapp_platform {

/// False for a path without a part, with an empty part behind its first character, with a part behind the
/// first one that holds one of " * ? < > | : or, on Windows, with a drive of another form than "X:".
[[nodiscard]] bool IsValidPath(const CStringU& path, World world);

}  // namespace vapp_platform
