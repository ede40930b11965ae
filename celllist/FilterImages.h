/// @file
/// Numbers of the two images of the button beside the sub-string: an arrow to the past ones while there is
/// nothing to clear, a cross while there is.
#pragma once

#include "vapp/toolkit/BasicTypes.h"

namespace vapp_library_browser {

inline constexpr UINT cnFilterImageEmpty = 562;
inline constexpr UINT cnFilterImageFilled = 564;

}  // namespace vapp_library_browser
