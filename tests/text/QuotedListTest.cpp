// Quoted lists, both ways, and what the reader does with text that the writer never writes.
#include "text/QuotedList.h"

#include <gtest/gtest.h>

#include <string>

#include "tests/text/HostileText.h"

namespace {

using vapp_text::JoinQuoted;
using vapp_text::SplitQuoted;

CStringArray Split(const char* text) {
    CStringArray items{"old"};
    const int count = SplitQuoted(text, items);
    EXPECT_EQ(count, items.GetSize()) << text;
    return items;
}

TEST(QuotedList, JoinsInOrderWithCommas) {
    EXPECT_EQ(JoinQuoted({}), "");
    EXPECT_EQ(JoinQuoted({"a"}), "\"a\"");
    EXPECT_EQ(JoinQuoted({"a", "", "b c"}), "\"a\",\"\",\"b c\"");
}

TEST(QuotedList, EscapesQuotesAndBackslashes) {
    EXPECT_EQ(JoinQuoted({"b\"c"}), "\"b\\\"c\"");
    EXPECT_EQ(JoinQuoted({"C:\\x\\"}), "\"C:\\\\x\\\\\"");
    EXPECT_EQ(JoinQuoted({"\"\\\""}), "\"\\\"\\\\\\\"\"");
    EXPECT_EQ(JoinQuoted({"a,\n'"}), "\"a,\n'\"");
}

TEST(QuotedList, AnEscapedQuoteStaysInItsItem) {
    EXPECT_EQ(Split("\"a\",\"b\\\"c\""), (CStringArray{"a", "b\"c"}));
}

TEST(QuotedList, WhateverStandsBetweenItemsIsSkipped) {
    EXPECT_EQ(Split("x \"a\"\"b\" , y\n\"c\" z"), (CStringArray{"a", "b", "c"}));
    EXPECT_EQ(Split("a,b"), CStringArray{});
    EXPECT_EQ(Split("*a*,\"b\\\"c\""), (CStringArray{"b\"c"})) << "an unquoted word is no item";
    EXPECT_EQ(Split("\\\"a\""), (CStringArray{"a"})) << "nothing is escaped between items";
}

TEST(QuotedList, AnItemThatIsNotClosedIsLost) {
    EXPECT_EQ(Split("\"a\",\"b"), (CStringArray{"a"}));
    EXPECT_EQ(Split("\"a\",\"b\\"), (CStringArray{"a"}));
    EXPECT_EQ(Split("\"a\",\"b\\\""), (CStringArray{"a"}));
    EXPECT_EQ(Split("\""), CStringArray{});
}

TEST(QuotedList, ABackslashTakesAnyByteAsItIs) {
    EXPECT_EQ(Split("\"a\\nb\\\\\""), (CStringArray{"anb\\"}));
}

TEST(QuotedList, EmptyItemsCount) {
    EXPECT_EQ(Split("\"\",\"\""), (CStringArray{"", ""}));
    EXPECT_EQ(Split(""), CStringArray{});
}

TEST(QuotedList, TheTextMayBeAnElementOfTheArray) {
    CStringArray array{"\"a\",\"b\""};
    EXPECT_EQ(SplitQuoted(*array.begin(), array), 2);
    EXPECT_EQ(array, (CStringArray{"a", "b"}));
}

// The reader byte by byte, as a table of states.
CStringArray ModelSplit(const std::string& text) {
    enum class State { Outside, Inside, Escape };
    State state = State::Outside;
    CStringArray items;
    std::string item;
    for (const char byte : text) {
        if (state == State::Outside) {
            if (byte != '"') continue;
            item.clear();
            state = State::Inside;
        } else if (state == State::Escape) {
            item += byte;
            state = State::Inside;
        } else if (byte == '\\') {
            state = State::Escape;
        } else if (byte == '"') {
            items.Add(CString(item));
            state = State::Outside;
        } else {
            item += byte;
        }
    }
    return items;
}

TEST(QuotedList, RandomTextsAreReadAsTheStatesSay) {
    std::mt19937 random = text_test::SeededRandom();
    static constexpr std::string_view favourites = "\"\"\"\\\\,ab\xE9 ";
    for (int round = 0; round < 20000; ++round) {
        std::string text;
        for (std::size_t left = text_test::UpTo(random, 20); left > 0; --left)
            text += favourites[text_test::UpTo(random, favourites.size() - 1)];
        CStringArray items;
        SplitQuoted(CString(text), items);
        ASSERT_EQ(items, ModelSplit(text)) << text;
        CStringArray again;
        SplitQuoted(JoinQuoted(items), again);
        ASSERT_EQ(again, items) << text << ": what is written is read back";
    }
}

}  // namespace
