// Number texts read again: a sample of random doubles, and the texts that mean another number to the reader.

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <cstdint>
#include <string>

#include "tests/text/RoundTrip.h"
#include "tests/text/TextHelpers.h"

namespace {

using vapp::FormatEngineering;

TEST(FormatEngineeringRoundTrip, RandomDoublesComeBack) {
    std::mt19937 random = text_test::SeededRandom("RandomDoublesComeBack");
    text_test::TRoundTrip trip;
    for (int round = 0; round < 200'000; ++round) {
        std::uint64_t bits = std::uint64_t{random()} << 32U | random();
        if (round % 2 == 0) bits = (bits & ~(std::uint64_t{0x7FF} << 52U)) | (1023 - 95 + bits % 165) << 52U;
        const auto value = std::bit_cast<double>(bits);
        if (!std::isfinite(value)) continue;
        ASSERT_TRUE(trip.Check(value, random())) << bits << " wrote " << trip.Text();
    }
}

// Where numbers are lost at the ends of the range, and only there.
TEST(FormatEngineeringRoundTrip, TheGreatestAndTheLeastDoublesComeBackAsFarAsTheyCan) {
    std::mt19937 random = text_test::SeededRandom("TheGreatestAndTheLeastDoublesComeBackAsFarAsTheyCan");
    text_test::TRoundTrip trip;
    for (const double start : {std::numeric_limits<double>::max(), 1.79e308, 1e308, 1e-289, 1e-291,
                               std::numeric_limits<double>::min(), 1e-320}) {
        for (int round = 0; round < 3000; ++round) {
            const double value = (round % 2 == 0 ? start : -start) * (1 - std::ldexp(random(), -36));
            ASSERT_TRUE(trip.Check(value, random())) << value << " wrote " << trip.Text();
        }
    }
}

TEST(FormatEngineeringRoundTrip, ShortNumbersComeBackToTheLastBitInEveryLetter) {
    for (int exponent = -24; exponent < 27; ++exponent) {
        for (const char* mantissa : {"1", "1.5", "2.2", "4.7", "-6.8"}) {
            const double value =
                std::strtod((std::string(mantissa) + "e" + std::to_string(exponent)).c_str(), nullptr);
            for (int scale = 0; scale <= 4; ++scale) {
                const CStringU text =
                    FormatEngineering(value, 4, true, false, true, static_cast<TeUnitScale>(scale), true);
                EXPECT_EQ(text_test::ReadExactly(text.Payload(), static_cast<TeUnitScale>(scale)), value)
                    << text.Payload();
                double read = 0;
                EXPECT_TRUE(vapp::ParseEngineering(text.Payload(), &read, nullptr, scale == 0).IsEmpty());
                EXPECT_LE(text_test::DistanceInUnits(read, value), 1) << text.Payload();
            }
        }
    }
}

TEST(FormatEngineeringRoundTrip, AlignedTextsComeBack) {
    for (const double value : {0.0, 1.0, -1.5, 150e-6, -2.2e6, 1e-30}) {
        for (int scale = 0; scale <= 4; ++scale) {
            const CStringU text =
                FormatEngineering(value, 4, true, true, false, static_cast<TeUnitScale>(scale), false);
            double read = 99;
            EXPECT_TRUE(vapp::ParseEngineering(text.Payload(), &read, nullptr, scale == 0).IsEmpty());
            EXPECT_NEAR(read, value, std::fabs(value) * 1e-15) << '"' << text.Payload() << '"';
        }
    }
}

// One notation's text in the other's reading; docs/numbers.md lists them for users.
TEST(FormatEngineeringRoundTrip, NotationsReadOneAnotherOtherwiseInTheseLetters) {
    struct TRow {
        double value;
        TeUnitScale scale;
        const char* text;
        bool si;  // the reading that is not the notation's own
        double read;
    };
    constexpr TRow rows[] = {
        {1e6, TeUnitScale::Si, "1M", false, 1e-3},      {1e15, TeUnitScale::Si, "1P", false, 1e-12},
        {1e18, TeUnitScale::Si, "1E", false, 1},        {1e21, TeUnitScale::Si, "1Z", false, 1},
        {1e24, TeUnitScale::Si, "1Y", false, 1},        {1e-21, TeUnitScale::Si, "1z", false, 1},
        {1e-24, TeUnitScale::Si, "1y", false, 1},       {1e-3, TeUnitScale::Si, "1m", false, 1e-3},
        {1e-15, TeUnitScale::Si, "1f", false, 1e-15},   {1e9, TeUnitScale::Si, "1G", false, 1e9},
        {1e6, TeUnitScale::Spice, "1X", true, 1e6},     {1e6, TeUnitScale::HSpice, "1MEG", true, 1e6},
        {1e-12, TeUnitScale::Spice, "1p", true, 1e-12}, {1e12, TeUnitScale::Spice, "1T", true, 1e12},
    };
    for (const TRow& row : rows) {
        const CStringU text = FormatEngineering(row.value, 3, true, false, true, row.scale, true);
        EXPECT_EQ(text, row.text);
        double read = 0;
        EXPECT_TRUE(vapp::ParseEngineering(text.Payload(), &read, nullptr, row.si).IsEmpty());
        EXPECT_DOUBLE_EQ(read, row.read) << row.text;
    }
}

TEST(FormatEngineeringRoundTrip, OthersComeBackAsNothingOrAsZero) {
    const auto read = [](double value) {
        double back = 99;
        const CStringU error =
            vapp::ParseEngineering(vapp::FormatEngineeringFull(value).Payload(), &back, nullptr, true);
        return std::make_pair(std::string(error.Payload()), back);
    };
    EXPECT_EQ(read(std::nan("")), std::make_pair(std::string("Not a number"), 0.0));
    EXPECT_EQ(read(HUGE_VAL), std::make_pair(std::string("Not a number"), 0.0));
    EXPECT_EQ(read(-HUGE_VAL), std::make_pair(std::string("Not a number"), 0.0));
    EXPECT_EQ(read(1.2345678901234567e-300), std::make_pair(std::string(), 0.0))
        << "its power of ten is infinite";
    EXPECT_FALSE(std::signbit(read(-0.0).second));
}

}  // namespace
