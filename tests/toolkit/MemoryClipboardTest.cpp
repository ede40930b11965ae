/// @file
/// The clipboard in memory.
#include "toolkit/MemoryClipboard.h"

#include <gtest/gtest.h>

TEST(MemoryClipboard, KeepsBothFormsUntilTheNext) {
    MemoryClipboard clipboard;
    EXPECT_EQ(clipboard.GetText(), u"");
    EXPECT_TRUE(clipboard.SetText(u"\u00e9", "\xE9"));
    EXPECT_EQ(clipboard.GetText(), u"\u00e9");
    EXPECT_EQ(clipboard.GetNarrowText(), "\xE9");
    EXPECT_TRUE(clipboard.SetText(u"", ""));
    EXPECT_EQ(clipboard.GetText(), u"");
    EXPECT_EQ(clipboard.GetNarrowText(), "");
}
