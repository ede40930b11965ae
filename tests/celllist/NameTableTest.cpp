#include "celllist/NameTable.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <random>
#include <string>
#include <string_view>
#include <vector>

#include "tests/text/HostileText.h"

namespace {

using vapp_library_browser::NameTable;

TEST(NameTable, GivesTheSameNumberForTheSameBytesOnly) {
    NameTable names;
    EXPECT_EQ(names.Intern("inv"), 0u);
    EXPECT_EQ(names.Intern("Inv"), 1u);
    EXPECT_EQ(names.Intern(""), 2u);
    EXPECT_EQ(names.Intern("inv"), 0u);
    EXPECT_EQ(names.Intern(""), 2u);
    EXPECT_EQ(names.Count(), 3u);
    EXPECT_EQ(names.Find("Inv"), 1u);
    EXPECT_EQ(names.Find("nor"), std::nullopt);
}

TEST(NameTable, KeepsNamesWhileItGrows) {
    NameTable names;
    for (std::uint32_t number = 0; number < 5000; ++number)
        ASSERT_EQ(names.Intern("cell_" + std::to_string(number)), number);
    names.Intern(std::string(10000, 'x'));
    for (std::uint32_t number = 0; number < 5000; ++number) {
        ASSERT_EQ(names.Intern("cell_" + std::to_string(number)), number);
        ASSERT_EQ(names.At(number), "cell_" + std::to_string(number));
    }
    names.Freeze();
    EXPECT_EQ(names.At(5000).size(), 10000u);
    EXPECT_EQ(names.At(5000).data()[10000], '\0');
}

TEST(NameTable, InternsManyAsOneAfterTheOther) {
    std::mt19937 random = text_test::SeededRandom();
    for (const std::size_t size : {0u, 1u, 31u, 32u, 33u, 64u, 257u, 5000u}) {
        for (const std::size_t distinct : {1u, 3u, 40u, 100000u}) {
            SCOPED_TRACE(std::to_string(size) + " of " + std::to_string(distinct));
            NameTable oneByOne;
            NameTable together;
            // Batches after one another, so that the index grows in the middle of one.
            for (int batch = 0; batch < 3; ++batch) {
                std::vector<std::string> names;
                for (std::size_t at = 0; at < size; ++at)
                    names.push_back(std::string(random() % 20, 'x') + std::to_string(random() % distinct));
                const std::vector<std::string_view> views(names.begin(), names.end());
                std::vector<std::uint32_t> numbers(size, 12345678);
                together.InternAll(views, numbers.data());
                for (std::size_t at = 0; at < size; ++at) {
                    ASSERT_EQ(numbers[at], oneByOne.Intern(views[at]));
                    ASSERT_EQ(together.At(numbers[at]), views[at]);
                }
                ASSERT_EQ(together.Count(), oneByOne.Count());
            }
        }
    }
}

// Short names stand whole in the index, longer ones in part: a name is never taken for one that differs from
// it in one byte, or by one byte at its end.
TEST(NameTable, TellsNamesApartByEachOfTheirBytes) {
    for (std::size_t size = 1; size <= 40; ++size) {
        NameTable names;
        const std::string name(size, 'n');
        std::uint32_t expected = 0;
        ASSERT_EQ(names.Intern(name), expected++);
        ASSERT_EQ(names.Intern(name + 'n'), expected++);
        ASSERT_EQ(names.Intern(name.substr(1)), expected++);
        for (std::size_t at = 0; at < size; ++at) {
            for (const char other : {'m', 'N', '\x01', '\xC3'}) {
                std::string changed = name;
                changed[at] = other;
                ASSERT_EQ(names.Intern(changed), expected) << size << " bytes, changed at " << at;
                ASSERT_EQ(names.Find(changed), expected++);
            }
        }
        EXPECT_EQ(names.Find(name), 0u);
    }
}

// One half of such a name cancels against the constant that the hash mixes it with. If that made all hashes
// the same, each lookup would walk past every name before it.
TEST(NameTable, KeepsNamesApartWhoseHalvesCancel) {
    for (const bool cancelFront : {true, false}) {
        NameTable names;
        for (std::uint64_t number = 0; number < 20000; ++number) {
            const std::uint64_t fixed = cancelFront ? 0x9E3779B97F4A7C15U ^ 16U : 0xC2B2AE3D27D4EB4FU;
            std::string name(16, 'x');
            std::memcpy(name.data() + (cancelFront ? 0 : 8), &fixed, sizeof fixed);
            const std::string digits = std::to_string(10000000 + number);
            std::memcpy(name.data() + (cancelFront ? 8 : 0), digits.data(), 8);
            ASSERT_EQ(names.Intern(name), number);
        }
        EXPECT_LT(names.LongestProbe(), 100u) << (cancelFront ? "front" : "back");
    }
}

TEST(NameTable, NumbersACrowdAsItWouldNumberOneAfterTheOther) {
    std::mt19937 random = text_test::SeededRandom();
    std::vector<std::string> names;
    for (int at = 0; at < 20000; ++at)
        names.push_back(std::string(random() % 40, 'n') + std::to_string(random() % 3000));
    const std::vector<std::string_view> views(names.begin(), names.end());
    NameTable together;
    std::vector<std::uint32_t> numbers(names.size());
    for (std::size_t first = 0; first < names.size();) {
        const std::size_t count = std::min<std::size_t>(random() % 700, names.size() - first);
        together.InternAll({views.data() + first, count}, numbers.data() + first);
        first += count;
    }
    NameTable single;
    for (std::size_t at = 0; at < names.size(); ++at) {
        ASSERT_EQ(numbers[at], single.Intern(names[at]));
        ASSERT_EQ(together.At(numbers[at]), names[at]);
    }
    EXPECT_EQ(together.Count(), single.Count());
}

TEST(NameTable, GivesTextsTheirMarker) {
    NameTable names;
    EXPECT_TRUE(names.Text(names.Intern("a\xC3\xA9")).HasNonAscii());
    EXPECT_FALSE(names.Text(names.Intern("a")).HasNonAscii());
}

TEST(NameTable, FindsNothingInAnEmptyTable) {
    EXPECT_EQ(NameTable().Find("a"), std::nullopt);
}

}  // namespace
