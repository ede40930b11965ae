/// @file
/// The build number of a system that is not of the NT line.
#include "platform/VersionNumbers.h"

namespace vapp_platform {

TVersionInfo WithPlainBuildNumber(TVersionInfo version) noexcept {
    constexpr std::uint32_t cnPlatformNt = 2;
    constexpr std::uint32_t cnLowHalf = 0xFFFF;
    if (version.dwPlatformId != cnPlatformNt) version.dwBuildNumber &= cnLowHalf;
    return version;
}

}  // namespace vapp_platform
