/// @file
/// Integers out of text in any of the world's decimal digits.
///
///     text   = blank* [sign] [prefix] digit*     the rest stays unread
///     blank  = as text/BlankChars.h tells
///     sign   = "+" U+FE62 U+FF0B, and for signed integers all the dashes of IsMinusChar
///     prefix = zeros, in any number, and then "x" "X" U+FF58 U+FF38 or "#": base 16
///     digit  = "0" to "9" or a digit of any block of NormalizeDigit; in base 16 also "a" to "f", in either
///              case, also full-width
///
/// How it differs from strtol: no locale; blanks, dashes and digits of all scripts; "#" and a lone "x" for
/// base 16, never base 8; no saturation: a digit that would overflow ends the number before it, and the value
/// so far is the result. Nothing is an error: text without digits is 0.
///
/// The end position stands behind the last character that was taken, be it a blank, a sign or a prefix: *x*
/// is 0 with the *x* taken, and blanks alone are taken too.
#pragma once

#include <concepts>
#include <cstdint>
#include <limits>
#include <optional>
#include <type_traits>

#include "text/BlankChars.h"
#include "text/Codec.h"
#include "text/NaturalOrder.h"

namespace vapp_text {

/// True for a plus sign, plain, small or full-width.
[[nodiscard]] constexpr bool IsPlusChar(char16_t c) noexcept {
    return c == u'+' || c == 0xFE62 || c == 0xFF0B;
}

/// True for what users type as a minus: hyphens and dashes of several scripts beside the sign itself.
[[nodiscard]] constexpr bool IsMinusChar(char16_t c) noexcept {
    return c == u'-' || c == 0x00AD || c == 0x058A || c == 0x1806 || (c >= 0x2010 && c <= 0x2014) ||
           c == 0x2212 || c == 0xFE63 || c == 0xFF0D;
}

/// True for what switches to base 16.
[[nodiscard]] constexpr bool IsRadixChar(char16_t c) noexcept {
    return c == u'x' || c == u'X' || c == u'#' || c == 0xFF58 || c == 0xFF38;
}

/// The value of a digit in base 10 or 16; nothing for any other character.
[[nodiscard]] constexpr std::optional<unsigned> DigitValueOf(char16_t c, unsigned base) noexcept {
    if (c >= u'0' && c <= u'9') return c - unsigned{u'0'};
    // Below the first block of digits there is nothing to search.
    if (c >= ZeroDigitTable.front() && NormalizeDigit(c)) return c - unsigned{u'0'};
    if (base != 16) return std::nullopt;
    if (c >= 0xFF21 && c <= 0xFF5A) c = static_cast<char16_t>(c + 288);  // full-width letter, around 2^16
    const unsigned letter = (c | 0x20U) - u'a';
    if (letter > 5) return std::nullopt;
    return letter + 10;
}

/// Reads an integer from a payload, from its offset 0. `offset` gets the byte behind the last character
/// taken. Steps go by the look of the bytes, as those of every position do.
template <std::integral Integer>
[[nodiscard]] constexpr Integer CharToInt(const char* payload, std::int64_t& offset) noexcept {
    using TMagnitude = std::make_unsigned_t<Integer>;
    offset = 0;
    char16_t c = PeekChar(payload);
    const auto step = [&] {
        offset = StepForward(payload, offset);
        c = PeekChar(payload + offset);
    };
    while (IsBlankCharU(c))
        step();

    const bool negative = std::is_signed_v<Integer> && IsMinusChar(c);
    if (negative || IsPlusChar(c)) step();

    // The greatest magnitude; that of a negative number is greater by one.
    const auto limit = static_cast<TMagnitude>(static_cast<TMagnitude>(std::numeric_limits<Integer>::max()) +
                                               static_cast<TMagnitude>(negative));
    TMagnitude value = 0;
    unsigned base = 10;
    for (;; step()) {
        if (value == 0 && base == 10 && IsRadixChar(c)) {
            base = 16;
            continue;
        }
        const std::optional<unsigned> digit = DigitValueOf(c, base);
        if (!digit || value > (limit - *digit) / base) break;
        value = static_cast<TMagnitude>(value * base + *digit);
    }
    // Around zero in the unsigned type, so that the least number needs no greater one.
    return static_cast<Integer>(negative ? static_cast<TMagnitude>(0 - value) : value);
}

}  // namespace vapp_text
