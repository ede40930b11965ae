// FormatEngineering beside a slow model on big decimals (BigDecimal.h): over all exponents, counts of digits
// and choices, and on random doubles.

#include <gtest/gtest.h>

#include <array>
#include <bit>
#include <bitset>
#include <cmath>
#include <cstdlib>
#include <limits>
#include <string>
#include <vector>

#include "tests/text/BigDecimal.h"
#include "tests/text/TextHelpers.h"
#include "vapp/text/FormatEngineering.h"

namespace {

using text_test::ExactDecimal;
using text_test::ModelText;
using text_test::TBigDecimal;
using text_test::TModelStyle;

std::string Ours(double value, const TModelStyle& style) {
    return vapp::FormatEngineering(value, static_cast<unsigned>(style.digits), style.significant, style.align,
                                   style.strip, static_cast<TeUnitScale>(style.scale), style.stripExponent)
        .Payload();
}

std::string Describe(double value, const TModelStyle& style) {
    return std::to_string(std::bit_cast<std::uint64_t>(value)) + " digits " + std::to_string(style.digits) +
           (style.significant ? " significant" : " decimals") + " scale " + std::to_string(style.scale);
}

// One of the 40 combinations of all choices but the digits.
TModelStyle StyleOf(std::size_t digits, bool significant, unsigned choice) {
    return {digits,
            significant,
            choice % 2 == 1,
            choice / 2 % 2 == 1,
            static_cast<int>(choice / 8 % 5),
            choice / 4 % 2 == 1};
}
constexpr unsigned cnChoices = 40;

void Check(double value, const TBigDecimal& exact, const TModelStyle& style) {
    ASSERT_EQ(Ours(value, style), ModelText(value, exact, style)) << Describe(value, style);
}

TEST(FormatEngineeringModel, AgreesOverAllExponentsAndCountsOfDigits) {
    unsigned choice = 0;
    std::array<std::bitset<cnChoices>, 21> met;  // of each count of digits
    for (int exponent = -324; exponent <= 308; ++exponent) {
        for (const std::string mantissa : {"1", "1.5", "9.9995", "9.995", "1.2344996", "5", "-4.4445"}) {
            const double value = std::strtod((mantissa + "e" + std::to_string(exponent)).c_str(), nullptr);
            if (!std::isfinite(value)) continue;
            const TBigDecimal exact = ExactDecimal(value);
            for (std::size_t digits = 1; digits <= 20; ++digits) {
                choice = (choice + 1) % cnChoices;
                met.at(digits).set(choice);
                Check(value, exact, StyleOf(digits, true, choice));
                Check(value, exact, StyleOf(digits, false, choice));
                if (HasFatalFailure()) return;
            }
            ++choice;  // 21 steps a number: without it each count of digits would meet two choices only
        }
    }
    for (std::size_t digits = 1; digits <= 20; ++digits) {
        EXPECT_TRUE(met.at(digits).all()) << digits;
    }
}

TEST(FormatEngineeringModel, AgreesInEveryChoice) {
    for (const double value :
         {0.0, 1.0, -1.0, 9.996, -99.96, 999.6, 1500.0, -0.05, 1e-25, 1e25, 12345678.9, 1e15, 0.1}) {
        const TBigDecimal exact = ExactDecimal(value);
        for (std::size_t digits = 1; digits <= 20; ++digits) {
            for (unsigned choice = 0; choice < cnChoices; ++choice) {
                Check(value, exact, StyleOf(digits, true, choice));
                Check(value, exact, StyleOf(digits, false, choice));
                if (HasFatalFailure()) return;
            }
        }
    }
}

// Numbers that end in a 5 where they are cut, exactly: halves, quarters and their kind.
TEST(FormatEngineeringModel, AgreesOnTies) {
    unsigned choice = 0;
    for (int binary = -60; binary <= 60; ++binary) {
        for (int odd = 1; odd < 400; odd += 2) {
            const double value = std::ldexp(odd, binary);
            const TBigDecimal exact = ExactDecimal(value);
            const std::size_t length = exact.digits.size();
            choice = (choice + 7) % cnChoices;
            if (length > 3) Check(value, exact, StyleOf(length - 1, true, choice));
            if (length > 4) Check(-value, exact, StyleOf(length - 4, false, choice));
            if (HasFatalFailure()) return;
        }
    }
}

TEST(FormatEngineeringModel, AgreesOnHundredsOfDigits) {
    const std::vector<double> values = {
        std::numeric_limits<double>::denorm_min(),
        std::numeric_limits<double>::min(),
        std::nextafter(std::numeric_limits<double>::min(), 0.0),  // 767 digits
        std::numeric_limits<double>::max(),
        0.1,
        1.0 / 3,
        1e23,
        0.0};
    for (const double value : values) {
        const TBigDecimal exact = ExactDecimal(value);
        for (std::size_t digits = 20; digits <= 797; digits += 7) {
            Check(value, exact, StyleOf(digits, true, static_cast<unsigned>(digits) % cnChoices));
            Check(value, exact, StyleOf(digits, false, static_cast<unsigned>(digits) % cnChoices));
            if (HasFatalFailure()) return;
        }
    }
}

TEST(FormatEngineeringModel, AgreesOnRandomDoubles) {
    std::mt19937 random = text_test::SeededRandom("AgreesOnRandomDoubles");
    for (int round = 0; round < 3000; ++round) {
        const auto value = std::bit_cast<double>(std::uint64_t{random()} << 32U | random());
        if (!std::isfinite(value)) continue;
        const TBigDecimal exact = ExactDecimal(value);
        for (int i = 0; i < 10; ++i) {
            Check(value, exact,
                  StyleOf(1 + random() % 25, random() % 2 == 0, static_cast<unsigned>(random() % cnChoices)));
            if (HasFatalFailure()) return;
        }
    }
}

}  // namespace
