// Code pages that the converters here have and not every system has. What holds everywhere is tested with
// text.
#include "text/PlatformText.h"

#include <gtest/gtest.h>

namespace {

using vapp_platform::CodePageToUtf16;
using vapp_platform::Utf16ToCodePage;

TEST(PosixPlatformText, CodePagesOfThisSystemAlone) {
    struct TRow {
        unsigned codePage;
        const char* bytes;
        const char16_t* text;
    };
    const TRow rows[] = {
        {1200, "ab", u"\u6261"},
        {51932, "\xA5\xA2", u"\u30A2"},
        {54936, "\xD6\xD0", u"\u4E2D"},
    };
    for (const TRow& row : rows) {
        EXPECT_EQ(CodePageToUtf16(row.codePage, row.bytes), row.text) << "code page " << row.codePage;
        EXPECT_EQ(Utf16ToCodePage(row.codePage, row.text), row.bytes) << "code page " << row.codePage;
    }
}

TEST(PosixPlatformText, AsciiHasNoNearestFit) {
    EXPECT_EQ(Utf16ToCodePage(20127, u"\u00E9"), "?");
}

}  // namespace
