/// @file
/// The border between paths as text and paths as Linux keeps them: bytes.
///
/// A name on Linux is any bytes; text is 16-bit units. So that every name comes back to the very same bytes:
/// - Names are UTF-8, whatever the locale: two users of one folder must see the same names.
/// - A byte that isn't UTF-8 becomes the lone half of a surrogate pair, U+DC00 + byte. No valid name has one,
///   and it stays what it is while the text goes through UTF-16, as normalising a path does.
/// - A `\` in a name becomes U+DC5C in the same way, since `\` in a path is a separator.
/// - On the way out every `\` becomes `/`. Bytes that are no UTF-8, put into a text by other means, go out as
///   they are.
#pragma once

#include <string>
#include <string_view>

#include "vapp/text/CStringU.h"

namespace vapp_platform {

/// NATIVE: a path as text, as the bytes for a system call.
[[nodiscard]] std::string ToNativePath(const CStringU& path);

/// NATIVE: a name or path from a system call, as text.
[[nodiscard]] CStringU FromNativePath(std::string_view bytes);

}  // namespace vapp_platform
