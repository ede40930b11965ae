#include "platform/NameSort.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <random>
#include <string>

#include "tests/text/HostileText.h"
#include "text/NaturalOrder.h"

namespace {

using testing::ElementsAre;
using vapp_platform::SortNames;

std::vector<CStringU> Sorted(std::vector<CStringU> names) {
    SortNames(names);
    return names;
}

TEST(NameSortTest, NumbersCountByValueAndCaseDoesNot) {
    EXPECT_THAT(Sorted({"bank10", "Bank2", "bank1", "ALU"}), ElementsAre("ALU", "bank1", "Bank2", "bank10"));
}

TEST(NameSortTest, NamesThatDifferInCaseAloneGoByBytes) {
    EXPECT_THAT(Sorted({"inv", "INV", "Inv"}), ElementsAre("INV", "Inv", "inv"));
}

TEST(NameSortTest, NothingAndOneNameAreSorted) {
    EXPECT_TRUE(Sorted({}).empty());
    EXPECT_THAT(Sorted({"one"}), ElementsAre("one"));
}

TEST(NameSortTest, AnyBytesComeBackWholeInTheSameOrderEachTime) {
    std::mt19937 random = text_test::SeededRandom();
    std::vector<CStringU> names;
    for (int i = 0; i < 500; ++i) {
        std::string bytes(random() % 6, '\0');
        for (char& byte : bytes)
            byte = static_cast<char>(random() % 255 + 1);
        names.emplace_back(bytes.c_str(), TextEncoding::Utf8Auto);
    }
    const std::vector<CStringU> once = Sorted(names);
    std::shuffle(names.begin(), names.end(), random);
    EXPECT_EQ(Sorted(names), once);
    std::vector<CStringU> plain = names;
    std::vector<CStringU> plainOnce = once;
    std::sort(plain.begin(), plain.end());
    std::sort(plainOnce.begin(), plainOnce.end());
    EXPECT_EQ(plain, plainOnce);
}

TEST(NameSortTest, ForPlainNamesItIsTheNaturalOrder) {
    std::mt19937 random = text_test::SeededRandom();
    std::vector<CStringU> names;
    for (int i = 0; i < 500; ++i)
        names.push_back(("Cell" + std::to_string(random() % 300) + "ab"[random() % 2]).c_str());
    SortNames(names);
    for (std::size_t i = 1; i < names.size(); ++i)
        EXPECT_LE(vapp_text::CompareNaturalNoCase(names[i - 1], names[i]), 0);
}

}  // namespace
