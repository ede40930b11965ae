// What CString does to its bytes; single cases here, random ones in CStringModelTest.cpp.

#include <gtest/gtest.h>

#include <climits>

#include "vapp/text/CString.h"

namespace {

TEST(CStringEdit, PiecesAreClampedToTheText) {
    const CString text("abcdef");
    EXPECT_EQ(text.Left(2), "ab");
    EXPECT_EQ(text.Left(-1), "");
    EXPECT_EQ(text.Left(INT_MAX).GetString(), text.GetString()) << "the whole text is shared, not copied";
    EXPECT_EQ(text.Right(2), "ef");
    EXPECT_EQ(text.Right(INT_MIN), "");
    EXPECT_EQ(text.Right(99), "abcdef");
    EXPECT_EQ(text.Mid(2), "cdef");
    EXPECT_EQ(text.Mid(2, 2), "cd");
    EXPECT_EQ(text.Mid(-5, 2), "ab");
    EXPECT_EQ(text.Mid(5, INT_MAX), "f");
    EXPECT_EQ(text.Mid(INT_MAX, INT_MAX), "");
}

TEST(CStringEdit, InsertAndDeleteGiveTheNewLength) {
    CString text("ad");
    EXPECT_EQ(text.Insert(1, "bc"), 4);
    EXPECT_EQ(text.Insert(-3, '<'), 5);
    EXPECT_EQ(text.Insert(99, ">"), 6);
    EXPECT_EQ(text, "<abcd>");
    EXPECT_EQ(text.Delete(1, 2), 4);
    EXPECT_EQ(text, "<cd>");
    EXPECT_EQ(text.Delete(3, INT_MAX), 3);
    EXPECT_EQ(text.Delete(99), 3);
    EXPECT_EQ(text.Delete(0, -1), 3);
    EXPECT_EQ(text, "<cd");
}

TEST(CStringEdit, ReplacingAndRemovingCount) {
    CString text("a.b.c");
    EXPECT_EQ(text.Replace('.', '/'), 2);
    EXPECT_EQ(text, "a/b/c");
    EXPECT_EQ(text.Replace("/", "::"), 2);
    EXPECT_EQ(text, "a::b::c");
    EXPECT_EQ(text.Replace("::", nullptr), 2);
    EXPECT_EQ(text, "abc");
    EXPECT_EQ(text.Replace("", "x"), 0);
    EXPECT_EQ(text.Replace("q", "x"), 0);
    CString overlapping("aaaaa");
    EXPECT_EQ(overlapping.Replace("aa", "b"), 2);
    EXPECT_EQ(overlapping, "bba");
    EXPECT_EQ(overlapping.Remove('b'), 2);
    EXPECT_EQ(overlapping, "a");
    EXPECT_EQ(overlapping.Remove('q'), 0);
}

TEST(CStringEdit, TrimsWhiteSpaceCharactersAndSets) {
    EXPECT_EQ(CString(" \t\n\v\f\ra b \r\n").Trim(), "a b");
    EXPECT_EQ(CString("  a ").TrimLeft(), "a ");
    EXPECT_EQ(CString(" a  ").TrimRight(), " a");
    EXPECT_EQ(CString("xxaxx").Trim('x'), "a");
    EXPECT_EQ(CString("xyaxy").Trim("xy"), "a");
    EXPECT_EQ(CString("xyaxy").TrimLeft("yx"), "axy");
    EXPECT_EQ(CString("xyaxy").TrimRight("yx"), "xya");
    EXPECT_EQ(CString("xxa").TrimLeft('x'), "a");
    EXPECT_EQ(CString("axx").TrimRight('x'), "a");
    EXPECT_EQ(CString("   ").Trim(), "");
    EXPECT_EQ(CString("   ").TrimRight(), "");
    EXPECT_EQ(CString("abc").Trim(static_cast<const char*>(nullptr)), "abc");
    const CString clean("clean");
    CString copy = clean;
    EXPECT_EQ(copy.Trim().GetString(), clean.GetString()) << "nothing to trim, nothing to copy";
}

TEST(CStringEdit, CaseChangesAsciiLettersOnly) {
    EXPECT_EQ(CString("@AZ[`az{\xC3\x89").MakeLower(), "@az[`az{\xC3\x89");
    EXPECT_EQ(CString("@AZ[`az{\xC3\xA9").MakeUpper(), "@AZ[`AZ{\xC3\xA9");
}

}  // namespace
