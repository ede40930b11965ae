// What the platform gives to text. The same rows must hold on every system.

#include "text/PlatformText.h"

#include <gtest/gtest.h>

#include "tests/text/TextHelpers.h"

namespace {

using namespace vapp_platform;  // NOLINT(google-build-using-namespace): the whole test is about it
using text_test::TCodePageGuard;

TEST(PlatformText, CaseIsOneCharacterForOne) {
    EXPECT_EQ(LowerCaseChar(u'\u00C9'), u'\u00E9');
    EXPECT_EQ(UpperCaseChar(u'\u00E9'), u'\u00C9');
    EXPECT_EQ(LowerCaseChar(u'\u0414'), u'\u0434');
    EXPECT_EQ(LowerCaseChar(u'\u03A3'), u'\u03C3');
    EXPECT_EQ(UpperCaseChar(u'\u00DF'), u'\u00DF') << "no one-character capital";
    EXPECT_EQ(LowerCaseChar(u'\u4E2D'), u'\u4E2D');
    EXPECT_EQ(LowerCaseChar(0xD801), 0xD801) << "half a pair has no case";
    EXPECT_EQ(UpperCaseChar(0xDC28), 0xDC28);
}

// The 33 characters of the plane whose other case belongs to another character: none of them changes.
TEST(PlatformText, CharactersThatShareACaseStay) {
    for (const char16_t unit :
         u"\u00B5\u0130\u0131\u017F\u01C5\u01C8\u01CB\u01F2\u0345\u03C2\u03D0\u03D1\u03D5\u03D6\u03F0"
         u"\u03F1\u03F4\u03F5\u1C80\u1C81\u1C82\u1C83\u1C84\u1C85\u1C86\u1C87\u1C88\u1E9B\u1E9E\u1FBE"
         u"\u2126\u212A\u212B") {
        EXPECT_EQ(LowerCaseChar(unit), unit) << static_cast<unsigned>(unit);
        EXPECT_EQ(UpperCaseChar(unit), unit) << static_cast<unsigned>(unit);
    }
}

TEST(PlatformText, CaseLeadsThereAndBack) {
    unsigned pairs = 0;
    for (unsigned value = 0; value <= 0xFFFF; ++value) {
        const auto unit = static_cast<char16_t>(value);
        const char16_t lower = LowerCaseChar(unit);
        const char16_t upper = UpperCaseChar(unit);
        if (lower != unit) {
            ASSERT_EQ(UpperCaseChar(lower), unit) << value;
        }
        if (upper != unit) {
            ASSERT_EQ(LowerCaseChar(upper), unit) << value;
        }
        pairs += lower != unit ? 1 : 0;
    }
    EXPECT_GT(pairs, 1100U) << "the tables of the system are missing";
}

TEST(PlatformText, CodePagesThereAndBack) {
    struct TRow {
        unsigned codePage;
        const char* bytes;
        const char16_t* text;
    };
    const TRow rows[] = {
        {37, "\x81", u"a"},
        {437, "\x80", u"\u00C7"},
        {850, "\x9B", u"\u00F8"},
        {866, "\x80", u"\u0410"},
        {874, "\xA1", u"\u0E01"},
        {932, "\x83\x41", u"\u30A2"},
        {936, "\xD6\xD0", u"\u4E2D"},
        {949, "\xB0\xA1", u"\uAC00"},
        {950, "\xA4\xA4", u"\u4E2D"},
        {1250, "\xB9", u"\u0105"},
        {1251, "\xC4", u"\u0414"},
        {1252, "\x80", u"\u20AC"},
        {1253, "\xE1", u"\u03B1"},
        {20127, "a", u"a"},
        {20866, "\xC1", u"\u0430"},
        {28591, "\xE9", u"\u00E9"},
        {28605, "\xA4", u"\u20AC"},
        {65001, "\xC3\xA9", u"\u00E9"},
        {65001, "\xF0\x9F\x98\x80", u"\U0001F600"},
    };
    for (const TRow& row : rows) {
        EXPECT_EQ(CodePageToUtf16(row.codePage, row.bytes), row.text) << "code page " << row.codePage;
        EXPECT_EQ(Utf16ToCodePage(row.codePage, row.text), row.bytes) << "code page " << row.codePage;
    }
}

TEST(PlatformText, InvalidInputGivesReplacements) {
    EXPECT_EQ(CodePageToUtf16(65001, "a\xFFz"), u"a\uFFFDz");
    EXPECT_EQ(CodePageToUtf16(65001, "a\xE4"), u"a\uFFFD");
    EXPECT_EQ(Utf16ToCodePage(65001, std::u16string(1, char16_t{0xD83D})), "\xEF\xBF\xBD");
    EXPECT_EQ(Utf16ToCodePage(1252, u"a\u4E2Dz"), "a?z");
    EXPECT_EQ(Utf16ToCodePage(20127, u"\u4E2D"), "?");
    EXPECT_EQ(Utf16ToCodePage(1252, u"\uFF21"), "A") << "the nearest character comes before the default one";
    EXPECT_EQ(CodePageToUtf16(932, "\x83").size(), 1U) << "cut off in the middle";
}

// If an invisible character vanished, what it parts would be joined: "1", a zero width space and "2" would be
// twelve.
TEST(PlatformText, InvisibleCharactersDoNotVanish) {
    for (const unsigned codePage : {437U, 932U, 949U, 1250U, 1251U, 1252U, 1254U, 20127U, 28591U}) {
        for (const char16_t invisible : {u'\u200B', u'\u2060', u'\uFEFF', u'\u034F', u'\u180E', u'\u2064'}) {
            const std::u16string text = {u'1', invisible, u'2'};
            EXPECT_EQ(Utf16ToCodePage(codePage, text), "1?2")
                << codePage << ' ' << static_cast<unsigned>(invisible);
        }
    }
    EXPECT_EQ(Utf16ToCodePage(1252, u"1\u00AD2"),
              "1\xAD"
              "2")
        << "a soft hyphen, which the page has";
}

TEST(PlatformText, EveryUnitHasAByteInASingleByteCodePage) {
    for (const unsigned codePage : {437U, 1250U, 1251U, 1252U, 20866U, 28591U}) {
        for (unsigned value = 1; value <= 0xFFFF; ++value) {
            const std::u16string unit(1, static_cast<char16_t>(value));
            ASSERT_EQ(Utf16ToCodePage(codePage, unit).size(), 1U) << codePage << ' ' << value;
        }
        EXPECT_EQ(Utf16ToCodePage(codePage, u"a\U0001F600z"), "a??z") << codePage;
        EXPECT_EQ(Utf16ToCodePage(codePage, u"a\U000E0020z"), "a??z") << codePage << " an invisible pair";
    }
}

TEST(PlatformText, TheNearestCharacterComesBeforeTheDefaultOne) {
    EXPECT_EQ(Utf16ToCodePage(1252, u"\uFF11\uFF0E\uFF15\uFF4B"), "1.5k");
    EXPECT_EQ(Utf16ToCodePage(932, u"\uFF11"), "\x82\x50") << "a page that has full-width digits keeps them";
    EXPECT_EQ(Utf16ToCodePage(65001, u"\uFF11"), "\xEF\xBC\x91");
}

TEST(PlatformText, UnknownCodePagesAndEmptyTextsGiveEmptyText) {
    EXPECT_EQ(CodePageToUtf16(99999, "abc"), u"");
    EXPECT_EQ(Utf16ToCodePage(99999, u"abc"), "");
    EXPECT_EQ(CodePageToUtf16(1252, ""), u"");
    EXPECT_EQ(Utf16ToCodePage(65001, u""), "");
}

TEST(PlatformText, CodePageZeroIsTheActiveOne) {
    for (const unsigned active : {1251U, cnCodePageUtf8}) {
        const TCodePageGuard guard(active);
        const std::string bytes = Utf16ToCodePage(active, u"\u0414");
        EXPECT_EQ(Utf16ToCodePage(0, u"\u0414"), bytes);
        EXPECT_EQ(CodePageToUtf16(0, bytes), u"\u0414");
    }
}

TEST(PlatformText, EveryByteAndUnitConvertsWithoutFailing) {
    std::string bytes;
    std::u16string units;
    for (int value = 0; value < 256; ++value) {
        bytes += static_cast<char>(value);
    }
    for (unsigned value = 0; value <= 0xFFFF; ++value) {
        units += static_cast<char16_t>(value);
    }
    for (const unsigned codePage : {437U, 932U, 936U, 1252U, 1255U, 20866U, 65000U, 65001U}) {
        EXPECT_FALSE(CodePageToUtf16(codePage, bytes).empty()) << codePage;
        EXPECT_FALSE(Utf16ToCodePage(codePage, units).empty()) << codePage;
    }
}

TEST(PlatformText, TheSystemsCodePageStaysWhateverIsSet) {
    const unsigned ofSystem = vapp_platform::SystemCodePage();
    EXPECT_EQ(ofSystem, ActiveCodePage());
    for (const unsigned active : {1251U, 1252U}) {
        const text_test::TCodePageGuard guard(active);
        EXPECT_EQ(vapp_platform::SystemCodePage(), ofSystem);
    }
}

TEST(PlatformText, ActiveCodePageCanBeSetAndReturned) {
    const unsigned own = ActiveCodePage();
    EXPECT_NE(own, 0U);
    {
        const TCodePageGuard guard(1251);
        EXPECT_EQ(ActiveCodePage(), 1251U);
    }
    EXPECT_EQ(ActiveCodePage(), own);
}

}  // namespace
