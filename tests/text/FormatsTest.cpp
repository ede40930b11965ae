// printf into narrow and wide strings: the wide one beside the narrow one where both can tell the same.
#include "text/Formats.h"

#include <gtest/gtest.h>

#include <climits>
#include <clocale>
#include <cstdint>

#include "tests/text/LocaleGuard.h"
#include "tests/text/TextHelpers.h"

namespace {

using vapp_text::FormatNarrow;
using vapp_text::FormatWide;

std::u16string Widened(const CString& text) {
    return {text.GetString(), text.GetString() + text.GetLength()};
}

TEST(Formats, NarrowFormatsGiveAPlainString) {
    EXPECT_EQ(FormatNarrow("%d of %s", 3, "inv"), "3 of inv");
    EXPECT_EQ(FormatNarrow("%%"), "%");
    EXPECT_EQ(FormatNarrow("%s", std::string(1000, 'x').c_str()).GetLength(), 1000);
}

// One value, by both printfs.
#define EXPECT_SAME(format, value) EXPECT_EQ(FormatWide(format, value), Widened(FormatNarrow(format, value)))

TEST(Formats, WideNumbersLookLikeNarrowOnes) {
    for (const int value : {0, 1, -1, 42, INT_MAX, INT_MIN}) {
        EXPECT_SAME("%d", value);
        EXPECT_SAME("[%8d]", value);
        EXPECT_SAME("[%-8i]", value);
        EXPECT_SAME("%+08d", value);
        EXPECT_SAME("% .5d", value);
        EXPECT_SAME("%hd", static_cast<short>(value));
        EXPECT_SAME("%hhd", static_cast<signed char>(value));
        EXPECT_SAME("%lld", static_cast<long long>(value));
        EXPECT_SAME("%u", static_cast<unsigned>(value));
        EXPECT_SAME("%#x", static_cast<unsigned>(value));
        EXPECT_SAME("%X", static_cast<unsigned>(value));
        EXPECT_SAME("%o", static_cast<unsigned>(value));
        EXPECT_SAME("%llx", static_cast<unsigned long long>(value));
        EXPECT_SAME("%ld", static_cast<long>(value));
    }
    for (const double value : {0.0, -1.5, 3.14159, 1e300, -0.0}) {
        EXPECT_SAME("%g", value);
        EXPECT_SAME("%12.3f", value);
        EXPECT_SAME("%-12.3eX", value);
        EXPECT_SAME("%A", value);
    }
}
#undef EXPECT_SAME

TEST(Formats, IntegersAreReadAtTheSizeOfTheConversion) {
    EXPECT_EQ(FormatWide("%x", -1), u"ffffffff");
    EXPECT_EQ(FormatWide("%llx", std::int64_t{-1}), u"ffffffffffffffff");
    EXPECT_EQ(FormatWide("%hhu", 511), u"255");
    EXPECT_EQ(FormatWide("%hd", 0x18000), u"-32768");
    EXPECT_EQ(FormatWide("%Iu cells", std::size_t{5000000000}), u"5000000000 cells");
    EXPECT_EQ(FormatWide("%I64d", INT64_MIN), u"-9223372036854775808");
    EXPECT_EQ(FormatWide("%I32d", 7), u"7");
    EXPECT_EQ(FormatWide("%d", true), u"1");
}

TEST(Formats, EveryKindOfTextIsTaken) {
    const text_test::TCodePageGuard latin(1252);
    EXPECT_EQ(FormatWide("<%s>", "inv\xE9"), u"<inv\u00e9>") << "narrow text is in the active code page";
    EXPECT_EQ(FormatWide("<%s>", u"\u4e2d"), u"<\u4e2d>");
    EXPECT_EQ(FormatWide("<%s>", L"\u4e2d"), u"<\u4e2d>");
    EXPECT_EQ(FormatWide("<%ls>", CStringU(u"a\u00e9")), u"<a\u00e9>") << "without its marker";
    EXPECT_EQ(FormatWide("<%hS>", CString("\xE9")), u"<\u00e9>");
    EXPECT_EQ(FormatWide("<%s>", std::u16string(u"ab")), u"<ab>");
    EXPECT_EQ(FormatWide("<%s>", static_cast<const char*>(nullptr)), u"<(null)>");
}

TEST(Formats, TheFormatMayBeNarrowOrWide) {
    const text_test::TCodePageGuard latin(1252);
    EXPECT_EQ(FormatWide("\xE9%d", 1), u"\u00e91");
    EXPECT_EQ(FormatWide(u"\u4e2d%d", 1), u"\u4e2d1");
    EXPECT_EQ(FormatWide(L"\u4e2d%d", 1), u"\u4e2d1");
    EXPECT_EQ(FormatWide(CStringU(u"a\u4e2d")), u"a\u4e2d");
    EXPECT_EQ(FormatWide(static_cast<const char16_t*>(nullptr)), u"");
}

TEST(Formats, WidthsOfTextsCountCharacters) {
    EXPECT_EQ(FormatWide("[%4s]", u"\u4e2d\u00e9"), u"[  \u4e2d\u00e9]");
    EXPECT_EQ(FormatWide("[%-4s]", u"\u4e2d\u00e9"), u"[\u4e2d\u00e9  ]");
    EXPECT_EQ(FormatWide("[%.1s]", u"\u4e2d\u00e9"), u"[\u4e2d]");
    EXPECT_EQ(FormatWide("[%.s]", u"ab"), u"[]");
    EXPECT_EQ(FormatWide("[%*.*s]", 3, 1, "ab"), u"[  a]");
    EXPECT_EQ(FormatWide("[%*s]", -3, "ab"), u"[ab ]");
    EXPECT_EQ(FormatWide("[%.*s]", -1, "ab"), u"[ab]");
    EXPECT_EQ(FormatWide("[%3c%-2c]", u'\u00e9', 'b'), u"[  \u00e9b ]");
    EXPECT_EQ(FormatWide("%99999999999s", "a").size(), 65535U);
    EXPECT_EQ(FormatWide("%.99999999999d", 1).size(), 65535U);
}

TEST(Formats, ACharacterIsReadByItsType) {
    const text_test::TCodePageGuard latin(1252);
    EXPECT_EQ(FormatWide("%c", '\xE9'), u"\u00e9") << "narrow ones are in the active code page";
    EXPECT_EQ(FormatWide("%c", L'\u4e2d'), u"\u4e2d");
    EXPECT_EQ(FormatWide("[%3c]", u'\xd83d'), std::u16string(u"[  \xd83d]"));
    EXPECT_EQ(FormatWide("%c%c", 233, 0x100E9), u"\u00e9\u00e9") << "numbers are units of 16 bits";
    EXPECT_EQ(FormatWide("<%c%c%c>", '\0', u'\0', L'\0'), u"<>");
    EXPECT_EQ(FormatWide("%d %d", 'a', L'b'), u"97 98") << "and still numbers where one is asked for";
    if (sizeof(wchar_t) > sizeof(char16_t)) {
        EXPECT_EQ(FormatWide("%c", static_cast<wchar_t>(0x1F600)), u"\U0001F600");
    }
}

TEST(Formats, AValueMayBeNamedByItsPlace) {
    EXPECT_EQ(FormatWide("%2$s of %1$d", 3, "inv"), u"inv of 3");
    EXPECT_EQ(FormatWide("%1$s %1$s", "a"), u"a a");
    EXPECT_EQ(FormatWide("[%1$5s|%1$-5s|%1$.1s]", "ab"), u"[   ab|ab   |a]");
    EXPECT_EQ(FormatWide("[%2$*1$.*3$s]", 4, "abc", 2), u"[  ab]");
    EXPECT_EQ(FormatWide("%2$s%s%s", "a", "b"), u"bab") << "the others count on by themselves";
    EXPECT_EQ(FormatWide("<%3$s%0$s%99999999999$s>", "a", "b"), u"<>");
    EXPECT_EQ(FormatWide("<%1$", "a"), u"<");
    EXPECT_EQ(FormatWide("%1$%", "a"), u"%");
}

void ExpectWholeNumbersAndTexts() {
    EXPECT_EQ(FormatNarrow("%d %x %s", 1234567, 255U, "1.5"), "1234567 ff 1.5");
    EXPECT_EQ(FormatWide("%d %x %s", 1234567, 255, "1.5"), u"1234567 ff 1.5");
    EXPECT_EQ(CStringU::Formatted("%d %s", -42, "1.5"), CStringU("-42 1.5"));
}

TEST(Formats, ANumberThatWouldBeCutIsRefused) {
    static_assert(!std::is_constructible_v<vapp_text::WideFormatValue, long double>);
    static_assert(std::is_constructible_v<vapp_text::WideFormatValue, double>);
    EXPECT_EQ(FormatWide("%g", static_cast<double>(1.5L)), u"1.5");
}

// Which sign stands between groups is the C library's to say: in one that puts "." for real numbers, integers
// have ",".
TEST(Formats, GroupsAreThoseOfTheNarrowPrintf) {
    EXPECT_EQ(FormatWide("%'d %'.1f %'x", 1234567, 1234.5, 255), u"1234567 1234.5 ff") << "which has none";
    const text_test::TLocaleGuard guard(text_test::cnCommaLocales);
    if (!guard.IsSet()) GTEST_SKIP() << "no locale with a decimal comma is installed";
    const CString whole = FormatNarrow("%'d", 1234567);
    const CString real = FormatNarrow("%'.1f", 1234.5);
    EXPECT_EQ(whole.GetLength(), 9) << whole.GetString();
    EXPECT_EQ(real, "1.234,5");
    EXPECT_EQ(FormatWide("%'d|%'.1f|%'x", 1234567, 1234.5, 255),
              CStringU(whole + "|" + real + "|ff").ToWide());
    EXPECT_EQ(CStringU::Formatted("%'d", 1234567), CStringU(whole));
}

// Numbers for people: the C library writes them as the host has set it up.
TEST(Formats, RealNumbersHaveTheDecimalPointOfTheHostsLocale) {
    EXPECT_EQ(FormatNarrow("%.1f", 1.5), "1.5");
    EXPECT_EQ(FormatWide("%.1f", 1.5), u"1.5");
    EXPECT_EQ(CStringU::Formatted("%.1f", 1.5), CStringU("1.5"));
    ExpectWholeNumbersAndTexts();
    const text_test::TLocaleGuard guard(text_test::cnCommaLocales);
    if (!guard.IsSet()) GTEST_SKIP() << "no locale with a decimal comma is installed";
    ASSERT_STREQ(std::localeconv()->decimal_point, ",");
    EXPECT_EQ(FormatNarrow("%.1f", 1.5), "1,5");
    EXPECT_EQ(FormatWide("%.1f", 1.5), u"1,5");
    EXPECT_EQ(CStringU::Formatted("%.1f", 1.5), CStringU("1,5"));
    ExpectWholeNumbersAndTexts();
}

TEST(Formats, PercentSignsAndPlainText) {
    EXPECT_EQ(FormatWide("100%%"), u"100%");
    EXPECT_EQ(FormatWide(""), u"");
    EXPECT_EQ(FormatWide("%d%%, %s", 5, "b"), u"5%, b");
}

TEST(Formats, WhatDoesNotFitWritesNothing) {
    EXPECT_EQ(FormatWide("a%db"), u"ab") << "no value left";
    EXPECT_EQ(FormatWide("a%sb", 1), u"ab");
    EXPECT_EQ(FormatWide("a%db", "x"), u"ab");
    EXPECT_EQ(FormatWide("a%fb%d", 1, 2), u"ab2") << "the value is used up all the same";
    EXPECT_EQ(FormatWide("a%nb", static_cast<const void*>(nullptr)), u"ab");
    EXPECT_EQ(FormatWide("a%qb", 1), u"ab");
    EXPECT_EQ(FormatWide("a%"), u"a");
    EXPECT_EQ(FormatWide("a%-08.3ll", 1), u"a");
    EXPECT_EQ(FormatWide("a%c", 0), u"a");
    EXPECT_EQ(FormatWide("%*d", "x", 4), u"4");
}

TEST(Formats, PointersAreWrittenAsTheSystemDoes) {
    int here = 0;
    const void* const pointer = &here;
    EXPECT_EQ(FormatWide("%p", pointer), Widened(FormatNarrow("%p", pointer)));
}

}  // namespace
