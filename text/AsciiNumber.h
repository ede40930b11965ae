/// @file
/// What all readers of narrow numbers share: white space and signs in the sense of C's plain locale, on any
/// width of character, whatever locale the host has set.
#pragma once

#include <cstdint>

namespace vapp_text {

/// The value of a character of any width, without a sign: narrow high bytes and wide characters alike are
/// above all that numbers are made of.
template <typename Unit>
[[nodiscard]] constexpr std::uint32_t CodeOf(Unit unit) noexcept {
    if constexpr (sizeof(Unit) == 1) {
        return static_cast<unsigned char>(unit);
    } else {
        return static_cast<std::uint32_t>(unit);
    }
}

/// True for a small ASCII letter or its capital.
template <typename Unit>
[[nodiscard]] constexpr bool IsLetterNoCase(Unit unit, char small) noexcept {
    return (CodeOf(unit) | 0x20U) == CodeOf(small);
}

/// The value of an ASCII digit; above 9 for any other character.
template <typename Unit>
[[nodiscard]] constexpr std::uint32_t DigitOf(Unit unit) noexcept {
    return CodeOf(unit) - CodeOf('0');
}

/// Moves over the white space of C: 0x20 and 0x09 to 0x0D.
template <typename Unit>
constexpr void SkipSpaces(const Unit*& walk) noexcept {
    for (;; ++walk) {
        const std::uint32_t code = CodeOf(*walk);
        if (code != 0x20 && (code < 0x09 || code > 0x0D)) return;
    }
}

/// Moves over one sign, if there is one; true for a minus.
template <typename Unit>
constexpr bool SkipSign(const Unit*& walk) noexcept {
    const std::uint32_t code = CodeOf(*walk);
    if (code == CodeOf('-') || code == CodeOf('+')) ++walk;
    return code == CodeOf('-');
}

}  // namespace vapp_text
