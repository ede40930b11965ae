// Numbers written and read back: what returns as it was, how far off the rest is, and where reading is not
// the inverse of writing. docs/numbers.md tells the same, row by row.
//
// VAPP_TEST_DOUBLES sets the count of random doubles, for a long run by hand.

#include <gtest/gtest.h>

#include <array>
#include <bit>
#include <charconv>
#include <cmath>
#include <cstdlib>
#include <limits>
#include <random>
#include <string_view>

#include "tests/text/HostileText.h"
#include "vapp/text/FormatEngineering.h"
#include "vapp/text/ParseEngineering.h"

namespace {

using namespace text_test;
using namespace vapp;

constexpr double cnInfinite = std::numeric_limits<double>::infinity();
// Below it the power of ten of an 18-digit number is infinite.
constexpr double cnLeastThatReturns = 1e-290;

CStringU Write(double value, unsigned digits, TeUnitScale scale) {
    return FormatEngineering(value, digits, true, false, true, scale, true);
}

double Read(const CStringU& text, bool si) {
    double value = 99;
    EXPECT_TRUE(ParseEngineering(text.Payload(), &value, nullptr, si).IsEmpty()) << text.Payload();
    return value;
}

std::int64_t StepsBetween(double a, double b) {
    return std::abs(std::bit_cast<std::int64_t>(a) - std::bit_cast<std::int64_t>(b));
}

std::size_t CountOfDoubles() {
    const char* const given = std::getenv("VAPP_TEST_DOUBLES");
    return given != nullptr ? std::strtoul(given, nullptr, 10) : 100000;
}

/// A double of any exponent, the sign included, whose 18 digits can be read.
double AnyDouble(std::mt19937_64& random) {
    for (;;) {
        const auto value = std::bit_cast<double>(random());
        if (std::isfinite(value) && std::abs(value) >= cnLeastThatReturns) return value;
    }
}

TEST(NumberTextScenario, AnyDoubleReturnsWithinAFewSteps) {
    std::mt19937_64 random(SeededRandom()());
    std::int64_t farthest = 0;
    std::size_t exact = 0;
    const std::size_t count = CountOfDoubles();
    for (std::size_t i = 0; i < count; ++i) {
        const double value = AnyDouble(random);
        const CStringU text = FormatEngineeringFull(value);
        const std::int64_t distance = StepsBetween(Read(text, true), value);
        ASSERT_LE(distance, 8) << text.Payload();
        farthest = std::max(farthest, distance);
        exact += static_cast<std::size_t>(distance == 0);
    }
    std::cout << count << " doubles, " << exact << " returned, the others at most " << farthest
              << " steps off\n";
}

// A number of all the bytes of a text, by the rule of Fowler, Noll and Vo.
std::uint64_t SumOf(std::uint64_t sum, std::string_view bytes) {
    for (const char byte : bytes)
        sum = (sum ^ static_cast<unsigned char>(byte)) * 0x100000001B3U;
    return sum;
}

// One number for all texts and all values read from them, so that two systems that differ in a single bit
// show it.
TEST(NumberTextScenario, EverySystemWritesAndReadsTheSameBits) {
    std::mt19937_64 random(20191u);  // NOLINT(cert-msc51-cpp): the same on every system
    std::uint64_t texts = 0xCBF29CE484222325U;
    std::uint64_t values = texts;
    for (int round = 0; round < 20000; ++round) {
        const double value = AnyDouble(random);
        const std::uint64_t choice = random();
        const auto digits = static_cast<unsigned>(choice % 24);
        const auto scale = static_cast<TeUnitScale>(choice / 32 % 5);
        const CStringU text = FormatEngineering(value, digits, (choice & 256U) != 0, (choice & 512U) != 0,
                                                (choice & 1024U) != 0, scale, (choice & 2048U) != 0);
        texts = SumOf(SumOf(texts, text.PayloadView()), FormatGeneral(value).PayloadView());
        for (const bool si : {false, true}) {
            double back = 0;
            static_cast<void>(ReadEngineering(text.Payload(), &back, nullptr, si));
            const auto bits = std::bit_cast<std::array<char, sizeof back>>(back);
            values = SumOf(values, {bits.data(), bits.size()});
        }
    }
    EXPECT_EQ(texts, 6830194534952415313U);
    EXPECT_EQ(values, 11377935494472007062U);
}

TEST(NumberTextScenario, WhatDesignersWriteReturnsAsItWas) {
    std::mt19937 random = SeededRandom();
    const TeUnitScale scales[] = {TeUnitScale::Si, TeUnitScale::Spice, TeUnitScale::HSpice,
                                  TeUnitScale::Scientific, TeUnitScale::Engineering};
    for (int i = 0; i < 20000; ++i) {
        // Up to 6 digits, 1e-17 to 1e17: the mantissa and the power of ten are both exact.
        const std::string digits = std::to_string(UpTo(random, 999999)) + "e" +
                                   std::to_string(static_cast<int>(UpTo(random, 28)) - 17);
        double value = 0;
        std::from_chars(digits.data(), digits.data() + digits.size(), value);
        for (const TeUnitScale scale : scales) {
            const CStringU text = Write(value, 6, scale);
            ASSERT_EQ(Read(text, true), value) << text.Payload();
            if (scale != TeUnitScale::Si) {
                ASSERT_EQ(Read(text, false), value) << text.Payload();
            }
        }
    }
}

TEST(NumberTextScenario, TheGeneralTextAndToDoubleAreInversesToTheBit) {
    std::mt19937_64 random(SeededRandom()());
    for (int i = 0; i < 100000; ++i) {
        const auto value = std::bit_cast<double>(random());
        const double back = FormatGeneral(value).ToDouble();
        if (std::isnan(value)) {
            ASSERT_TRUE(std::isnan(back));
        } else {
            ASSERT_EQ(back, value) << FormatGeneral(value).Payload();
        }
    }
    EXPECT_EQ(FormatGeneral(-cnInfinite).ToDouble(), -cnInfinite);
    EXPECT_FALSE(std::signbit(FormatGeneral(-0.0).ToDouble())) << "only the sign of zero is lost";
}

struct TNumberRow {
    double written;
    TeUnitScale scale;
    const char* text;
    double spice;
    double si;
};

const TNumberRow cnNumberRows[] = {
    // SI letters do not mean the same to SPICE, or nothing.
    {1e-24, TeUnitScale::Si, "1y", 1, 1 / (1e8 * 1e16)},  // one step beside 1e-24
    {1e-21, TeUnitScale::Si, "1z", 1, 1e-21},
    {1e6, TeUnitScale::Si, "1M", 1e-3, 1e6},
    {1e15, TeUnitScale::Si, "1P", 1e-12, 1e15},
    {1e18, TeUnitScale::Si, "1E", 1, 1e18},
    {1e21, TeUnitScale::Si, "1Z", 1, 1e21},
    {1e24, TeUnitScale::Si, "1Y", 1, 1e24},
    // SPICE letters and exponents mean the same to both.
    {1e6, TeUnitScale::Spice, "1X", 1e6, 1e6},
    {1e6, TeUnitScale::HSpice, "1MEG", 1e6, 1e6},
    {1e-3, TeUnitScale::Spice, "1m", 1e-3, 1e-3},
    {1e15, TeUnitScale::Spice, "1e015", 1e15, 1e15},
    {1e-21, TeUnitScale::HSpice, "1e-021", 1e-21, 1e-21},
    {15000, TeUnitScale::Engineering, "15e003", 15000, 15000},
    // The sign of zero is not written.
    {-0.0, TeUnitScale::Si, "0", 0, 0},
    // The power of ten of the digits is out of range, though the number is not.
    {1.5e-308, TeUnitScale::Scientific, "1.5e-308", 0, 0},
    {1e-310, TeUnitScale::Scientific, "1e-310", 0, 0},
    // Three digits round it up to what no double holds.
    {1.797e308, TeUnitScale::Si, "180e306", cnInfinite, cnInfinite},
    {1.7976931348623157e308, TeUnitScale::Scientific, "1.8e308", cnInfinite, cnInfinite},
};

TEST(NumberTextScenario, WhereReadingIsNotTheInverse) {
    for (const TNumberRow& row : cnNumberRows) {
        const CStringU text = Write(row.written, 3, row.scale);
        EXPECT_EQ(text, row.text);
        EXPECT_EQ(Read(text, false), row.spice) << row.text;
        EXPECT_EQ(Read(text, true), row.si) << row.text;
        EXPECT_FALSE(std::signbit(Read(text, true))) << row.text;
    }
}

TEST(NumberTextScenario, SmallNumbersAreLostTheSoonerTheMoreDigitsTheyHave) {
    EXPECT_EQ(Read(Write(1e-305, 3, TeUnitScale::Scientific), true), Read("1e-305", true));
    EXPECT_GT(Read(Write(1.234e-305, 4, TeUnitScale::Scientific), true), 0);
    EXPECT_EQ(Read(Write(1.2345e-305, 5, TeUnitScale::Scientific), true), 0) << "12345e-309";
    EXPECT_EQ(Read(Write(1.23456789012345678e-292, 18, TeUnitScale::Scientific), true), 0);
}

TEST(NumberTextScenario, WhatIsNotFiniteIsNoNumber) {
    for (const double value : {cnInfinite, -cnInfinite, std::numeric_limits<double>::quiet_NaN()}) {
        double back = 99;
        const CStringU text = FormatEngineeringFull(value);
        EXPECT_EQ(ParseEngineering(text.Payload(), &back, nullptr, true), "Not a number") << text.Payload();
        EXPECT_EQ(back, 0);
    }
}

TEST(NumberTextScenario, DigitsBehindTheEighteenthAreWrittenAndNotRead) {
    const double a = 1.0 / 3;
    const CStringU text = FormatEngineering(a, 25, true, false, false, TeUnitScale::Scientific, true);
    EXPECT_EQ(text, "3.333333333333333148296163e-001");
    EXPECT_EQ(Read(text, true), 333333333333333314.0 / 1e18);
}

TEST(NumberTextScenario, PaddedTextIsReadWithoutItsPad) {
    const CStringU text = FormatEngineering(1.5, 4, true, true, true, TeUnitScale::Si, true);
    double value = 0;
    const char* end = nullptr;
    EXPECT_TRUE(ParseEngineering(text.Payload(), &value, &end, false).IsEmpty());
    EXPECT_EQ(value, 1.5);
    EXPECT_EQ(*end, ' ') << "the letter of 1 is a space, which is no suffix to a reader";
}

TEST(NumberTextScenario, WhatIsReadAndNeverWritten) {
    struct TSpelling {
        const char* text;
        const char* written;
    };
    const TSpelling rows[] = {
        {"50%", "500m"},   {"2ft", "610m"}, {"1e3k", "1M"},  {"1K", "1k"},     {"1MEG", "1M"},
        {"1x", "1M"},      {"1U", "1u"},    {"0.001", "1m"}, {"+1", "1"},      {"001.50", "1.5"},
        {"3mil", "76.2u"}, {"1e", "1E"},    {".5k", "500"},  {"1e-3", "1m"},   {"1N", "1n"},
        {"1F", "1f"},      {"1g", "1G"},    {"1t", "1T"},    {"1X", "1M"},     {"1mEg", "1M"},
        {"1e+3", "1k"},    {"1e3", "1k"},   {"1E003", "1k"}, {"1500", "1.5k"}, {"\t 1", "1"}};
    for (const TSpelling& row : rows) {
        EXPECT_EQ(Write(Read(row.text, true), 4, TeUnitScale::Si), row.written) << row.text;
    }
    const TSpelling spiceRows[] = {{"1A", "1a"}, {"1M", "1m"}, {"1P", "1p"}, {"1x", "1X"}, {"1MEG", "1X"}};
    for (const TSpelling& row : spiceRows) {
        EXPECT_EQ(Write(Read(row.text, false), 4, TeUnitScale::Spice), row.written) << row.text;
    }
}

}  // namespace
