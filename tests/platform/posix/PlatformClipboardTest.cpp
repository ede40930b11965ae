/// @file
/// This system has no clipboard of its own, and says so.
#include "text/PlatformClipboard.h"

#include <gtest/gtest.h>

TEST(PlatformClipboard, ThereIsNone) {
    EXPECT_FALSE(vapp_platform::HasSystemClipboard());
    EXPECT_FALSE(vapp_platform::SetSystemClipboardText(u"a", "a"));
    EXPECT_EQ(vapp_platform::GetSystemClipboardText(), u"");
}
