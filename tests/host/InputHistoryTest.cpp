/// The walk through what was typed.

#include "host/InputHistory.h"

#include <gtest/gtest.h>

namespace navigator {
namespace {

TEST(InputHistory, WalksBackAndForwardToWhatWasBeingTyped) {
    InputHistory history;
    history.Add("one");
    history.Add("two\nlines");
    EXPECT_EQ("two\nlines", history.Previous("half"));
    EXPECT_EQ("one", history.Previous("two\nlines"));
    EXPECT_EQ(std::nullopt, history.Previous("one"));
    EXPECT_EQ("two\nlines", history.Next());
    EXPECT_EQ("half", history.Next());
    EXPECT_EQ(std::nullopt, history.Next());
}

TEST(InputHistory, WithoutAnythingSentThereIsNowhereToGo) {
    InputHistory history;
    EXPECT_EQ(std::nullopt, history.Previous("typed"));
    EXPECT_EQ(std::nullopt, history.Next());
}

TEST(InputHistory, KeepsNeitherBlanksNorTheSameTwiceInARow) {
    InputHistory history;
    for (const char* text : {"a", "a", " \t\n", "", "b", "a"})
        history.Add(text);
    EXPECT_EQ(3u, history.Count());
    EXPECT_EQ("a", history.Previous(""));
    EXPECT_EQ("b", history.Previous(""));
    EXPECT_EQ("a", history.Previous(""));
}

TEST(InputHistory, SendingEndsTheWalkAndForgetsWhatWasBeingTyped) {
    InputHistory history;
    history.Add("one");
    history.Add("two");
    (void)history.Previous("half");
    (void)history.Previous("two");
    history.Add("one");
    EXPECT_EQ(std::nullopt, history.Next());
    EXPECT_EQ("one", history.Previous("new"));
    EXPECT_EQ("new", history.Next());
}

TEST(InputHistory, TheOldestGoWhenItIsFull) {
    InputHistory history;
    for (std::size_t number = 0; number < InputHistory::cnMostKept + 3; ++number)
        history.Add(std::to_string(number));
    EXPECT_EQ(InputHistory::cnMostKept, history.Count());
    std::string last;
    while (const auto text = history.Previous(""))
        last = *text;
    EXPECT_EQ("3", last);
}

}  // namespace
}  // namespace navigator
