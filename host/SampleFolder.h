/// @file
/// Where the sample design is, which is shown if no folder is named.
#pragma once

#include <filesystem>

namespace navigator {

/// The sample that was installed with the program, found from the program's own folder, so that the installed
/// tree may be moved; where there is none, as in a build folder, the one of the sources.
[[nodiscard]] std::filesystem::path gSampleFolder(const std::filesystem::path& programFolder);

}  // namespace navigator
