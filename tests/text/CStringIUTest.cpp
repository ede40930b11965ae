// CStringIU: the key of sets of names, ordered without regard to case.

#include "vapp/text/CStringIU.h"

#include <gtest/gtest.h>

#include <functional>
#include <set>
#include <type_traits>

namespace {

static_assert(sizeof(CStringIU) == sizeof(CStringU));
static_assert(std::is_nothrow_move_constructible_v<CStringIU>);
static_assert(!std::is_default_constructible_v<std::hash<CStringIU>>, "its hash would break its equality");

TEST(CStringIU, SetKeepsTheFirstOfTwoSpellings) {
    std::set<CStringIU, std::less<CStringIU>> names;
    names.insert(CStringU("Basic"));
    names.insert("BASIC");
    names.insert(u"\u00C9t\u00E9");
    names.insert(u"\u00E9T\u00C9");
    names.insert("analog");
    ASSERT_EQ(names.size(), 3U);
    EXPECT_STREQ(names.begin()->Payload(), "analog");
    EXPECT_STREQ(std::next(names.begin())->Payload(), "Basic");
    EXPECT_EQ(names.count("bAsIc"), 1U);
}

TEST(CStringIU, OrderFoldsCaseInsteadOfPuttingTheShorterFirst) {
    EXPECT_LT(CStringIU("aB"), CStringIU("B"));
    EXPECT_LT(CStringIU("ab"), CStringU("B"));
    EXPECT_FALSE(CStringIU("ab") < CStringIU("AB"));
    EXPECT_GT(CStringIU("b"), CStringIU("A"));
}

TEST(CStringIU, EqualityFoldsCaseAgainstEveryKindOfText) {
    EXPECT_EQ(CStringIU("abc"), CStringIU("ABC"));
    EXPECT_EQ(CStringIU("abc"), CStringU("ABC"));
    EXPECT_EQ(CStringU("abc"), CStringIU("ABC"));
    EXPECT_EQ(CStringIU("abc"), "ABC");
    EXPECT_NE(CStringIU("abc"), "abd");
    EXPECT_NE(CStringU("abc"), CStringU("ABC")) << "the base keeps its own equality";
}

}  // namespace
