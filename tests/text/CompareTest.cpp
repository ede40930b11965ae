/// @file
/// The compares by tables, and against the plain rule on decoded characters for random names.
#include "text/Compare.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <clocale>
#include <limits>

#include "tests/text/HostileText.h"
#include "tests/text/LocaleGuard.h"
#include "text/Fold.h"

namespace {

using namespace vapp_text;
using namespace text_test;

/// The rule: the difference of the first characters that differ, of at most `count`; the end counts as 0.
std::int32_t ModelCompare(std::u16string_view left, std::u16string_view right, std::size_t count, bool fold) {
    for (std::size_t index = 0; index < count; ++index) {
        char16_t a = index < left.size() ? left[index] : u'\0';
        char16_t b = index < right.size() ? right[index] : u'\0';
        if (fold) {
            a = FoldChar(a);
            b = FoldChar(b);
        }
        if (a != b || a == 0) return a - b;
    }
    return 0;
}

constexpr std::size_t cnNoLimit = std::numeric_limits<std::size_t>::max();

struct CompareRow {
    std::u16string_view left;
    std::u16string_view right;
    int withCase;
    int noCase;
};

// The differences of characters, where they matter, are those of the folded forms in the last column.
constexpr CompareRow cnCompareRows[] = {
    {u"", u"", 0, 0},
    {u"", u"a", -'a', -'a'},
    {u"a", u"", 'a', 'a'},
    {u"ABC", u"abc", -32, 0},
    {u"a", u"B", 31, -1},
    {u"ab", u"a", 'b', 'b'},
    {u"a", u"ab", -'b', -'b'},
    {u"bank10_row03", u"bank10_row04", -1, -1},
    {u"bank10_Row03", u"BANK10_rOW03", 32, 0},
    {u"[", u"a", -6, -6},
    {u"[", u"A", 26, -6},
    {u"@", u"`", -32, -32},
    {u"\u00e9", u"\u00c9", 0x20, 0},
    {u"x\u00e9", u"x\u00e8", 1, 1},
    {u"x\u00e9", u"xz", 0xE9 - 'z', 0xE9 - 'z'},
    {u"\u00e9a", u"\u00c9B", 0x20, -1},
    {u"\uffff", u"\x01", 0xFFFE, 0xFFFE},
    {u"\x01", u"\uffff", -0xFFFE, -0xFFFE},
    {u"\u023a", u"\u2c65", 0x23A - 0x2C65, 0},
    {u"k", u"\u212a", 'k' - 0x212A, 'k' - 0x212A},  // the Kelvin sign is no letter's capital
    {u"\xd83d\xde00", u"\xd83d\xde01", -1, -1},
};

TEST(Compare, EveryFormGivesTheDifferenceOfTheFirstCharactersThatDiffer) {
    for (const CompareRow& row : cnCompareRows) {
        const std::string left = Bytes(row.left);
        const std::string right = Bytes(row.right);
        const std::u16string wide(row.right);
        SCOPED_TRACE(Shown(left) + " " + Shown(right));
        EXPECT_EQ(CompareU(left.c_str(), wide.c_str()), row.withCase);
        EXPECT_EQ(CompareNU(left.c_str(), right.c_str(), 100), row.withCase);
        EXPECT_EQ(CompareNU(left.c_str(), wide.c_str(), 100), row.withCase);
        EXPECT_EQ(CompareNoCaseU(left.c_str(), right.c_str()), row.noCase);
        EXPECT_EQ(CompareNoCaseU(left.c_str(), wide.c_str()), row.noCase);
        EXPECT_EQ(CompareNoCaseU(std::string_view(left), std::string_view(right)), row.noCase);
        EXPECT_EQ(CompareNoCaseU(CStringU(row.left), CStringU(row.right)), row.noCase);
        EXPECT_EQ(CompareNNoCaseU(left.c_str(), right.c_str(), 100), row.noCase);
        EXPECT_EQ(CompareNNoCaseU(left.c_str(), wide.c_str(), 100), row.noCase);
    }
}

TEST(Compare, ALimitOfNoCharactersMakesAllTextsEqual) {
    EXPECT_EQ(CompareNU("a", "b", 0), 0);
    EXPECT_EQ(CompareNU("a", u"b", 0), 0);
    EXPECT_EQ(CompareNNoCaseU("a", "b", 0), 0);
    EXPECT_EQ(CompareNNoCaseU("a", u"b", 0), 0);
}

TEST(Compare, TheLimitCountsCharactersNotBytes) {
    const std::string left = Bytes(u"\u00e9\u4e2da");
    const std::string right = Bytes(u"\u00e9\u4e2db");
    EXPECT_EQ(CompareNU(left.c_str(), right.c_str(), 2), 0);
    EXPECT_EQ(CompareNU(left.c_str(), right.c_str(), 3), -1);
    EXPECT_EQ(CompareNNoCaseU(left.c_str(), u"\u00c9\u4e2dB", 2), 0);
    EXPECT_EQ(CompareNNoCaseU(left.c_str(), u"\u00c9\u4e2dB", 3), -1);
}

TEST(Compare, OfARightSideThatIsNotTerminatedNoMoreThanTheLimitIsRead) {
    const std::vector<char16_t> units = {u'a', u'B'};
    EXPECT_EQ(CompareNU("aBc", units.data(), 2), 0);
    EXPECT_EQ(CompareNNoCaseU("Abc", units.data(), 2), 0);
    const std::vector<char> bytes = {'a', 'B'};
    EXPECT_EQ(CompareNU("aBc", bytes.data(), 2), 0);
    EXPECT_EQ(CompareNNoCaseU("Abc", bytes.data(), 2), 0);
}

TEST(Compare, TextsThatShareTheFirstByteOfACharacterAreComparedByTheWholeCharacter) {
    // U+00C9 (C3 89) and U+00E9 (C3 A9) share a byte and are equal by case; bytes would tell them apart.
    EXPECT_EQ(CompareNoCaseU("x\xC3\x89", "x\xC3\xA9"), 0);
    EXPECT_EQ(CompareNoCaseU("x\xC3\x89"
                             "b",
                             "x\xC3\xA9"
                             "a"),
              1);
    // U+00C0 folds to U+00E0, which lies above U+00DF, though its second byte lies below.
    EXPECT_EQ(CompareNoCaseU("\xC3\x80", "\xC3\x9F"), 0xE0 - 0xDF);
}

TEST(Compare, AMarkedTextIsEqualOnlyByItsPayload) {
    const char* stored =
        "\x80"
        "a\xC3\xA9";
    const char* payload = stored + 1;
    EXPECT_EQ(CompareNoCaseU(payload, "A\xC3\x89"), 0);
    EXPECT_NE(CompareNoCaseU(stored, "A\xC3\x89"), 0);
}

TEST(Compare, AnOverlongNulEndsACompareLikeANul) {
    EXPECT_EQ(CompareNoCaseU("a\xC0\x80"
                             "b",
                             "a"),
              0);
    EXPECT_EQ(CompareNoCaseU("a",
                             "a\xC0\x80"
                             "b"),
              0);
    EXPECT_EQ(CompareU("a\xC0\x80"
                       "b",
                       u"a"),
              0);
    EXPECT_EQ(CompareNU("a\xC0\x80"
                        "b",
                        "a", 5),
              0);
    EXPECT_EQ(CompareNNoCaseU("a\xC0\x80"
                              "b",
                              u"A", 5),
              0);
}

TEST(Compare, ForeignFourByteCharactersCompareByTheCharacterTheyAreTakenFor) {
    EXPECT_EQ(CompareU("\xF0\x9F\x98\x80", u"\uf600"), 0);
    EXPECT_EQ(CompareNoCaseU("a\xFF", "A?"), 0) << "a hopeless lead byte is a question mark";
}

TEST(Compare, MalformedTextIsTakenUpAtABoundaryOfEachSide) {
    // Both walks stop behind C3. The left one backs up to it and reads U+00E9; the right one stands on an
    // ASCII byte already and reads "A".
    EXPECT_EQ(CompareNoCaseU("\xC3\xA9",
                             "\xC3"
                             "A"),
              0xE9 - 'a');
    // Backing up never leaves the text, nor goes back more than four bytes.
    EXPECT_GT(CompareNoCaseU("\x81\x81\x81\x82", "\x81\x81\x81\x81"), 0);
    EXPECT_LT(CompareNoCaseU("ab\x81\x81\x81\x81\x81\x82", "ab\x81\x81\x81\x81\x81\x83"), 0);
}

TEST(Compare, ABoundaryIsAtMostFourBytesBack) {
    const char text[] = "a\x80\x80\x80\x80\x80";
    EXPECT_EQ(CharBoundary(text, text + 4), text);
    EXPECT_EQ(CharBoundary(text, text + 5), text + 1);
    EXPECT_EQ(CharBoundary(text, text), text);
    EXPECT_EQ(CharBoundary(text + 2, text + 4), text + 2) << "not beyond the start";
}

TEST(Compare, RandomNamesCompareAsTheirDecodedCharacters) {
    std::mt19937 random = SeededRandom();
    for (int round = 0; round < 50'000; ++round) {
        const std::u16string left = HostileName(random);
        const std::u16string right = Mutated(random, left);
        const std::size_t count = UpTo(random, 12);
        const ExactBytes a(Bytes(left));
        const ExactBytes b(Bytes(right));
        const ExactUnits wide(right);
        SCOPED_TRACE(Shown(a.Get()) + " " + Shown(b.Get()) + " " + std::to_string(count));
        ASSERT_EQ(CompareU(a.Get(), wide.Get()), ModelCompare(left, right, cnNoLimit, false));
        ASSERT_EQ(CompareNU(a.Get(), b.Get(), count), ModelCompare(left, right, count, false));
        ASSERT_EQ(CompareNU(a.Get(), wide.Get(), count), ModelCompare(left, right, count, false));
        ASSERT_EQ(CompareNoCaseU(a.Get(), b.Get()), ModelCompare(left, right, cnNoLimit, true));
        ASSERT_EQ(CompareNoCaseU(a.Get(), wide.Get()), ModelCompare(left, right, cnNoLimit, true));
        ASSERT_EQ(CompareNoCaseU(std::string_view(a.Get()), std::string_view(b.Get())),
                  ModelCompare(left, right, cnNoLimit, true));
        ASSERT_EQ(CompareNoCaseU(CStringU(left), CStringU(right)),
                  ModelCompare(left, right, cnNoLimit, true));
        ASSERT_EQ(CompareNNoCaseU(a.Get(), b.Get(), count), ModelCompare(left, right, count, true));
        ASSERT_EQ(CompareNNoCaseU(a.Get(), wide.Get(), count), ModelCompare(left, right, count, true));
    }
}

void ExpectComparesOfThePlainLocale() {
    EXPECT_EQ(CompareNoCaseU(CStringU("INV_I"), CStringU("inv_i")), 0);
    EXPECT_EQ(CompareNoCaseU(CStringU("_"), CStringU("A")), '_' - 'a');
}

TEST(Compare, AsciiComparesTheSameInThePlainLocales) {
    for (const char* locale : {"C", "C.UTF-8"}) {
        SCOPED_TRACE(locale);
        const TLocaleGuard guard({locale, "C"});
        ExpectComparesOfThePlainLocale();
    }
}

TEST(Compare, AsciiComparesTheSameInTurkish) {
    const TLocaleGuard guard(cnTurkishLocales);
    if (!guard.IsSet()) GTEST_SKIP() << "no Turkish locale is installed";
    ExpectComparesOfThePlainLocale();
}

TEST(Compare, TheOrderOfPayloadBytesIsTheOrderOfCharacters) {
    std::mt19937 random = SeededRandom();
    for (int round = 0; round < 20'000; ++round) {
        const std::u16string left = HostileName(random);
        const std::u16string right = Mutated(random, left);
        ASSERT_EQ(Sign(Bytes(left).compare(Bytes(right))), Sign(ModelCompare(left, right, cnNoLimit, false)));
    }
}

TEST(Compare, MalformedBytesAreComparedWithoutLeavingThem) {
    std::mt19937 random = SeededRandom();
    for (int round = 0; round < 50'000; ++round) {
        const std::string left = HostileBytes(random);
        const std::string right =
            UpTo(random, 1) == 0 ? HostileBytes(random) : left + HostileBytes(random, 3);
        const ExactBytes a(left);
        const ExactBytes b(right);
        const ExactUnits wide(Decoded(b.Get()));
        const std::u16string leftUnits = Decoded(a.Get());
        SCOPED_TRACE(Shown(left) + " " + Shown(right));
        ASSERT_EQ(CompareNoCaseU(std::string_view(a.Get()), std::string_view(b.Get())),
                  CompareNoCaseU(a.Get(), b.Get()));
        ASSERT_EQ(CompareNoCaseU(a.Get(), a.Get()), 0);
        ASSERT_EQ(CompareU(a.Get(), wide.Get()), ModelCompare(leftUnits, wide.Get(), cnNoLimit, false));
        ASSERT_EQ(CompareNNoCaseU(a.Get(), b.Get(), 9), ModelCompare(leftUnits, Decoded(b.Get()), 9, true));
    }
}

}  // namespace
