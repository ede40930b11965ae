// How text comes into a CStringU, and where the marker stands afterwards.

#include "vapp/text/CStringU.h"

#include <gtest/gtest.h>

#include <map>
#include <type_traits>
#include <unordered_set>

#include "tests/text/TextHelpers.h"

namespace {

using text_test::HoldsMarkerInvariant;
using text_test::Raw;
using text_test::Stored;
using text_test::TCodePageGuard;
using text_test::Utf8;

static_assert(sizeof(CStringU) == sizeof(void*));
static_assert(std::is_nothrow_move_constructible_v<CStringU> && std::is_nothrow_move_assignable_v<CStringU>);
static_assert(!std::is_convertible_v<char16_t, CStringU>, "a character is no text by accident");
static_assert(!std::is_convertible_v<CStringU, const char*>,
              "nobody takes stored bytes for text by accident");
static_assert(!std::is_constructible_v<CStringU, int>);

TEST(CStringU, AsciiIsStoredAsItStands) {
    const CStringU text("abc");
    EXPECT_EQ(Stored(text), "abc");
    EXPECT_FALSE(text.HasNonAscii());
}

TEST(CStringU, TakesAsciiAsItStands) {
    CString ascii("1.5k");
    const char* const bytes = ascii.GetString();
    const CStringU text(std::move(ascii), CStringU::TAscii());
    EXPECT_EQ(text, "1.5k");
    EXPECT_EQ(text.Payload(), bytes) << "not copied";
    EXPECT_TRUE(CStringU(CString(), CStringU::TAscii()).IsEmpty());
}

TEST(CStringU, NoTextIsEmpty) {
    for (const CStringU& text : {CStringU(), CStringU(nullptr), CStringU(""), CStringU(CString()),
                                 CStringU(static_cast<const char16_t*>(nullptr)), CStringU(u'\0'),
                                 CStringU(static_cast<const wchar_t*>(nullptr)), CStringU(L'\0')}) {
        EXPECT_TRUE(text.IsEmpty());
        EXPECT_FALSE(text.HasNonAscii());
        EXPECT_EQ(Stored(text), "");
        EXPECT_STREQ(text.Payload(), "");
    }
}

TEST(CStringU, NonAsciiFirstCharacterNeedsNoMarker) {
    const CStringU text(u"\u00E9");
    EXPECT_EQ(Stored(text), "\xC3\xA9");
    EXPECT_EQ(text.GetByteLength(), 2);
    EXPECT_EQ(text.GetCharCount(), 1);
    EXPECT_TRUE(text.HasNonAscii());
}

TEST(CStringU, AsciiFirstCharacterOfNonAsciiTextGetsTheMarker) {
    const CStringU text(u"a\u00E9");
    EXPECT_EQ(Stored(text),
              "\x80"
              "a\xC3\xA9");
    EXPECT_STREQ(text.Payload(), "a\xC3\xA9");
    EXPECT_EQ(text.GetByteLength(), 3);
    EXPECT_EQ(text.GetCharCount(), 2);
}

struct TEncodingRow {
    const char* bytes;
    TextEncoding encoding;
    const char* stored;
};

TEST(CStringU, AssignReadsBytesByTheirEncoding) {
    const TCodePageGuard guard(1252);
    const TEncodingRow rows[] = {
        {"abc", TextEncoding::Raw, "abc"},
        {"a\xE9", TextEncoding::Raw, "a\xE9"},
        {"abc", TextEncoding::AnsiAuto, "abc"},
        {"a\xE9", TextEncoding::AnsiAuto,
         "\x80"
         "a\xC3\xA9"},
        {"\xE9", TextEncoding::AnsiAuto, "\xC3\xA9"},
        {"abc", TextEncoding::Ansi, "abc"},
        {"\x80", TextEncoding::Ansi, "\xE2\x82\xAC"},
        {"abc", TextEncoding::Utf8Auto, "abc"},
        {"a\xC3\xA9", TextEncoding::Utf8Auto,
         "\x80"
         "a\xC3\xA9"},
        {"\xC3\xA9"
         "a",
         TextEncoding::Utf8Auto,
         "\xC3\xA9"
         "a"},
        {"a\xC3\xA9", TextEncoding::Utf8,
         "\x80"
         "a\xC3\xA9"},
        {"\xC3\xA9", TextEncoding::Utf8, "\xC3\xA9"},
        {"abc", TextEncoding::Utf8,
         "\x80"
         "abc"},
        {"", TextEncoding::Utf8, ""},
        {"\x80"
         "a\xC3\xA9",
         TextEncoding::Utf8,
         "\x80"
         "a\xC3\xA9"},
    };
    for (const TEncodingRow& row : rows) {
        CStringU text("old");
        text.Assign(row.bytes, row.encoding);
        EXPECT_EQ(Stored(text), row.stored) << row.bytes << " as " << static_cast<int>(row.encoding);
        EXPECT_EQ(Stored(CStringU(row.bytes, row.encoding)), row.stored);
    }
}

TEST(CStringU, AssignLooksAtTheGivenLengthButNotBehindANul) {
    EXPECT_EQ(Stored(CStringU("abc\xC3\xA9", TextEncoding::Utf8Auto, 3)), "abc") << "the rest is not scanned";
    EXPECT_EQ(Stored(CStringU("ab\0cd", TextEncoding::Raw, 5)), "ab");
    EXPECT_EQ(Stored(CStringU("abc", TextEncoding::Raw, 0)), "");
    EXPECT_EQ(Stored(CStringU(nullptr, TextEncoding::Utf8, 5)), "");
    EXPECT_EQ(Stored(CStringU(CString("ab\0cd", 5))), "ab");
    CStringU own("abcdef");
    own.Assign(own.Payload() + 2, TextEncoding::Utf8, 3);
    EXPECT_EQ(own, "cde");
}

TEST(CStringU, NarrowTextIsInTheActiveCodePage) {
    const TCodePageGuard guard(1251);
    EXPECT_EQ(CStringU("\xC4\xE0"), CStringU(u"\u0414\u0430"));
    EXPECT_EQ(CStringU(CString("\xC4\xE0")), CStringU(u"\u0414\u0430"));
    CStringU text;
    text = "x\xC4";
    EXPECT_EQ(text, CStringU(u"x\u0414"));
    EXPECT_TRUE(text == "x\xC4");
    EXPECT_FALSE(text == "x\xC5");
}

TEST(CStringU, AsciiNarrowTextIsShared) {
    const CString narrow("shared");
    EXPECT_EQ(CStringU(narrow).Payload(), narrow.GetString());
    EXPECT_EQ(CStringU(narrow).StripMarker().GetString(), narrow.GetString());
}

TEST(CStringU, WideTextStopsAtItsCountOrNul) {
    EXPECT_EQ(CStringU(u"abc", 2), "ab");
    EXPECT_EQ(CStringU(u"a\0c", 3), "a");
    EXPECT_EQ(CStringU(u"abc", 0), "");
    EXPECT_EQ(CStringU(L"abc", 2), "ab");
    EXPECT_EQ(CStringU(std::u16string_view(u"abc").substr(1)), "bc");
    CStringU text;
    text = u"x\u4E2D";
    EXPECT_EQ(Stored(text), "\x80x\xE4\xB8\xAD");
    text = L"y";
    EXPECT_EQ(Stored(text), "y");
}

TEST(CStringU, SurrogatePairIsSixBytesTwoCharactersAndReturns) {
    const CStringU text(u"\U0001F600");
    EXPECT_EQ(Stored(text), "\xED\xA0\xBD\xED\xB8\x80");
    EXPECT_EQ(text.GetCharCount(), 2);
    EXPECT_EQ(text.ToWide(), u"\U0001F600");
}

TEST(CStringU, WideValueAboveSixteenBitsComesInAsAPair) {
    const std::wstring wide(1, static_cast<wchar_t>(sizeof(wchar_t) > 2 ? 0x1F600 : 0xF600));
    const std::u16string expected = sizeof(wchar_t) > 2 ? u"\U0001F600" : u"\uF600";
    EXPECT_EQ(CStringU(wide.c_str()).ToWide(), expected);
    EXPECT_EQ(CStringU(wide.front()).ToWide(), expected);
    EXPECT_EQ((CStringU() += wide.front()).ToWide(), expected);
    if (sizeof(wchar_t) > 2) {
        EXPECT_EQ(CStringU(static_cast<wchar_t>(0x7FFFFFFF)), "?");
    }
}

TEST(CStringU, FourByteSequenceFromOutsideIsOneWrongCharacter) {
    const CStringU text = Utf8("\xF0\x9F\x98\x80");
    EXPECT_EQ(text.GetCharCount(), 1);
    EXPECT_EQ(text.ToWide(), u"\uF600");
}

TEST(CStringU, SwappedWideTextIsSwappedBack) {
    std::u16string swapped;
    std::u16string straight;
    for (char16_t unit = 0x20; unit < 0x60; ++unit) {
        straight += static_cast<char16_t>(unit * 0x101U + 0x11U);
        const unsigned value = straight.back();
        swapped += static_cast<char16_t>((value << 8U) | (value >> 8U));
        CStringU text;
        text.AssignWideSwapped(swapped.c_str());
        ASSERT_EQ(text.ToWide(), straight) << "at length " << straight.size();
        ASSERT_EQ(text.ToWideSwapped(), swapped);
    }
    CStringU text("old");
    EXPECT_EQ(text.AssignWideSwapped(static_cast<const char16_t*>(nullptr)), "");
    EXPECT_EQ(text.AssignWideSwapped(L"\u6100\u6200"), "ab");
}

TEST(CStringU, OneCharacterIsAText) {
    EXPECT_EQ(Stored(CStringU(u'a')), "a");
    EXPECT_EQ(Stored(CStringU(u'\u00E9')), "\xC3\xA9");
    CStringU text("old");
    text = u'\u4E2D';
    EXPECT_EQ(Stored(text), "\xE4\xB8\xAD");
    text = L'\0';
    EXPECT_EQ(Stored(text), "");
}

TEST(CStringU, NamedCodePagesAreConverted) {
    CStringU text;
    EXPECT_EQ(text.AssignAnsi("\x80", 437).ToWide(), u"\u00C7");
    EXPECT_EQ(text.AssignAnsi("abc", 437, 2), "ab");
    EXPECT_EQ(text.AssignAnsi("\x83\x41", 932).ToWide(), u"\u30A2");
    EXPECT_EQ(text.AssignAnsi(nullptr, 437), "");
    EXPECT_EQ(text.AssignAnsiAuto("abc", 437, 2), "ab");
    EXPECT_EQ(text.AssignAnsiAuto("a\x80", 437).ToWide(), u"a\u00C7");
    EXPECT_EQ(text.AssignAnsiAuto(nullptr, 437), "");
    EXPECT_EQ(text.AssignAnsiAuto("\x80", 437, 0), "");
    EXPECT_EQ(text.AssignAnsi("abc", 37, 2).ToWide(), u"/\u00C2") << "always converted, ASCII or not";
}

TEST(CStringU, AssignMarkedTrustsThatTheTextIsUtf8) {
    CStringU text;
    EXPECT_EQ(Stored(text.AssignMarked(CString("a\xC3\xA9"))),
              "\x80"
              "a\xC3\xA9");
    EXPECT_EQ(Stored(text.AssignMarked(CString("abc"))),
              "\x80"
              "abc");
    const CString high("\xC3\xA9");
    EXPECT_EQ(text.AssignMarked(high).Stored().GetString(), high.GetString()) << "shared, not copied";
    EXPECT_EQ(Stored(text.AssignMarked(CString())), "");
    EXPECT_EQ(Stored(text.AssignMarked(CString("\xC3\xA9\0x", 4))), "\xC3\xA9");
}

TEST(CStringU, EveryWayInIsAConstructorToo) {
    EXPECT_EQ(CStringU(u"\u6100\uE900", CStringU::TSwapped()).ToWide(), u"a\u00E9");
    EXPECT_EQ(CStringU(L"\u6100\uE900", CStringU::TSwapped()).ToWide(), u"a\u00E9");
    EXPECT_EQ(CStringU("a\x80z", CStringU::TAnsi{437}, 2).ToWide(), u"a\u00C7");
    EXPECT_EQ(CStringU("abc", CStringU::TAnsi{37}, 2).ToWide(), u"/\u00C2") << "always converted";
    EXPECT_EQ(CStringU("a\x80z", CStringU::TAnsiAuto{437}).ToWide(), u"a\u00C7z");
    EXPECT_EQ(CStringU("abc", CStringU::TAnsiAuto{37}, 2), "ab") << "ASCII is copied";
    EXPECT_EQ(Stored(CStringU(CString("abc"), CStringU::TMarked())),
              "\x80"
              "abc");
}

TEST(CStringU, MarkerAloneIsEmptyEverywhere) {
    const CStringU text = Raw("\x80");
    EXPECT_TRUE(text.IsEmpty());
    EXPECT_EQ(text.GetByteLength(), 0);
    EXPECT_EQ(text.GetCharCount(), 0);
    EXPECT_TRUE(text.Begin().AtEnd());
    EXPECT_EQ(text.Begin(), text.End());
    EXPECT_EQ(text.LastChar(), 0);
    EXPECT_TRUE(text.HasNonAscii());
    EXPECT_EQ(text.ToWide(), u"");
    EXPECT_EQ(text.StripMarker(), "");
    EXPECT_EQ(text, CStringU());
}

TEST(CStringU, EqualityAndHashGoByPayload) {
    const CStringU marked =
        Raw("\x80"
            "abc");
    EXPECT_EQ(marked, CStringU("abc"));
    EXPECT_EQ(marked, "abc");
    EXPECT_NE(marked, "abd");
    EXPECT_EQ(std::hash<CStringU>()(marked), std::hash<CStringU>()(CStringU("abc")));
    const std::unordered_set<CStringU> set{marked, CStringU("abc")};
    EXPECT_EQ(set.size(), 1U);
    EXPECT_TRUE(CStringU() == static_cast<const char*>(nullptr));
}

TEST(CStringU, PlainOrderPutsTheShorterFirst) {
    EXPECT_LT(CStringU("z"), CStringU("aa"));
    EXPECT_LT(CStringU("ab"), CStringU("ba"));
    EXPECT_LT(CStringU("zz"), CStringU(u"\u00E9")) << "as unsigned bytes";
    EXPECT_LT(CStringU(u"a\u00E9"), CStringU("bbb")) << "three bytes both: the marker does not count";
    std::map<CStringU, int> map{{"bb", 2}, {"a", 1}, {"aaa", 3}};
    EXPECT_EQ(map.begin()->first, "a");
    EXPECT_EQ(map.rbegin()->first, "aaa");
}

TEST(CStringU, EveryWayInKeepsTheMarkerInvariant) {
    for (const char16_t* units : {u"", u"a", u"\u00E9", u"a\u00E9", u"\u00E9a", u"a\u4E2Db", u"\xD83D"}) {
        EXPECT_TRUE(HoldsMarkerInvariant(CStringU(units)));
        const CString bytes = CStringU(units).StripMarker();
        EXPECT_TRUE(HoldsMarkerInvariant(Utf8(bytes.GetString())));
    }
}

}  // namespace
