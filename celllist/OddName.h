/// @file
/// OddName: which names are no proper text, so that sort keys can't stand for comparing them.
///
/// A host may answer any bytes. Keys read a name from its front; the compare functions skip what two texts
/// share and begin to read there. On proper text both see the same characters; on a text that is cut off in
/// the middle of one, they need not.
#pragma once

#include <string_view>

#include "celllist/NameTable.h"

namespace vapp_library_browser {

/// True if the name is more than characters of one to three bytes, each in its shortest form.
[[nodiscard]] bool IsOddName(std::string_view name);
/// True if one of the names is odd. Names in ASCII alone cost one look at their bytes.
[[nodiscard]] bool HasOddName(const NameTable& names);

}  // namespace vapp_library_browser
