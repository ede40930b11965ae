/// Number texts are made on the stack, the digits in one buffer and the text in another, mostly by moves of a
/// fixed size, which cost less than to ask how much there is to move. The result is the only allocation.
/// What the texts look like stands in the header.

#include "vapp/text/FormatEngineering.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstring>

#include "text/DecimalDigits.h"
#include "text/UnitSuffixTable.h"
#include "vapp/text/TEngineeringFormatSettings.h"

namespace vapp {

using boost::logic::tribool;

namespace {

using vapp_text::cnDecimalDigitsRoom;
using vapp_text::cnMaxDecimalDigits;
using vapp_text::FindUnitSuffix;
using vapp_text::TUnitSuffix;
using vapp_text::WriteDecimalDigits;

constexpr unsigned cnMinSignificantDigits = 3;
constexpr std::size_t cnWidthBesideDigits = 9;
constexpr std::size_t cnFewDigits = 16;
// The digits with all that may stand around them, and what CopyDigits moves too much.
constexpr std::size_t cnTextSize = cnMaxDecimalDigits + 64;

/// What is to be written, all choices made.
struct TStyle {
    unsigned m_digits;
    bool m_significantDigits;
    bool m_align;
    bool m_removeTrailingZeroes;
    bool m_removeZeroExponent;
    TeUnitScale m_unitScale;

    [[nodiscard]] std::size_t DigitCount() const noexcept {
        const std::uint64_t wanted =
            m_significantDigits ? std::max(m_digits, cnMinSignificantDigits) : std::uint64_t{m_digits} + 3;
        return static_cast<std::size_t>(std::min<std::uint64_t>(wanted, cnMaxDecimalDigits));
    }
    [[nodiscard]] std::size_t ZeroDigitCount() const noexcept {
        const std::uint64_t wanted = std::uint64_t{m_digits} + (m_significantDigits ? 0 : 1);
        return static_cast<std::size_t>(std::min<std::uint64_t>(wanted, DigitCount()));
    }
    [[nodiscard]] std::size_t Width() const noexcept { return DigitCount() + cnWidthBesideDigits; }
};

/// The digits of a number on their way into the text.
struct TDigits {
    char* m_first;
    std::size_t m_count;
    int m_beforePoint;  ///< 1 to 3
    int m_exponent;     ///< of the first digit
};

constexpr int FloorToThousands(int exponent) noexcept {
    const int above = exponent % 3;
    return exponent - (above < 0 ? above + 3 : above);
}

/// Adds one at the last of `count` digits; false if all were nines, which are zeroes now.
bool AddOne(char* digits, std::size_t count) noexcept {
    for (char* digit = digits + count; digit != digits;) {
        if (*--digit != '9') {
            ++*digit;
            return true;
        }
        *digit = '0';
    }
    return false;
}

/// Leaves the decimals asked for, and rounds them by the first digit that goes. The digits have been rounded
/// once before, at their end: see the header about the two roundings.
void RoundToDecimals(TDigits& number) noexcept {
    if (number.m_beforePoint == 3) return;
    number.m_count -= static_cast<std::size_t>(3 - number.m_beforePoint);
    if (number.m_first[number.m_count] < '5' || AddOne(number.m_first, number.m_count)) return;
    number.m_first[0] = '1';
    number.m_first[number.m_count++] = '0';
    ++number.m_beforePoint;
    ++number.m_exponent;
}

TDigits MakeDigits(double value, const TStyle& style, char* first) noexcept {
    if (value == 0.0) {
        const std::size_t count = style.ZeroDigitCount();
        std::memset(first, '0', count);
        return {first, count, 1, 0};
    }
    const std::size_t count = style.DigitCount();
    const int exponent = WriteDecimalDigits(value, count, first - 1) - 1;
    TDigits number{first, count, exponent - FloorToThousands(exponent) + 1, exponent};
    if (!style.m_significantDigits) RoundToDecimals(number);
    // Only now: scientific notation takes the decimals of the engineering one, and shows them behind one
    // digit.
    if (style.m_unitScale == TeUnitScale::Scientific) number.m_beforePoint = 1;
    return number;
}

/// "e012", "e-012".
char* AppendExponent(char* end, int exponent) noexcept {
    *end++ = 'e';
    if (exponent < 0) *end++ = '-';
    const int magnitude = std::abs(exponent);
    *end++ = static_cast<char>('0' + magnitude / 100);
    *end++ = static_cast<char>('0' + magnitude / 10 % 10);
    *end++ = static_cast<char>('0' + magnitude % 10);
    return end;
}

char* AppendSuffix(char* end, const TStyle& style, int exponent) noexcept {
    const TUnitSuffix& suffix = FindUnitSuffix(exponent, style.m_unitScale);
    if (suffix.m_length != 0) {
        if (suffix.m_letters[0] == ' ' && !style.m_align) return end;
        std::memcpy(end, suffix.m_letters, sizeof suffix.m_letters);
        return end + suffix.m_length;
    }
    const int shown = style.m_unitScale == TeUnitScale::Scientific ? exponent : FloorToThousands(exponent);
    return shown == 0 && style.m_removeZeroExponent ? end : AppendExponent(end, shown);
}

/// Writes what stands before the first digit.
char* AppendSign(char* end, bool negative, bool align, int beforePoint) noexcept {
    if (!align) {
        *end = '-';
        return end + static_cast<int>(negative);
    }
    for (int digits = beforePoint; digits < 3; ++digits)
        *end++ = ' ';
    *end++ = negative ? '-' : ' ';
    return end;
}

/// Copies digits; few of them, the usual case, by one move of a fixed size, more than is needed.
void CopyDigits(char* to, const char* from, std::size_t count) noexcept {
    if (count <= cnFewDigits) {
        std::memcpy(to, from, cnFewDigits);
    } else {
        std::memcpy(to, from, count);
    }
}

char* AppendDigits(char* end, const TDigits& number, const TStyle& style) noexcept {
    const auto before = static_cast<std::size_t>(number.m_beforePoint);
    std::size_t count = number.m_count;
    if (style.m_removeTrailingZeroes) {
        while (count > before && number.m_first[count - 1] == '0')
            --count;
    }
    std::memcpy(end, number.m_first, 4);
    end += before;
    *end = '.';
    const bool point = count > before || !style.m_removeTrailingZeroes || style.m_align;
    CopyDigits(end + 1, number.m_first + before, count - before);
    return end + static_cast<int>(point) + (count - before);
}

CStringU MakeText(char* begin, char* end, const TStyle& style) {
    if (style.m_align) {
        char* const columnEnd = begin + style.Width();
        while (end < columnEnd)
            *end++ = ' ';
    }
    return {CString(begin, static_cast<int>(end - begin)), CStringU::TAscii()};
}

CStringU FormatNonFinite(double value, const TStyle& style) {
    char text[cnTextSize];
    char* const end = AppendSign(text, value < 0.0, style.m_align, 3);
    std::memcpy(end, std::isnan(value) ? "nan" : "inf", 3);
    return MakeText(text, end + 3, style);
}

CStringU FormatInStyle(double value, const TStyle& style) {
    if (!std::isfinite(value)) return FormatNonFinite(value, style);
    char digits[cnTextSize];
    const TDigits number = MakeDigits(value, style, digits + 1);
    char text[cnTextSize];
    char* end = AppendSign(text, value < 0.0, style.m_align, number.m_beforePoint);
    end = AppendDigits(end, number, style);
    end = AppendSuffix(end, style, number.m_exponent);
    return MakeText(text, end, style);
}

void Apply(EngineeringFormatOption option, TStyle& style) noexcept {
    switch (option) {
        case EngineeringFormatOption::None:
            break;
        case EngineeringFormatOption::Decimals:
            style.m_significantDigits = false;
            break;
        case EngineeringFormatOption::Align:
            style.m_align = true;
            break;
        case EngineeringFormatOption::RemoveTrailingZeroes:
        case EngineeringFormatOption::KeepTrailingZeroes:
            style.m_removeTrailingZeroes = option == EngineeringFormatOption::RemoveTrailingZeroes;
            break;
        case EngineeringFormatOption::RemoveZeroExponents:
        case EngineeringFormatOption::KeepZeroExponents:
            style.m_removeZeroExponent = option == EngineeringFormatOption::RemoveZeroExponents;
            break;
        case EngineeringFormatOption::Si:
        case EngineeringFormatOption::Spice:
        case EngineeringFormatOption::HSpice:
        case EngineeringFormatOption::Scientific:
        case EngineeringFormatOption::Engineering:
            style.m_unitScale = static_cast<TeUnitScale>(static_cast<int>(option) -
                                                         static_cast<int>(EngineeringFormatOption::Si));
            break;
    }
}

TStyle ResolveStyle(unsigned digits, bool significantDigits, bool align, tribool removeTrailingZeroes,
                    TeUnitScale unitScale, tribool removeZeroExponents) noexcept {
    const TEngineeringFormatSettings& settings = gGetEngineeringFormatSettings();
    return {digits != 0 ? digits : settings.GetDefaultEngineeringFormatDigits(),
            significantDigits,
            align,
            settings.GetValidEngineeringFormatRemoveTrailingZeroes(removeTrailingZeroes),
            settings.GetValidEngineeringFormatRemoveZeroExponents(removeZeroExponents),
            settings.GetValidEngineeringFormatUnitScale(unitScale)};
}

}  // namespace

CStringU FormatEngineering(double value, unsigned digits, bool significantDigits, bool align,
                           tribool removeTrailingZeroes, TeUnitScale unitScale, tribool removeZeroExponents) {
    return FormatInStyle(value, ResolveStyle(digits, significantDigits, align, removeTrailingZeroes,
                                             unitScale, removeZeroExponents));
}

CStringU FormatEngineeringOptions(double value, unsigned digits, EngineeringFormatOption option1,
                                  EngineeringFormatOption option2, EngineeringFormatOption option3,
                                  EngineeringFormatOption option4, EngineeringFormatOption option5) {
    TStyle style = ResolveStyle(digits, true, false, boost::logic::indeterminate, TeUnitScale::Undefined,
                                boost::logic::indeterminate);
    for (const EngineeringFormatOption option : {option1, option2, option3, option4, option5})
        Apply(option, style);
    return FormatInStyle(value, style);
}

CStringU FormatEngineeringOptions(double value, EngineeringFormatOption option1,
                                  EngineeringFormatOption option2, EngineeringFormatOption option3,
                                  EngineeringFormatOption option4) {
    return FormatEngineeringOptions(value, 0, option1, option2, option3, option4);
}

CStringU FormatEngineeringFull(double value) {
    return FormatEngineering(value, 18, true, false, true, TeUnitScale::Si, boost::logic::indeterminate);
}

CStringU FormatDistinct(double a, double b, TeUnitScale unitScale) {
    constexpr unsigned cnMostDigits = 29;
    constexpr unsigned cnDigitsOfEquals = 17;
    TStyle style =
        ResolveStyle(cnMinSignificantDigits, true, false, true, unitScale, boost::logic::indeterminate);
    for (; a != b && style.m_digits <= cnMostDigits; ++style.m_digits) {
        CStringU text = FormatInStyle(a, style);
        if (text != FormatInStyle(b, style)) return text;
    }
    return FormatEngineering(a, cnDigitsOfEquals, true, false, boost::logic::indeterminate, style.m_unitScale,
                             boost::logic::indeterminate);
}

CStringU UnitSuffix(int exponent, TeUnitScale scale) {
    const TUnitSuffix& suffix = FindUnitSuffix(exponent, scale);
    return {CString(suffix.m_letters, suffix.m_length), CStringU::TAscii()};
}

}  // namespace vapp
