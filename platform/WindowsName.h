/// @file
/// How a version of Windows is worded, from the plain numbers that the system gives.
///
/// The surprise: texts are joined as they stand. Where a name ends without a blank and an edition follows,
/// they touch; support reports have always looked so, and whoever searches them counts on it.
#pragma once

#include <cstdint>

#include "vapp/text/CStringU.h"

namespace vapp_platform {

/// What a version of Windows says of itself. The numbers are the system's own.
struct TWindowsFacts {
    /// False where the system gave no version; then only errorText counts.
    bool known = true;
    CStringU errorText;
    /// 2 for every Windows of the NT line.
    std::uint32_t platformId = 2;
    std::uint32_t major = 0;
    std::uint32_t minor = 0;
    std::uint32_t build = 0;
    /// 1 for a workstation.
    std::uint32_t productType = 1;
    /// Masks of the product suites that are there.
    std::uint32_t suites = 0;
    CStringU servicePack;
    /// Of the machine, not of the program: 0 is x86, 6 Itanium, 9 x86-64.
    std::uint32_t architecture = 9;
    /// Not 0 on a second release of Server 2003.
    std::int32_t serverR2 = 0;
    /// See EditionName.
    std::uint32_t productCode = 0;
};

/// The whole text: name, edition, service pack, build, and the width of the machine.
[[nodiscard]] CStringU WindowsName(const TWindowsFacts& facts);

}  // namespace vapp_platform
