// The upper-case form of every one of the 65536 characters. What the platform's answers are is tested with
// the platform's own.
#include "text/Upper.h"

#include <gtest/gtest.h>

#include "tests/text/LocaleTables.h"

namespace {

using vapp_text::UpperChar;

TEST(Upper, AsciiSmallLettersBecomeCapitalsAndAllOtherAsciiStays) {
    for (char16_t c = 0; c < 0x80; ++c) {
        const bool small = c >= u'a' && c <= u'z';
        EXPECT_EQ(UpperChar(c), small ? c - 32 : c) << static_cast<int>(c);
    }
}

TEST(Upper, EveryHigherCharacterIsThePlatformsUpperCaseAndIsRemembered) {
    for (unsigned c = 0x80; c <= 0xFFFF; ++c) {
        const auto unit = static_cast<char16_t>(c);
        ASSERT_EQ(UpperChar(unit), vapp_platform::UpperCaseChar(unit)) << c;
        ASSERT_EQ(UpperChar(unit), vapp_platform::UpperCaseChar(unit)) << c << " asked again";
    }
}

TEST(Upper, OneCharacterBecomesOneCharacterInEveryLocale) {
    text_test::InEveryLocale([](const char* locale) {
        EXPECT_EQ(UpperChar(u'i'), u'I') << locale;
        EXPECT_EQ(UpperChar(u'\u00e9'), u'\u00c9') << locale;
        EXPECT_EQ(UpperChar(u'\u00df'), u'\u00df') << locale << ": no SS";
        EXPECT_EQ(UpperChar(u'\u0430'), u'\u0410') << locale;
        EXPECT_EQ(UpperChar(u'\uff41'), u'\uff21') << locale;
        EXPECT_EQ(UpperChar(u'\xd83d'), u'\xd83d') << locale << ": half a pair";
    });
}

}  // namespace
