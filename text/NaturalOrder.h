/// @file
/// The order of names as people read them: runs of decimal digits, of any of the world's decimal scripts,
/// compare by value, everything else by character.
///
/// For the lists and ordered maps that users see. Not the order of sets and keywords (Compare.h), and not the
/// means to sort very many names or malformed ones: that is NaturalKey.h, whose keys have the same order.
///
/// The order, told as rules:
/// - A text is a sequence of numbers and of characters that are no digits.
/// - A number with more significant digits is greater; at equal length the first differing digit decides.
/// - A difference of characters decides at once; a digit against a character is a difference of characters,
///   after the digit has become its ASCII digit.
/// - With all else equal, the first pair of numbers that differ in their count of leading zeros decides: more
///   zeros are greater. So 0 means that the texts differ at most in the script of their digits (and in case).
///
/// The surprise is `longNumbersFirst` of the form with case: it turns around that longer numbers are greater
/// and the tie-break of the leading zeros, and nothing else; different digits in numbers of equal length and
/// all other differences keep their sense. It is half a reversal on purpose, and stored lists rely on it. The
/// form without case takes the flag too, so that both can be called alike, and ignores it.
///
/// Answers are negative, 0 or positive. All routines are total, also on malformed text, where their answers
/// need not form an order.
#pragma once

#include <algorithm>
#include <array>
#include <cstdint>
#include <string_view>

#include "text/Fold.h"
#include "vapp/text/CStringU.h"

namespace vapp_text {

/// The zero digit of each block of decimal digits above ASCII, ascending.
inline constexpr std::array<char16_t, 30> ZeroDigitTable = {
    0x0660, 0x06F0, 0x07C0, 0x0966, 0x09E6, 0x0A66, 0x0AE6, 0x0B66, 0x0BE6, 0x0C66,
    0x0CE6, 0x0D66, 0x0E50, 0x0ED0, 0x0F20, 0x1040, 0x1090, 0x17E0, 0x1810, 0x1946,
    0x19D0, 0x1B50, 0x1BB0, 0x1C40, 0x1C50, 0xA620, 0xA8D0, 0xA900, 0xAA50, 0xFF10,
};

/// Turns a digit of one of the blocks into the ASCII digit of the same value; any other character (an ASCII
/// digit too) stays, and the answer is false.
[[nodiscard]] constexpr bool NormalizeDigit(char16_t& c) noexcept {
    // The first block whose last digit is not below the character: the only one that can hold it.
    const char16_t* zero = std::lower_bound(ZeroDigitTable.begin(), ZeroDigitTable.end(), c,
                                            [](char16_t z, char16_t wanted) { return z + 9 < wanted; });
    if (zero == ZeroDigitTable.end() || *zero > c) return false;
    c = static_cast<char16_t>(c - *zero + u'0');
    return true;
}

/// A character as the natural order sees it.
struct NaturalChar {
    char16_t m_char = 0;  ///< an ASCII digit where it is a digit; folded where it is none and case is ignored
    bool m_digit = false;  ///< a decimal digit of any script
};

/// Classifies a decoded character. Latin text never reaches the search in the table of digits.
template <bool Fold>
[[nodiscard]] inline NaturalChar ToNaturalChar(char16_t c) noexcept {
    if (c <= u'9' && c >= u'0') return {c, true};
    if (c >= ZeroDigitTable.front() && NormalizeDigit(c)) return {c, true};
    return {Fold ? FoldChar(c) : c, false};
}

/// The natural order of two payloads, with case.
[[nodiscard]] std::int32_t CompareNatural(const char* a, const char* b, bool longNumbersFirst) noexcept;
/// The natural order of two payloads without regard to case.
[[nodiscard]] std::int32_t CompareNaturalNoCase(const char* a, const char* b,
                                                bool longNumbersFirst = false) noexcept;

/// The same for payloads of known length, which are terminated by NUL all the same and hold none: quicker
/// over a common prefix.
[[nodiscard]] std::int32_t CompareNatural(std::string_view a, std::string_view b,
                                          bool longNumbersFirst) noexcept;
[[nodiscard]] std::int32_t CompareNaturalNoCase(std::string_view a, std::string_view b,
                                                bool longNumbersFirst = false) noexcept;

[[nodiscard]] inline std::int32_t CompareNatural(const CStringU& a, const CStringU& b,
                                                 bool longNumbersFirst) noexcept {
    return CompareNatural(a.PayloadView(), b.PayloadView(), longNumbersFirst);
}
[[nodiscard]] inline std::int32_t CompareNaturalNoCase(const CStringU& a, const CStringU& b,
                                                       bool longNumbersFirst) noexcept {
    return CompareNaturalNoCase(a.PayloadView(), b.PayloadView(), longNumbersFirst);
}

// The thin forms, for use as the compare function of a container or a sort.
[[nodiscard]] inline std::int32_t CompareNatural(const CStringU& a, const CStringU& b) noexcept {
    return CompareNatural(a, b, false);
}
[[nodiscard]] inline std::int32_t CompareNaturalLongFirst(const CStringU& a, const CStringU& b) noexcept {
    return CompareNatural(a, b, true);
}
[[nodiscard]] inline std::int32_t CompareNaturalNoCase(const CStringU& a, const CStringU& b) noexcept {
    return CompareNaturalNoCase(a, b, false);
}

}  // namespace vapp_text
