/// @file
/// The unit suffixes that may stand behind a number, in their two readings.
///
/// For reading only: what is written stands with FormatEngineering, and is less (nothing writes "%", "ft" or
/// "mi"). Letters are ASCII letters; no locale has a say in their case.
///
///     both readings, in any case:   %  1e-2    x  1e6    meg  1e6    ft  0.305    mi  2.54e-05
///     SPICE, in any case:           a f p n u m    1e-18 to 1e-3        k g t      1e3, 1e9, 1e12
///     SI, case as it stands:        y z a p m M P Z Y                   1e-24 to 1e24
///     SI, in any case:              f n u k g t e
///
/// The surprises: a foot is 0.305 and not 0.3048, and "mi" is a thousandth of an inch, so that the "l" of
/// "mil" stays unread. Files that are in use were read with these factors; others would move their geometry.
/// A lone "M" is milli to SPICE and mega to SI.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

#include "text/AsciiNumber.h"

namespace vapp_text {

/// What a suffix does to a number; length 0 where there is none.
struct TEngineeringSuffix {
    int exponent = 0;     ///< of ten, added to the number's own
    int length = 0;       ///< characters
    double factor = 1.0;  ///< applied before the power of ten
};

namespace suffix_detail {

struct TLetter {
    char letter;
    std::int16_t exponent;
};

inline constexpr TLetter cnSpice[] = {
    {'%', -2}, {'a', -18}, {'f', -15}, {'g', 9},  {'k', 3}, {'m', -3},
    {'n', -9}, {'p', -12}, {'t', 12},  {'u', -6}, {'x', 6},
};

inline constexpr TLetter cnSi[] = {
    {'%', -2}, {'x', 6},  {'X', 6},   {'Y', 24},  {'Z', 21},  {'E', 18},  {'e', 18},  {'P', 15},  {'T', 12},
    {'t', 12}, {'G', 9},  {'g', 9},   {'M', 6},   {'K', 3},   {'k', 3},   {'m', -3},  {'U', -6},  {'u', -6},
    {'N', -9}, {'n', -9}, {'p', -12}, {'F', -15}, {'f', -15}, {'a', -18}, {'z', -21}, {'y', -24},
};

/// Exponents by character; 0, which no single letter has, is no suffix.
using TExponents = std::array<std::int16_t, 128>;

constexpr TExponents MakeSpice() noexcept {
    TExponents exponents{};
    for (const TLetter& row : cnSpice) {
        const std::size_t code = CodeOf(row.letter);
        exponents[code] = row.exponent;
        if (row.letter >= 'a') exponents[code - 0x20] = row.exponent;
    }
    return exponents;
}

constexpr TExponents MakeSi() noexcept {
    TExponents exponents{};
    for (const TLetter& row : cnSi)
        exponents[CodeOf(row.letter)] = row.exponent;
    return exponents;
}

inline constexpr TExponents cnExponents[] = {MakeSpice(), MakeSi()};

}  // namespace suffix_detail

/// The suffix at `text`, which ends with a NUL.
template <typename Unit>
[[nodiscard]] constexpr TEngineeringSuffix FindEngineeringSuffix(const Unit* text, bool siSuffix) noexcept {
    const std::uint32_t code = CodeOf(*text);
    if (code >= suffix_detail::TExponents().size()) return {};
    const int exponent = suffix_detail::cnExponents[siSuffix ? 1 : 0][code];
    if (exponent == 0) return {};
    // Words begin with letters that are suffixes themselves, in both readings.
    if (IsLetterNoCase(*text, 'f') && IsLetterNoCase(text[1], 't')) return {0, 2, 0.305};
    if (IsLetterNoCase(*text, 'm')) {
        if (IsLetterNoCase(text[1], 'i')) return {0, 2, 2.54e-05};
        if (IsLetterNoCase(text[1], 'e') && IsLetterNoCase(text[2], 'g')) return {6, 3, 1.0};
    }
    return {exponent, 1, 1.0};
}

}  // namespace vapp_text
