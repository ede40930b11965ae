/// @file
/// Which characters count as blank, in trimming and in front of a number.
///
/// A fixed set, not that of a locale or of a Unicode version: texts trimmed on one machine are compared with
/// texts trimmed on another. The surprises: the no-break space U+00A0 is a character like any other, whereas
/// the zero-width space U+200B and the byte order mark U+FEFF are blank.
#pragma once

namespace vapp_text {

/// True for a blank character: the ASCII space and controls 0x09 to 0x0D, the spaces of the general
/// punctuation block, the wide space of East Asian text and the byte order mark.
[[nodiscard]] constexpr bool IsBlankCharU(char16_t c) noexcept {
    // ASCII is decided first, so that it never pays for the rest.
    if (c < 0x80) return c == 0x20 || (c >= 0x09 && c <= 0x0D);
    return (c >= 0x2000 && c <= 0x200B) || c == 0x202F || c == 0x205F || c == 0x3000 || c == 0xFEFF;
}

}  // namespace vapp_text
