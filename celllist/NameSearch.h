/// @file
/// Looks for a text in all names of a table at once.
///
/// The names of a table stand behind one another, so that one search over all bytes does the work of one for
/// each name. That holds for ASCII, where bytes are characters; whatever isn't is left to who asks, who has
/// the rules for it.
#pragma once

#include <string_view>
#include <vector>

#include "celllist/NameTable.h"

namespace vapp_library_browser {

/// Whether a name holds the text.
enum class NameAnswer : signed char { Unknown = -1, No = 0, Yes = 1 };

/// The answer for each name, by number: Unknown for all of them if the text is not ASCII or empty, and for
/// those names that are not ASCII. Without `caseSensitive` letters count in either case.
[[nodiscard]] std::vector<NameAnswer> SearchNames(const NameTable& names, std::string_view text,
                                                  bool caseSensitive);

}  // namespace vapp_library_browser
