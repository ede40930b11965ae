/// @file
/// The upper-case form of one character: for changing the case of a text, never for comparing.
///
/// The counterpart of FoldChar, by the same rules: ASCII here, everything else is the platform's own mapping,
/// remembered once it has been asked for.
#pragma once

#include <array>
#include <atomic>

#include "text/PlatformText.h"

namespace vapp_text {

/// What the platform answered for each character, 0 where it has not been asked yet.
extern std::array<std::atomic<char16_t>, 0x10000> gUpperAnswers;

/// UpperChar for a character above 0x7F.
[[nodiscard]] inline char16_t UpperHighChar(char16_t c) noexcept {
    std::atomic<char16_t>& answer = gUpperAnswers[c];
    char16_t upper = answer.load(std::memory_order_relaxed);
    if (upper == 0) {
        upper = vapp_platform::UpperCaseChar(c);
        answer.store(upper, std::memory_order_relaxed);
    }
    return upper;
}

/// The upper-case form of one 16-bit character.
[[nodiscard]] inline char16_t UpperChar(char16_t c) noexcept {
    if (c > 0x7F) return UpperHighChar(c);
    const unsigned fromA = static_cast<unsigned>(c) - u'a';
    return static_cast<char16_t>(fromA < 26U ? c - 32U : c);
}

}  // namespace vapp_text
