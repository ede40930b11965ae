// The settings fields of digit counts: whatever the user types becomes a count in range.

#include "vapp/text/DigitsSetting.h"

#include <gtest/gtest.h>

#include <string>

#include "tests/text/TextHelpers.h"

namespace {

using namespace vapp;

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

// Full-width digits tell what was converted: 1252 has none and takes plain ones for them, UTF-8 keeps them.
TEST(DigitsSetting, FieldsAreReadInTheActiveCodePage) {
    const CStringU fullWidth = text_test::Utf8("\xEF\xBC\x91\xEF\xBC\x95");
    {
        const text_test::TCodePageGuard guard(1252);
        EXPECT_EQ(ParseDigitsSetting(fullWidth), 15U);
        EXPECT_EQ(ParseDecimalsSetting(fullWidth), 15U);
    }
    const text_test::TCodePageGuard guard(65001);
    EXPECT_EQ(ParseDigitsSetting(fullWidth), 4U);
    EXPECT_EQ(ParseDecimalsSetting(fullWidth), 6U);
}

TEST(DigitsSetting, InvisibleCharactersAreNoPartOfANumber) {
    for (const unsigned codePage : {1252U, 932U, 65001U}) {
        const text_test::TCodePageGuard guard(codePage);
        for (const std::string invisible : {"\xE2\x80\x8B", "\xEF\xBB\xBF", "\xE2\x81\xA0", "\xC2\xAD"}) {
            for (const std::string& text : {"1" + invisible + "2", "9" + invisible}) {
                EXPECT_EQ(ParseDigitsSetting(text_test::Utf8(text.c_str())), 4U) << codePage;
                EXPECT_EQ(ParseDecimalsSetting(text_test::Utf8(text.c_str())), 6U) << codePage;
            }
            const CStringU front = text_test::Utf8((invisible + "9").c_str());
            // Some systems' tables have a minus for a soft hyphen where the page has none.
            if (front.ToAnsi(codePage).GetString()[0] == '-') continue;
            EXPECT_EQ(ParseDigitsSetting(front), 4U) << codePage;
            EXPECT_EQ(ParseDecimalsSetting(front), 6U) << codePage;
        }
    }
}

TEST(DigitsSetting, TheLimits) {
    EXPECT_EQ(GetMinDigits(), 1U);
    EXPECT_EQ(GetMaxDigits(), 18U);
}

}  // namespace
