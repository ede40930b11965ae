// Sets of characters, beside a plain search in their text.
#include "text/CharSet.h"

#include <gtest/gtest.h>

#include "tests/text/HostileText.h"

namespace {

using vapp_text::CharSet;

TEST(CharSet, AsksEveryCharacterLikeASearchInItsText) {
    std::mt19937 random = text_test::SeededRandom();
    for (int round = 0; round < 200; ++round) {
        const std::u16string units = text_test::HostileName(random, 20);
        const CharSet set(text_test::ExactBytes(text_test::Bytes(units)).Get());
        for (unsigned c = 1; c <= 0xFFFF; c += c < 0x100 ? 1 : 7) {
            const auto unit = static_cast<char16_t>(c);
            ASSERT_EQ(set.Holds(unit), units.find(unit) != std::u16string::npos) << c;
        }
        for (const char16_t unit : units)
            ASSERT_TRUE(set.Holds(unit));
    }
}

TEST(CharSet, KeepsFoldedForms) {
    const CharSet set(text_test::Bytes(u"AÉ-").c_str(), true);
    EXPECT_TRUE(set.Holds(u'a'));
    EXPECT_TRUE(set.Holds(u'\u00e9'));
    EXPECT_TRUE(set.Holds(u'-'));
    EXPECT_FALSE(set.Holds(u'A'));
    EXPECT_FALSE(set.Holds(u'\u00c9'));
}

TEST(CharSet, HoldsTheFirstAndTheLastAsciiCharacter) {
    const CharSet set("\x01\x3f\x40\x7f");
    for (const char16_t unit : {u'\x01', u'\x3f', u'\x40', u'\x7f'})
        EXPECT_TRUE(set.Holds(unit)) << static_cast<int>(unit);
    EXPECT_FALSE(set.Holds(u'\0'));
    EXPECT_FALSE(set.Holds(u'\x80'));
}

// A set may be a text of any length: asking it must not cost that length.
TEST(CharSet, ManyMembersAndManyOfOneAreAskedQuickly) {
    std::u16string units(300000, u'\u00e9');
    for (unsigned c = 0x80; c <= 0xFFFF; c += 2)
        units += static_cast<char16_t>(c);
    units += u'\u00eb';
    const CharSet set(text_test::Bytes(units).c_str());
    for (int round = 0; round < 20; ++round) {
        for (unsigned c = 0x80; c <= 0xFFFF; ++c)
            ASSERT_EQ(set.Holds(static_cast<char16_t>(c)), c % 2 == 0 || c == 0xE9 || c == 0xEB) << c;
    }
}

TEST(CharSet, NamesTheOneAsciiCharacterThatItHolds) {
    for (char c = 1; c > 0 && c < 0x7F; ++c)
        EXPECT_EQ(CharSet(std::string(3, c).c_str()).OnlyAscii(), c);
    EXPECT_EQ(CharSet("\x7f").OnlyAscii(), '\x7f');
    EXPECT_EQ(CharSet(text_test::Bytes(u"\u00e9,\u4e2d").c_str()).OnlyAscii(), ',');
    EXPECT_EQ(CharSet("").OnlyAscii(), '\0');
    EXPECT_TRUE(CharSet(",;").IsAscii());
    EXPECT_FALSE(CharSet(text_test::Bytes(u",\u00e9").c_str()).IsAscii());
    EXPECT_EQ(CharSet(",;").OnlyAscii(), '\0');
    EXPECT_EQ(CharSet("aA").OnlyAscii(), '\0');
    EXPECT_EQ(CharSet("aA", true).OnlyAscii(), 'a');
}

TEST(CharSet, AnEmptySetHoldsNothing) {
    const CharSet set("");
    for (unsigned c = 0; c <= 0xFFFF; ++c)
        ASSERT_FALSE(set.Holds(static_cast<char16_t>(c)));
}

}  // namespace
