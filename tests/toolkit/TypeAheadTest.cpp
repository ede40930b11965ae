/// @file
/// Type-ahead over rows of texts.
#include "vapp/toolkit/TypeAhead.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>
#include <vector>

namespace {

class TypeAheadTest : public testing::Test {
protected:
    // Types and, as a list does, goes to the row that was found.
    int Type(const CStringU& piece, std::int64_t after = 100) {
        m_now += after;
        const int row = m_typeAhead.Find(piece, m_now, focus, static_cast<int>(rows.size()),
                                         [this](int index) { return rows[static_cast<std::size_t>(index)]; });
        if (row >= 0) focus = row;
        return row;
    }

    std::vector<CStringU> rows{"and2", "inv1", "inv2", "Nand2", "nor", "INVX", "aardvark"};
    int focus = -1;

private:
    TypeAhead m_typeAhead;
    std::int64_t m_now = 5'000;
};

}  // namespace

TEST_F(TypeAheadTest, NewTextIsLookedForBehindTheFocusedRowAndGoesRound) {
    focus = 1;
    EXPECT_EQ(Type("i"), 2);
    EXPECT_EQ(Type("i", 2000), 5);
    EXPECT_EQ(Type("i", 2000), 1);
}

TEST_F(TypeAheadTest, WithoutFocusItBeginsAtTheFirstRow) {
    EXPECT_EQ(Type("a"), 0);
}

TEST_F(TypeAheadTest, StaysWhileTheTextGrowsAndStillMatches) {
    EXPECT_EQ(Type("n"), 3);
    EXPECT_EQ(Type("a"), 3);
    EXPECT_EQ(Type("N"), 3);
}

TEST_F(TypeAheadTest, GoesOnWhenTheGrownTextNoLongerMatches) {
    EXPECT_EQ(Type("n"), 3);
    EXPECT_EQ(Type("o"), 4);
}

TEST_F(TypeAheadTest, SameLetterAgainGoesFromRowToRow) {
    EXPECT_EQ(Type("i"), 1);
    EXPECT_EQ(Type("i"), 2);
    EXPECT_EQ(Type("I"), 5);
    EXPECT_EQ(Type("i"), 1);
    focus = -1;
    EXPECT_EQ(Type("a", 2000), 0);
    EXPECT_EQ(Type("a"), 6) << "though no text of two such letters was looked for";
    EXPECT_EQ(Type("a"), 0);
}

TEST_F(TypeAheadTest, PauseBeginsANewText) {
    EXPECT_EQ(Type("n"), 3);
    EXPECT_EQ(Type("a", 1000), 3) << "a second is not yet a pause";
    EXPECT_EQ(Type("i", 1001), 5);
}

TEST_F(TypeAheadTest, ClockThatGoesBackwardIsAPause) {
    EXPECT_EQ(Type("n"), 3);
    EXPECT_EQ(Type("i", -50), 5);
    EXPECT_EQ(Type("a", std::numeric_limits<std::int64_t>::max() - 10'000), 6);
}

TEST_F(TypeAheadTest, NoMatchFindsNothingAndTheTextGoesOn) {
    EXPECT_EQ(Type("i"), 1);
    EXPECT_EQ(Type("q"), -1);
    EXPECT_EQ(focus, 1);
    EXPECT_EQ(Type("n"), -1) << "the text is now iqn";
    EXPECT_EQ(Type(""), -1);
    rows.clear();
    EXPECT_EQ(Type("n", 2000), -1);
}

TEST_F(TypeAheadTest, OnlyRowIsFoundAgain) {
    rows = {"inv"};
    EXPECT_EQ(Type("i"), 0);
    EXPECT_EQ(Type("i", 2000), 0);
    EXPECT_EQ(Type("i"), 0);
}

TEST_F(TypeAheadTest, FocusBeyondTheRowsCountsAsNone) {
    focus = 4000;
    EXPECT_EQ(Type("i"), 1);
}

TEST_F(TypeAheadTest, LettersBeyondAsciiCountWithoutCase) {
    rows.push_back(CStringU("\xC3\x84pfel", TextEncoding::Utf8));
    EXPECT_EQ(Type(CStringU("\xC3\xA4", TextEncoding::Utf8)), 7);
    EXPECT_EQ(Type("P"), 7);
}

TEST_F(TypeAheadTest, EachRowIsAskedAtMostOnce) {
    TypeAhead typeAhead;
    std::vector<int> asked(1000, 0);
    EXPECT_EQ(typeAhead.Find("x", 0, 500, 1000,
                             [&](int row) {
                                 ++asked[static_cast<std::size_t>(row)];
                                 return CStringU();
                             }),
              -1);
    EXPECT_EQ(asked, std::vector<int>(1000, 1));
}

TEST_F(TypeAheadTest, IsPendingWhileTheTextMayGrow) {
    TypeAhead typeAhead;
    EXPECT_FALSE(typeAhead.IsPending(0)) << "nothing was typed";
    EXPECT_EQ(typeAhead.Find("x", 500, -1, 0, {}), -1);
    EXPECT_TRUE(typeAhead.IsPending(500));
    EXPECT_TRUE(typeAhead.IsPending(500 + TypeAhead::cnPause));
    EXPECT_FALSE(typeAhead.IsPending(501 + TypeAhead::cnPause));
    EXPECT_FALSE(typeAhead.IsPending(499)) << "a clock that goes backward";
}

TEST_F(TypeAheadTest, ABlankInTheMiddleOfANameBelongsToIt) {
    TypeAhead typeAhead;
    const std::vector<CStringU> names = {"op amp", "op art", "opus"};
    int row = -1;
    for (const char* piece : {"o", "p", " ", "a", "r"})
        row = typeAhead.Find(piece, 10, row, 3,
                             [&names](int at) { return names[static_cast<std::size_t>(at)]; });
    EXPECT_EQ(row, 1);
}

TEST_F(TypeAheadTest, RowsMayCompareForThemselves) {
    TypeAhead typeAhead;
    std::vector<std::string> asked;
    EXPECT_EQ(typeAhead.FindMatch("x", 0, 1, 4,
                                  [&asked](int row, const CStringU& wanted) {
                                      asked.push_back(std::to_string(row) + wanted.Payload());
                                      return row == 0;
                                  }),
              0);
    EXPECT_EQ(asked, (std::vector<std::string>{"2x", "3x", "0x"}));
}
