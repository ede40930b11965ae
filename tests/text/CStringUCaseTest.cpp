// Lower and upper case of whole texts, and what becomes of the marker.
#include <gtest/gtest.h>

#include <algorithm>

#include "tests/text/HostileText.h"
#include "tests/text/LocaleTables.h"
#include "text/Fold.h"
#include "text/Upper.h"
#include "vapp/text/CStringU.h"

namespace {

using namespace text_test;

TEST(CStringUCase, AsciiAndOtherLettersChange) {
    EXPECT_EQ(CStringU("Ab1_Z[").ToLower(), CStringU("ab1_z["));
    EXPECT_EQ(CStringU("aB1_z{").ToUpper(), CStringU("AB1_Z{"));
    EXPECT_EQ(Stored(CStringU(u"A\u00c9\u0416").ToLower()),
              "\x80"
              "a\xC3\xA9\xD0\xB6");
    EXPECT_EQ(Stored(CStringU(u"\u00e9a\u0436").ToUpper()),
              "\xC3\x89"
              "A\xD0\x96");
}

TEST(CStringUCase, TheTextItselfStays) {
    const CStringU text("Ab");
    const CStringU wide(u"\u00c9");
    EXPECT_EQ(text.ToLower(), CStringU("ab"));
    EXPECT_EQ(wide.ToLower(), CStringU(u"\u00e9"));
    EXPECT_EQ(text, CStringU("Ab"));
    EXPECT_EQ(wide, CStringU(u"\u00c9"));
}

TEST(CStringUCase, ATextThatDoesNotChangeIsShared) {
    for (const CStringU& text : {CStringU("ab1"), CStringU(u"ab\u00e9\u4e2d")}) {
        EXPECT_EQ(text.ToLower().Stored().GetString(), text.Stored().GetString());
    }
    EXPECT_EQ(Stored(CStringU().ToLower()), "");
    EXPECT_EQ(Stored(Raw("\x80").ToUpper()), "\x80") << "nothing changes in a marker alone";
}

TEST(CStringUCase, MarkerFollowsTheChangedText) {
    EXPECT_EQ(Stored(CStringU(u"\u00c9A").ToLower()),
              "\xC3\xA9"
              "a");
    EXPECT_EQ(Stored(CStringU(u"a\u00e9").ToUpper()),
              "\x80"
              "A\xC3\x89");
    EXPECT_EQ(Stored(Raw("\x80"
                         "AB")
                         .ToLower()),
              "ab")
        << "a stale marker goes";
}

TEST(CStringUCase, FormsMayNeedMoreOrFewerBytes) {
    EXPECT_EQ(Stored(CStringU(u"\u023a\u023a").ToLower()), "\xE2\xB1\xA5\xE2\xB1\xA5");
    EXPECT_EQ(Stored(CStringU(u"\u2c65").ToUpper()), "\xC8\xBA");
}

// One character would become another's form, and could not come back: it stays, and with it the marker.
TEST(CStringUCase, NoCharacterLeavesOrEntersAscii) {
    EXPECT_EQ(CStringU(u"\u212a\u00c9").ToLower(), CStringU(u"\u212a\u00e9")) << "the Kelvin sign";
    EXPECT_EQ(CStringU(u"s\u017f").ToUpper(), CStringU(u"S\u017f")) << "the long s";
    EXPECT_EQ(CStringU(u"\u0131i").ToUpper(), CStringU(u"\u0131I")) << "the i without its dot";
    for (unsigned c = 1; c <= 0xFFFF; ++c) {
        const CStringU text(static_cast<char16_t>(c));
        ASSERT_EQ(text.ToLower().HasNonAscii(), c >= 0x80) << c;
        ASSERT_EQ(text.ToUpper().HasNonAscii(), c >= 0x80) << c;
    }
}

TEST(CStringUCase, AnOverlongNulEndsTheChangedText) {
    EXPECT_EQ(Stored(Utf8("\xC3\x89\xC0\x80x").ToLower()), "\xC3\xA9");
    EXPECT_EQ(Stored(Utf8("\xC3\xA9\xC0\x80X").ToLower()), "\xC3\xA9") << "a change behind it counts";
    EXPECT_EQ(Stored(Utf8("\xC0\x80X").ToLower()), "");
}

TEST(CStringUCase, AnOverlongNulIsNoChange) {
    EXPECT_EQ(Stored(Utf8("\xC3\xA9\xC0\x80x").ToLower()), "\xC3\xA9\xC0\x80x");
    EXPECT_EQ(Stored(Utf8("\xC3\x89\xC0\x80X").ToUpper()), "\xC3\x89\xC0\x80X");
    EXPECT_EQ(Stored(Utf8("\xC0\x80x").ToLower()), "\xC0\x80x");
}

TEST(CStringUCase, NoLocaleChangesIt) {
    InEveryLocale([](const char* locale) {
        EXPECT_EQ(CStringU(u"TITLE \u0130\u00c9").ToLower(), CStringU(u"title \u0130\u00e9")) << locale;
        EXPECT_EQ(CStringU("title").ToUpper(), CStringU("TITLE")) << locale;
        EXPECT_EQ(CStringU(u"\u0131i").ToUpper(), CStringU(u"\u0131I")) << locale;
    });
}

TEST(CStringUCase, RandomTextsAgreeWithPlainUtf16) {
    std::mt19937 random = SeededRandom();
    for (int round = 0; round < 20000; ++round) {
        const std::u16string units = HostileName(random, 20);
        std::u16string lower = units;
        std::u16string upper = units;
        std::transform(units.begin(), units.end(), lower.begin(), vapp_text::FoldChar);
        std::transform(units.begin(), units.end(), upper.begin(), vapp_text::UpperChar);
        const CStringU text(units.c_str());
        ASSERT_EQ(text.ToLower().ToWide(), lower);
        ASSERT_EQ(text.ToUpper().ToWide(), upper);
        ASSERT_TRUE(HoldsMarkerInvariant(text.ToLower())) << Shown(Stored(text));
        ASSERT_TRUE(HoldsMarkerInvariant(text.ToUpper())) << Shown(Stored(text));
    }
}

TEST(CStringUCase, MalformedTextsComeOutAsTheirCharacters) {
    std::mt19937 random = SeededRandom();
    for (int round = 0; round < 20000; ++round) {
        const CStringU text(HostileBytes(random).c_str(), TextEncoding::Utf8Auto);
        std::u16string lower = text.ToWide();
        lower.resize(std::min(lower.find(u'\0'), lower.size()));
        std::transform(lower.begin(), lower.end(), lower.begin(), vapp_text::FoldChar);
        const std::u16string units = text.ToLower().ToWide();
        ASSERT_EQ(units.substr(0, units.find(u'\0')), lower) << Shown(Stored(text));
    }
}

}  // namespace
