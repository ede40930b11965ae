/// @file
/// The decimal digits of a double: exact, to any count, without a locale.
///
/// A thin form of the standard library's conversion, with a shortcut of the same results for the numbers of
/// every day (ScaledDigits.h). The surprise is the caller's buffer: the digits
/// begin at its second byte, because the conversion writes a point behind the first digit, and moving one
/// digit over the point is cheaper than moving all the others.
#pragma once

#include <charconv>
#include <cmath>
#include <cstddef>

#include "text/ScaledDigits.h"

namespace vapp_text {

/// A double has at most 767 significant digits; all others are zeroes.
inline constexpr std::size_t cnMaxDecimalDigits = 800;
/// What WriteDecimalDigits needs beside the digits: a point, and "e-308".
inline constexpr std::size_t cnDecimalDigitsRoom = 8;

/// WriteDecimalDigits by the standard library's conversion alone.
inline int ConvertDecimalDigits(double value, std::size_t count, char* buffer) noexcept {
    char* const end = buffer + count + cnDecimalDigitsRoom;
    const std::to_chars_result written = std::to_chars(
        buffer, end, std::fabs(value), std::chars_format::scientific, static_cast<int>(count) - 1);
    buffer[1] = buffer[0];
    // Behind the digits stands "e+05", or "e-308": two or three digits.
    int exponent = 0;
    for (const char* digit = buffer + count + 3; digit != written.ptr; ++digit)
        exponent = 10 * exponent + (*digit - '0');
    return 1 + (buffer[count + 2] == '-' ? -exponent : exponent);
}

/// Writes the `count` first significant digits of the magnitude of a finite value, correctly rounded, halves
/// to even, to `buffer` + 1; gives the position of the decimal point from the first digit: 1 for "1.5". All
/// digits of zero are "0". `count` is 2 to cnMaxDecimalDigits; the buffer has cnDecimalDigitsRoom more, and
/// what is behind the digits in it is overwritten.
inline int WriteDecimalDigits(double value, std::size_t count, char* buffer) noexcept {
    if (count <= cnMaxScaledDigits) {
        const TScaledDigits scaled = ScaleDigits(std::fabs(value), count);
        if (scaled.m_digits != 0) {
            std::to_chars(buffer + 1, buffer + 1 + count, scaled.m_digits);
            return scaled.m_point;
        }
    }
    return ConvertDecimalDigits(value, count, buffer);
}

}  // namespace vapp_text
