/// Reading of engineering numbers: one scanner for every width of characters, and then the arithmetic, whose
/// order of operations is part of the result.

#include "vapp/text/ParseEngineering.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstddef>
#include <cstdint>
#include <limits>

#include "text/AsciiNumber.h"
#include "text/EngineeringSuffix.h"
#include "vapp/text/TEngineeringFormatSettings.h"

namespace vapp {

namespace {

using vapp_text::CodeOf;
using vapp_text::DigitOf;
using vapp_text::FindEngineeringSuffix;
using vapp_text::IsLetterNoCase;
using vapp_text::SkipSign;
using vapp_text::SkipSpaces;
using vapp_text::TEngineeringSuffix;

constexpr std::ptrdiff_t cnKeptDigits = 18;  // what is sure to fit into 64 bits
constexpr std::size_t cnLargestPower = 511;  // nine bits

/// 10 to the power of the index, each a product of the powers of its bits, from the lowest bit upward: above
/// 1e22 the order shows in the last bits.
constexpr std::array<double, cnLargestPower + 1> MakeScales() noexcept {
    constexpr double powers[] = {1e1, 1e2, 1e4, 1e8, 1e16, 1e32, 1e64, 1e128, 1e256};
    constexpr std::size_t largestFinite = std::numeric_limits<double>::max_exponent10;
    std::array<double, cnLargestPower + 1> scales{};
    for (std::size_t exponent = 0; exponent < scales.size(); ++exponent) {
        double scale = 1.0;
        for (std::size_t bit = 0; bit < std::size(powers) && exponent <= largestFinite; ++bit) {
            if (((exponent >> bit) & 1U) != 0) scale *= powers[bit];
        }
        scales[exponent] = exponent <= largestFinite ? scale : std::numeric_limits<double>::infinity();
    }
    return scales;
}

constexpr std::array<double, cnLargestPower + 1> cnScales = MakeScales();

template <typename Unit>
struct TScan {
    const Unit* walk;
    std::uint64_t mantissa = 0;  // of the kept digits
    std::int64_t exponent = 0;
    std::ptrdiff_t digits = 0;
};

template <typename Unit>
void ScanDigits(TScan<Unit>& scan) noexcept {
    const Unit* walk = scan.walk;
    std::uint64_t mantissa = scan.mantissa;
    for (std::uint32_t digit = DigitOf(*walk); digit <= 9; digit = DigitOf(*++walk)) {
        mantissa = mantissa * 10 + digit;  // may wrap around: KeepFirstDigits makes up for it
    }
    scan.mantissa = mantissa;
    scan.walk = walk;
}

template <typename Unit>
void KeepFirstDigits(TScan<Unit>& scan, const Unit* first) noexcept {
    scan.exponent += scan.digits - cnKeptDigits;
    scan.mantissa = 0;
    for (std::ptrdiff_t kept = 0; kept < cnKeptDigits; ++first) {
        const std::uint32_t digit = DigitOf(*first);
        if (digit > 9) continue;  // the point
        scan.mantissa = scan.mantissa * 10 + digit;
        ++kept;
    }
}

template <typename Unit>
void ScanMantissa(TScan<Unit>& scan) noexcept {
    const Unit* first = scan.walk;
    ScanDigits(scan);
    scan.digits = scan.walk - first;
    if (CodeOf(*scan.walk) == CodeOf('.')) {
        const Unit* behindPoint = ++scan.walk;
        ScanDigits(scan);
        scan.digits += scan.walk - behindPoint;
        scan.exponent = behindPoint - scan.walk;
    }
    if (scan.digits > cnKeptDigits) KeepFirstDigits(scan, first);
}

/// Moves behind an exponent; an "e" without digits stays where it is.
template <typename Unit>
void ScanExponent(TScan<Unit>& scan) noexcept {
    if (!IsLetterNoCase(*scan.walk, 'e')) return;
    const Unit* walk = scan.walk + 1;
    const bool negative = SkipSign(walk);
    if (DigitOf(*walk) > 9) return;
    std::int64_t exponent = 0;
    for (; DigitOf(*walk) <= 9; ++walk) {
        exponent =
            std::min<std::int64_t>(exponent * 10 + DigitOf(*walk), std::numeric_limits<std::int32_t>::max());
    }
    scan.exponent += negative ? -exponent : exponent;
    scan.walk = walk;
}

double Scaled(double value, std::int64_t exponent) noexcept {
    const bool negative = exponent < 0;
    auto magnitude = static_cast<std::uint64_t>(negative ? -exponent : exponent);
    if (magnitude > cnLargestPower) [[unlikely]] {
        magnitude = cnLargestPower;
        errno = ERANGE;
    }
    const double scale = cnScales[magnitude];
    return negative ? value / scale : value * scale;
}

template <typename Unit>
bool Read(const Unit* text, double& value, const Unit** end, bool siSuffix) noexcept {
    static constexpr Unit empty[1] = {};
    TScan<Unit> scan{text == nullptr ? empty : text};
    SkipSpaces(scan.walk);
    const bool negative = SkipSign(scan.walk);
    ScanMantissa(scan);
    if (scan.digits == 0) {
        value = 0.0;
        return false;
    }
    ScanExponent(scan);
    const TEngineeringSuffix suffix = FindEngineeringSuffix(scan.walk, siSuffix);
    // In the SI reading a number without a suffix ends on its last character, as the header tells.
    if (end != nullptr) *end = scan.walk + (suffix.length == 0 && siSuffix ? -1 : suffix.length);
    const double magnitude =
        Scaled(static_cast<double>(static_cast<std::int64_t>(scan.mantissa)) * suffix.factor,
               scan.exponent + suffix.exponent);
    value = negative ? -magnitude : magnitude;
    return true;
}

template <typename Unit>
CStringU Parse(const Unit* text, double& value, const Unit** end, bool siSuffix) {
    return Read(text, value, end, siSuffix) ? CStringU() : CStringU("Not a number");
}

}  // namespace

CStringU ParseEngineering(const char* text, double* value, const char** end, bool siSuffix) {
    return Parse(text, *value, end, siSuffix);
}

CStringU ParseEngineering(const wchar_t* text, double* value, const wchar_t** end, bool siSuffix) {
    return Parse(text, *value, end, siSuffix);
}

CStringU ParseEngineering(const char16_t* text, double* value, const char16_t** end, bool siSuffix) {
    return Parse(text, *value, end, siSuffix);
}

bool ReadEngineering(const char* text, double* value, const char** end, bool siSuffix) noexcept {
    return Read(text, *value, end, siSuffix);
}

CStringU ParseEngineeringWithSettings(const CStringU& text, double* value, boost::logic::tribool siSuffix) {
    return ParseEngineeringWithSettings(text.ToAnsi().GetString(), value, siSuffix);
}

CStringU ParseEngineeringWithSettings(const char* text, double* value, boost::logic::tribool siSuffix) {
    const bool si =
        gGetEngineeringFormatSettings().GetValidEngineeringFormatUseSiSuffixInsteadOfSpice(siSuffix);
    return ParseEngineering(text, value, nullptr, si);
}

}  // namespace vapp
