/// @file
/// Slow models of number reading, made from the grammar instead of from the steps of the readers: a regular
/// expression for engineering numbers, wide integers and a table of digits for integers.
#pragma once

#include <array>
#include <cctype>
#include <cstdint>
#include <limits>
#include <map>
#include <regex>
#include <string>
#include <string_view>

#include "tests/text/NaturalModels.h"

namespace text_test {

// --- Engineering numbers -----------------------------------------------------------------------------

struct TSuffixRule {
    int exponent;
    double factor;
};

/// Suffix texts in small letters, longest match first; the case of SI letters is told apart below.
inline const std::map<std::string, TSuffixRule>& WordRules() {
    static const std::map<std::string, TSuffixRule> rules = {
        {"ft", {0, 0.305}}, {"meg", {6, 1}}, {"mi", {0, 2.54e-05}}, {"%", {-2, 1}}, {"x", {6, 1}}};
    return rules;
}

inline const std::map<char, int>& SpiceRules() {
    static const std::map<char, int> rules = {{'a', -18}, {'f', -15}, {'g', 9},  {'k', 3}, {'m', -3},
                                              {'n', -9},  {'p', -12}, {'t', 12}, {'u', -6}};
    return rules;
}

inline const std::map<char, int>& SiRules() {
    static const std::map<char, int> rules = {
        {'Y', 24}, {'Z', 21},  {'E', 18},  {'e', 18},  {'P', 15},  {'T', 12},  {'t', 12}, {'G', 9},
        {'g', 9},  {'M', 6},   {'K', 3},   {'k', 3},   {'m', -3},  {'U', -6},  {'u', -6}, {'N', -9},
        {'n', -9}, {'p', -12}, {'F', -15}, {'f', -15}, {'a', -18}, {'z', -21}, {'y', -24}};
    return rules;
}

inline std::string SmallAscii(std::string text) {
    for (char& c : text) {
        if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
    }
    return text;
}

/// The suffix at the front of a text and its length; length 0 for none.
inline std::pair<TSuffixRule, std::size_t> SuffixByRules(const std::string& text, bool si) {
    for (std::size_t length = 3; length > 0; --length) {
        if (text.size() < length) continue;
        const auto word = WordRules().find(SmallAscii(text.substr(0, length)));
        if (word != WordRules().end()) return {word->second, length};
    }
    if (text.empty()) return {{0, 1}, 0};
    const std::string small = SmallAscii(text.substr(0, 1));
    const auto& letters = si ? SiRules() : SpiceRules();
    const auto letter = letters.find(si ? text[0] : small[0]);
    if (letter == letters.end()) return {{0, 1}, 0};
    return {{letter->second, 1}, 1};
}

struct TEngineeringReading {
    bool number = false;
    double value = 0;
    std::ptrdiff_t end = 0;  // where `number`
    bool rangeError = false;
};

/// The told arithmetic: a double, times the factor, then times or over a power of ten put together of nine.
inline double ValueByRules(std::int64_t mantissa, double factor, long exponent, bool& rangeError) {
    constexpr std::array<double, 9> powers = {1e1, 1e2, 1e4, 1e8, 1e16, 1e32, 1e64, 1e128, 1e256};
    rangeError = exponent > 511 || exponent < -511;
    const long magnitude = rangeError ? 511 : exponent < 0 ? -exponent : exponent;
    volatile double scale = 1;
    for (std::size_t bit = 0; bit < powers.size(); ++bit) {
        if ((magnitude / (1L << bit)) % 2 == 1) scale = scale * powers[bit];
    }
    volatile double value = static_cast<double>(mantissa);
    value = value * factor;
    return exponent < 0 ? value / scale : value * scale;
}

/// Reads ASCII text by the grammar; other characters are given as 0x7F, which means nothing.
inline TEngineeringReading ReadEngineeringByRules(const std::string& text, bool si) {
    static const std::regex grammar(
        R"(([\t-\r ]*)([+-]?)([0-9]+\.?[0-9]*|\.[0-9]+)(?:[eE]([+-]?)([0-9]+))?)");
    std::smatch match;
    if (!std::regex_search(text, match, grammar, std::regex_constants::match_continuous)) return {};
    std::string digits = match[3];
    const std::size_t point = std::min(digits.find('.'), digits.size());
    if (point < digits.size()) digits.erase(point, 1);
    digits.resize(std::min<std::size_t>(digits.size(), 18));
    long exponent = static_cast<long>(point) - static_cast<long>(digits.size());
    if (match[5].matched) {
        std::string written = match[5];
        written.erase(0, std::min(written.find_first_not_of('0'), written.size()));
        const long size = written.empty() ? 0 : written.size() > 9 ? 999999999 : std::stol(written);
        exponent += match[4] == "-" ? -size : size;
    }
    const std::string rest = match.suffix();
    const auto [suffix, length] = SuffixByRules(rest, si);
    TEngineeringReading reading;
    reading.number = true;
    reading.value =
        ValueByRules(std::stoll(digits), suffix.factor, exponent + suffix.exponent, reading.rangeError);
    if (match[2] == "-") reading.value = -reading.value;
    reading.end = match.length() + static_cast<std::ptrdiff_t>(length);
    if (si && length == 0) --reading.end;
    return reading;
}

// --- Integers ----------------------------------------------------------------------------------------

struct TIntegerReading {
    __int128 value = 0;
    std::size_t taken = 0;  // characters
};

inline bool IsOneOf(char16_t c, std::u16string_view set) {
    return set.find(c) != std::u16string_view::npos;
}

/// Reads characters by the grammar, in integers that cannot overflow.
template <typename Integer>
TIntegerReading ReadIntegerByRules(std::u16string_view text) {
    static constexpr std::u16string_view blanks =
        u" \t\n\v\f\r\u2000\u2001\u2002\u2003\u2004\u2005\u2006\u2007\u2008\u2009\u200a\u200b\u202f\u205f"
        u"\u3000\ufeff";
    static constexpr std::u16string_view minuses =
        u"-\u00ad\u058a\u1806\u2010\u2011\u2012\u2013\u2014\u2212\ufe63\uff0d";
    static constexpr std::u16string_view digits16 =
        u"aAbBcCdDeEfF\uff41\uff21\uff42\uff22\uff43\uff23\uff44\uff24\uff45\uff25\uff46\uff26";
    std::size_t at = std::min(text.find_first_not_of(blanks), text.size());
    const auto here = [&] { return at < text.size() ? text[at] : u'\0'; };
    const bool minus = std::numeric_limits<Integer>::is_signed && IsOneOf(here(), minuses);
    if (minus || IsOneOf(here(), u"+\ufe62\uff0b")) ++at;
    std::size_t zeros = at;
    while (zeros < text.size() && DigitValue(text[zeros]) == 0)
        ++zeros;
    const bool sixteen = zeros < text.size() && IsOneOf(text[zeros], u"xX#\uff58\uff38");
    if (sixteen) at = zeros + 1;
    TIntegerReading reading;
    for (; at < text.size(); ++at) {
        int digit = DigitValue(text[at]);
        const std::size_t letter = digits16.find(text[at]);
        if (sixteen && letter != std::u16string_view::npos) digit = 10 + static_cast<int>(letter % 12 / 2);
        if (digit < 0) break;
        const __int128 next = reading.value * (sixteen ? 16 : 10) + (minus ? -digit : digit);
        if (next > std::numeric_limits<Integer>::max() || next < std::numeric_limits<Integer>::min()) break;
        reading.value = next;
    }
    reading.taken = at;
    return reading;
}

}  // namespace text_test
