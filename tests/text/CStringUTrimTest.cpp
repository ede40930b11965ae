// Trimming, blanks and spans: single cases, then random texts beside plain UTF-16.
#include <gtest/gtest.h>

#include "tests/text/HostileText.h"
#include "tests/text/LocaleTables.h"
#include "text/BlankChars.h"
#include "vapp/text/CStringU.h"

namespace {

using namespace text_test;
using vapp_text::IsBlankCharU;

TEST(CStringUTrim, AMarkedTextLosesAWideSpaceInFront) {
    EXPECT_EQ(Stored(CStringU(u"\u3000a\u00e9 ").Trim()),
              "\x80"
              "a\xC3\xA9");
    EXPECT_EQ(Stored(CStringU(u" \u00e9\ufeff").Trim()), "\xC3\xA9") << "the first character shows it all";
    EXPECT_EQ(Stored(CStringU(u"\u3000\t ab\u200b").Trim()), "ab") << "pure ASCII has no marker";
}

TEST(CStringUTrim, AnAsciiTextIsTrimmedByTheHostStringsRule) {
    EXPECT_EQ(Stored(CStringU(" \t\n\v\f\ra b\r\n").Trim()), "a b");
    EXPECT_EQ(Stored(CStringU(" \t\n\v\f\ra b\r\n").TrimLeft()), "a b\r\n");
    EXPECT_EQ(Stored(CStringU(" \t\n\v\f\ra b\r\n").TrimRight()), " \t\n\v\f\ra b");
}

TEST(CStringUTrim, TextOfBlanksAloneBecomesEmpty) {
    for (const char16_t* blanks : {u"", u" ", u" \t\n", u"\u3000", u" \u2003\ufeff\n"}) {
        EXPECT_EQ(Stored(CStringU(blanks).TrimLeft()), "");
        EXPECT_EQ(Stored(CStringU(blanks).TrimRight()), "");
        EXPECT_EQ(Stored(CStringU(blanks).Trim()), "");
    }
}

TEST(CStringUTrim, ANoBreakSpaceIsText) {
    EXPECT_EQ(CStringU(u"\u00a0a\u00a0").Trimmed(), CStringU(u"\u00a0a\u00a0"));
}

TEST(CStringUTrim, ReturningFormsLeaveTheTextAlone) {
    const CStringU text(u" \u00e9 ");
    EXPECT_EQ(text.TrimmedLeft(), CStringU(u"\u00e9 "));
    EXPECT_EQ(text.TrimmedRight(), CStringU(u" \u00e9"));
    EXPECT_EQ(text.Trimmed(), CStringU(u"\u00e9"));
    EXPECT_EQ(text.TrimmedLeft(" "), CStringU(u"\u00e9 "));
    EXPECT_EQ(text.TrimmedRight(" "), CStringU(u" \u00e9"));
    EXPECT_EQ(text, CStringU(u" \u00e9 "));
}

TEST(CStringUTrim, TrimmingAShareLeavesTheOthersAlone) {
    const CStringU text("  ab  ");
    CStringU share = text;
    EXPECT_EQ(share.TrimLeft(), CStringU("ab  "));
    share = text;
    EXPECT_EQ(share.TrimRight(" "), CStringU("  ab"));
    EXPECT_EQ(text, CStringU("  ab  "));
}

TEST(CStringUTrim, NothingToTrimSharesTheText) {
    const CStringU text("ab");
    EXPECT_EQ(text.Trimmed().Stored().GetString(), text.Stored().GetString());
    EXPECT_EQ(text.TrimmedLeft("x").Stored().GetString(), text.Stored().GetString());
}

TEST(CStringUTrim, SetsCountCharactersWithCase) {
    EXPECT_EQ(CStringU("xXaxX").TrimLeft("x"), CStringU("XaxX"));
    EXPECT_EQ(CStringU("xXaxX").TrimRight("x"), CStringU("xXaxX"));
    EXPECT_EQ(CStringU(u"\u00e9\u00c9a").TrimLeft(CStringU(u"\u00e9")), CStringU(u"\u00c9a"));
    EXPECT_EQ(CStringU("ab").TrimLeft(CStringU()), CStringU("ab"));
    EXPECT_EQ(CStringU("abab").TrimRight("ba"), CStringU());
    // The two bytes of U+00E9 are those of two other characters too; only the whole one counts.
    EXPECT_EQ(CStringU(u"\u00e9").TrimLeft(CStringU(u"\u00c3\u00a9")), CStringU(u"\u00e9"));
    CStringU itself("abc");
    EXPECT_EQ(itself.TrimLeft(itself), CStringU());
}

TEST(CStringUTrim, ALineFeedIsBlankOnlyBesideNonAscii) {
    EXPECT_FALSE(CStringU("\n").IsBlank());
    EXPECT_FALSE(CStringU(" \t\r").IsBlank());
    EXPECT_TRUE(CStringU(u"\n\u3000").IsBlank());
    EXPECT_TRUE(CStringU(u"\u3000\n").IsBlank());
}

TEST(CStringUTrim, EmptyTextAndSpacesAreBlank) {
    EXPECT_TRUE(CStringU().IsBlank());
    EXPECT_TRUE(Raw("\x80").IsBlank()) << "a marker alone is empty";
    EXPECT_TRUE(CStringU(" \t ").IsBlank());
    EXPECT_FALSE(CStringU(" a ").IsBlank());
    EXPECT_FALSE(CStringU(u" \u00a0").IsBlank());
}

TEST(CStringUTrim, SpansEndAtTheFirstHit) {
    EXPECT_EQ(CStringU("path=value").SpanExcluding("="), CStringU("path"));
    EXPECT_EQ(CStringU("path").SpanExcluding("="), CStringU("path"));
    EXPECT_EQ(CStringU("123abc").SpanIncluding("0123456789"), CStringU("123"));
    EXPECT_EQ(CStringU("abc").SpanIncluding("0123456789"), CStringU());
    EXPECT_EQ(Stored(CStringU(u"ab\u00e9").SpanExcluding(CStringU(u"\u00e9"))), "ab");
    EXPECT_EQ(Stored(CStringU(u"a\u00e9b").SpanIncluding(CStringU(u"\u00e9a"))),
              "\x80"
              "a\xC3\xA9");
    EXPECT_EQ(CStringU("abc").SpanExcluding(CStringU()), CStringU("abc"));
    EXPECT_EQ(CStringU("abc").SpanIncluding(CStringU()), CStringU());
}

TEST(CStringUTrim, NoLocaleChangesWhatIsBlank) {
    InEveryLocale([](const char* locale) {
        EXPECT_EQ(CStringU(u"\u0085\u00a0 a\u00e9 ").Trimmed(), CStringU(u"\u0085\u00a0 a\u00e9")) << locale;
        EXPECT_FALSE(CStringU("\x0b").IsBlank()) << locale;
    });
}

TEST(CStringUTrim, ASetMayHoldManyCharactersAndOneManyTimes) {
    std::u16string members(100000, u'\u00ea');
    for (char16_t unit = 0x400; unit < 0x500; ++unit)
        members += unit;
    const CStringU set(members.c_str());
    const CStringU text((std::u16string(100000, u'\u04ff') + u"\u00e9x\u0400\u00ea").c_str());
    EXPECT_EQ(text.TrimmedLeft(set), CStringU(u"\u00e9x\u0400\u00ea"));
    EXPECT_EQ(text.TrimmedLeft(set).TrimmedRight(set), CStringU(u"\u00e9x"));
    EXPECT_EQ(text.SpanIncluding(set).GetCharCount(), 100000);
    EXPECT_EQ(CStringU(std::u16string(100000, u'\u00e9').c_str()).SpanExcluding(set).GetCharCount(), 100000);
}

// --- Beside plain UTF-16 -------------------------------------------------------------------------------

std::u16string BlankedName(std::mt19937& random) {
    static constexpr std::u16string_view blanks = u"    \t\n\r\v\f\u2000\u200b\u202f\u205f\u3000\ufeff\u00a0";
    const auto some = [&] {
        std::u16string text;
        for (std::size_t left = UpTo(random, 3); left > 0; --left)
            text += blanks[UpTo(random, blanks.size() - 1)];
        return text;
    };
    return some() + HostileName(random, 4) + some();
}

template <typename Removed>
std::u16string ModelLeft(std::u16string text, const Removed& removed) {
    while (!text.empty() && removed(text.front()))
        text.erase(0, 1);
    return text;
}

template <typename Removed>
std::u16string ModelRight(std::u16string text, const Removed& removed) {
    while (!text.empty() && removed(text.back()))
        text.pop_back();
    return text;
}

bool ModelIsBlank(const std::u16string& text) {
    const bool ascii = std::all_of(text.begin(), text.end(), [](char16_t unit) { return unit < 0x80; });
    return std::all_of(text.begin(), text.end(), [&](char16_t unit) {
        return ascii ? unit == u' ' || unit == u'\t' : IsBlankCharU(unit);
    });
}

void ExpectText(const CStringU& text, const std::u16string& expected) {
    ASSERT_EQ(text.ToWide(), expected);
    ASSERT_TRUE(HoldsMarkerInvariant(text)) << Shown(Stored(text));
}

TEST(CStringUTrim, RandomTextsAgreeWithPlainUtf16) {
    std::mt19937 random = SeededRandom();
    for (int round = 0; round < 20000; ++round) {
        const std::u16string units = BlankedName(random);
        const std::u16string members = BlankedName(random);
        const CStringU text(units.c_str());
        const CStringU set(members.c_str());
        const auto inSet = [&](char16_t unit) { return members.find(unit) != std::u16string::npos; };
        const auto span = std::min(units.find_first_of(members), units.size());
        const auto spanOf = std::min(units.find_first_not_of(members), units.size());
        ExpectText(CStringU(text).TrimLeft(), ModelLeft(units, IsBlankCharU));
        ExpectText(CStringU(text).TrimRight(), ModelRight(units, IsBlankCharU));
        ExpectText(CStringU(text).Trim(), ModelRight(ModelLeft(units, IsBlankCharU), IsBlankCharU));
        ExpectText(text.TrimmedLeft(), ModelLeft(units, IsBlankCharU));
        ExpectText(text.TrimmedRight(), ModelRight(units, IsBlankCharU));
        ExpectText(text.Trimmed(), ModelRight(ModelLeft(units, IsBlankCharU), IsBlankCharU));
        ExpectText(CStringU(text).TrimLeft(set), ModelLeft(units, inSet));
        ExpectText(CStringU(text).TrimRight(set), ModelRight(units, inSet));
        ExpectText(text.SpanExcluding(set), units.substr(0, span));
        ExpectText(text.SpanIncluding(set), units.substr(0, spanOf));
        ASSERT_EQ(text.IsBlank(), ModelIsBlank(units)) << Shown(Stored(text));
    }
}

// Sets of a few plain characters are asked in another way than all others; both ways about the same texts.
TEST(CStringUTrim, SetsOfEverySizeAgreeWithPlainUtf16) {
    std::mt19937 random = SeededRandom();
    for (int round = 0; round < 20000; ++round) {
        std::u16string members;
        for (std::size_t left = UpTo(random, 20); left > 0; --left)
            members += static_cast<char16_t>(u'a' + UpTo(random, 9));
        if (UpTo(random, 3) == 0) members += u'\u00e9';
        std::u16string units;
        for (std::size_t left = UpTo(random, 30); left > 0; --left)
            units += u"abcdefghijklm\u00e9\u00ea"[UpTo(random, 14)];
        const CStringU text(units.c_str());
        const CStringU set(members.c_str());
        const auto inSet = [&](char16_t unit) { return members.find(unit) != std::u16string::npos; };
        ExpectText(text.TrimmedLeft(set), ModelLeft(units, inSet));
        ExpectText(text.TrimmedRight(set), ModelRight(units, inSet));
        ExpectText(text.SpanExcluding(set),
                   units.substr(0, std::min(units.find_first_of(members), units.size())));
        ExpectText(text.SpanIncluding(set),
                   units.substr(0, std::min(units.find_first_not_of(members), units.size())));
    }
    EXPECT_EQ(Utf8("\xC3\xA9\xC0\x80").TrimmedRight("abc"), Utf8("\xC3\xA9\xC0\x80")) << "no member is 0";
}

TEST(CStringUTrim, MalformedTextIsCutInsideOfItself) {
    std::mt19937 random = SeededRandom();
    for (int round = 0; round < 20000; ++round) {
        const CStringU text(HostileBytes(random).c_str(), TextEncoding::Utf8Auto);
        const CStringU set(HostileBytes(random, 4).c_str(), TextEncoding::Utf8Auto);
        const std::string_view payload = text.PayloadView();
        for (const CStringU& piece : {text.Trimmed(), text.TrimmedLeft(set), text.TrimmedRight(set),
                                      text.SpanExcluding(set), text.SpanIncluding(set)}) {
            ASSERT_NE(payload.find(piece.PayloadView()), std::string_view::npos) << Shown(payload);
        }
        static_cast<void>(text.IsBlank());
    }
}

}  // namespace
