/// @file
/// The one case folding of the system, on which every compare and search without regard to case is built.
///
/// For compare, search and sort keys. Not for changing the case of a text that a user will see.
///
/// ASCII is folded here, inline, and never reaches the platform. Everything else is the platform's own
/// lower-case mapping of one character, remembered in a table once it has been asked for: a sort of many
/// non-ASCII names asks the same few characters over and over, and the platform's lookup costs a multiple of
/// the compare that needs it.
///
/// The surprise: folding is one character to one character and always to lower case, so "ß" is not "ss" and
/// a capital "İ" is whatever the platform's single-character mapping says.
#pragma once

#include <array>
#include <atomic>

#include "text/PlatformText.h"

namespace vapp_text {

/// What the platform answered for each character, 0 where it has not been asked yet (only NUL folds to 0).
/// Filled entry by entry; two threads that ask at once store the same answer.
extern std::array<std::atomic<char16_t>, 0x10000> gFoldAnswers;

/// FoldChar for a character above 0x7F.
[[nodiscard]] inline char16_t FoldHighChar(char16_t c) noexcept {
    std::atomic<char16_t>& answer = gFoldAnswers[c];
    char16_t folded = answer.load(std::memory_order_relaxed);
    if (folded == 0) {
        folded = vapp_platform::LowerCaseChar(c);
        answer.store(folded, std::memory_order_relaxed);
    }
    return folded;
}

/// FoldChar for a character of at most 0x7F.
[[nodiscard]] constexpr char16_t FoldAsciiChar(char16_t c) noexcept {
    const unsigned fromA = static_cast<unsigned>(c) - u'A';
    return static_cast<char16_t>(fromA < 26U ? c + 32U : c);
}

/// The folded (lower-case) form of one 16-bit character. 0x80 is the first that the platform is asked for.
[[nodiscard]] inline char16_t FoldChar(char16_t c) noexcept {
    return c <= 0x7F ? FoldAsciiChar(c) : FoldHighChar(c);
}

}  // namespace vapp_text
