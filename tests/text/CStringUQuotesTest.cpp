// Quotes around texts: which characters count, and what becomes of the marker.
#include <gtest/gtest.h>

#include "tests/text/HostileText.h"
#include "vapp/text/CStringU.h"

namespace {

using namespace text_test;

constexpr std::u16string_view cnQuotes = u"\"\u00ab\u201c\u201f\uff02";

TEST(CStringUQuotes, ExactlyFiveCharactersAreQuotes) {
    for (unsigned c = 1; c <= 0xFFFF; ++c) {
        const std::u16string quoted{static_cast<char16_t>(c), u'a', static_cast<char16_t>(c)};
        const bool expected = cnQuotes.find(static_cast<char16_t>(c)) != std::u16string_view::npos;
        ASSERT_EQ(CStringU(quoted.c_str()).WithoutQuotes().GetCharCount(), expected ? 1 : 3) << c;
    }
}

TEST(CStringUQuotes, ClosingFormsAreNoQuotes) {
    for (const char16_t* text : {u"\u00aba\u00bb", u"\u201ca\u201d"}) {
        EXPECT_EQ(CStringU(text).RemoveQuotes(), CStringU(text));
        EXPECT_EQ(CStringU(text).AddQuotes(), CStringU((u'"' + std::u16string(text) + u'"').c_str()));
    }
}

TEST(CStringUQuotes, AnyTwoOfThemMakeAQuotedText) {
    for (const char16_t first : cnQuotes) {
        for (const char16_t last : cnQuotes) {
            const std::u16string units = first + std::u16string(u"ab") + last;
            const CStringU text(units.c_str());
            EXPECT_EQ(Stored(text.WithoutQuotes()), "ab");
            EXPECT_EQ(Stored(text.WithQuotes()), Stored(text)) << "quoted already";
        }
    }
    EXPECT_EQ(CStringU(u"\u201ca\"").AddQuotes(), CStringU(u"\u201ca\""));
}

TEST(CStringUQuotes, ASingleQuoteStaysWhenQuotesAreRemoved) {
    EXPECT_EQ(CStringU("\"").RemoveQuotes(), CStringU("\""));
    EXPECT_EQ(CStringU(u"\uff02").RemoveQuotes(), CStringU(u"\uff02"));
    EXPECT_EQ(CStringU("\"\"").RemoveQuotes(), CStringU());
    EXPECT_EQ(CStringU().RemoveQuotes(), CStringU());
}

TEST(CStringUQuotes, ASingleQuoteIsQuotedItself) {
    EXPECT_EQ(CStringU("\"").AddQuotes(), CStringU("\"\"\""));
    EXPECT_EQ(Stored(CStringU(u"\u00ab").AddQuotes()), "\x80\"\xC2\xAB\"");
}

TEST(CStringUQuotes, EmptyTextBecomesTwoQuotes) {
    EXPECT_EQ(Stored(CStringU().AddQuotes()), "\"\"");
    EXPECT_EQ(Stored(Raw("\x80").AddQuotes()), "\"\"") << "a marker alone is empty";
}

TEST(CStringUQuotes, OneSideAloneIsNotQuoted) {
    EXPECT_EQ(CStringU("\"a").RemoveQuotes(), CStringU("\"a"));
    EXPECT_EQ(CStringU("a\"").RemoveQuotes(), CStringU("a\""));
    EXPECT_EQ(CStringU("\"a").AddQuotes(), CStringU("\"\"a\""));
    EXPECT_EQ(CStringU("a b").AddQuotes(), CStringU("\"a b\""));
}

TEST(CStringUQuotes, MarkerFollowsTheContent) {
    EXPECT_EQ(Stored(CStringU(u"\u00e9").AddQuotes()), "\x80\"\xC3\xA9\"");
    EXPECT_EQ(Stored(CStringU(u"\"\u00e9\"").RemoveQuotes()), "\xC3\xA9");
    EXPECT_EQ(Stored(CStringU(u"\"a\u00e9\"").RemoveQuotes()),
              "\x80"
              "a\xC3\xA9");
    EXPECT_EQ(Stored(CStringU(u"\uff02"
                              u"a\uff02")
                         .RemoveQuotes()),
              "a");
    EXPECT_EQ(Stored(Raw("\x80"
                         "ab")
                         .AddQuotes()),
              "\"ab\"")
        << "a stale marker goes";
}

TEST(CStringUQuotes, ReturningFormsLeaveTheTextAlone) {
    const CStringU text("\"a\"");
    EXPECT_EQ(text.WithoutQuotes(), CStringU("a"));
    EXPECT_EQ(text.WithQuotes(), text);
    EXPECT_EQ(text, CStringU("\"a\""));
}

TEST(CStringUQuotes, RandomTextsAgreeWithPlainUtf16) {
    std::mt19937 random = SeededRandom();
    const auto isQuote = [](char16_t unit) { return cnQuotes.find(unit) != std::u16string_view::npos; };
    for (int round = 0; round < 20000; ++round) {
        std::u16string units = HostileName(random, 5);
        if (UpTo(random, 2) != 0) units.insert(0, 1, cnQuotes[UpTo(random, 4)]);
        if (UpTo(random, 2) != 0) units += cnQuotes[UpTo(random, 4)];
        const bool quoted = units.size() > 1 && isQuote(units.front()) && isQuote(units.back());
        const CStringU text(units.c_str());
        ASSERT_EQ(text.WithoutQuotes().ToWide(), quoted ? units.substr(1, units.size() - 2) : units);
        ASSERT_EQ(text.WithQuotes().ToWide(), quoted ? units : u'"' + units + u'"');
        ASSERT_TRUE(HoldsMarkerInvariant(text.WithQuotes()));
        ASSERT_TRUE(HoldsMarkerInvariant(text.WithoutQuotes()));
    }
}

TEST(CStringUQuotes, MalformedTextIsCutInsideOfItself) {
    std::mt19937 random = SeededRandom();
    for (int round = 0; round < 20000; ++round) {
        const std::string bytes = "\"" + HostileBytes(random, 4) + (round % 2 == 0 ? "\"" : "\xC2\xAB");
        const CStringU text(bytes.c_str(), TextEncoding::Utf8Auto);
        const std::string_view payload = text.PayloadView();
        const CStringU without = text.WithoutQuotes();
        const std::size_t at = payload.find(without.PayloadView());
        ASSERT_NE(at, std::string_view::npos) << Shown(payload);
        ASSERT_TRUE(without == text || without.PayloadView().size() + 2 <= payload.size()) << Shown(payload);
        const CStringU with = text.WithQuotes();
        ASSERT_TRUE(with == text || with.PayloadView() == '"' + std::string(payload) + '"') << Shown(payload);
        ASSERT_EQ(with.WithQuotes(), with) << Shown(payload);
    }
}

}  // namespace
