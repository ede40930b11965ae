#include "celllist/NameTable.h"

#include <gtest/gtest.h>

#include <string>

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

TEST(NameTable, GivesTextsTheirMarker) {
    NameTable names;
    EXPECT_TRUE(names.Text(names.Intern("a\xC3\xA9")).HasNonAscii());
    EXPECT_FALSE(names.Text(names.Intern("a")).HasNonAscii());
}

TEST(NameTable, FindsNothingInAnEmptyTable) {
    EXPECT_EQ(NameTable().Find("a"), std::nullopt);
}

}  // namespace
