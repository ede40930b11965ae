/// @file
/// The user's wording of a text with counts, safe to be filled in.
///
/// A translation comes from a file that others write, and the formatting trusts its format: a conversion too
/// many reads what nobody passed.
#pragma once

#include "vapp/text/CStringU.h"

namespace vapp_library_browser {

/// The translation of a key. If it doesn't have the very conversions of the key, in its order, the key's own
/// text.
[[nodiscard]] CStringU CountFormat(const char* key);

}  // namespace vapp_library_browser
