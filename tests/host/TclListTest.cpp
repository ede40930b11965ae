/// Lists and what is none.

#include "host/TclList.h"

#include <gtest/gtest.h>

namespace navigator_test {
namespace {

using namespace navigator;

TEST(TclListTest, AnyTextsComeBackAsTheyWere) {
    const std::vector<std::string> words{"",  "a b", "[exit]", "$env(HOME)", "q\"u{o}te\\",
                                         "{", "}",   "\n",     "#x",         "\xC3\xA4"};
    EXPECT_EQ(gWordsOfList(gListOfWords(words)), words);
    EXPECT_EQ(gListOfWords({"a", "b c"}), "a {b c}");
    EXPECT_EQ(gListOfWords({}), "");
}

TEST(TclListTest, WhatIsNoListHasNoWords) {
    EXPECT_TRUE(gWordsOfList("{a").empty());
    EXPECT_TRUE(gWordsOfList("{a}b").empty());
    EXPECT_TRUE(gWordsOfList("").empty());
}

}  // namespace
}  // namespace navigator_test
