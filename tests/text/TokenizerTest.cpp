// The tokeniser: what makes a token, where the position goes, beside a plain model.
#include "text/Tokenizer.h"

#include <gtest/gtest.h>

#include <climits>
#include <string>
#include <vector>

#include "tests/text/HostileText.h"
#include "text/Fold.h"

namespace {

using namespace text_test;
using vapp_text::FoldChar;
using vapp_text::TTokenizer;

std::vector<std::u16string> Tokens(const CStringU& text, const CStringU& separators,
                                   bool caseSensitive = false) {
    const TTokenizer tokenizer(text, separators, caseSensitive);
    std::vector<std::u16string> tokens;
    tokenizer.ForEachToken([&](const CStringU& token) {
        EXPECT_TRUE(HoldsMarkerInvariant(token)) << Shown(Stored(token));
        tokens.push_back(token.ToWide());
    });
    return tokens;
}

using TList = std::vector<std::u16string>;

TEST(Tokenizer, BlanksAreTextUnlessTheSetSaysOtherwise) {
    EXPECT_EQ(Tokens("a, b", ","), (TList{u"a", u" b"}));
    EXPECT_EQ(Tokens("a, b", ", "), (TList{u"a", u"b"}));
}

TEST(Tokenizer, ARunOfSeparatorsCountsAsOne) {
    EXPECT_EQ(Tokens("a,,;b", ",;"), (TList{u"a", u"b"}));
}

TEST(Tokenizer, SeparatorsAtTheEndsYieldNothing) {
    EXPECT_EQ(Tokens(",,a,b,,", ","), (TList{u"a", u"b"}));
    EXPECT_EQ(Tokens(",,,", ","), TList{});
    EXPECT_EQ(Tokens("", ","), TList{});
    EXPECT_EQ(Tokens("abc", ""), TList{u"abc"});
}

TEST(Tokenizer, SeparatorsFoldUnlessCaseCounts) {
    EXPECT_EQ(Tokens("1x2X3", "X"), (TList{u"1", u"2", u"3"}));
    EXPECT_EQ(Tokens("1x2X3", "X", true), (TList{u"1x2", u"3"}));
    EXPECT_EQ(Tokens(CStringU(u"1\u00e92\u00c93"), CStringU(u"\u00c9")), (TList{u"1", u"2", u"3"}));
    EXPECT_EQ(Tokens(CStringU(u"1\u00e92\u00c93"), CStringU(u"\u00c9"), true), (TList{u"1\u00e92", u"3"}));
}

TEST(Tokenizer, TokensKeepTheirCaseAndGetTheirOwnMarker) {
    const TTokenizer tokenizer(CStringU(u"Ab,c\u00e9,\u4e2d"), ",");
    std::int64_t pos = 0;
    EXPECT_EQ(Stored(tokenizer.NextToken(pos)), "Ab");
    EXPECT_EQ(pos, 3);
    EXPECT_EQ(Stored(tokenizer.NextToken(pos)),
              "\x80"
              "c\xC3\xA9");
    EXPECT_EQ(pos, 7);
    EXPECT_EQ(Stored(tokenizer.NextToken(pos)), "\xE4\xB8\xAD");
    EXPECT_EQ(pos, tokenizer.GetByteLength());
}

TEST(Tokenizer, ThePositionMovesBehindAllSeparatorsThatFollow) {
    const TTokenizer tokenizer(",,a,,,b,", ",");
    std::int64_t pos = 0;
    EXPECT_EQ(tokenizer.NextToken(pos), CStringU("a"));
    EXPECT_EQ(pos, 6);
    EXPECT_EQ(tokenizer.NextToken(pos), CStringU("b"));
    EXPECT_EQ(pos, 8);
    EXPECT_EQ(tokenizer.NextToken(pos), CStringU());
    EXPECT_EQ(pos, 8);
}

TEST(Tokenizer, AnOffsetOutsideCountsAsTheNearerEnd) {
    const TTokenizer tokenizer("a,b", ",");
    for (std::int64_t pos : {std::int64_t{99}, INT64_MAX}) {
        EXPECT_EQ(tokenizer.NextToken(pos), CStringU());
        EXPECT_EQ(pos, 3);
    }
    std::int64_t pos = -5;
    EXPECT_EQ(tokenizer.NextToken(pos), CStringU("a"));
}

TEST(Tokenizer, OneSeparatorOfTwoBytesIsNotTwoOthers) {
    EXPECT_EQ(Tokens(CStringU(u"a\u00c3b"), CStringU(u"\u00c9\u00e9")), (TList{u"a\u00c3b"}));
}

TList Model(const std::u16string& text, const std::u16string& separators, bool caseSensitive) {
    std::u16string set = separators;
    if (!caseSensitive) std::transform(set.begin(), set.end(), set.begin(), FoldChar);
    TList tokens;
    std::u16string token;
    for (const char16_t unit : text) {
        if (set.find(caseSensitive ? unit : FoldChar(unit)) == std::u16string::npos) {
            token += unit;
            continue;
        }
        if (!token.empty()) tokens.push_back(token);
        token.clear();
    }
    if (!token.empty()) tokens.push_back(token);
    return tokens;
}

TEST(Tokenizer, RandomTextsAgreeWithPlainUtf16) {
    std::mt19937 random = SeededRandom();
    for (int round = 0; round < 20000; ++round) {
        const std::u16string text = HostileName(random, 20);
        const std::u16string separators = HostileName(random, 3);
        const bool caseSensitive = UpTo(random, 1) == 0;
        ASSERT_EQ(Tokens(CStringU(text.c_str()), CStringU(separators.c_str()), caseSensitive),
                  Model(text, separators, caseSensitive))
            << Shown(Bytes(text)) << " at " << Shown(Bytes(separators));
    }
}

// Plain text has ways of its own, one more for a single separator.
TEST(Tokenizer, RandomPlainTextsAgreeWithPlainUtf16) {
    std::mt19937 random = SeededRandom();
    const std::u16string alphabet = u"aAbB,;\x01\x7f";
    const auto plain = [&](std::size_t longest) {
        std::u16string units;
        for (std::size_t left = UpTo(random, longest); left > 0; --left)
            units += alphabet[UpTo(random, alphabet.size() - 1)];
        return units;
    };
    for (int round = 0; round < 20000; ++round) {
        const std::u16string text = plain(24);
        const std::u16string separators = plain(2) + (UpTo(random, 3) == 0 ? u"\u00e9" : u"");
        const bool caseSensitive = UpTo(random, 1) == 0;
        ASSERT_EQ(Tokens(CStringU(text.c_str()), CStringU(separators.c_str()), caseSensitive),
                  Model(text, separators, caseSensitive))
            << Shown(Bytes(text)) << " at " << Shown(Bytes(separators));
    }
}

// So has text outside of ASCII at one separator that is no letter, for as long as it is encoded as it should
// be.
TEST(Tokenizer, RandomTextsAtOneSeparatorAgreeWithPlainUtf16) {
    std::mt19937 random = SeededRandom();
    for (int round = 0; round < 20000; ++round) {
        std::u16string text = HostileName(random, 40);
        for (std::size_t left = UpTo(random, 6); left > 0; --left)
            text.insert(UpTo(random, text.size()), UpTo(random, 2), u',');
        const std::u16string separators(1, u",,,k1\u00e9"[UpTo(random, 5)]);
        const bool caseSensitive = UpTo(random, 1) == 0;
        ASSERT_EQ(Tokens(CStringU(text.c_str()), CStringU(separators.c_str()), caseSensitive),
                  Model(text, separators, caseSensitive))
            << Shown(Bytes(text)) << " at " << Shown(Bytes(separators));
    }
}

// An overlong comma, one in four bytes, and one that a lead byte swallows: a separator is what decodes to
// one.
TEST(Tokenizer, MalformedTextIsReadAsItDecodes) {
    const auto tokens = [](const char* bytes) {
        std::string joined;
        TTokenizer(Utf8(bytes), ",").ForEachToken([&](const CStringU& token) {
            joined += Stored(token) + '|';
        });
        return joined;
    };
    EXPECT_EQ(tokens("\xC3\xA9\xC0\xAC"
                     "b,c"),
              "\xC3\xA9|b|c|");
    EXPECT_EQ(tokens("\xC3\xA9\xF0\x90\x80\xAC"
                     "b,c"),
              "\xC3\xA9|b|c|");
    EXPECT_EQ(tokens("\xC3\xA9\xC3,b,c"), "\xC3\xA9\xC3,b|c|");
}

// It says that it is ASCII and is not: a lead byte takes the separator behind it for its second byte.
TEST(Tokenizer, RawTextIsReadAsItDecodes) {
    const CStringU text("a\xC3,b,c", TextEncoding::Raw);
    std::vector<std::string> tokens;
    TTokenizer(text, ",").ForEachToken([&](const CStringU& token) { tokens.push_back(Stored(token)); });
    EXPECT_EQ(tokens, (std::vector<std::string>{"a\xC3,b", "c"}));
}

TEST(Tokenizer, ATokenThatIsKeptStaysWhatItWas) {
    std::vector<CStringU> kept;
    TTokenizer(CStringU(u"one,two,\u00e9three,fo\u00fcr,five"), ",").ForEachToken([&](const CStringU& token) {
        kept.push_back(token);
    });
    EXPECT_EQ(kept, (std::vector<CStringU>{"one", "two", CStringU(u"\u00e9three"), CStringU(u"fo\u00fcr"),
                                           "five"}));
    const CStringU* first = nullptr;
    TTokenizer("one,two", ",").ForEachToken([&](const CStringU& token) {
        if (first == nullptr) first = &token;
        EXPECT_EQ(first, &token) << "one text is filled again";
        EXPECT_FALSE(token.Stored().IsShared());
    });
}

TEST(Tokenizer, ATextOfSeparatorsAloneHasNoTokenToBeginWith) {
    const TTokenizer tokenizer(",,", ",");
    EXPECT_EQ(tokenizer.SkipSeparators(0), 2);
    std::int64_t pos = 0;
    EXPECT_EQ(tokenizer.NextToken(pos), CStringU());
    EXPECT_EQ(pos, 2);
    EXPECT_EQ(TTokenizer(",,a", ",").SkipSeparators(0), 2);
    EXPECT_EQ(TTokenizer("a", ",").SkipSeparators(-5), 0);
    EXPECT_EQ(TTokenizer("a", ",").SkipSeparators(99), 1);
}

// Such a text can't be assigned, but it can be declared ASCII without a look at it.
TEST(Tokenizer, ANulInsideOfATextIsItsEnd) {
    const CStringU text(CString("a\0b,c", 5), CStringU::TAscii());
    ASSERT_EQ(text.GetByteLength(), 5);
    EXPECT_EQ(Tokens(text, ","), TList{u"a"});
    EXPECT_EQ(Tokens(CStringU(CString(",\0,", 3), CStringU::TAscii()), ","), TList{});
    const TTokenizer tokenizer(text, ",");
    std::int64_t pos = 1;
    EXPECT_EQ(tokenizer.NextToken(pos), CStringU());
    EXPECT_EQ(pos, 5);
}

TEST(Tokenizer, SetsOfManyCharactersAgreeWithPlainUtf16) {
    std::mt19937 random = SeededRandom();
    for (int round = 0; round < 50; ++round) {
        std::u16string separators;
        for (std::size_t left = UpTo(random, 2000); left > 0; --left)
            separators += static_cast<char16_t>(0x400 + UpTo(random, 0xFF));
        std::u16string text;
        for (std::size_t left = UpTo(random, 200); left > 0; --left)
            text += static_cast<char16_t>(0x380 + UpTo(random, 0x17F));
        const bool caseSensitive = UpTo(random, 1) == 0;
        ASSERT_EQ(Tokens(CStringU(text.c_str()), CStringU(separators.c_str()), caseSensitive),
                  Model(text, separators, caseSensitive));
    }
}

TEST(Tokenizer, MalformedTextsEnd) {
    std::mt19937 random = SeededRandom();
    for (int round = 0; round < 20000; ++round) {
        const CStringU text(HostileBytes(random, 20).c_str(), TextEncoding::Utf8Auto);
        const TTokenizer tokenizer(text, Utf8(HostileBytes(random, 3).c_str()));
        std::int64_t pos = 0;
        std::int64_t bytes = 0;
        while (pos < tokenizer.GetByteLength()) {
            const std::int64_t before = pos;
            bytes += tokenizer.NextToken(pos).GetByteLength();
            ASSERT_GT(pos, before);
        }
        ASSERT_EQ(pos, tokenizer.GetByteLength());
        ASSERT_LE(bytes, pos);
    }
}

}  // namespace
