/// Property blocks: quotes, backslashes, order.

#include "host/PropertyText.h"

#include <gtest/gtest.h>

namespace navigator {
namespace {

TEST(PropertyText, ReadsPlainAndQuotedValues) {
    const std::string block =
        "type=nmos\nformat=\"@name @pinlist\"  w = 3 quoted=\"say \\\"hi\\\"\" w=1u w=2u empty=";
    EXPECT_EQ(gProperty(block, "type"), "nmos");
    EXPECT_EQ(gProperty(block, "format"), "@name @pinlist");
    EXPECT_EQ(gProperty(block, "quoted"), "say \"hi\"");
    EXPECT_EQ(gProperty(block, "empty"), "");
    EXPECT_EQ(gProperty(block, "absent"), std::nullopt);
}

TEST(PropertyText, TakesTheFirstOfSeveralAndNotAPartOfAName) {
    EXPECT_EQ(gProperty("xw=9 w=1 w=2", "w"), "1");
    EXPECT_EQ(gProperty("format=\"w=7\" w=1", "w"), "1");
}

TEST(PropertyText, EndsAtTheEndOfABrokenBlock) {
    EXPECT_EQ(gProperty("a=\"open", "a"), "open");
    EXPECT_EQ(gProperty("a=\\", "a"), "\\");
    EXPECT_EQ(gProperty("=", "a"), std::nullopt);
    EXPECT_EQ(gProperty(std::string("a=1\0b=2", 7), "b"), "2");
}

TEST(PropertyText, KnowsTheWordsForYes) {
    for (const char* yes : {"true", "TRUE", "1", "Yes"})
        EXPECT_TRUE(gFlagProperty(std::string("f=") + yes, "f")) << yes;
    for (const char* no : {"false", "0", "", "no", "2"})
        EXPECT_FALSE(gFlagProperty(std::string("f=") + no, "f")) << no;
    EXPECT_FALSE(gFlagProperty("", "f"));
}

}  // namespace
}  // namespace navigator
