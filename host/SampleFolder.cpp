/// @file
/// Two places, both set by the build.
#include "host/SampleFolder.h"

#include <system_error>

namespace navigator {

std::filesystem::path gSampleFolder(const std::filesystem::path& programFolder) {
    const std::filesystem::path installed =
        (programFolder / NAVIGATOR_SAMPLE_FROM_PROGRAM).lexically_normal();
    std::error_code error;
    return std::filesystem::is_directory(installed, error) ? installed
                                                           : std::filesystem::path(NAVIGATOR_SAMPLE_SOURCE);
}

}  // namespace navigator
