/// @file
/// An environment variable that names a folder, by the rules for desktops (XDG).
#pragma once

#include <string>

namespace vapp_platform {

/// The variable's value if it is an absolute path; the rules ignore any other. NATIVE: bytes.
[[nodiscard]] std::string PathVariable(const char* name);

}  // namespace vapp_platform
