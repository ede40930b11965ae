/// @file
/// Number texts, written and read again: by ParseEngineering, and by the standard library after the unit
/// letter has been put back into a power of ten.
///
/// For the sample of the normal tests, and for the hundred millions of bench/FormatRoundTrip.cpp.
#pragma once

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <limits>
#include <string>
#include <string_view>

#include "vapp/text/FormatEngineering.h"
#include "vapp/text/ParseEngineering.h"

namespace text_test {

/// The distance of two finite doubles of the same sign, in representable numbers.
inline double DistanceInUnits(double a, double b) {
    const double bigger = std::max(std::fabs(a), std::fabs(b));
    const double unit = bigger - std::nextafter(bigger, 0.0);
    return std::fabs(a - b) / unit;
}

/// The value of a text of SI, SPICE or HSPICE letters, or with an exponent, correctly rounded; infinite where
/// no double is as great.
inline double ReadExactly(std::string_view text, TeUnitScale scale) {
    std::string plain(text);
    for (int exponent = -24; exponent <= 24; exponent += 3) {
        const std::string letters(vapp::UnitSuffix(exponent, scale).Payload());
        if (exponent == 0 || letters.empty() || !text.ends_with(letters)) continue;
        plain.resize(plain.size() - letters.size());
        plain += "e" + std::to_string(exponent);
        break;
    }
    double value = 0;
    const std::from_chars_result read = std::from_chars(plain.data(), plain.data() + plain.size(), value);
    if (read.ptr != plain.data() + plain.size()) return std::numeric_limits<double>::quiet_NaN();
    if (read.ec == std::errc()) return value;
    const bool tooSmall = plain.find("e-") != std::string::npos;
    return std::copysign(tooSmall ? 0.0 : std::numeric_limits<double>::infinity(),
                         plain.front() == '-' ? -1.0 : 1.0);
}

/// The same text a thousandth: what "180e306" is close to can be told, what it is no double holds.
inline std::string Thousandth(const std::string& text) {
    const std::size_t exponent = text.find('e') + 1;
    return text.substr(0, exponent) + std::to_string(std::stoi(text.substr(exponent)) - 3);
}

/// Infinity as the greatest double, so that two numbers at the upper end have a distance.
inline double Finite(double value) {
    constexpr double greatest = std::numeric_limits<double>::max();
    return std::clamp(value, -greatest, greatest);
}

/// Below it the power of ten that the reader divides by may be infinite, and the number then read as 0.
inline constexpr double cnLeastReadValue = 1e-290;

/// From here on a number may be rounded up, when written or when read, to one that no double holds.
inline constexpr double cnLeastRoundedOut = 1.79e308;

/// The most that a number read by double arithmetic is off.
inline constexpr double cnMostReadUnits = 8;

class TRoundTrip {
public:
    /// Writes the value in a notation and reads it again; false where it comes back as another.
    /// `choice` chooses notation, digits and zeroes.
    [[nodiscard]] bool Check(double value, std::uint64_t choice) {
        const auto scale = static_cast<TeUnitScale>(choice % 5);
        const auto digits = static_cast<unsigned>(3 + choice / 5 % 15);
        const bool strip = choice / 128 % 2 == 0;
        const CStringU text =
            vapp::FormatEngineering(value, digits, true, false, strip, scale, choice / 256 % 2 == 0);
        m_text = text.Payload();
        return CheckExact(value, digits, scale) && CheckParsed(text, value, scale);
    }
    /// What was written last.
    [[nodiscard]] const std::string& Text() const { return m_text; }
    /// How far ParseEngineering was from the value that a correct rounding of the text gives, at most.
    [[nodiscard]] double MostUnits() const { return m_mostUnits; }

private:
    // 17 digits identify a double; fewer are half a unit of the last of them away, and rounded once more when
    // read.
    [[nodiscard]] bool CheckExact(double value, unsigned digits, TeUnitScale scale) {
        m_exact = ReadExactly(m_text, scale);
        if (digits >= 17) return m_exact == value;
        if (std::fabs(value) > cnLeastRoundedOut)
            return IsWithin(ReadExactly(Thousandth(m_text), scale), value / 1000, digits);
        return IsWithin(m_exact, value, digits);
    }

    [[nodiscard]] static bool IsWithin(double exact, double value, unsigned digits) {
        const double written = std::fabs(value) * 0.5 * std::pow(10.0, 1 - static_cast<int>(digits));
        const double read = std::fabs(value) * std::numeric_limits<double>::epsilon();
        return std::fabs(exact - value) <= written + read + std::numeric_limits<double>::denorm_min();
    }

    [[nodiscard]] bool CheckParsed(const CStringU& text, double value, TeUnitScale scale) {
        double read = 99;
        const bool si = scale == TeUnitScale::Si;
        if (!vapp::ParseEngineering(text.Payload(), &read, nullptr, si).IsEmpty()) return false;
        if (std::fabs(value) < cnLeastReadValue && read == 0) return true;
        if (std::isinf(read) && std::fabs(value) <= cnLeastRoundedOut) return false;
        const double units = DistanceInUnits(Finite(read), Finite(m_exact));
        m_mostUnits = std::max(m_mostUnits, units);
        return units <= cnMostReadUnits;
    }

    std::string m_text;
    double m_exact = 0;
    double m_mostUnits = 0;
};

}  // namespace text_test
