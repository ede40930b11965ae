#include "celllist/NameRanks.h"

#include <gtest/gtest.h>

namespace {

using namespace vapp_library_browser;

NameTable Table(std::initializer_list<const char*> names) {
    NameTable table;
    for (const char* name : names)
        table.Intern(name);
    return table;
}

TEST(NameRanks, StandInNaturalOrderWithNumbersByValue) {
    const NameRanks ranks = RankNames(Table({"bank10", "Bank9", "bank2", "BANK9", "a"}), NameOrder::Natural);
    EXPECT_EQ(ranks.rank, (std::vector<std::uint32_t>{3, 2, 1, 2, 0}));
    EXPECT_EQ(ranks.count, 4u);
    EXPECT_FALSE(ranks.joinsDifferentNames);
}

TEST(NameRanks, StandByCharacterWhenFolded) {
    const NameRanks ranks = RankNames(Table({"bank10", "Bank9", "bank2", "BANK9"}), NameOrder::Folded);
    EXPECT_EQ(ranks.rank, (std::vector<std::uint32_t>{0, 2, 1, 2}));
}

TEST(NameRanks, SayWhenTheyJoinNamesThatDifferInMoreThanCase) {
    EXPECT_TRUE(RankNames(Table({"3", "\xD9\xA3"}), NameOrder::Natural).joinsDifferentNames);
    EXPECT_FALSE(RankNames(Table({"3", "\xD9\xA3"}), NameOrder::Folded).joinsDifferentNames);
}

TEST(NameRanks, AreNoneForNoNames) {
    EXPECT_EQ(RankNames(NameTable(), NameOrder::Natural).count, 0u);
}

TEST(NameRanks, DecideNamesThatDifferFarBehindTheirCommonFront) {
    const std::string front(10000, 'x');
    NameTable table;
    for (const char* end : {"12345678b", "12345678a", "1234567", ""})
        table.Intern(front + end);
    EXPECT_EQ(RankNames(table, NameOrder::Natural).rank, (std::vector<std::uint32_t>{3, 2, 1, 0}));
}

}  // namespace
