/// @file
/// NATIVE: the texts of the library's box are UTF-8, those of the system's box are in its code page.
#pragma once

#include "vapp/text/CString.h"
#include "vapp/text/CStringU.h"

namespace vapp_platform {

/// A text (UTF-8) as the system's box takes it.
[[nodiscard]] CString BoxText(const char* text);

}  // namespace vapp_platform
