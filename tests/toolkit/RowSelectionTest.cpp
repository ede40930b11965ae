/// @file
/// Row ranges, against a plain set of numbers and at the limits of a row number.
#include "vapp/toolkit/RowSelection.h"

#include <gtest/gtest.h>

#include <limits>
#include <random>
#include <set>

#include "tests/text/HostileText.h"

namespace {

constexpr int cnMax = std::numeric_limits<int>::max();
using Ranges = std::vector<RowSelection::Range>;

std::set<int> RowsOf(const RowSelection& selection) {
    std::set<int> rows;
    for (int row = selection.NextFrom(0); row >= 0; row = selection.NextFrom(row + 1))
        rows.insert(row);
    return rows;
}

void ExpectTidy(const RowSelection& selection) {
    int behind = -2;
    for (const RowSelection::Range& range : selection.GetRanges()) {
        EXPECT_GT(range.first, behind + 1) << "sorted, and not touching the range before";
        EXPECT_GE(range.last, range.first);
        behind = range.last;
    }
}

std::set<int> Shifted(const std::set<int>& rows, int from) {
    std::set<int> shifted;
    for (const int row : rows)
        shifted.insert(row >= from ? row + 1 : row);
    return shifted;
}

}  // namespace

TEST(RowSelection, AllOfAMillionRowsAreOneRange) {
    RowSelection selection;
    for (int row = 0; row < 1000; row += 2)
        selection.Add(row, row);
    EXPECT_TRUE(selection.Add(0, 999'999));
    EXPECT_EQ(selection.GetRanges(), (Ranges{{0, 999'999}}));
    EXPECT_EQ(selection.GetCount(), 1'000'000u);
}

TEST(RowSelection, TouchingRangesBecomeOne) {
    RowSelection selection;
    EXPECT_TRUE(selection.Add(5, 6));
    EXPECT_TRUE(selection.Add(9, 9));
    EXPECT_TRUE(selection.Add(7, 8));
    EXPECT_EQ(selection.GetRanges(), (Ranges{{5, 9}}));
    EXPECT_FALSE(selection.Add(6, 8)) << "nothing new";
}

TEST(RowSelection, RemovingFromTheMiddleSplits) {
    RowSelection selection;
    selection.Add(0, 9);
    EXPECT_TRUE(selection.Remove(3, 4));
    EXPECT_EQ(selection.GetRanges(), (Ranges{{0, 2}, {5, 9}}));
    EXPECT_FALSE(selection.Remove(3, 4));
    EXPECT_TRUE(selection.Truncate(1));
    EXPECT_EQ(selection.GetRanges(), (Ranges{{0, 0}}));
    EXPECT_TRUE(selection.Truncate(-4));
    EXPECT_TRUE(selection.IsEmpty());
}

TEST(RowSelection, NegativeAndReversedRangesChangeNothing) {
    RowSelection selection;
    EXPECT_FALSE(selection.Add(-1, 3));
    EXPECT_FALSE(selection.Add(3, 2));
    selection.Add(1, 5);
    EXPECT_FALSE(selection.Remove(-1, 3));
    EXPECT_FALSE(selection.Remove(3, 2));
    selection.InsertRow(-1);
    EXPECT_EQ(selection.GetRanges(), (Ranges{{1, 5}}));
    EXPECT_FALSE(selection.Contains(-1));
    EXPECT_EQ(selection.NextFrom(-5), 1);
}

TEST(RowSelection, GreatestRowNumberIsARowLikeOthers) {
    RowSelection selection;
    selection.Add(cnMax, cnMax);
    selection.Add(cnMax - 1, cnMax - 1);
    EXPECT_EQ(selection.GetRanges(), (Ranges{{cnMax - 1, cnMax}}));
    selection.Add(0, cnMax);
    EXPECT_EQ(selection.GetCount(), static_cast<std::size_t>(cnMax) + 1);
    EXPECT_TRUE(selection.Contains(cnMax));
    EXPECT_EQ(selection.NextFrom(cnMax), cnMax);
    selection.InsertRow(0);
    EXPECT_EQ(selection.GetRanges(), (Ranges{{1, cnMax}}));
    selection.Remove(1, cnMax - 1);
    selection.InsertRow(4);
    EXPECT_TRUE(selection.IsEmpty()) << "a row that is moved beyond the greatest number is lost";
}

TEST(RowSelection, BehavesAsASetOfNumbers) {
    std::mt19937 random = text_test::SeededRandom();
    RowSelection selection;
    std::set<int> model;
    for (int step = 0; step < 5'000; ++step) {
        SCOPED_TRACE("step " + std::to_string(step));
        const int first = static_cast<int>(random() % 60);
        const int last = first + static_cast<int>(random() % 8);
        const std::set<int> before = model;
        bool changed = false;
        switch (random() % 16) {
            case 0:
                changed = selection.Truncate(first);
                model.erase(model.lower_bound(first), model.end());
                break;
            case 1:
                selection.InsertRow(first);
                model = Shifted(model, first);
                changed = model != before;
                break;
            case 2:
            case 3:
            case 4:
            case 5:
            case 6:
            case 7:
            case 8:
                changed = selection.Remove(first, last);
                model.erase(model.lower_bound(first), model.upper_bound(last));
                break;
            default:
                changed = selection.Add(first, last);
                for (int row = first; row <= last; ++row)
                    model.insert(row);
        }
        ASSERT_EQ(RowsOf(selection), model);
        ASSERT_EQ(changed, model != before);
        ASSERT_EQ(selection.GetCount(), model.size());
        ASSERT_EQ(selection.Contains(first), model.count(first) == 1);
        ASSERT_NO_FATAL_FAILURE(ExpectTidy(selection));
    }
}
