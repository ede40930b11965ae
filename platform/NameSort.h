/// @file
/// Sorts names of files as people read them: the natural order without regard to case, by bytes among equals,
/// so that the answer is the same at each run. For lists of any length and of any bytes.
#pragma once

#include <vector>

#include "vapp/text/CStringU.h"

namespace vapp_platform {

void SortNames(std::vector<CStringU>& names);

}  // namespace vapp_platform
