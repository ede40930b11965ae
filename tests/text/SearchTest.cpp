/// @file
/// The searches: each oddity by name, then every search against a model on decoded characters.
#include "text/Search.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "tests/text/HostileText.h"
#include "text/Fold.h"

namespace {

using namespace vapp_text;
using namespace text_test;

// "Aé中b": the characters begin at the bytes 0, 1, 3 and 6, and the text ends at 7.
constexpr const char* cnMixed =
    "A\xC3\xA9\xE4\xB8\xAD"
    "b";
constexpr std::int64_t cnMixedEnd = 7;

TEST(SearchForward, FindsACharacterByByteAndByIndex) {
    const struct {
        char16_t wanted;
        std::int64_t byte;
        std::int64_t index;
        std::int64_t foldedByte;
        std::int64_t foldedIndex;
    } rows[] = {
        {u'A', 0, 0, 0, 0},           {u'a', -1, -1, 0, 0},        {u'b', 6, 3, 6, 3},
        {u'B', -1, -1, 6, 3},         {u'\u00e9', 1, 1, 1, 1},     {u'\u00c9', -1, -1, 1, 1},
        {u'\u4e2d', 3, 2, 3, 2},      {u'\u4e2e', -1, -1, -1, -1}, {u'z', -1, -1, -1, -1},
        {u'\0', cnMixedEnd, 4, 7, 4},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(static_cast<int>(row.wanted));
        EXPECT_EQ(FindCharU(cnMixed, row.wanted), row.byte);
        EXPECT_EQ(FindCharIndexU(cnMixed, row.wanted), row.index);
        EXPECT_EQ(FindCharNoCaseU(cnMixed, row.wanted), row.foldedByte);
        EXPECT_EQ(FindCharIndexNoCaseU(cnMixed, row.wanted), row.foldedIndex);
    }
}

TEST(SearchForward, CharacterZeroIsFoundAtTheCountOfCharacters) {
    EXPECT_EQ(FindCharIndexU(cnMixed, u'\0'), 4);
    EXPECT_EQ(FindCharIndexU("", u'\0'), 0);
    EXPECT_EQ(FindCharU("", u'\0'), 0);
}

TEST(SearchForward, ACapitalNeedleFindsTheSmallCharacter) {
    EXPECT_EQ(FindCharNoCaseU("xy\xC3\xA9", u'\u00C9'), 2);
    EXPECT_EQ(FindCharIndexNoCaseU("\xC3\xA9\xC3\xA8", u'\u00C8'), 1);
}

TEST(SearchForward, FindsATextByByteAndByIndex) {
    EXPECT_EQ(FindTextU(cnMixed,
                        "\xE4\xB8\xAD"
                        "b"),
              3);
    EXPECT_EQ(FindTextU(cnMixed, u"\u4e2db"), 3);
    EXPECT_EQ(FindTextU(cnMixed, u"\u4e2dB"), -1);
    EXPECT_EQ(FindTextU(cnMixed, ""), 0);
    EXPECT_EQ(FindTextU(cnMixed, u""), 0);
    EXPECT_EQ(FindTextIndexU(cnMixed, "b"), 3);
    EXPECT_EQ(FindTextIndexU(cnMixed, "B"), -1);
    EXPECT_EQ(FindTextNoCaseU(cnMixed, "B"), 6);
    EXPECT_EQ(FindTextNoCaseU(cnMixed, u"\u00c9\u4e2d"), 1);
    EXPECT_EQ(FindTextIndexNoCaseU(cnMixed, "B"), 3);
    EXPECT_EQ(FindTextIndexNoCaseU(cnMixed, u"\u4e2dB"), 2);
    EXPECT_EQ(FindTextNoCaseU("sky_NAND2_x1", "nand2"), 4);
}

TEST(SearchForward, AWideNeedleOfAnyLengthIsFound) {
    for (const std::size_t size : {255U, 256U, 257U, 3000U}) {
        const std::u16string needle(size, u'\u00e9');
        const std::string text = "prefix" + Bytes(needle) + "x";
        EXPECT_EQ(FindTextU(text.c_str(), needle.c_str()), 6) << size;
        EXPECT_EQ(ReverseFindTextU(text.c_str(), needle.c_str(), 1'000'000), 6) << size;
    }
}

TEST(SearchForward, AnEmptyNeedleIsFoundAtTheStart) {
    for (const char* text : {"", "abc", cnMixed}) {
        EXPECT_EQ(FindTextNoCaseU(text, ""), 0);
        EXPECT_EQ(FindTextNoCaseU(text, u""), 0);
        EXPECT_EQ(FindTextIndexU(text, ""), 0);
        EXPECT_EQ(FindTextIndexNoCaseU(text, ""), 0);
        EXPECT_EQ(FindTextIndexNoCaseU(text, u""), 0);
        EXPECT_EQ(FindTextNoCaseNU(text, "x", 0), 0);
        EXPECT_EQ(FindTextIndexNU(text, u"x", 0), 0);
    }
    EXPECT_EQ(FindTextNoCaseU("", "a"), -1);
}

TEST(SearchForward, AUtf8NeedleWithALongerCharacterIsFoundOnlyWhereTheTextEnds) {
    const char* needle = "\xC3\xA9";
    EXPECT_EQ(FindTextNoCaseU("a\xC3\xA9", needle), 1);
    EXPECT_EQ(FindTextNoCaseU("a\xC3\xA9"
                              "b",
                              needle),
              -1);
    EXPECT_EQ(FindTextNoCaseU("\xC3\xA9\xC3\xA9", needle), 2) << "not the first of the two";
    EXPECT_EQ(FindTextIndexU("\xC3\xA9\xC3\xA9", needle), 1);
    EXPECT_EQ(FindTextIndexU("a\xC3\xA9"
                             "b",
                             needle),
              -1);
    EXPECT_EQ(FindTextIndexNoCaseU("a\xC3\x89", needle), 1);
    EXPECT_EQ(FindTextIndexNoCaseU("a\xC3\x89"
                                   "b",
                                   needle),
              -1);
    // The same needle in UTF-16, or with its count of characters, has no such limit.
    EXPECT_EQ(FindTextNoCaseU("a\xC3\xA9"
                              "b",
                              u"\u00e9"),
              1);
    EXPECT_EQ(FindTextNoCaseNU("a\xC3\xA9"
                               "b",
                               needle, 1),
              1);
    EXPECT_EQ(FindTextU("a\xC3\xA9"
                        "b",
                        needle),
              1);
}

TEST(SearchForward, TheNFormsTakeThatManyCharactersOfTheNeedle) {
    EXPECT_EQ(FindTextIndexNU(cnMixed,
                              "\xE4\xB8\xAD"
                              "bXXX",
                              2),
              2);
    EXPECT_EQ(FindTextIndexNU(cnMixed, u"\u4e2dbXXX", 2), 2);
    EXPECT_EQ(FindTextIndexNU(cnMixed, u"\u4e2dBXXX", 2), -1);
    EXPECT_EQ(FindTextNoCaseNU(cnMixed,
                               "\xE4\xB8\xAD"
                               "BXXX",
                               2),
              3);
    EXPECT_EQ(FindTextNoCaseNU(cnMixed, u"\u4e2dBXXX", 2), 3);
    EXPECT_EQ(FindTextIndexNoCaseNU(cnMixed,
                                    "\xE4\xB8\xAD"
                                    "BXXX",
                                    2),
              2);
    EXPECT_EQ(FindTextIndexNoCaseNU(cnMixed, u"\u4e2dBXXX", 2), 2);
    const std::vector<char16_t> notTerminated = {u'B'};
    EXPECT_EQ(FindTextNoCaseNU(cnMixed, notTerminated.data(), 1), 6);
}

TEST(SearchForward, FindsTheFirstOfASet) {
    EXPECT_EQ(FindOneOfU(cnMixed, "b\xE4\xB8\xAD"), 3);
    EXPECT_EQ(FindOneOfU(cnMixed, u"b\u4e2d"), 3);
    EXPECT_EQ(FindOneOfIndexU(cnMixed, u"b\u4e2d"), 2);
    EXPECT_EQ(FindOneOfU(cnMixed, "aB"), -1);
    EXPECT_EQ(FindOneOfNoCaseU(cnMixed, "B"), 6);
    EXPECT_EQ(FindOneOfNoCaseU(cnMixed, "xB\xC3\x89"), 1);
    EXPECT_EQ(FindOneOfNoCaseU(cnMixed, u"B\u00c9"), 1);
    EXPECT_EQ(FindOneOfIndexNoCaseU(cnMixed, u"B\u4e2d"), 2);
}

TEST(SearchForward, AnEmptySetFindsNothingNotEvenTheEnd) {
    for (const char* text : {"", "abc", cnMixed}) {
        EXPECT_EQ(FindOneOfU(text, ""), -1);
        EXPECT_EQ(FindOneOfU(text, u""), -1);
        EXPECT_EQ(FindOneOfIndexU(text, u""), -1);
        EXPECT_EQ(FindOneOfNoCaseU(text, ""), -1);
        EXPECT_EQ(FindOneOfIndexNoCaseU(text, u""), -1);
        EXPECT_EQ(ReverseFindOneOfU(text, "", 3), -1);
    }
}

TEST(SearchForward, TheFoldedFormWantsAFoldedSet) {
    EXPECT_EQ(FindOneOfFoldedU("xA", u"a"), 1);
    EXPECT_EQ(FindOneOfFoldedU("xA", u"A"), -1);
}

TEST(SearchBackward, FindsTheNearestCharacterBefore) {
    const char* text =
        "ab\xC3\xA9"
        "Ab\xC3\xA9";  // a0 b1 é2 A4 b5 é6, end 8
    const struct {
        char16_t wanted;
        std::int64_t from;
        std::int64_t withCase;
        std::int64_t noCase;
    } rows[] = {
        {u'a', 8, 0, 4},      {u'a', 3, 0, 0},      {u'a', 0, 0, 0},       {u'A', 8, 4, 4},
        {u'A', 3, -1, 0},     {u'b', 5, 5, 5},      {u'b', 4, 1, 1},       {u'b', 0, -1, -1},
        {u'\u00e9', 8, 6, 6}, {u'\u00e9', 5, 2, 2}, {u'\u00c9', 8, -1, 6}, {u'z', 8, -1, -1},
        {u'\0', 8, 8, 8},     {u'\0', 7, -1, -1},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(std::to_string(row.wanted) + " from " + std::to_string(row.from));
        EXPECT_EQ(ReverseFindCharU(text, row.wanted, row.from), row.withCase);
        EXPECT_EQ(ReverseFindCharNoCaseU(text, row.wanted, row.from), row.noCase);
    }
}

TEST(SearchBackward, AStartOfMinusOneFindsNothing) {
    EXPECT_EQ(ReverseFindCharU("aaa", u'a', -1), -1);
    EXPECT_EQ(ReverseFindCharNoCaseU("aaa", u'a', -1), -1);
    EXPECT_EQ(ReverseFindTextU("aaa", "", -1), -1);
    EXPECT_EQ(ReverseFindTextNoCaseU("aaa", u"a", -1), -1);
    EXPECT_EQ(ReverseFindOneOfU("aaa", "a", -1), -1);
    EXPECT_EQ(ReverseFindOneOfNoCaseU("aaa", u"a", -1), -1);
}

TEST(SearchBackward, AStartBehindTheTextIsItsEnd) {
    const ExactBytes text("abc");
    EXPECT_EQ(ReverseFindCharU(text.Get(), u'c', 100), 2);
    EXPECT_EQ(ReverseFindCharU(text.Get(), u'\u00e9', 100), -1);
    EXPECT_EQ(ReverseFindCharNoCaseU(text.Get(), u'C', 100), 2);
    EXPECT_EQ(ReverseFindTextU(text.Get(), "bc", 100), 1);
    EXPECT_EQ(ReverseFindTextU(text.Get(), "", 100), 3);
    EXPECT_EQ(ReverseFindTextNoCaseU(text.Get(), "BC", 100), 1);
    EXPECT_EQ(ReverseFindOneOfU(text.Get(), "b", 100), 1);
    EXPECT_EQ(ReverseFindOneOfU(text.Get(), "b", -100), -1);
}

TEST(SearchBackward, FindsTheNearestTextBefore) {
    const char* text = "inv_X1 inv_x2";
    EXPECT_EQ(ReverseFindTextU(text, "inv", 13), 7);
    EXPECT_EQ(ReverseFindTextU(text, u"inv", 6), 0);
    EXPECT_EQ(ReverseFindTextU(text, "X", 13), 4);
    EXPECT_EQ(ReverseFindTextNoCaseU(text, "X", 13), 11);
    EXPECT_EQ(ReverseFindTextNoCaseU(text, u"INV", 6), 0);
    EXPECT_EQ(ReverseFindTextU(text, "nand", 13), -1);
    EXPECT_EQ(ReverseFindTextNoCaseU(text, "nand", 13), -1);
}

TEST(SearchBackward, AnEmptyNeedleIsFoundAtOnce) {
    EXPECT_EQ(ReverseFindTextU("abc", "", 2), 2);
    EXPECT_EQ(ReverseFindTextU("abc", u"", 3), 3);
    EXPECT_EQ(ReverseFindTextNoCaseU("abc", "", 1), 1);
    EXPECT_EQ(ReverseFindTextNoCaseU("abc", u"", 0), 0);
}

TEST(SearchBackward, AUtf8NeedleCountsItsCharactersSoItIsFoundAnywhere) {
    EXPECT_EQ(ReverseFindTextNoCaseU("a\xC3\xA9"
                                     "b",
                                     "\xC3\x89", 4),
              1);
    EXPECT_EQ(ReverseFindTextNoCaseU("a\xC3\xA9"
                                     "b",
                                     "\xC3\x89"
                                     "B",
                                     4),
              1);
}

TEST(SearchBackward, FindsTheNearestOfASet) {
    EXPECT_EQ(ReverseFindOneOfU(cnMixed, "A\xC3\xA9", cnMixedEnd), 1);
    EXPECT_EQ(ReverseFindOneOfU(cnMixed, u"A\u00e9", cnMixedEnd), 1);
    EXPECT_EQ(ReverseFindOneOfU(cnMixed, u"A\u00e9", 0), 0);
    EXPECT_EQ(ReverseFindOneOfU(cnMixed, "B", cnMixedEnd), -1);
}

TEST(SearchBackward, TheFoldedFormDoesNotFoldTheSet) {
    EXPECT_EQ(ReverseFindOneOfNoCaseU(cnMixed, "a", cnMixedEnd), 0);
    EXPECT_EQ(ReverseFindOneOfNoCaseU(cnMixed, u"a", cnMixedEnd), 0);
    EXPECT_EQ(ReverseFindOneOfNoCaseU(cnMixed, "A", cnMixedEnd), -1);
    EXPECT_EQ(ReverseFindOneOfNoCaseU(cnMixed, u"A", cnMixedEnd), -1);
    EXPECT_EQ(ReverseFindOneOfNoCaseU("x\xC3\x89", "\xC3\xA9", 3), 1);
    EXPECT_EQ(ReverseFindOneOfNoCaseU("x\xC3\x89", "\xC3\x89", 3), -1);
}

/// A text as the model sees it: its characters, and the byte at which each begins (the end included).
struct SearchModel {
    explicit SearchModel(std::u16string_view units) : m_units(units) {
        for (const char16_t unit : units)
            m_bytes.push_back(m_bytes.back() + EncodedSize(unit));
    }

    /// Character `index`, 0 at and behind the end, folded if asked.
    [[nodiscard]] char16_t At(std::size_t index, bool fold) const {
        const char16_t unit = index < m_units.size() ? m_units[index] : u'\0';
        return fold ? FoldChar(unit) : unit;
    }
    /// True if `count` characters from `index` are those of the needle; both ends count as 0, once.
    [[nodiscard]] bool Matches(std::size_t index, const SearchModel& needle, std::size_t count,
                               bool fold) const {
        for (std::size_t step = 0; step < count; ++step) {
            if (At(index + step, fold) != needle.At(step, fold)) return false;
            if (At(index + step, fold) == 0) return true;
        }
        return true;
    }
    [[nodiscard]] std::int64_t FirstMatch(const SearchModel& needle, std::size_t count, bool fold) const {
        for (std::size_t index = 0; index == 0 || index < m_units.size(); ++index) {
            if (Matches(index, needle, count, fold)) return static_cast<std::int64_t>(index);
        }
        return -1;
    }
    [[nodiscard]] std::int64_t LastMatch(std::size_t from, const SearchModel& needle, bool fold) const {
        for (std::size_t index = from + 1; index-- > 0;) {
            if (Matches(index, needle, needle.m_units.size(), fold)) return static_cast<std::int64_t>(index);
        }
        return -1;
    }
    [[nodiscard]] bool Holds(char16_t wanted, bool fold) const {
        for (std::size_t index = 0; index < m_units.size(); ++index) {
            if (At(index, fold) == wanted) return true;
        }
        return false;
    }
    [[nodiscard]] std::int64_t FirstOf(const SearchModel& set, bool fold) const {
        for (std::size_t index = 0; index < m_units.size(); ++index) {
            if (set.Holds(At(index, fold), fold)) return static_cast<std::int64_t>(index);
        }
        return -1;
    }
    /// The set is taken as it stands.
    [[nodiscard]] std::int64_t LastOf(std::size_t from, const SearchModel& set, bool fold) const {
        for (std::size_t index = std::min(from + 1, m_units.size()); index-- > 0;) {
            if (set.Holds(At(index, fold), false)) return static_cast<std::int64_t>(index);
        }
        return -1;
    }
    [[nodiscard]] std::int64_t Byte(std::int64_t index) const {
        return index < 0 ? -1 : m_bytes[static_cast<std::size_t>(index)];
    }

    std::u16string m_units;
    std::vector<std::int64_t> m_bytes = {0};
};

/// A needle that has a chance: a piece of the text with the case of some characters changed, or any name.
std::u16string LikelyNeedle(std::mt19937& random, const std::u16string& text) {
    if (UpTo(random, 3) == 0) return HostileName(random, 3);
    const std::size_t at = UpTo(random, text.size());
    std::u16string needle = text.substr(at, UpTo(random, 3));
    for (char16_t& unit : needle) {
        if (UpTo(random, 2) == 0) unit = FoldChar(unit);
    }
    return needle;
}

TEST(SearchForward, RandomSearchesAgreeWithTheModel) {
    std::mt19937 random = SeededRandom();
    for (int round = 0; round < 30'000; ++round) {
        const SearchModel text(HostileName(random, 14));
        const SearchModel needle(LikelyNeedle(random, text.m_units));
        const ExactBytes t(Bytes(text.m_units));
        const ExactBytes n(Bytes(needle.m_units));
        const ExactUnits w(needle.m_units);
        SCOPED_TRACE(Shown(t.Get()) + " " + Shown(n.Get()));
        const std::size_t units = needle.m_units.size();
        const std::size_t bytes = std::strlen(n.Get());

        const std::int64_t plain = text.FirstMatch(needle, units, false);
        const std::int64_t folded = text.FirstMatch(needle, units, true);
        const std::int64_t foldedByBytes = text.FirstMatch(needle, bytes, true);
        ASSERT_EQ(FindTextU(t.Get(), n.Get()), text.Byte(plain));
        ASSERT_EQ(FindTextU(t.Get(), w.Get()), text.Byte(plain));
        ASSERT_EQ(FindTextIndexU(t.Get(), n.Get()), text.FirstMatch(needle, bytes, false));
        ASSERT_EQ(FindTextIndexNU(t.Get(), n.Get(), units), plain);
        ASSERT_EQ(FindTextIndexNU(t.Get(), w.Get(), units), plain);
        ASSERT_EQ(FindTextNoCaseU(t.Get(), w.Get()), text.Byte(folded));
        ASSERT_EQ(FindTextNoCaseU(t.Get(), n.Get()), text.Byte(foldedByBytes));
        ASSERT_EQ(FindTextIndexNoCaseU(t.Get(), w.Get()), folded);
        ASSERT_EQ(FindTextIndexNoCaseU(t.Get(), n.Get()), foldedByBytes);
        ASSERT_EQ(FindTextNoCaseNU(t.Get(), n.Get(), units), text.Byte(folded));
        ASSERT_EQ(FindTextNoCaseNU(t.Get(), w.Get(), units), text.Byte(folded));
        ASSERT_EQ(FindTextIndexNoCaseNU(t.Get(), n.Get(), units), folded);
        ASSERT_EQ(FindTextIndexNoCaseNU(t.Get(), w.Get(), units), folded);

        ASSERT_EQ(FindOneOfU(t.Get(), n.Get()), text.Byte(text.FirstOf(needle, false)));
        ASSERT_EQ(FindOneOfU(t.Get(), w.Get()), text.Byte(text.FirstOf(needle, false)));
        ASSERT_EQ(FindOneOfIndexU(t.Get(), w.Get()), text.FirstOf(needle, false));
        ASSERT_EQ(FindOneOfNoCaseU(t.Get(), n.Get()), text.Byte(text.FirstOf(needle, true)));
        ASSERT_EQ(FindOneOfNoCaseU(t.Get(), w.Get()), text.Byte(text.FirstOf(needle, true)));
        ASSERT_EQ(FindOneOfIndexNoCaseU(t.Get(), w.Get()), text.FirstOf(needle, true));

        const SearchModel one(needle.m_units.substr(0, 1));
        if (one.m_units.empty()) continue;
        const char16_t c = one.m_units.front();
        ASSERT_EQ(FindCharU(t.Get(), c), text.Byte(text.FirstOf(one, false)));
        ASSERT_EQ(FindCharIndexU(t.Get(), c), text.FirstOf(one, false));
        ASSERT_EQ(FindCharNoCaseU(t.Get(), c), text.Byte(text.FirstOf(one, true)));
        ASSERT_EQ(FindCharIndexNoCaseU(t.Get(), c), text.FirstOf(one, true));
    }
}

TEST(SearchBackward, RandomSearchesAgreeWithTheModel) {
    std::mt19937 random = SeededRandom();
    for (int round = 0; round < 30'000; ++round) {
        const SearchModel text(HostileName(random, 14));
        const SearchModel needle(LikelyNeedle(random, text.m_units));
        const std::size_t start = UpTo(random, text.m_units.size());
        const std::int64_t from = text.m_bytes[start];
        const ExactBytes t(Bytes(text.m_units));
        const ExactBytes n(Bytes(needle.m_units));
        const ExactUnits w(needle.m_units);
        SCOPED_TRACE(Shown(t.Get()) + " " + Shown(n.Get()) + " from " + std::to_string(from));

        const std::int64_t plain = text.Byte(text.LastMatch(start, needle, false));
        const std::int64_t folded = text.Byte(text.LastMatch(start, needle, true));
        ASSERT_EQ(ReverseFindTextU(t.Get(), n.Get(), from), plain);
        ASSERT_EQ(ReverseFindTextU(t.Get(), w.Get(), from), plain);
        ASSERT_EQ(ReverseFindTextNoCaseU(t.Get(), n.Get(), from), folded);
        ASSERT_EQ(ReverseFindTextNoCaseU(t.Get(), w.Get(), from), folded);
        ASSERT_EQ(ReverseFindOneOfU(t.Get(), n.Get(), from), text.Byte(text.LastOf(start, needle, false)));
        ASSERT_EQ(ReverseFindOneOfU(t.Get(), w.Get(), from), text.Byte(text.LastOf(start, needle, false)));
        ASSERT_EQ(ReverseFindOneOfNoCaseU(t.Get(), n.Get(), from),
                  text.Byte(text.LastOf(start, needle, true)));
        ASSERT_EQ(ReverseFindOneOfNoCaseU(t.Get(), w.Get(), from),
                  text.Byte(text.LastOf(start, needle, true)));

        const SearchModel one(needle.m_units.substr(0, 1));
        if (one.m_units.empty()) continue;
        const char16_t c = one.m_units.front();
        ASSERT_EQ(ReverseFindCharU(t.Get(), c, from), text.Byte(text.LastMatch(start, one, false)));
        ASSERT_EQ(ReverseFindCharNoCaseU(t.Get(), c, from), text.Byte(text.LastMatch(start, one, true)));
    }
}

TEST(Search, MalformedBytesAreSearchedWithoutLeavingThem) {
    std::mt19937 random = SeededRandom();
    for (int round = 0; round < 20'000; ++round) {
        const std::string text = HostileBytes(random);
        const ExactBytes t(text);
        const ExactBytes n(HostileBytes(random, 3));
        const ExactUnits w(Decoded(n.Get()));
        const auto end = static_cast<std::int64_t>(text.size());
        const std::int64_t from = static_cast<std::int64_t>(UpTo(random, text.size() + 4)) - 2;
        const char16_t c = *w.Get();
        SCOPED_TRACE(Shown(text) + " " + Shown(n.Get()) + " from " + std::to_string(from));
        const std::int64_t forward[] = {
            FindCharU(t.Get(), c),
            FindCharNoCaseU(t.Get(), c),
            FindCharIndexU(t.Get(), c),
            FindCharIndexNoCaseU(t.Get(), c),
            FindTextU(t.Get(), n.Get()),
            FindTextU(t.Get(), w.Get()),
            FindTextIndexU(t.Get(), n.Get()),
            FindTextNoCaseU(t.Get(), n.Get()),
            FindTextNoCaseU(t.Get(), w.Get()),
            FindTextIndexNoCaseU(t.Get(), n.Get()),
            FindTextNoCaseNU(t.Get(), n.Get(), UpTo(random, 9)),
            FindTextIndexNU(t.Get(), n.Get(), UpTo(random, 9)),
            FindOneOfU(t.Get(), n.Get()),
            FindOneOfNoCaseU(t.Get(), n.Get()),
            FindOneOfIndexNoCaseU(t.Get(), w.Get()),
        };
        for (const std::int64_t found : forward)
            ASSERT_TRUE(found >= -1 && found <= end) << found;
        const std::int64_t backward[] = {
            ReverseFindCharU(t.Get(), c, from),
            ReverseFindCharNoCaseU(t.Get(), c, from),
            ReverseFindTextU(t.Get(), n.Get(), from),
            ReverseFindTextU(t.Get(), w.Get(), from),
            ReverseFindTextNoCaseU(t.Get(), n.Get(), from),
            ReverseFindTextNoCaseU(t.Get(), w.Get(), from),
            ReverseFindOneOfU(t.Get(), n.Get(), from),
            ReverseFindOneOfNoCaseU(t.Get(), w.Get(), from),
        };
        for (const std::int64_t found : backward) {
            ASSERT_TRUE(found >= -1 && found <= std::max<std::int64_t>(from, -1)) << found;
        }
    }
}

}  // namespace
