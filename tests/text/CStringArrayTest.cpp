// The array of narrow strings, and searching and sorting it.
#include "text/CStringArray.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <climits>
#include <string>

#include "tests/text/HostileText.h"

namespace {

using vapp_text::FindInArray;
using vapp_text::FindInArrayNoCase;
using vapp_text::SortArray;
using vapp_text::SortArrayNoCase;

TEST(CStringArray, KeepsTextsInOrder) {
    CStringArray array{"a", "b"};
    EXPECT_EQ(array.Add("c"), 2);
    EXPECT_EQ(array.GetSize(), 3);
    EXPECT_EQ(array[2], "c");
    array.SetAt(0, "x");
    EXPECT_EQ(array, (CStringArray{"x", "b", "c"}));
    array.RemoveAll();
    EXPECT_TRUE(array.IsEmpty());
}

TEST(CStringArray, AnIndexOutsideIsEmptyTextAndSetsNothing) {
    CStringArray array{"a"};
    for (const int index : {-1, 1, INT_MAX, INT_MIN}) {
        EXPECT_EQ(array.GetAt(index), "");
        array.SetAt(index, "x");
    }
    EXPECT_EQ(array, (CStringArray{"a"}));
}

TEST(CStringArray, FindGivesTheFirstIndex) {
    const CStringArray array{"One", "one", "two", "ONE", ""};
    EXPECT_EQ(FindInArray(array, "one"), 1);
    EXPECT_EQ(FindInArray(array, "ONE"), 3);
    EXPECT_EQ(FindInArray(array, ""), 4);
    EXPECT_EQ(FindInArray(array, "three"), -1);
    EXPECT_EQ(FindInArrayNoCase(array, "oNe"), 0);
    EXPECT_EQ(FindInArrayNoCase(array, "TWO"), 2);
    EXPECT_EQ(FindInArrayNoCase(array, "three"), -1);
    EXPECT_EQ(FindInArray({}, ""), -1);
}

// Quoted lists yield such texts.
TEST(CStringArray, ATextWithANulInItIsFound) {
    const CString ab("a\0b", 3);
    const CStringArray array{"a", CString("A\0B", 3), ab};
    EXPECT_EQ(FindInArray(array, ab), 2);
    EXPECT_EQ(FindInArrayNoCase(array, ab), 1);
    EXPECT_EQ(FindInArray(array, CString("a\0", 2)), -1);
    EXPECT_EQ(FindInArrayNoCase(array, "a"), 0);
}

TEST(CStringArray, CompareFoldsAsciiLettersOnly) {
    EXPECT_EQ(FindInArrayNoCase({"\xC9"}, "\xE9"), -1);
}

TEST(CStringArray, SortsByBytesOrWithoutCase) {
    CStringArray array{"b", "a", "C", "\xE9", ""};
    SortArray(array);
    EXPECT_EQ(array, (CStringArray{"", "C", "a", "b", "\xE9"}));
    SortArrayNoCase(array);
    EXPECT_EQ(array, (CStringArray{"", "a", "b", "C", "\xE9"}));
}

TEST(CStringArray, NoElementsAreLeftAlone) {
    CStringArray array;
    SortArray(array);
    SortArrayNoCase(array);
    EXPECT_TRUE(array.IsEmpty());
}

std::string HostileBytesAndNuls(std::mt19937& random) {
    std::string bytes = text_test::HostileBytes(random, 3);
    bytes.insert(text_test::UpTo(random, bytes.size()), text_test::UpTo(random, 1), '\0');
    return bytes + text_test::HostileBytes(random, 1);
}

// Equal texts may come out in any order: only that they are all there, and in order, is promised.
TEST(CStringArray, SortingKeepsEveryTextAndOrdersThemByTheCompare) {
    std::mt19937 random = text_test::SeededRandom();
    for (int round = 0; round < 300; ++round) {
        CStringArray array;
        for (std::size_t left = text_test::UpTo(random, 60); left > 0; --left)
            array.Add(CString(HostileBytesAndNuls(random)));
        std::vector<CString> expected(array.begin(), array.end());
        std::sort(expected.begin(), expected.end());

        SortArrayNoCase(array);
        ASSERT_TRUE(std::is_sorted(array.begin(), array.end(), [](const CString& a, const CString& b) {
            return a.CompareNoCase(b) < 0;
        }));
        std::vector<CString> found(array.begin(), array.end());
        std::sort(found.begin(), found.end());
        ASSERT_EQ(found, expected);

        SortArray(array);
        ASSERT_TRUE(std::equal(array.begin(), array.end(), expected.begin(), expected.end()));
    }
}

}  // namespace
