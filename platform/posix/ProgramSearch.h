/// @file
/// Where the program of a command line can be.
#pragma once

#include <string>
#include <vector>

namespace vapp_platform {

/// The paths to try, in order: the program itself if a separator is in it, otherwise its name in each folder
/// of PATH. With `absolute` none depends on the working folder.
[[nodiscard]] std::vector<std::string> ProgramPaths(const std::string& program, bool absolute);

}  // namespace vapp_platform
