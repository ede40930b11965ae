/// @file
/// The compares and searches that are members of CStringU and CStringIU: positions, markers, narrow operands.
#include <gtest/gtest.h>

#include <set>

#include "tests/text/HostileText.h"
#include "vapp/text/CStringIU.h"
#include "vapp/text/CStringU.h"

namespace {

using namespace text_test;

// Stored with a marker: "aébÉa", characters at the payload bytes 0, 1, 3, 4 and 6; the text ends at 7.
CStringU Marked() {
    return CStringU(u"a\u00e9b\u00c9a");
}

TEST(CStringUSearch, ComparesPayloadsSoThatTheMarkerDoesNotCount) {
    const CStringU marked = Marked();
    const CStringU unmarked(
        "a\xC3\xA9"
        "b\xC3\x89"
        "a",
        TextEncoding::Raw);
    ASSERT_NE(marked.Stored(), unmarked.Stored());
    EXPECT_EQ(marked.CompareNoCase(unmarked), 0);
    EXPECT_TRUE(marked.EqualsNoCase(unmarked));
    EXPECT_EQ(CStringU("ABC").CompareNoCase(CStringU("abc")), 0);
    EXPECT_LT(CStringU("a").CompareNoCase(CStringU("B")), 0);
    EXPECT_GT(CStringU("ab").CompareNoCase(CStringU("a")), 0);
    EXPECT_EQ(CStringU().CompareNoCase(CStringU()), 0);
}

TEST(CStringUSearch, NarrowTextIsReadInTheActiveCodePageBeforeItIsCompared) {
    EXPECT_EQ(CStringU("True").CompareNoCase("tRUE"), 0);
    EXPECT_LT(CStringU("true").CompareNoCase("truth"), 0);
    EXPECT_GT(CStringU("true").CompareNoCase(static_cast<const char*>(nullptr)), 0);
    const TCodePageGuard latin(1252);
    EXPECT_EQ(CStringU(u"caf\u00c9").CompareNoCase("caf\xE9"), 0);
    EXPECT_TRUE(CStringU(u"caf\u00c9").EqualsNoCase("CAF\xE9"));
}

TEST(CStringUSearch, FindCharGoesForwardFromAPosition) {
    const CStringU text = Marked();
    const struct {
        char16_t unit;
        bool caseSensitive;
        std::int64_t from;
        std::int64_t found;
    } rows[] = {
        {u'a', true, 0, 0},      {u'a', true, 1, 6},       {u'A', true, 0, 7}, {u'A', false, 1, 6},
        {u'\u00c9', true, 0, 4}, {u'\u00c9', false, 0, 1}, {u'b', true, 3, 3}, {u'b', true, 4, 7},
        {u'x', false, 0, 7},     {u'\0', true, 0, 7},      {u'a', true, 7, 7}, {u'a', true, 100, 7},
        {u'a', true, -5, 0},
    };
    for (const auto& row : rows) {
        const CStringUPos found = text.FindChar(row.unit, row.caseSensitive, {row.from, &text});
        EXPECT_EQ(found.offset, row.found) << static_cast<int>(row.unit) << " from " << row.from;
        EXPECT_EQ(found.owner, &text);
    }
}

TEST(CStringUSearch, CharactersOfOtherTypesAreReadByThem) {
    const TCodePageGuard latin(1252);
    const CStringU text(u"a\u00e9b\uf600");
    EXPECT_EQ(text.FindChar('\xC9', false, text.Begin()).offset, 1) << "in the active code page";
    EXPECT_EQ(text.FindChar('\xC9', true, text.Begin()), text.End());
    EXPECT_EQ(text.FindChar(L'b', true, text.Begin()).offset, 3);
    EXPECT_EQ(text.FindCharBack('a', true, text.End()).offset, 0);
    EXPECT_EQ(text.FindCharBack('\xE9', true, text.End()).offset, 1);
    if (sizeof(wchar_t) > sizeof(char16_t)) {
        const auto pair = static_cast<wchar_t>(0x1F600);
        EXPECT_EQ(text.FindChar(pair, true, text.Begin()), text.End()) << "not taken for its lower half";
        EXPECT_EQ(text.FindCharBack(pair, true, text.End()), text.End());
    }
}

TEST(CStringUSearch, FindCharBackGoesBackwardFromAPosition) {
    const CStringU text = Marked();
    const struct {
        char16_t unit;
        bool caseSensitive;
        std::int64_t from;
        std::int64_t found;
    } rows[] = {
        {u'a', true, 7, 6},      {u'a', true, 4, 0},       {u'A', true, 7, 7}, {u'A', false, 7, 6},
        {u'\u00e9', true, 7, 1}, {u'\u00e9', false, 7, 4}, {u'b', true, 3, 3}, {u'b', true, 1, 7},
        {u'x', false, 7, 7},     {u'a', true, 0, 0},       {u'b', true, 0, 7}, {u'a', true, 100, 6},
    };
    for (const auto& row : rows) {
        const CStringUPos found = text.FindCharBack(row.unit, row.caseSensitive, {row.from, &text});
        EXPECT_EQ(found.offset, row.found) << static_cast<int>(row.unit) << " from " << row.from;
        EXPECT_EQ(found.owner, &text);
    }
}

TEST(CStringUSearch, AMarkerAloneIsEmptyToEverySearch) {
    const CStringU marker("\x80", TextEncoding::Raw);
    EXPECT_EQ(marker.FindChar(u'a', false, marker.Begin()), marker.End());
    EXPECT_EQ(marker.FindCharBack(u'a', false, marker.End()), marker.End());
    EXPECT_TRUE(marker.StartsWithNoCase(CStringU()));
    EXPECT_TRUE(CStringU("abc").StartsWithNoCase(marker));
    EXPECT_TRUE(CStringU("abc").EndsWith(marker));
    EXPECT_FALSE(marker.EndsWith("a"));
    EXPECT_EQ(marker.CompareNoCase(CStringU()), 0);
}

TEST(CStringUSearch, FindTextNoCaseDoesNotFindAMarkedNeedle) {
    const CStringU text(u"x\u00e9a\u00e9");
    EXPECT_EQ(text.FindTextNoCase(CStringU("A")).offset, 3);
    EXPECT_EQ(text.FindTextNoCase(CStringU("z")), text.End());
    EXPECT_EQ(text.FindTextNoCase(CStringU()), text.Begin());
    const CStringU marked(u"a\u00e9");
    ASSERT_TRUE(marked.HasNonAscii());
    EXPECT_EQ(text.FindTextNoCase(marked), text.End()) << "though the text ends with it";
    EXPECT_EQ(text.FindTextNoCase(CStringU(u"\u00c9")).offset, 4) << "not marked, and at the end";
}

TEST(CStringUSearch, StartsWithNoCaseFoldsBothSides) {
    const CStringU text(u"\u00c9tat7");
    EXPECT_TRUE(text.StartsWithNoCase(CStringU(u"\u00e9TAT")));
    EXPECT_TRUE(text.StartsWithNoCase(CStringU(u"\u00e9tat7")));
    EXPECT_TRUE(text.StartsWithNoCase(CStringU()));
    EXPECT_FALSE(text.StartsWithNoCase(CStringU(u"\u00e9tat77")));
    EXPECT_FALSE(text.StartsWithNoCase(CStringU("etat")));
    EXPECT_FALSE(CStringU().StartsWithNoCase(CStringU("a")));
    EXPECT_TRUE(CStringU(u"abc\u00e9").StartsWithNoCase(CStringU("ABC"))) << "marked against unmarked";
    EXPECT_TRUE(CStringU("abc").StartsWithNoCase(CStringU("aB\xC0\x80z", TextEncoding::Raw)))
        << "an overlong NUL ends the prefix like the NUL that it stands for";
    EXPECT_FALSE(CStringU("a\xC0\x80", TextEncoding::Raw).StartsWithNoCase(CStringU("ab")));
}

TEST(CStringUSearch, EndsWithKeepsCaseAndItsTwinFoldsIt) {
    const CStringU text(u"inv.sch\u00e9");
    EXPECT_TRUE(text.EndsWith(CStringU(u"sch\u00e9")));
    EXPECT_FALSE(text.EndsWith(CStringU(u"Sch\u00e9")));
    EXPECT_TRUE(text.EndsWithNoCase(CStringU(u"SCH\u00c9")));
    EXPECT_FALSE(text.EndsWithNoCase(CStringU("sche")));
    EXPECT_TRUE(CStringU("cell.SYM").EndsWithNoCase(CStringU(".sym")));
    EXPECT_TRUE(CStringU("cell.sym").EndsWith(".sym"));
    EXPECT_FALSE(CStringU("cell.SYM").EndsWith(".sym"));
}

TEST(CStringUSearch, AnEmptySuffixEndsEveryTextAndALongerOneNone) {
    for (const CStringU& text : {CStringU(), CStringU("ab"), Marked()}) {
        EXPECT_TRUE(text.EndsWith(CStringU()));
        EXPECT_TRUE(text.EndsWith(""));
        EXPECT_TRUE(text.EndsWithNoCase(CStringU()));
        EXPECT_FALSE(text.EndsWith(CStringU("x") + text));
        EXPECT_FALSE(text.EndsWithNoCase(CStringU("x") + text));
    }
}

TEST(CStringUSearch, ANarrowSuffixIsReadInTheActiveCodePage) {
    const TCodePageGuard latin(1252);
    EXPECT_TRUE(CStringU(u"caf\u00e9").EndsWith("f\xE9"));
    EXPECT_FALSE(CStringU(u"caf\u00e9").EndsWith("f\xC9"));
}

TEST(CStringUSearch, ASetOfKeysKeepsTheFirstOfTwoNamesThatDifferOnlyInCase) {
    std::set<CStringIU> names;
    names.insert(CStringU("Basic"));
    names.insert(CStringU("BASIC"));
    names.insert(CStringU(u"\u00c9tat"));
    names.insert(CStringU(u"\u00e9TAT"));
    names.insert(CStringU("analog"));
    ASSERT_EQ(names.size(), 3U);
    auto name = names.begin();
    EXPECT_EQ(*name++, CStringU("analog"));
    EXPECT_STREQ((name++)->Payload(), "Basic");
    EXPECT_STREQ(name->Payload(), "\xC3\x89tat");
}

TEST(CStringUSearch, RandomTextsEndAndStartWithTheirPieces) {
    std::mt19937 random = SeededRandom();
    for (int round = 0; round < 20'000; ++round) {
        const std::u16string front = HostileName(random, 4);
        const std::u16string back = HostileName(random, 4);
        const CStringU text(front + back);
        SCOPED_TRACE(Shown(text.Payload()));
        ASSERT_TRUE(text.EndsWith(CStringU(back)));
        ASSERT_TRUE(text.EndsWithNoCase(CStringU(back)));
        ASSERT_TRUE(text.StartsWithNoCase(CStringU(front)));
        const std::u16string other = Mutated(random, back);
        const std::u16string whole = front + back;
        const bool ends = whole.size() >= other.size() &&
                          whole.compare(whole.size() - other.size(), other.size(), other) == 0;
        ASSERT_EQ(text.EndsWith(CStringU(other)), ends) << Shown(Bytes(other));
    }
}

TEST(CStringUSearch, MalformedBytesAreSearchedWithoutLeavingThem) {
    std::mt19937 random = SeededRandom();
    for (int round = 0; round < 20'000; ++round) {
        const CStringU text(HostileBytes(random).c_str(), TextEncoding::Raw);
        const CStringU needle(HostileBytes(random, 3).c_str(), TextEncoding::Raw);
        const auto c = static_cast<char16_t>(UpTo(random, 0x7FF));
        const CStringUPos from{static_cast<std::int64_t>(UpTo(random, 16)) - 2, &text};
        for (const CStringUPos& found :
             {text.FindChar(c, true, from), text.FindChar(c, false, from), text.FindCharBack(c, true, from),
              text.FindCharBack(c, false, from), text.FindTextNoCase(needle)}) {
            ASSERT_TRUE(found.offset >= 0 && found.offset <= text.GetByteLength());
        }
        (void)text.StartsWithNoCase(needle);
        ASSERT_TRUE(text.StartsWithNoCase(text));
        ASSERT_TRUE(text.EndsWith(text));
        ASSERT_TRUE(text.EndsWithNoCase(text));
        (void)text.EndsWith(needle);
        (void)text.CompareNoCase(needle);
    }
}

TEST(CStringUSearch, WordsOfFalseAndTrueAreReadInAnyCase) {
    for (const char* word : {"0", "no", "NO", "False", "false", "FALSE", "nil", "Nil", "f", "F", "n", "N"}) {
        EXPECT_FALSE(CStringU(word).ToBool(true)) << word;
    }
    for (const char* word : {"yes", "YES", "True", "TRUE", "true", "t", "T"}) {
        EXPECT_TRUE(CStringU(word).ToBool(false)) << word;
    }
}

TEST(CStringUSearch, OtherWordsAreTheDefault) {
    for (const char* word : {"1", "y", "Y", "on", "off", "null", " true", "true ", "00", "nope"}) {
        EXPECT_TRUE(CStringU(word).ToBool(true)) << word;
        EXPECT_FALSE(CStringU(word).ToBool(false)) << word;
    }
    EXPECT_TRUE(CStringU(u"tru\u00e9").ToBool(true));
}

TEST(CStringUSearch, EmptyTextIsFalseWhateverTheDefault) {
    EXPECT_FALSE(CStringU().ToBool(true));
    EXPECT_TRUE(Raw("\x80").ToBool(true)) << "a marker alone is no word, but it is stored";
}

TEST(CStringUSearch, MarkersDoNotHideWords) {
    EXPECT_TRUE(Raw("\x80true").ToBool(false));
    EXPECT_FALSE(Raw("\x80no").ToBool(true));
}

TEST(CStringUSearch, TheExtensionDotIsTheLastOne) {
    EXPECT_EQ(CStringU("a.b.txt").FindExtensionDot().offset, 3);
    EXPECT_EQ(CStringU(".x").FindExtensionDot().offset, 0);
    EXPECT_EQ(CStringU("a.").FindExtensionDot().offset, 1);
    EXPECT_EQ(CStringU(u"\u4e2d.\u00e9\u00e9").FindExtensionDot().offset, 3);
    EXPECT_EQ(CStringU(u"a\u4e2d.b").FindExtensionDot().offset, 4) << "the marker does not count";
}

TEST(CStringUSearch, PathSeparatorsDoNotEndTheSearchForTheDot) {
    EXPECT_EQ(CStringU("dir.d/file").FindExtensionDot().offset, 3);
    EXPECT_EQ(CStringU("dir.d\\file").FindExtensionDot().offset, 3);
}

TEST(CStringUSearch, WithoutADotTheExtensionIsTheEnd) {
    const CStringU text(u"a\u00e9");
    EXPECT_EQ(text.FindExtensionDot(), text.End());
    EXPECT_EQ(CStringU().FindExtensionDot().offset, 0);
    EXPECT_EQ(Raw("\x80").FindExtensionDot().offset, 0);
}

}  // namespace
