/// @file
/// What an edition of Windows is called, by the code that the system gives it.
///
/// The texts go into logs and support reports. Eighteen editions have words; the others carry the name of the
/// system's own constant, so that a report names them exactly. Codes that came later are told as numbers.
#pragma once

#include <cstdint>

#include "vapp/text/CStringU.h"

namespace vapp_platform {

/// The text of an edition; "(Unknown product type: %d)" with the code where there is none.
[[nodiscard]] CStringU EditionName(std::uint32_t productCode);

}  // namespace vapp_platform
