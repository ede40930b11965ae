/// Numbers by std::from_chars, which knows no locale, with what strtod has and it has not: white space, plus
/// signs, the prefix of hexadecimal numbers, and a value for what is out of range.

#include "text/ReadDouble.h"

#include <algorithm>
#include <cerrno>
#include <charconv>
#include <cstdint>
#include <cstring>
#include <limits>
#include <string_view>

#include "text/AsciiNumber.h"

namespace vapp_text {

namespace {

bool IsHexDigit(char c) noexcept {
    return DigitOf(c) <= 9 || ((CodeOf(c) | 0x20U) >= CodeOf('a') && (CodeOf(c) | 0x20U) <= CodeOf('f'));
}

/// "0x" is a prefix only with a number behind it, otherwise a zero and a letter that stays unread.
bool IsHexadecimal(const char* walk) noexcept {
    if (walk[0] != '0' || !IsLetterNoCase(walk[1], 'x')) return false;
    return IsHexDigit(walk[2]) || (walk[2] == '.' && IsHexDigit(walk[3]));
}

/// The end of a hexadecimal number. from_chars of some standard libraries takes two signs in its exponent, so
/// it is not given more than the number.
const char* EndOfHexadecimal(const char* walk) noexcept {
    while (IsHexDigit(*walk))
        ++walk;
    if (*walk == '.') ++walk;
    while (IsHexDigit(*walk))
        ++walk;
    if (!IsLetterNoCase(*walk, 'p')) return walk;
    const char* exponent = walk + 1;
    SkipSign(exponent);
    if (DigitOf(*exponent) > 9) return walk;
    while (DigitOf(*exponent) <= 9)
        ++exponent;
    return exponent;
}

/// The exponent that is written behind the mantissa, cut where it exceeds all counts of digits.
std::int64_t WrittenExponent(std::string_view number, bool hexadecimal) noexcept {
    const std::size_t at = number.find_first_of(hexadecimal ? "pP" : "eE");
    if (at == std::string_view::npos) return 0;
    constexpr std::int64_t farthest = std::numeric_limits<std::int64_t>::max() / 16;
    std::int64_t exponent = 0;
    for (const char c : number.substr(at)) {
        if (DigitOf(c) <= 9) exponent = std::min(exponent * 10 + DigitOf(c), farthest);
    }
    return number.find('-', at) == std::string_view::npos ? exponent : -exponent;
}

/// Of a number that is out of range: whether it is too great. Its first digit that is not 0 decides, together
/// with the exponent.
bool IsTooGreat(std::string_view number, bool hexadecimal) noexcept {
    const std::size_t end = std::min(number.find_first_of(hexadecimal ? "pP" : "eE"), number.size());
    const std::string_view mantissa = number.substr(0, end);
    const std::size_t point = std::min(mantissa.find('.'), mantissa.size());
    const std::size_t first = std::min(mantissa.find_first_not_of("0."), mantissa.size());
    const auto places = static_cast<std::int64_t>(point) - static_cast<std::int64_t>(first);
    return places * (hexadecimal ? 4 : 1) + WrittenExponent(number, hexadecimal) > 0;
}

}  // namespace

double ReadDouble(const char* text, const char** end) noexcept {
    const char* walk = text;
    SkipSpaces(walk);
    const bool negative = SkipSign(walk);
    const bool hexadecimal = IsHexadecimal(walk);
    const char* first = hexadecimal ? walk + 2 : walk;
    double value = 0.0;
    const char* behind = hexadecimal ? EndOfHexadecimal(first) : first + std::strlen(first);
    if (*first == '-') behind = first;  // a second sign, which from_chars would read
    const auto result = std::from_chars(first, behind, value,
                                        hexadecimal ? std::chars_format::hex : std::chars_format::general);
    if (result.ec == std::errc::invalid_argument) {
        if (end != nullptr) *end = text;
        return 0.0;
    }
    if (result.ec == std::errc::result_out_of_range) {
        const std::string_view number(first, static_cast<std::size_t>(result.ptr - first));
        value = IsTooGreat(number, hexadecimal) ? std::numeric_limits<double>::infinity() : 0.0;
        errno = ERANGE;
    }
    if (end != nullptr) *end = result.ptr;
    return negative ? -value : value;
}

}  // namespace vapp_text
