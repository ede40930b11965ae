/// What becomes of `@name` in a symbol's texts.

#include "host/TextSubstitution.h"

#include <gtest/gtest.h>

namespace navigator {
namespace {

TEST(TextSubstitution, ReplacesWordsByTheInstanceThenTheTemplate) {
    const TextValues values{"name=R7 value=\"2 k\"", "name=R1 value=1k m=1", "res", "top"};
    EXPECT_EQ(gSubstituteText("@name", values), "R7");
    EXPECT_EQ(gSubstituteText("@name: @value (m=@m)", values), "R7: 2 k (m=1)");
    EXPECT_EQ(gSubstituteText("@symname in @schname.", values), "res in top.");
    EXPECT_EQ(gSubstituteText("@value/@m", values), "2 k/1");
}

TEST(TextSubstitution, WordsWithoutValueAndNetsVanish) {
    const TextValues values{};
    EXPECT_EQ(gSubstituteText("a@nothing b", values), "a b");
    EXPECT_EQ(gSubstituteText("@#0:net_name x", values), " x");
    EXPECT_EQ(gSubstituteText("@@Z!", values), "!");
}

TEST(TextSubstitution, NothingIsEvaluated) {
    const TextValues values{"name=[exit]", "", "", ""};
    EXPECT_EQ(gSubstituteText("tcleval([exec ls] @name)", values), "[exec ls] [exit]");
}

TEST(TextSubstitution, LoneSignsStayAndAValueIsNotReadAgain) {
    const TextValues values{"a=@a", "", "", ""};
    EXPECT_EQ(gSubstituteText("me @ home @", values), "me @ home @");
    EXPECT_EQ(gSubstituteText("@a", values), "@a");
    EXPECT_EQ(gSubstituteText(std::string("x\0y", 3), values), "x y");
}

}  // namespace
}  // namespace navigator
