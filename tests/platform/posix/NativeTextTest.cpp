#include "platform/posix/NativeText.h"

#include <gtest/gtest.h>

#include <random>

#include "tests/text/HostileText.h"

namespace {

using vapp_platform::NativeFromWide;
using vapp_platform::NativeText;
using vapp_platform::WideFromNative;

TEST(NativeText, PairsBecomeOneCharacter) {
    EXPECT_EQ(NativeText(CStringU(u"a\u00e9\u4e2d\U0001f600")), "a\u00e9\u4e2d\U0001f600");
    EXPECT_EQ(vapp_platform::NativeFromUtf16(u"\xd83d\xde00"), "\U0001f600");
    EXPECT_EQ(NativeFromWide(L"\U0001f600"), "\U0001f600");
    EXPECT_EQ(NativeFromWide(std::wstring{static_cast<wchar_t>(0xd83d), static_cast<wchar_t>(0xde00)}),
              "\U0001f600");
}

TEST(NativeText, WhatIsNoCharacterBecomesTheReplacement) {
    EXPECT_EQ(NativeFromWide(std::wstring(1, static_cast<wchar_t>(0xd83d))), "\ufffd");
    EXPECT_EQ(NativeFromWide(std::wstring(1, static_cast<wchar_t>(0x110000))), "\ufffd");
    EXPECT_EQ(NativeFromWide(std::wstring(1, static_cast<wchar_t>(-1))), "\ufffd");
}

TEST(NativeText, AnyBytesComeBack) {
    std::mt19937 random = text_test::SeededRandom();
    for (int round = 0; round < 20000; ++round) {
        std::string bytes;
        const char* const pieces[] = {"a",        "\xc3",         "\xa9", "\xe4\xb8\xad", "\xf0\x9f\x98\x80",
                                      "\xf0\x9f", "\xed\xa0\xbd", "\xff", "\xc0\x80",     "\xed\xb2\x80"};
        for (std::size_t count = random() % 6; count > 0; --count)
            bytes += pieces[random() % std::size(pieces)];
        ASSERT_EQ(NativeFromWide(WideFromNative(bytes)), bytes);
        ASSERT_EQ(vapp_platform::NativeText(vapp_platform::TextFromNative(bytes)), bytes);
    }
}

}  // namespace
