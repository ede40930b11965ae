// Engineering numbers by tables: values to the last bit, end positions, errno, and the texts that are none.

#include "vapp/text/ParseEngineering.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <cmath>
#include <limits>
#include <string>

#include "tests/text/TextHelpers.h"
#include "vapp/text/TEngineeringFormatSettings.h"

namespace {

using boost::logic::indeterminate;
using vapp::ParseEngineering;
using vapp::ParseEngineeringWithSettings;

constexpr double cnParsedInfinity = std::numeric_limits<double>::infinity();

struct TRead {
    std::string error;
    double value = 0;
    std::ptrdiff_t end = -1;  // -1: not written
    int error_number = 0;
};

TRead Read(const char* text, bool si) {
    TRead read;
    const char* end = nullptr;
    double value = 99;
    errno = 0;
    read.error = ParseEngineering(text, &value, &end, si).Payload();
    read.error_number = errno;
    read.value = value;
    if (end != nullptr) read.end = end - text;
    return read;
}

struct TParseRow {
    const char* text;
    double spice;
    int spiceEnd;
    double si;
    int siEnd;
};

// In the SI reading a number without a suffix ends on its last character.
constexpr TParseRow cnParseRows[] = {
    {"1.5k", 1500, 4, 1500, 4},
    {"10MEG", 1e7, 5, 1e7, 5},
    {"10meg", 1e7, 5, 1e7, 5},
    {"10MeGohm", 1e7, 5, 1e7, 5},
    {"10M", 0.01, 3, 1e7, 3},
    {"10m", 0.01, 3, 0.01, 3},
    {"3mil", 3 * 2.54e-05, 3, 3 * 2.54e-05, 3},
    {"2ft", 0.61, 3, 0.61, 3},
    {"2f t", 2e-15, 2, 2e-15, 2},
    {"50%", 0.5, 3, 0.5, 3},
    {"5", 5, 1, 5, 0},
    {"-5", -5, 2, -5, 1},
    {"+5", 5, 2, 5, 1},
    {"--5", 0, -1, 0, -1},
    {"+-5", 0, -1, 0, -1},
    {"5.", 5, 2, 5, 1},
    {".5", 0.5, 2, 0.5, 1},
    {"1.2.3", 1.2, 3, 1.2, 2},
    {"1..2", 1, 2, 1, 1},
    {"  \t\n\v\f\r7 ", 7, 8, 7, 7},
    {"1 k", 1, 1, 1, 0},
    {"1,5", 1, 1, 1, 0},
    {"1e3", 1000, 3, 1000, 2},
    {"1e+3", 1000, 4, 1000, 3},
    {"1E-3", 0.001, 4, 0.001, 3},
    {"1e3k", 1e6, 4, 1e6, 4},
    {"1e3e3", 1000, 3, 1e21, 4},
    {"1e3.5", 1000, 3, 1000, 2},
    // Without digits an "e" is no exponent; then it is exa to SI.
    {"1e", 1, 1, 1e18, 2},
    {"1e-", 1, 1, 1e18, 2},
    {"1E+k", 1, 1, 1e18, 2},
    {"1ee5", 1, 1, 1e18, 2},
    {"1e- 5", 1, 1, 1e18, 2},
    {"0x10", 0, 2, 0, 2},
    {"0", 0, 1, 0, 0},
    {"00012", 12, 5, 12, 4},
    {"1\x80", 1, 1, 1, 0},
    {"1\xCD", 1, 1, 1, 0},
    // Ends behind the text never: the words are looked at up to the NUL only.
    {"1m", 0.001, 2, 0.001, 2},
    {"1me", 0.001, 2, 0.001, 2},
    {"1f", 1e-15, 2, 1e-15, 2},
};

TEST(ParseEngineering, ReadsByTheTableInBothReadings) {
    for (const TParseRow& row : cnParseRows) {
        const std::string error = row.spiceEnd < 0 ? "Not a number" : "";
        const TRead spice = Read(row.text, false);
        EXPECT_EQ(spice.value, row.spice) << row.text;
        EXPECT_EQ(spice.end, row.spiceEnd) << row.text;
        EXPECT_EQ(spice.error, error) << row.text;
        EXPECT_EQ(spice.error_number, 0) << row.text;
        const TRead si = Read(row.text, true);
        EXPECT_EQ(si.value, row.si) << row.text;
        EXPECT_EQ(si.end, row.siEnd) << row.text;
        EXPECT_EQ(si.error, error) << row.text;
        EXPECT_EQ(si.error_number, 0) << row.text;
    }
}

TEST(ParseEngineering, WhatIsNoNumberIsZeroAndLeavesTheEndAlone) {
    for (const char* text :
         {"", ".", "-", "+", "abc", "-.", " ", "k", ".e5", "e5", "%", "- 5", "inf", "nan", "\xEF\xBC\x91",
          "\x80"
          "1"}) {
        for (const bool si : {false, true}) {
            const TRead read = Read(text, si);
            EXPECT_EQ(read.error, "Not a number") << text;
            EXPECT_EQ(read.value, 0) << text;
            EXPECT_FALSE(std::signbit(read.value)) << text;
            EXPECT_EQ(read.end, -1) << text;
            EXPECT_EQ(read.error_number, 0) << text;
        }
    }
}

TEST(ParseEngineering, NoTextAndNoEndAreNoTrouble) {
    double value = 99;
    EXPECT_EQ(ParseEngineering(static_cast<const char*>(nullptr), &value, nullptr, true), "Not a number");
    EXPECT_EQ(value, 0);
    EXPECT_TRUE(ParseEngineering("2k", &value, nullptr, true).IsEmpty());
    EXPECT_EQ(value, 2000);
}

TEST(ParseEngineering, TheLOfAMilStaysUnread) {
    double value = 0;
    const char* end = nullptr;
    EXPECT_TRUE(ParseEngineering("3mil", &value, &end, false).IsEmpty());
    EXPECT_EQ(value, 3 * 2.54e-05) << "a unit in the last place beside 7.62e-05";
    EXPECT_STREQ(end, "l");
}

TEST(ParseEngineering, AFootIsShort) {
    EXPECT_EQ(Read("1ft", false).value, 0.305);
    EXPECT_EQ(Read("1000FT", true).value, 305);
}

TEST(ParseEngineering, OnlyTheFirstEighteenDigitsCount) {
    EXPECT_EQ(Read("1234567890123456789012345", false).value, 123456789012345678.0 * 1e7);
    EXPECT_EQ(Read("1234567890123456789012345", false).end, 25);
    EXPECT_EQ(Read("1.234567890123456789012345", false).value, 123456789012345678.0 / (10.0 * 1e16));
    EXPECT_EQ(Read("1.234567890123456789012345", false).end, 26);
    EXPECT_EQ(Read("123456789012345678", false).value, 123456789012345678.0);
    EXPECT_EQ(Read("1234567890123456789", false).value, 123456789012345678.0 * 10);
    // 20 digits, as many as 64 bits can not hold.
    EXPECT_EQ(Read("99999999999999999999", false).value, 999999999999999999.0 * 100);
}

TEST(ParseEngineering, LeadingZerosAreDigitsToo) {
    EXPECT_EQ(Read("0.00000000000000012", false).value, 12 / (10.0 * 1e16)) << "18 digits";
    EXPECT_EQ(Read("0.000000000000000012", false).value, 1 / (10.0 * 1e16)) << "19 digits, the last one cut";
    EXPECT_EQ(Read("0.00000000000000000012", false).value, 0) << "18 zeros are kept";
    EXPECT_EQ(Read("0000000000000000001", false).value, 0);
}

TEST(ParseEngineering, AnExponentOutOfRangeShowsInErrnoOnly) {
    for (const char* text : {"1e999", "1e512", "1e511k", "1e4294967296", "1e99999999999999999999999"}) {
        const TRead read = Read(text, false);
        EXPECT_EQ(read.value, cnParsedInfinity) << text;
        EXPECT_EQ(read.error_number, ERANGE) << text;
        EXPECT_EQ(read.error, "") << text;
    }
    for (const char* text : {"1e-999", "1e-512", "1e-511m", "1e-4294967297", "1e-18446744073709551616"}) {
        const TRead read = Read(text, false);
        EXPECT_EQ(read.value, 0) << text;
        EXPECT_EQ(read.error_number, ERANGE) << text;
        EXPECT_EQ(read.error, "") << text;
    }
    EXPECT_EQ(Read("-1e999", true).value, -cnParsedInfinity);
    EXPECT_TRUE(std::signbit(Read("-1e-999", true).value));
}

TEST(ParseEngineering, FiveHundredAndElevenIsInRangeThoughThePowerIsNot) {
    EXPECT_EQ(Read("1e511", false).value, cnParsedInfinity);
    EXPECT_EQ(Read("1e511", false).error_number, 0);
    EXPECT_EQ(Read("1e-511", false).value, 0);
    EXPECT_EQ(Read("1e-511", false).error_number, 0);
}

// The power of ten itself overflows, so that numbers near the ends of the range are lost. No error is told.
TEST(ParseEngineering, APowerBeyondTheRangeOfDoublesIsInfinite) {
    EXPECT_EQ(Read("1e308", false).value, 1e4 * 1e16 * 1e32 * 1e256);
    EXPECT_EQ(Read("1e309", false).value, cnParsedInfinity);
    EXPECT_EQ(Read("0.001e309", false).value, 1e2 * 1e16 * 1e32 * 1e256) << "only the sum counts";
    EXPECT_EQ(Read("1e-308", false).value, 1 / (1e4 * 1e16 * 1e32 * 1e256));
    EXPECT_EQ(Read("1e-309", false).value, 0);
    EXPECT_EQ(Read("2.2250738585072014e-308", false).value, 0) << "the exponent of its digits is -324";
    EXPECT_TRUE(std::isnan(Read("0e309", false).value)) << "0 times infinity";
    EXPECT_EQ(Read("0e-309", false).value, 0);
}

TEST(ParseEngineering, TheSignOfZeroIsKept) {
    EXPECT_TRUE(std::signbit(Read("-0", false).value));
    EXPECT_FALSE(std::signbit(Read("0", false).value));
}

TEST(ParseEngineering, ErrnoIsNotClearedByASuccess) {
    errno = EDOM;
    double value = 0;
    static_cast<void>(ParseEngineering("1.5k", &value, nullptr, false));
    static_cast<void>(ParseEngineering("x", &value, nullptr, false));
    EXPECT_EQ(errno, EDOM);
}

TEST(ParseEngineering, WideTextReadsTheSameAndMeansAsciiOnly) {
    double value = 0;
    const wchar_t* end = nullptr;
    const wchar_t* text = L" -1.5MEGohm";
    EXPECT_TRUE(ParseEngineering(text, &value, &end, true).IsEmpty());
    EXPECT_EQ(value, -1.5e6);
    EXPECT_EQ(end - text, 8);
    for (const wchar_t* none : {L"\u00A01", L"\u20031", L"\uFF11", L"\u0663", L"\u01311", L"\u0120"}) {
        EXPECT_EQ(ParseEngineering(none, &value, nullptr, true), "Not a number");
    }
    // Letters that fold to k and s elsewhere, full-width letters, and characters whose low byte is a letter.
    for (const wchar_t* bare :
         {L"1\u212A", L"1\uFF4B", L"1\u016B", L"1\u036D", L"1\u0130", L"1\u0131", L"1\u0665",
          L"1\u0665"
          L"5"}) {
        EXPECT_TRUE(ParseEngineering(bare, &value, &end, false).IsEmpty());
        EXPECT_EQ(value, 1);
        EXPECT_EQ(end - bare, 1);
    }
}

TEST(ParseEngineering, CharactersBeyondSixteenBitsEndTheNumber) {
    // Where wchar_t has 16 bits these are surrogates, which mean as little.
    for (const wchar_t* text : {L"1\U0001D7CF", L"1\U0001006B", L"1\U00010035"}) {
        double value = 0;
        const wchar_t* end = nullptr;
        EXPECT_TRUE(ParseEngineering(text, &value, &end, false).IsEmpty());
        EXPECT_EQ(value, 1);
        EXPECT_EQ(end - text, 1);
    }
}

class ParseEngineeringWithSettingsTest : public testing::Test {
protected:
    ~ParseEngineeringWithSettingsTest() override {
        gGetEngineeringFormatSettings().SetDefaultEngineeringFormatUseSiSuffixInsteadOfSpice(true);
    }
};

TEST_F(ParseEngineeringWithSettingsTest, TheDefaultDecidesWhereTheCallerDoesNot) {
    for (const bool stored : {false, true}) {
        gGetEngineeringFormatSettings().SetDefaultEngineeringFormatUseSiSuffixInsteadOfSpice(stored);
        for (const boost::logic::tribool choice : {boost::logic::tribool(false), boost::logic::tribool(true),
                                                   boost::logic::tribool(indeterminate)}) {
            const bool si = indeterminate(choice) ? stored : static_cast<bool>(choice);
            double value = 0;
            EXPECT_TRUE(ParseEngineeringWithSettings("10M", &value, choice).IsEmpty());
            EXPECT_EQ(value, si ? 1e7 : 0.01);
            EXPECT_TRUE(ParseEngineeringWithSettings(CStringU("10M"), &value, choice).IsEmpty());
            EXPECT_EQ(value, si ? 1e7 : 0.01);
        }
    }
}

// Full-width digits tell what was converted: 1252 has none and takes plain ones for them, UTF-8 keeps them.
TEST_F(ParseEngineeringWithSettingsTest, TextIsReadInTheActiveCodePage) {
    const CStringU fullWidth = text_test::Utf8("\xEF\xBC\x91\xEF\xBC\x95\xEF\xBD\x8B");
    double value = 99;
    {
        const text_test::TCodePageGuard guard(1252);
        EXPECT_TRUE(ParseEngineeringWithSettings(fullWidth, &value, true).IsEmpty());
        EXPECT_EQ(value, 15000);
        EXPECT_TRUE(ParseEngineeringWithSettings(text_test::Utf8("3k\xCE\xA9"), &value, true).IsEmpty());
        EXPECT_EQ(value, 3000);
        EXPECT_TRUE(ParseEngineeringWithSettings(text_test::Utf8("3\xC2\xB5"), &value, true).IsEmpty());
        EXPECT_EQ(value, 3) << "a micro sign is no suffix";
        EXPECT_EQ(ParseEngineeringWithSettings(text_test::Utf8("\xC3\xA9"), &value, true), "Not a number");
        EXPECT_EQ(ParseEngineeringWithSettings(CStringU(), &value, true), "Not a number");
        EXPECT_EQ(value, 0);
    }
    const text_test::TCodePageGuard guard(65001);
    EXPECT_EQ(ParseEngineeringWithSettings(fullWidth, &value, true), "Not a number");
}

TEST_F(ParseEngineeringWithSettingsTest, NarrowTextIsUsedAsItStands) {
    for (const unsigned codePage : {1252U, 932U, 65001U}) {
        const text_test::TCodePageGuard guard(codePage);
        double value = 99;
        EXPECT_TRUE(ParseEngineeringWithSettings("2k\xB5", &value, true).IsEmpty());
        EXPECT_EQ(value, 2000);
        EXPECT_TRUE(ParseEngineeringWithSettings("2\xEF\xBC\x91", &value, true).IsEmpty());
        EXPECT_EQ(value, 2) << codePage << " makes no digit of the bytes of a full-width one";
        EXPECT_EQ(ParseEngineeringWithSettings("\xEF\xBC\x91", &value, true), "Not a number") << codePage;
        EXPECT_EQ(ParseEngineeringWithSettings("\x80"
                                               "1",
                                               &value, true),
                  "Not a number")
            << codePage;
    }
}

TEST_F(ParseEngineeringWithSettingsTest, InvisibleCharactersEndANumber) {
    for (const unsigned codePage : {1252U, 932U, 65001U}) {
        const text_test::TCodePageGuard guard(codePage);
        for (const std::string invisible : {"\xE2\x80\x8B", "\xEF\xBB\xBF", "\xE2\x81\xA0", "\xC2\xAD"}) {
            double value = 99;
            const CStringU inside = text_test::Utf8(("1" + invisible + "2.5k").c_str());
            EXPECT_TRUE(ParseEngineeringWithSettings(inside, &value, true).IsEmpty());
            EXPECT_EQ(value, 1) << codePage;
            const CStringU front = text_test::Utf8((invisible + "2.5k").c_str());
            // Some systems' tables have a minus for a soft hyphen where the page has none.
            if (front.ToAnsi(codePage).GetString()[0] == '-') continue;
            EXPECT_EQ(ParseEngineeringWithSettings(front, &value, true), "Not a number") << codePage;
            EXPECT_EQ(value, 0);
        }
    }
}

}  // namespace
