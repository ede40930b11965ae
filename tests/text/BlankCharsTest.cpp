// Every character of the model is blank or not by one fixed list.

#include "text/BlankChars.h"

#include <gtest/gtest.h>

#include <set>

namespace {

TEST(BlankChars, TheSetIsExactlyThisOne) {
    std::set<unsigned> wanted = {0x20, 0x202F, 0x205F, 0x3000, 0xFEFF};
    for (unsigned c = 0x09; c <= 0x0D; ++c)
        wanted.insert(c);
    for (unsigned c = 0x2000; c <= 0x200B; ++c)
        wanted.insert(c);
    std::set<unsigned> blank;
    for (unsigned c = 0; c <= 0xFFFF; ++c) {
        if (vapp_text::IsBlankCharU(static_cast<char16_t>(c))) blank.insert(c);
    }
    EXPECT_EQ(blank, wanted);
}

TEST(BlankChars, TheNoBreakSpaceIsACharacter) {
    EXPECT_FALSE(vapp_text::IsBlankCharU(u'\u00A0'));
    EXPECT_FALSE(vapp_text::IsBlankCharU(u'\u0085'));
    EXPECT_FALSE(vapp_text::IsBlankCharU(u'\0'));
}

}  // namespace
