/// @file
/// The border between the library's text and the bytes that Linux passes around: UTF-8 in command lines
/// and environments.
///
/// Bytes that are no UTF-8 cross it unharmed: each such byte is the unit 0xDC00 and the byte, half of a
/// surrogate pair that no text has by itself. NativePath.h does the same for paths, where `\` means `/` and
/// an escaped backslash is a real one.
#pragma once

#include <string>
#include <string_view>

#include "vapp/text/CStringU.h"

namespace vapp_platform {

/// UTF-16 as bytes: pairs become one four-byte character, halves that stand for a byte become that byte.
[[nodiscard]] std::string NativeFromUtf16(std::u16string_view text);
/// A text as bytes.
[[nodiscard]] std::string NativeText(const CStringU& text);
/// The same for text in `wchar_t`, one unit or one whole character each.
[[nodiscard]] std::string NativeFromWide(std::wstring_view text);
/// The inverse, one whole character or one stray byte each.
[[nodiscard]] std::wstring WideFromNative(std::string_view bytes);
/// The inverse as a text.
[[nodiscard]] CStringU TextFromNative(std::string_view bytes);

}  // namespace vapp_platform
