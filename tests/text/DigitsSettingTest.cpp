// The settings fields of digit counts: whatever the user types becomes a count in range.

#include "text/DigitsSetting.h"

#include <gtest/gtest.h>

#include "tests/text/TextHelpers.h"

namespace {

using namespace vapp_text;

TEST(DigitsSetting, FieldsByTheTable) {
    struct TRow {
        const char* text;
        unsigned digits;
        unsigned decimals;
    };
    const TRow rows[] = {
        {"", 4, 6},
        {"5", 5, 5},
        {"1", 1, 1},
        {"0", 1, 0},
        {"18", 18, 17},
        {"17", 17, 17},
        {"19", 18, 17},
        {"-3", 1, 0},
        {"+3", 3, 3},
        {"-0", 1, 0},
        {" \t\n\v\f\r7", 7, 7},
        {"7 ", 4, 6},
        {"7x", 4, 6},
        {"x", 4, 6},
        {" ", 4, 6},
        {"-", 4, 6},
        {"+-3", 4, 6},
        {"- 3", 4, 6},
        {"0x10", 4, 6},
        {"007", 7, 7},
        {"3.0", 4, 6},
        {"1e1", 4, 6},
        {"4294967297", 18, 17},
        {"-4294967297", 1, 0},
        {"99999999999999999999999999", 18, 17},
        {"-99999999999999999999999999", 1, 0},
        {"0000000000000000000000000005", 5, 5},
    };
    for (const TRow& row : rows) {
        EXPECT_EQ(ParseDigitsSetting(row.text), row.digits) << '"' << row.text << '"';
        EXPECT_EQ(ParseDecimalsSetting(row.text), row.decimals) << '"' << row.text << '"';
    }
}

TEST(DigitsSetting, ForeignCharactersAreNoNumber) {
    const text_test::TCodePageGuard guard(65001);
    EXPECT_EQ(ParseDigitsSetting(text_test::Utf8("\xC2\xA0"
                                                 "7")),
              4U)
        << "a no-break space";
    EXPECT_EQ(ParseDigitsSetting(text_test::Utf8("\xD9\xA3")), 4U) << "an Arabic-Indic three";
    EXPECT_EQ(ParseDecimalsSetting(text_test::Utf8("7\xC3\xA9")), 6U);
}

TEST(DigitsSetting, TheLimits) {
    EXPECT_EQ(GetMinDigits(), 1U);
    EXPECT_EQ(GetMaxDigits(), 18U);
}

}  // namespace
