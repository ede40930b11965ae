/// @file
/// The first significant digits of a double of everyday size, as one integer, by exact integer arithmetic.
///
/// A shortcut for DecimalDigits.h, which has the standard library's conversion for all values and all counts
/// and stays the measure: where both answer, they answer alike, to the last digit and in every tie. It is
/// here for speed alone. The library's conversion takes longer than all the rest of a number's text, and
/// three to seventeen digits of a number between atto and exa fit into 128 bits.
///
/// Not a conversion of its own right: it declines whatever does not fit.
#pragma once

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>

namespace vapp_text {

/// The digits of a number, and the position of the decimal point from the first of them.
struct TScaledDigits {
    std::uint64_t m_digits = 0;  ///< with as many digits as were asked for; 0 where the number was declined
    int m_point = 0;
};

inline constexpr std::size_t cnMaxScaledDigits = 17;

namespace scaled_digits {

__extension__ using TWide = unsigned __int128;

template <std::uint64_t Base, std::size_t Count>
constexpr std::array<std::uint64_t, Count> MakePowers() noexcept {
    std::array<std::uint64_t, Count> powers = {1};
    for (std::size_t i = 1; i < Count; ++i)
        powers[i] = powers[i - 1] * Base;
    return powers;
}
inline constexpr auto PowersOfTen = MakePowers<10, 20>();
inline constexpr auto PowersOfFive = MakePowers<5, 28>();  // all that fit into 64 bits

/// A whole number and what was cut off it.
struct TCut {
    std::uint64_t m_whole;
    int m_rest;  ///< 0 none, 1 less than a half, 2 a half, 3 more
};

constexpr int ClassifyRest(auto rest, auto half) noexcept {
    return rest == half ? 2 : rest > half ? 3 : static_cast<int>(rest != 0);
}

/// mantissa * 2^exponent * 10^power, for a result below 2^64.
constexpr TCut MultiplyByPower(std::uint64_t mantissa, int exponent, int power) noexcept {
    const TWide product = TWide{mantissa} * PowersOfFive[static_cast<std::size_t>(power)];
    const int shift = -(exponent + power);
    if (shift <= 0) return {static_cast<std::uint64_t>(product) << -shift, 0};
    const TWide unit = TWide{1} << shift;
    return {static_cast<std::uint64_t>(product >> shift), ClassifyRest(product & (unit - 1), unit >> 1)};
}

/// mantissa * 2^exponent / 10^power, for a number of 1 and above, below 2^64.
constexpr TCut DivideByPower(std::uint64_t mantissa, int exponent, int power) noexcept {
    const std::uint64_t whole = exponent >= 0 ? mantissa << exponent : mantissa >> -exponent;
    const bool fraction = exponent < 0 && whole << -exponent != mantissa;
    const std::uint64_t divisor = PowersOfTen[static_cast<std::size_t>(power)];
    const int rest = ClassifyRest(whole % divisor, divisor / 2);
    // A fraction turns none into some, and a half into more than a half.
    return {whole / divisor, rest | static_cast<int>(fraction)};
}

/// Takes the last digit off.
constexpr TCut CutDigit(TCut cut) noexcept {
    const std::uint64_t digit = cut.m_whole % 10;
    const int rest = ClassifyRest(digit, std::uint64_t{5}) | static_cast<int>(cut.m_rest != 0);
    return {cut.m_whole / 10, rest};
}

}  // namespace scaled_digits

/// The first `count` significant digits, 2 to cnMaxScaledDigits, of a positive value, correctly rounded,
/// halves to even; declined where the value is too big or too small.
constexpr TScaledDigits ScaleDigits(double value, std::size_t count) noexcept {
    using namespace scaled_digits;
    const auto bits = std::bit_cast<std::uint64_t>(value);
    const int binary = static_cast<int>(bits >> 52U) - 1023;
    if (binary < -100 || binary > 63) return {};
    const std::uint64_t mantissa = (bits & ((std::uint64_t{1} << 52U) - 1)) | (std::uint64_t{1} << 52U);
    // The decimal exponent, from the binary one: right or one too small. 1233/4096 is a little below
    // log10(2).
    const int decimal = (binary * 1233) >> 12;
    const int power = static_cast<int>(count) - 1 - decimal;
    if (power >= static_cast<int>(PowersOfFive.size())) return {};
    TCut cut = power >= 0 ? MultiplyByPower(mantissa, binary - 52, power)
                          : DivideByPower(mantissa, binary - 52, -power);
    int point = decimal + 1;
    if (cut.m_whole >= PowersOfTen[count]) {
        cut = CutDigit(cut);
        ++point;
    }
    cut.m_whole += static_cast<std::uint64_t>(cut.m_rest + static_cast<int>(cut.m_whole & 1) > 2);
    if (cut.m_whole < PowersOfTen[count]) return {cut.m_whole, point};
    return {PowersOfTen[count - 1], point + 1};  // all nines, rounded up
}

}  // namespace vapp_text
