// The numbers that a text reads out of itself: positions in payloads with and without a marker, code pages,
// and hosts with a locale of their own.

#include <gtest/gtest.h>

#include <clocale>
#include <cmath>
#include <string>

#include "tests/text/HostileText.h"
#include "tests/text/LocaleGuard.h"
#include "text/CharToInt.h"
#include "vapp/text/CStringU.h"

namespace {

using namespace text_test;

TEST(CStringUNumbers, ToDoubleTellsThePlaceBehindTheNumber) {
    const CStringU text(" -1.5e3k");
    CStringUPos pos;
    EXPECT_EQ(text.ToDouble(&pos), -1500);
    EXPECT_EQ(pos.offset, 7);
    EXPECT_EQ(pos.owner, &text);
    EXPECT_EQ(*pos, u'k');
    EXPECT_EQ(text.ToDouble(), -1500);
    const CStringU none("abc");
    EXPECT_EQ(none.ToDouble(&pos), 0);
    EXPECT_EQ(pos.offset, 0);
    EXPECT_EQ(CStringU().ToDouble(&pos), 0);
    EXPECT_EQ(pos.offset, 0);
}

TEST(CStringUNumbers, ToDoubleReadsWhatStrtodReads) {
    EXPECT_EQ(CStringU("0x1F").ToDouble(), 31);
    EXPECT_TRUE(std::isinf(CStringU("-inf").ToDouble()));
    EXPECT_TRUE(std::isnan(CStringU("nan").ToDouble()));
    EXPECT_EQ(CStringU("0.1").ToDouble(), 0.1);
}

TEST(CStringUNumbers, ToDoubleCountsThePayloadAndNotTheMarker) {
    const CStringU text = Utf8("2.5\xC3\xA9");
    ASSERT_TRUE(text.HasNonAscii());
    CStringUPos pos;
    for (const unsigned codePage : {1252U, 932U, 65001U}) {
        const TCodePageGuard guard(codePage);
        EXPECT_EQ(text.ToDouble(&pos), 2.5);
        EXPECT_EQ(pos.offset, 3);
        EXPECT_EQ(*pos, u'\u00E9');
        EXPECT_EQ(text.ToDoubleEngineering(true, &pos), 2.5);
        EXPECT_EQ(pos.offset, 3);
    }
}

TEST(CStringUNumbers, OverlongDigitsHaveMoreBytesThanCharacters) {
    // Malformed text whose characters are the digits 1 and 2, in two bytes each; the last one sends it
    // through the code page.
    const CStringU text = Utf8("\xC0\xB1\xC0\xB2.5\xC3\xA9");
    CStringUPos pos;
    EXPECT_EQ(text.ToDouble(&pos), 12.5);
    EXPECT_EQ(pos.offset, 6);
}

struct TInvisible {
    const char* utf8;
    const char* name;
};
constexpr TInvisible cnInvisible[] = {
    {"\xE2\x80\x8B", "zero width space"},
    {"\xEF\xBB\xBF", "zero width no-break space"},
    {"\xE2\x81\xA0", "word joiner"},
    {"\xC2\xAD", "soft hyphen"},
};

// If a character vanished on its way into the code page, the digits on its two sides would make one number.
TEST(CStringUNumbers, InvisibleCharactersEndANumber) {
    for (const unsigned codePage : {1252U, 932U, 65001U}) {
        const TCodePageGuard guard(codePage);
        for (const TInvisible& row : cnInvisible) {
            SCOPED_TRACE(std::string(row.name) + " in code page " + std::to_string(codePage));
            const CStringU text = Utf8((std::string("1") + row.utf8 + "2.5k").c_str());
            CStringUPos pos;
            EXPECT_EQ(text.ToDouble(&pos), 1);
            EXPECT_EQ(pos.offset, 1);
            EXPECT_EQ(text.ToDoubleEngineering(true, &pos), 1);
            EXPECT_EQ(pos.offset, 1);
            EXPECT_EQ(text.ToDoubleEngineering(false, &pos), 1);
            EXPECT_EQ(pos.offset, 0) << "without a suffix the SI reading ends on the last character";
            // In front of the unit: the unit is not read.
            const CStringU parted = Utf8((std::string("12") + row.utf8 + "k").c_str());
            EXPECT_EQ(parted.ToDoubleEngineering(true, &pos), 12);
            EXPECT_EQ(pos.offset, 2);
        }
    }
}

TEST(CStringUNumbers, InvisibleCharactersInFrontMakeItNoNumber) {
    for (const unsigned codePage : {1252U, 932U, 65001U}) {
        const TCodePageGuard guard(codePage);
        for (const TInvisible& row : cnInvisible) {
            SCOPED_TRACE(std::string(row.name) + " in code page " + std::to_string(codePage));
            const CStringU text = Utf8((std::string(row.utf8) + "2.5k").c_str());
            // Some systems' tables have a minus for a soft hyphen where the page has none.
            if (text.ToAnsi(codePage).GetString()[0] == '-') continue;
            CStringUPos pos;
            EXPECT_EQ(text.ToDouble(&pos), 0);
            EXPECT_EQ(pos.offset, 0);
            EXPECT_EQ(text.ToDoubleEngineering(true, &pos), 0);
            EXPECT_EQ(pos.offset, 0);
            EXPECT_EQ(text.ToDoubleEngineering(false, &pos), 0);
            EXPECT_EQ(pos.offset, 0);
        }
    }
}

// Code pages without full-width characters have the plain ones for them, those that have them keep them.
TEST(CStringUNumbers, FullWidthDigitsAreDigitsWhereTheCodePageMakesThemSo) {
    const CStringU text = Utf8("\xEF\xBC\x91\xEF\xBC\x8E\xEF\xBC\x95k\xC3\xA9");
    CStringUPos pos;
    for (const unsigned codePage : {932U, 65001U}) {
        const TCodePageGuard guard(codePage);
        EXPECT_EQ(text.ToDouble(&pos), 0) << codePage;
        EXPECT_EQ(pos.offset, 0) << codePage;
    }
    const TCodePageGuard guard(1252);
    EXPECT_EQ(text.ToDouble(&pos), 1.5);
    EXPECT_EQ(pos.offset, 9);
    EXPECT_EQ(text.ToDoubleEngineering(false, &pos), 1500);
    EXPECT_EQ(pos.offset, 10);
    EXPECT_EQ(*pos, u'\u00E9');
    EXPECT_EQ(Utf8("\xEF\xBC\x91\xEF\xBC\x95").ToDoubleEngineering(false, &pos), 15);
    EXPECT_EQ(pos.offset, 3) << "on the last digit";
}

// In some code pages one character becomes several bytes that a number can be made of.
TEST(CStringUNumbers, ACharacterThatBecomesSeveralDigitsIsCountedOnce) {
    const TCodePageGuard guard(1200);  // two bytes for each: those of this one are the digits 1 and 2
    const CStringU text = Utf8("\xE3\x88\xB1\xE3\x88\xB1\xC3\xA9");
    CStringUPos pos;
    if (text.ToAnsi(1200).IsEmpty()) GTEST_SKIP() << "the system converts into no such page";
    EXPECT_EQ(text.ToDouble(&pos), 1212);
    EXPECT_EQ(pos.offset, 6);
}

TEST(CStringUNumbers, AMarkerAloneIsNoNumber) {
    const CStringU text = Raw("\x80");
    CStringUPos pos;
    EXPECT_EQ(text.ToDouble(&pos), 0);
    EXPECT_EQ(text.ToDoubleEngineering(false, &pos), 0);
    EXPECT_EQ(text.ToInt(&pos), 0);
    EXPECT_EQ(pos.offset, 0);
}

TEST(CStringUNumbers, ToDoubleEngineeringChoosesTheReading) {
    const CStringU text("10Mx");
    CStringUPos pos;
    EXPECT_EQ(text.ToDoubleEngineering(true, &pos), 0.01);
    EXPECT_EQ(pos.offset, 3);
    EXPECT_EQ(text.ToDoubleEngineering(false, &pos), 1e7);
    EXPECT_EQ(pos.offset, 3);
    EXPECT_EQ(CStringU("2ft").ToDoubleEngineering(false), 0.61);
}

TEST(CStringUNumbers, WithoutASuffixTheSiReadingEndsOnTheLastCharacter) {
    const CStringU text("12.5 k");
    CStringUPos pos;
    EXPECT_EQ(text.ToDoubleEngineering(true, &pos), 12.5);
    EXPECT_EQ(*pos, u' ');
    EXPECT_EQ(text.ToDoubleEngineering(false, &pos), 12.5);
    EXPECT_EQ(*pos, u'5');
}

TEST(CStringUNumbers, WithoutANumberEngineeringGivesZeroAtTheFront) {
    for (const char* none : {"", "k", " . ", "abc"}) {
        const CStringU text(none);
        for (const bool spice : {false, true}) {
            CStringUPos pos(3, nullptr);
            EXPECT_EQ(text.ToDoubleEngineering(spice, &pos), 0);
            EXPECT_EQ(pos.offset, 0);
            EXPECT_EQ(pos.owner, &text);
        }
    }
}

TEST(CStringUNumbers, IntegersOfAllWidths) {
    const CStringU text = Utf8(" \xE2\x88\x92\xD9\xA3\xD9\xA4z");
    CStringUPos pos(7, nullptr);
    EXPECT_EQ(text.ToInt(&pos), -34) << "a minus sign and Arabic-Indic digits";
    EXPECT_EQ(pos.offset, 8);
    EXPECT_EQ(pos.owner, &text);
    EXPECT_EQ(*pos, u'z');
    EXPECT_EQ(text.ToInt64(&pos), -34);
    EXPECT_EQ(text.ToUInt(&pos), 0U);
    EXPECT_EQ(*pos, u'\u2212');
    EXPECT_EQ(text.ToUInt64(), 0U);
    EXPECT_EQ(CStringU("4294967295").ToUInt(), 4294967295U);
    EXPECT_EQ(CStringU("18446744073709551615").ToUInt64(), 18446744073709551615U);
    EXPECT_EQ(CStringU("-9223372036854775808").ToInt64(), std::numeric_limits<std::int64_t>::min());
    EXPECT_EQ(CStringU("2147483648").ToInt(), 214748364);
}

TEST(CStringUNumbers, PositionsStayWithinAnyText) {
    std::mt19937 random = SeededRandom();
    constexpr unsigned codePages[] = {1252, 932, 54936, 65000, 65001};
    for (int i = 0; i < 5000; ++i) {
        const TCodePageGuard guard(codePages[UpTo(random, std::size(codePages) - 1)]);
        const CStringU text(HostileBytes(random).c_str(),
                            UpTo(random, 1) == 0 ? TextEncoding::Raw : TextEncoding::Utf8Auto);
        CStringUPos pos;
        text.ToDouble(&pos);
        ASSERT_TRUE(pos.offset >= 0 && pos.offset <= text.GetByteLength());
        text.ToDoubleEngineering(UpTo(random, 1) == 0, &pos);
        ASSERT_TRUE(pos.offset >= 0 && pos.offset <= text.GetByteLength());
        static_cast<void>(text.ToUInt(&pos));
        ASSERT_TRUE(pos.offset >= 0 && pos.offset <= text.GetByteLength());
    }
}

void ExpectNumbersOfThePlainLocale() {
    // The code page is another matter than the locale: some of them turn a foreign i into an i.
    const TCodePageGuard guard(65001);
    EXPECT_EQ(CStringU("1.5").ToDouble(), 1.5);
    EXPECT_EQ(CStringU("1,5").ToDouble(), 1);
    EXPECT_EQ(CStringU("1.500").ToDouble(), 1.5);
    EXPECT_TRUE(std::isinf(CStringU("INFINITY").ToDouble()));
    for (const bool spice : {false, true}) {
        EXPECT_EQ(CStringU("1.5k").ToDoubleEngineering(spice), 1500);
        EXPECT_EQ(CStringU("1,5k").ToDoubleEngineering(spice), 1);
        EXPECT_EQ(CStringU("1.5MI").ToDoubleEngineering(spice), 15 * 2.54e-05 / 10);
        EXPECT_EQ(Utf8("1.5m\xC4\xB0").ToDoubleEngineering(spice), 0.0015) << "a dotted capital I";
        EXPECT_EQ(Utf8("1.5m\xC4\xB1").ToDoubleEngineering(spice), 0.0015) << "a small i without its dot";
    }
    EXPECT_EQ(CStringU("1.234").ToInt(), 1);
    EXPECT_EQ(CStringU("0XFF").ToInt(), 255);
}

TEST(CStringUNumbers, ALocaleWithACommaChangesNothing) {
    const TLocaleGuard guard(cnCommaLocales);
    if (!guard.IsSet()) GTEST_SKIP() << "no locale with a decimal comma is installed";
    ASSERT_STREQ(std::localeconv()->decimal_point, ",");
    ExpectNumbersOfThePlainLocale();
}

TEST(CStringUNumbers, TurkishChangesNothing) {
    const TLocaleGuard guard(cnTurkishLocales);
    if (!guard.IsSet()) GTEST_SKIP() << "no Turkish locale is installed";
    ExpectNumbersOfThePlainLocale();
}

TEST(CStringUNumbers, ThePlainLocaleIsThePlainLocale) {
    ExpectNumbersOfThePlainLocale();
}

}  // namespace
