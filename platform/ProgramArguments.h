/// @file
/// The words with which this program was started, asked of the system: an application object is made before,
/// or without, a main function that would hand them over.
#pragma once

#include <vector>

#include "vapp/text/CStringU.h"

namespace vapp_platform {

/// The words behind the program's name; none where the system doesn't tell them. On Linux they are
/// UTF-8, whatever the locale, and bytes that are none come back as they were in names of files and in words
/// for children (posix/NativeText.h). Implemented once for each system.
[[nodiscard]] std::vector<CStringU> ProgramArguments();

}  // namespace vapp_platform
