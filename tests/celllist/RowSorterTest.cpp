#include "celllist/RowSorter.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <numeric>
#include <random>

#include "tests/text/HostileText.h"

namespace {

using vapp_library_browser::SortCriterion;
using vapp_library_browser::SortRowNumbers;

// Criteria over random ranks; each name is its own rank.
struct RandomCriteria {
    std::vector<std::vector<std::uint32_t>> numbers;
    std::vector<std::vector<std::uint32_t>> ranks;
    std::vector<SortCriterion> criteria;

    void Add(std::mt19937& random, std::size_t rows, std::uint32_t rankCount) {
        ranks.emplace_back(64);
        for (std::uint32_t& rank : ranks.back())
            rank = static_cast<std::uint32_t>(random() % rankCount);
        numbers.emplace_back(rows);
        for (std::uint32_t& number : numbers.back())
            number = static_cast<std::uint32_t>(random() % 64);
        criteria.push_back({numbers.back().data(), 1, ranks.back(), rankCount, random() % 2 == 0});
    }
};

TEST(RowSorter, SortsAsComparingTheRanksWould) {
    std::mt19937 random = text_test::SeededRandom();
    // The large counts don't fit into one element together, so that several turns are needed.
    const std::uint32_t rankCounts[] = {1, 2, 3, 40, 5000, 0xFFFFFFFFu};
    for (int turn = 0; turn < 300; ++turn) {
        const std::size_t rows = random() % 300;
        RandomCriteria given;
        for (unsigned long count = random() % 6; count > 0; --count)
            given.Add(random, rows, rankCounts[random() % 6]);
        const auto compare = [&given](std::uint32_t left, std::uint32_t right) {
            for (const SortCriterion& criterion : given.criteria) {
                if (criterion.RankOf(left) != criterion.RankOf(right))
                    return criterion.RankOf(left) < criterion.RankOf(right);
            }
            return false;
        };
        std::vector<std::uint32_t> expected(rows);
        std::iota(expected.begin(), expected.end(), 0u);
        std::stable_sort(expected.begin(), expected.end(), compare);
        EXPECT_EQ(SortRowNumbers(rows, given.criteria, false), expected);
        expected.erase(std::unique(expected.begin(), expected.end(),
                                   [&](std::uint32_t left, std::uint32_t right) {
                                       return !compare(left, right) && !compare(right, left);
                                   }),
                       expected.end());
        EXPECT_EQ(SortRowNumbers(rows, given.criteria, true), expected);
    }
}

TEST(RowSorter, LeavesNothingOfNoRows) {
    EXPECT_TRUE(SortRowNumbers(0, {}, true).empty());
    EXPECT_EQ(SortRowNumbers(1, {}, true).size(), 1u);
}

}  // namespace
