/// @file
/// What is asked of the system for a text on the clipboard.
#include "platform/win32/ClipboardMemory.h"

#include <gtest/gtest.h>

#include <string_view>

namespace {

using vapp_platform::ClipboardBytes;

TEST(ClipboardMemory, IsMovableAndSharedAsOldReadersWantIt) {
    EXPECT_EQ(vapp_platform::cnClipboardMemory, 0x2002U);
}

TEST(ClipboardMemory, HoldsTheTextAndItsNulAndNothingElse) {
    EXPECT_EQ(ClipboardBytes(std::u16string_view()), 2U);
    EXPECT_EQ(ClipboardBytes(std::u16string_view(u"a\u00e9\u4e2d")), 8U);
    EXPECT_EQ(ClipboardBytes(std::u16string_view(u"\U0001F600")), 6U);
    EXPECT_EQ(ClipboardBytes(std::string_view()), 1U);
    EXPECT_EQ(ClipboardBytes(std::string_view("a\xE9?")), 4U);
}

}  // namespace
