// The wording of rectangles and file errors, row by row.
#include "text/FixedTexts.h"

#include <gtest/gtest.h>

#include <climits>

namespace {

using vapp_text::FileExceptionText;
using vapp_text::RectToText;

TEST(FixedTexts, ARectangleTellsItsEdgesAndSize) {
    EXPECT_EQ(RectToText(1, 2, 31, 42), CStringU("(1, 2, 31, 42 w=30 h=40)"));
    EXPECT_EQ(RectToText(0, 0, 0, 0), CStringU("(0, 0, 0, 0 w=0 h=0)"));
    struct {
        long left = -5, top = -6, right = 5, bottom = 6;
    } rect;
    EXPECT_EQ(RectToText(rect), CStringU("(-5, -6, 5, 6 w=10 h=12)"));
}

TEST(FixedTexts, AReversedRectangleIsVeryLarge) {
    EXPECT_EQ(RectToText(1, 0, 0, 0), CStringU("(1, 0, 0, 0 w=4294967295 h=0)"));
    EXPECT_EQ(RectToText(INT_MIN, INT_MAX, INT_MAX, INT_MIN),
              CStringU("(-2147483648, 2147483647, 2147483647, -2147483648 w=4294967295 h=1)"));
}

TEST(FixedTexts, EachCauseOfAFileErrorHasItsText) {
    const char* const texts[] = {"No error occurred.",
                                 "An unspecified error occurred.",
                                 "The file could not be located.",
                                 "All or part of the path is invalid.",
                                 "The permitted number of open files was exceeded.",
                                 "The file could not be accessed.",
                                 "There was an attempt to use an invalid file handle.",
                                 "The current working directory cannot be removed.",
                                 "There are no more directory entries.",
                                 "There was an error trying to set the file pointer.",
                                 "There was a hardware error.",
                                 "SHARE.EXE was not loaded, or a shared region was locked.",
                                 "There was an attempt to lock a region that was already locked.",
                                 "The disk is full.",
                                 "The end of file was reached."};
    int cause = 0;
    for (const char* const text : texts) {
        EXPECT_EQ(FileExceptionText(cause), CStringU(text)) << cause;
        ++cause;
    }
    EXPECT_EQ(cause, 15);
}

TEST(FixedTexts, AnyOtherCauseIsToldByItsNumber) {
    EXPECT_EQ(FileExceptionText(15), CStringU("File Exception 15"));
    EXPECT_EQ(FileExceptionText(-1), CStringU("File Exception -1"));
    EXPECT_EQ(FileExceptionText(INT_MAX), CStringU("File Exception 2147483647"));
}

}  // namespace
