// Where the system's own code pages differ from those of other systems: it may lack some, and fits more. What
// holds everywhere is tested with text.
#include "text/PlatformText.h"

#include <gtest/gtest.h>
#include <windows.h>

namespace {

using vapp_platform::ActiveCodePage;
using vapp_platform::CodePageToUtf16;
using vapp_platform::Utf16ToCodePage;

TEST(Win32PlatformText, TheActiveCodePageIsThatOfTheSystem) {
    EXPECT_EQ(ActiveCodePage(), GetACP());
}

TEST(Win32PlatformText, ACodePageIsKnownAsFarAsTheSystemKnowsIt) {
    const bool known = IsValidCodePage(54936) != 0;
    EXPECT_EQ(CodePageToUtf16(54936, "\xD6\xD0"), known ? u"\u4E2D" : u"");
    EXPECT_EQ(Utf16ToCodePage(54936, u"\u4E2D"), known ? "\xD6\xD0" : "");
    EXPECT_EQ(CodePageToUtf16(1200, "ab"), u"") << "its own units are no code page";
    EXPECT_EQ(CodePageToUtf16(51932, "\xA5\xA2"), u"");
}

TEST(Win32PlatformText, AsciiTakesTheNearestFit) {
    EXPECT_EQ(Utf16ToCodePage(20127, u"\u00E9"), "e");
}

}  // namespace
