// The digits of doubles: the shortcut of small numbers beside the standard library's conversion, which it
// must equal in every digit wherever it answers.

#include "text/DecimalDigits.h"

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <cstdlib>
#include <limits>
#include <string>

#include "tests/text/TextHelpers.h"

namespace {

using vapp_text::cnMaxDecimalDigits;
using vapp_text::cnMaxScaledDigits;
using vapp_text::ScaleDigits;

struct TWritten {
    std::string digits;
    int point = 0;
    bool operator==(const TWritten&) const = default;
};

TWritten Write(double value, std::size_t count) {
    std::string buffer(count + vapp_text::cnDecimalDigitsRoom, '?');
    const int point = vapp_text::WriteDecimalDigits(value, count, buffer.data());
    return {buffer.substr(1, count), point};
}

TWritten Convert(double value, std::size_t count) {
    std::string buffer(count + vapp_text::cnDecimalDigitsRoom, '?');
    const int point = vapp_text::ConvertDecimalDigits(value, count, buffer.data());
    return {buffer.substr(1, count), point};
}

void CheckScaled(double value, std::size_t count) {
    const vapp_text::TScaledDigits scaled = ScaleDigits(value, count);
    if (scaled.m_digits == 0) return;
    ASSERT_EQ((TWritten{std::to_string(scaled.m_digits), scaled.m_point}), Convert(value, count))
        << std::bit_cast<std::uint64_t>(value) << " with " << count;
}

TEST(DecimalDigits, TellsDigitsAndPoint) {
    EXPECT_EQ(Write(1.5, 2), (TWritten{"15", 1}));
    EXPECT_EQ(Write(-1500, 4), (TWritten{"1500", 4}));
    EXPECT_EQ(Write(0.001, 3), (TWritten{"100", -2}));
    EXPECT_EQ(Write(999.96, 4), (TWritten{"1000", 4}));
    EXPECT_EQ(Write(5e-324, 3), (TWritten{"494", -323}));
    EXPECT_EQ(Write(std::numeric_limits<double>::max(), 18), (TWritten{"179769313486231571", 309}));
    EXPECT_EQ(Write(1, cnMaxDecimalDigits), (TWritten{"1" + std::string(cnMaxDecimalDigits - 1, '0'), 1}));
}

TEST(DecimalDigits, TakesTheShortcutForEverydayNumbersOnly) {
    for (const double value : {1.0, 1e-12, 4.7e-9, 1e18, 1.8e19, 123.456})
        EXPECT_NE(ScaleDigits(value, 6).m_digits, 0U) << value;
    for (const double value : {5e-324, 1e-300, 1e-30, 1e20, 1e300, std::numeric_limits<double>::infinity()}) {
        EXPECT_EQ(ScaleDigits(value, 6).m_digits, 0U) << value;
    }
}

TEST(DecimalDigits, TakesTheShortcutToTheSameDigitsAtEveryPowerOfTen) {
    for (int exponent = -30; exponent <= 20; ++exponent) {
        const double power = std::strtod(("1e" + std::to_string(exponent)).c_str(), nullptr);
        for (const double value : {power, std::nextafter(power, 0.0), std::nextafter(power, 1e30), 2 * power,
                                   5 * power, 9.5 * power, 9.99995 * power, 9.9999999999999982 * power}) {
            for (std::size_t count = 2; count <= cnMaxScaledDigits; ++count)
                CheckScaled(value, count);
        }
    }
}

TEST(DecimalDigits, TakesTheShortcutToTheSameDigitsAtEveryPowerOfTwo) {
    for (int binary = -110; binary <= 70; ++binary) {
        for (const double odd : {1.0, 3.0, 5.0, 7.0, 255.0, 1025.0, 9007199254740991.0}) {
            for (std::size_t count = 2; count <= cnMaxScaledDigits; ++count)
                CheckScaled(std::ldexp(odd, binary), count);
        }
    }
}

TEST(DecimalDigits, TakesTheShortcutToTheSameDigitsOfRandomNumbers) {
    std::mt19937 random = text_test::SeededRandom("TakesTheShortcut");
    for (int round = 0; round < 200'000; ++round) {
        const std::uint64_t exponent = 1023 - 95 + random() % 165;
        std::uint64_t mantissa =
            (std::uint64_t{random()} << 20U ^ random()) & ((std::uint64_t{1} << 52U) - 1);
        if (round % 2 == 0) mantissa &= ~std::uint64_t{0} << random() % 52;  // short numbers, which have ties
        CheckScaled(std::bit_cast<double>(exponent << 52U | mantissa), 2 + random() % 16);
        if (HasFatalFailure()) return;
    }
}

}  // namespace
