/// @file
/// The one case folding of the system, on which every compare and search without regard to case is built.
///
/// For compare, search and sort keys. Not for changing the case of a text that a user will see.
///
/// ASCII is folded here, inline, and never reaches the platform. Everything else is the platform's own
/// lower-case mapping of one character, remembered once it has been asked for.
///
/// The surprise: folding is one character to one character and always to lower case, so "ß" is not "ss" and
/// a capital "İ" is whatever the platform's single-character mapping says.
#pragma once

#include "text/CaseAnswers.h"
#include "text/PlatformText.h"

namespace vapp_text {

/// The lower-case forms of characters above 0x7F.
extern CaseAnswers<vapp_platform::LowerCaseChar> gFoldAnswers;

/// FoldChar for a character of at most 0x7F.
[[nodiscard]] constexpr char16_t FoldAsciiChar(char16_t c) noexcept {
    const unsigned fromA = static_cast<unsigned>(c) - u'A';
    return static_cast<char16_t>(fromA < 26U ? c + 32U : c);
}

/// The bit that makes the small letter of an ASCII letter's capital; 0 for any other byte. No byte that isn't
/// the letter becomes the small one by it.
[[nodiscard]] constexpr char AsciiCaseBit(char byte) noexcept {
    const char small = static_cast<char>(byte | 0x20);
    return small >= 'a' && small <= 'z' ? '\x20' : '\0';
}

/// The folded (lower-case) form of one 16-bit character. 0x80 is the first that the platform is asked for.
[[nodiscard]] inline char16_t FoldChar(char16_t c) noexcept {
    return c <= 0x7F ? FoldAsciiChar(c) : gFoldAnswers.For(c);
}

}  // namespace vapp_text
