// The plain text of numbers, by a table and against big decimals.

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <cstdlib>
#include <limits>
#include <string>

#include "tests/text/BigDecimal.h"
#include "tests/text/TextHelpers.h"
#include "vapp/text/FormatEngineering.h"

namespace {

using vapp::FormatGeneral;

TEST(FormatGeneral, WritesDecimalsAndPowers) {
    struct TRow {
        double value;
        const char* text;
    };
    constexpr TRow rows[] = {
        {1, "1."},
        {-1, "-1."},
        {1.5, "1.5"},
        {-314150, "-314150."},
        {0.5, "0.5"},
        {0.1, "0.100000000000000006"},
        {0.1123, "0.112299999999999997"},
        {0.0625, "6.25e-002"},
        {-0.0123, "-1.23000000000000002e-002"},
        {1e-5, "1.00000000000000008e-005"},
        {1e15, "1000000000000000."},
        {1e16, "10000000000000000."},
        {1e17, "100000000000000000"},
        {123456789012345680, "123456789012345680"},
        {1e18, "1.e+018"},
        {1e20, "1.e+020"},
        {1.25e21, "1.25e+021"},
        {-1e300, "-1.00000000000000005e+300"},
        {1e-300, "1.00000000000000003e-300"},
        {5e-324, "4.94065645841246544e-324"},
        {std::numeric_limits<double>::max(), "1.79769313486231571e+308"},
    };
    for (const TRow& row : rows)
        EXPECT_EQ(FormatGeneral(row.value), row.text);
}

TEST(FormatGeneral, WritesWordsForWhatIsNoNumberAndOneZero) {
    EXPECT_EQ(FormatGeneral(0.0), "0.");
    EXPECT_EQ(FormatGeneral(-0.0), "0.");
    EXPECT_EQ(FormatGeneral(std::numeric_limits<double>::quiet_NaN()), "nan");
    EXPECT_EQ(FormatGeneral(-std::numeric_limits<double>::quiet_NaN()), "nan");
    EXPECT_EQ(FormatGeneral(std::numeric_limits<double>::infinity()), "inf");
    EXPECT_EQ(FormatGeneral(-std::numeric_limits<double>::infinity()), "-inf");
}

std::string GeneralModel(double value) {
    int point = 0;
    std::string digits = text_test::RoundHalfEven(text_test::ExactDecimal(value), 18, point);
    const bool decimals = point >= 0 && point <= 18;
    std::string text = value < 0 ? "-" : "";
    const auto before = static_cast<std::size_t>(decimals ? point : 1);
    text += before == 0 ? "0" : digits.substr(0, before);
    std::string right = digits.substr(before);
    if (right.empty()) return text;
    right.erase(right.find_last_not_of('0') + 1);
    text += "." + right;
    if (decimals) return text;
    std::string power = std::to_string(std::abs(point - 1));
    power.insert(0, 3 - power.size(), '0');
    return text + (point < 1 ? "e-" : "e+") + power;
}

TEST(FormatGeneral, AgreesWithBigDecimals) {
    std::mt19937 random = text_test::SeededRandom("FormatGeneral");
    for (int exponent = -324; exponent <= 308; ++exponent) {
        for (const char* mantissa : {"1e", "-1.5e", "9.99999999999999999e", "1.23456789012345678e"}) {
            const double value = std::strtod((mantissa + std::to_string(exponent)).c_str(), nullptr);
            if (!std::isfinite(value)) continue;
            ASSERT_EQ(FormatGeneral(value), GeneralModel(value).c_str()) << value;
        }
    }
    for (int round = 0; round < 3000; ++round) {
        const auto value = std::bit_cast<double>(std::uint64_t{random()} << 32U | random());
        if (!std::isfinite(value)) continue;
        ASSERT_EQ(FormatGeneral(value), GeneralModel(value).c_str()) << value;
    }
}

}  // namespace
