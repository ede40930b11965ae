// How a CStringU leaves: narrow, wide, in code pages.

#include <gtest/gtest.h>

#include "tests/text/TextHelpers.h"
#include "vapp/text/CStringU.h"

namespace {

using text_test::Raw;
using text_test::TCodePageGuard;
using text_test::Utf8;

TEST(CStringUConvert, StripMarkerSharesWhereThereIsNone) {
    const CStringU ascii("abc");
    const CStringU high(u"\u00E9");
    EXPECT_EQ(ascii.StripMarker().GetString(), ascii.Payload());
    EXPECT_EQ(high.StripMarker().GetString(), high.Payload());
    EXPECT_EQ(CStringU(u"a\u00E9").StripMarker(), "a\xC3\xA9");
}

TEST(CStringUConvert, WideTextReturnsAtEveryLength) {
    std::string ascii;
    std::u16string wide;
    for (int length = 0; length < 300; ++length) {
        const CStringU text(ascii.c_str());
        ASSERT_EQ(text.ToWide(), std::u16string(ascii.begin(), ascii.end()));
        ASSERT_EQ(text.ToStdWstring(), std::wstring(ascii.begin(), ascii.end()));
        ASSERT_EQ(CStringU(wide.c_str()).ToWide(), wide);
        ASSERT_EQ(CStringU(wide.c_str()).ToStdWstring(), std::wstring(wide.begin(), wide.end()));
        ASSERT_EQ(CStringU(wide.c_str()).GetCharCount(), length);
        ascii += static_cast<char>('a' + length % 26);
        wide += static_cast<char16_t>(1 + length * 211);
    }
}

TEST(CStringUConvert, BytesOfUnclassifiedTextAreWidenedAsTheyAre) {
    EXPECT_EQ(Raw("a\xE9").ToWide(), u"a\u00E9") << "the first byte says ASCII, so nothing is decoded";
    EXPECT_EQ(Raw("a\xE9").ToAnsi(437), "a\xE9") << "nor converted";
    EXPECT_EQ(Raw("a\xC3\xA9").GetCharCount(), 3) << "nor counted as characters";
}

TEST(CStringUConvert, CodePageTextReturns) {
    const CStringU text(u"a\u00E9\u20AC");
    EXPECT_EQ(text.ToAnsi(1252), "a\xE9\x80");
    EXPECT_EQ(text.ToAnsi(65001), "a\xC3\xA9\xE2\x82\xAC");
    EXPECT_EQ(CStringU().AssignAnsi(text.ToAnsi(1252), 1252), text);
    const TCodePageGuard guard(1252);
    EXPECT_EQ(text.ToAnsi(), "a\xE9\x80");
    EXPECT_EQ(CStringU(text.ToAnsi()), text);
}

TEST(CStringUConvert, WhatACodePageCannotExpressBecomesItsDefaultCharacter) {
    EXPECT_EQ(CStringU(u"a\u4E2Db").ToAnsi(1252), "a?b");
}

TEST(CStringUConvert, AsciiNeverAsksThePlatform) {
    const CStringU text("plain");
    EXPECT_EQ(text.ToAnsi(1200).GetString(), text.Payload()) << "shared, in whatever code page";
    EXPECT_EQ(Raw("\x80"
                  "plain")
                  .ToAnsi(1200),
              "plain")
        << "nor when only a stale marker is left";
}

TEST(CStringUConvert, OverlongNulEndsCodePageTextOnly) {
    const CStringU text = Utf8("\xC3\xA9\xC0\x80z");
    EXPECT_EQ(text.ToAnsi(1252), "\xE9");
    EXPECT_EQ(text.GetCharCount(), 3);
    EXPECT_EQ(text.ToWide(), std::u16string(u"\u00E9\0z", 3));
}

TEST(CStringUConvert, CountsCharactersByLeadBytes) {
    EXPECT_EQ(Utf8("\xFF\xFF").GetCharCount(), 2);
    EXPECT_EQ(Utf8("\x85"
                   "ab")
                  .GetCharCount(),
              2)
        << "a stray continuation byte swallows the next byte";
    EXPECT_EQ(Utf8("a\xE4").GetCharCount(), 2) << "cut off by the end";
}

}  // namespace
