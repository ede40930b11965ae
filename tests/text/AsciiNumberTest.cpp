// White space, signs and digits are those of ASCII, at every width of characters.

#include "text/AsciiNumber.h"

#include <gtest/gtest.h>

#include <string_view>

namespace {

using namespace vapp_text;

template <typename Unit>
void ExpectAsciiOnly(unsigned last) {
    for (unsigned code = 1; code <= last; ++code) {
        const Unit text[] = {static_cast<Unit>(code), 0};
        const auto isOneOf = [code](std::string_view set) {
            return code < 0x80 && set.find(static_cast<char>(code)) != std::string_view::npos;
        };
        const Unit* walk = text;
        SkipSpaces(walk);
        ASSERT_EQ(walk != text, isOneOf(" \t\n\v\f\r")) << code;
        walk = text;
        ASSERT_EQ(SkipSign(walk), isOneOf("-")) << code;
        ASSERT_EQ(walk != text, isOneOf("+-")) << code;
        ASSERT_EQ(DigitOf(text[0]) <= 9, isOneOf("0123456789")) << code;
        ASSERT_EQ(IsLetterNoCase(text[0], 'k'), isOneOf("kK")) << code;
    }
}

TEST(AsciiNumber, OnlyAsciiMeansAnything) {
    ExpectAsciiOnly<char>(0xFF);
    ExpectAsciiOnly<char16_t>(0xFFFF);
    ExpectAsciiOnly<wchar_t>(sizeof(wchar_t) > 2 ? 0x2FFFF : 0xFFFF);
}

TEST(AsciiNumber, NothingMovesBeyondTheEnd) {
    const char* walk = "";
    const char* const begin = walk;
    SkipSpaces(walk);
    EXPECT_FALSE(SkipSign(walk));
    EXPECT_EQ(walk, begin);
}

TEST(AsciiNumber, OneSignIsTakenAndAllSpaces) {
    const char* walk = " \t --5";
    SkipSpaces(walk);
    EXPECT_TRUE(SkipSign(walk));
    EXPECT_EQ(std::string_view(walk), "-5");
}

}  // namespace
