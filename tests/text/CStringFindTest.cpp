// Comparing, finding and tokenising in CString.

#include <gtest/gtest.h>

#include <climits>
#include <string>
#include <vector>

#include "vapp/text/CString.h"

namespace {

TEST(CStringFind, CompareGoesByUnsignedBytes) {
    EXPECT_EQ(CString("a").Compare("a"), 0);
    EXPECT_LT(CString("a").Compare("b"), 0);
    EXPECT_GT(CString("\xC3").Compare("z"), 0);
    EXPECT_GT(CString("a").Compare(nullptr), 0);
    EXPECT_EQ(CString("AbZ").CompareNoCase("aBz"), 0);
    EXPECT_LT(CString("AB").CompareNoCase("abc"), 0);
    EXPECT_GT(CString("abc").CompareNoCase("AB"), 0);
    EXPECT_NE(CString("[").CompareNoCase("{"), 0) << "only letters fold";
    EXPECT_NE(CString("\xC3\x89").CompareNoCase("\xC3\xA9"), 0);
}

// One order with ==: a text with a NUL in it is equal to itself and to nothing shorter.
TEST(CStringFind, CompareTakesAllBytesOfBothTexts) {
    const CString ab("a\0b", 3);
    const CString capital("A\0B", 3);
    const CString ac("a\0c", 3);
    EXPECT_EQ(ab.Compare(ab), 0);
    EXPECT_LT(ab.Compare(ac), 0);
    EXPECT_GT(ac.Compare(ab), 0);
    EXPECT_GT(ab.Compare(CString("a")), 0);
    EXPECT_GT(ab.Compare("a"), 0) << "a C string ends at its NUL";
    EXPECT_LT(CString("a").Compare(ab), 0);
    EXPECT_EQ(ab.CompareNoCase(capital), 0);
    EXPECT_LT(capital.CompareNoCase(ac), 0);
    EXPECT_GT(ac.CompareNoCase(capital), 0);
    EXPECT_GT(ab.CompareNoCase("A"), 0);
}

TEST(CStringFind, FindsFromAStart) {
    const CString text("abcabc");
    EXPECT_EQ(text.Find('b'), 1);
    EXPECT_EQ(text.Find('b', 2), 4);
    EXPECT_EQ(text.Find('q'), -1);
    EXPECT_EQ(text.Find("bc", 2), 4);
    EXPECT_EQ(text.Find("", 3), 3);
    EXPECT_EQ(text.Find("", 6), 6);
    EXPECT_EQ(text.Find("", 7), -1);
    EXPECT_EQ(text.Find("b", -1), -1);
    EXPECT_EQ(text.Find("b", INT_MAX), -1);
    EXPECT_EQ(text.Find(nullptr), -1);
    EXPECT_EQ(text.ReverseFind('b'), 4);
    EXPECT_EQ(text.ReverseFind('q'), -1);
    EXPECT_EQ(text.FindOneOf("xcb"), 1);
    EXPECT_EQ(text.FindOneOf(""), -1);
    EXPECT_EQ(text.FindOneOf(nullptr), -1);
}

TEST(CStringFind, SpansReachToTheFirstByteOfTheOtherKind) {
    const CString text("aabbc");
    EXPECT_EQ(text.SpanIncluding("ab"), "aabb");
    EXPECT_EQ(text.SpanIncluding("abc"), "aabbc");
    EXPECT_EQ(text.SpanIncluding(""), "");
    EXPECT_EQ(text.SpanExcluding("c"), "aabb");
    EXPECT_EQ(text.SpanExcluding("q"), "aabbc");
    EXPECT_EQ(text.SpanExcluding("a"), "");
}

TEST(CStringFind, TokensEndWithAStartOfMinusOne) {
    const CString text(",,one,two;;three;");
    std::vector<std::string> tokens;
    int start = 0;
    for (CString token = text.Tokenize(",;", start); start >= 0; token = text.Tokenize(",;", start)) {
        tokens.emplace_back(token.View());
    }
    EXPECT_EQ(tokens, (std::vector<std::string>{"one", "two", "three"}));
    EXPECT_TRUE(text.Tokenize(",;", start).IsEmpty());
    EXPECT_EQ(start, -1);
    start = INT_MAX;
    EXPECT_TRUE(text.Tokenize(",;", start).IsEmpty());
    start = 0;
    EXPECT_EQ(text.Tokenize(nullptr, start), text) << "without separators the text is one token";
}

}  // namespace
