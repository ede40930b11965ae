// Integers by tables, at the borders of each width, and against a model in wider integers.

#include "text/CharToInt.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>

#include "tests/text/HostileText.h"
#include "tests/text/NumberModels.h"

namespace {

using namespace text_test;
using vapp_text::CharToInt;

template <typename Integer>
std::pair<Integer, std::int64_t> Read(std::u16string_view text) {
    const std::string bytes = Bytes(text);
    std::int64_t offset = -1;
    const auto value = CharToInt<Integer>(ExactBytes(bytes).Get(), offset);
    return {value, offset};
}

/// All four readers against the model, on the values and on the bytes taken.
template <typename Integer>
void ExpectModel(std::u16string_view text) {
    const TIntegerReading wanted = ReadIntegerByRules<Integer>(text);
    const auto [value, offset] = Read<Integer>(text);
    ASSERT_EQ(value, static_cast<Integer>(wanted.value)) << Shown(Bytes(text));
    ASSERT_EQ(offset, static_cast<std::int64_t>(Bytes(text.substr(0, wanted.taken)).size()))
        << Shown(Bytes(text));
}

void ExpectModels(std::u16string_view text) {
    ExpectModel<std::int32_t>(text);
    ExpectModel<std::uint32_t>(text);
    ExpectModel<std::int64_t>(text);
    ExpectModel<std::uint64_t>(text);
}

TEST(CharToInt, ReadsByTheTable) {
    struct TRow {
        std::u16string_view text;
        std::int32_t value;
        std::size_t taken;  // characters
    };
    const TRow rows[] = {
        {u"", 0, 0},
        {u"12", 12, 2},
        {u" +12", 12, 4},
        {u"\u3000\ufeff\u200b\t12 ", 12, 6},
        {u"\u00a012", 0, 0},
        {u"\u0663\u0664", 34, 2},
        {u"1\u0968\uff13", 123, 3},
        {u"-0x10", -16, 5},
        {u"0x1F", 31, 4},
        {u"x1F", 31, 3},
        {u"#1F", 31, 3},
        {u"000#1f", 31, 6},
        {u"\uff10\uff58\uff11\uff26", 31, 4},
        {u"\uff38\uff41\uff46", 0xAF, 3},
        {u"x", 0, 1},
        {u"-x", 0, 2},
        {u"0x", 0, 2},
        {u"xx1", 0, 1},
        {u"#x1", 0, 1},
        {u"0x0x1", 0, 3},
        {u"1x1", 1, 1},
        {u"\uff031", 0, 0},
        {u"xG", 0, 1},
        {u"x\uff27", 0, 1},
        {u"x\u0661f", 0x1F, 3},
        {u"x\uff3b\uff40", 0, 1},
        {u"1f", 1, 1},
        {u"--1", 0, 1},
        {u"+-1", 0, 1},
        {u"- 1", 0, 1},
        {u"-", 0, 1},
        {u"   ", 0, 3},
        {u"1 2", 1, 1},
        {u"1.5", 1, 1},
        {u"2147483647", 2147483647, 10},
        {u"2147483648", 214748364, 9},
        {u"-2147483648", std::numeric_limits<std::int32_t>::min(), 11},
        {u"-2147483649", -214748364, 10},
        {u"-21474836480", std::numeric_limits<std::int32_t>::min(), 11},
        {u"x7FFFFFFF", 0x7FFFFFFF, 9},
        {u"x80000000", 0x8000000, 8},
        {u"-x80000000", std::numeric_limits<std::int32_t>::min(), 10},
        {u"-x80000001", -0x8000000, 9},
        {u"00000000000000000000001", 1, 23},
    };
    for (const TRow& row : rows) {
        const auto [value, offset] = Read<std::int32_t>(row.text);
        EXPECT_EQ(value, row.value) << Shown(Bytes(row.text));
        EXPECT_EQ(offset, static_cast<std::int64_t>(Bytes(row.text.substr(0, row.taken)).size()))
            << Shown(Bytes(row.text));
    }
}

TEST(CharToInt, UnsignedReadersTakeNoMinus) {
    for (const std::u16string_view text : {u"-1", u"\u22121", u" -1"}) {
        EXPECT_EQ(Read<std::uint32_t>(text).first, 0U);
        EXPECT_EQ(Read<std::uint64_t>(text).first, 0U);
    }
    EXPECT_EQ(Read<std::uint32_t>(u"-1").second, 0);
    EXPECT_EQ(Read<std::uint32_t>(u" -1").second, 1);
    EXPECT_EQ(Read<std::uint32_t>(u"+1").first, 1U);
}

TEST(CharToInt, EverySignOfEveryScript) {
    for (unsigned c = 1; c <= 0xFFFF; ++c) {
        const std::u16string text{static_cast<char16_t>(c), u'7'};
        ExpectModel<std::int32_t>(text);
        ExpectModel<std::uint64_t>(text);
    }
}

TEST(CharToInt, EveryCharacterInBothBases) {
    for (unsigned c = 1; c <= 0xFFFF; ++c) {
        const std::u16string ten{u'7', static_cast<char16_t>(c), u'7'};
        ExpectModel<std::int64_t>(ten);
        const std::u16string sixteen{u'#', static_cast<char16_t>(c), u'7'};
        ExpectModel<std::uint32_t>(sixteen);
    }
}

TEST(CharToInt, EveryDigitOfEveryScriptAlone) {
    for (const char16_t zero : vapp_text::ZeroDigitTable) {
        for (unsigned digit = 0; digit <= 9; ++digit) {
            const std::u16string text{static_cast<char16_t>(zero + digit)};
            EXPECT_EQ(Read<std::int32_t>(text).first, static_cast<std::int32_t>(digit));
            EXPECT_EQ(Read<std::uint64_t>(u"x" + text).first, digit);
        }
    }
}

std::u16string Decimal(__int128 value) {
    const bool negative = value < 0;
    std::u16string text;
    do {
        const int digit = static_cast<int>(value % 10);
        text.insert(text.begin(), static_cast<char16_t>(u'0' + (negative ? -digit : digit)));
        value /= 10;
    } while (value != 0);
    return (negative ? u"-" : u"") + text;
}

std::u16string Hexadecimal(__int128 value) {
    const bool negative = value < 0;
    std::u16string text;
    do {
        const int digit = static_cast<int>(value % 16);
        text.insert(text.begin(), u"0123456789aBcDeF"[negative ? -digit : digit]);
        value /= 16;
    } while (value != 0);
    return (negative ? u"-0x" : u"#") + text;
}

template <typename Integer>
void ExpectBorders() {
    const __int128 borders[] = {std::numeric_limits<Integer>::min(), std::numeric_limits<Integer>::max(), 0};
    for (const __int128 border : borders) {
        for (int off = -40; off <= 40; ++off) {
            for (const __int128 scale : {1, 10, 16}) {
                ExpectModels(Decimal((border + off) * scale));
                ExpectModels(Hexadecimal((border + off) * scale));
            }
        }
    }
}

TEST(CharToInt, BordersOfEveryWidthAndWhatIsBeyondThem) {
    ExpectBorders<std::int32_t>();
    ExpectBorders<std::uint32_t>();
    ExpectBorders<std::int64_t>();
    ExpectBorders<std::uint64_t>();
}

std::u16string NearlyInteger(std::mt19937& random) {
    static constexpr std::u16string_view fronts = u"  \t\u3000\u2003\ufeff+-\u2212\uff0b\ufe63\u00ad";
    static constexpr std::u16string_view prefixes = u"00000xX#\uff58\uff38\uff10\u0660";
    static constexpr std::u16string_view digits =
        u"0123456789012345678900001119999\u0661\u0669\u0c6f\uff11\uff19aAfF\uff26\uff41gG\uff27- .";
    std::u16string text;
    const auto add = [&](std::u16string_view from, std::size_t longest) {
        for (std::size_t left = UpTo(random, longest); left > 0; --left)
            text += from[UpTo(random, from.size() - 1)];
    };
    add(fronts, 2);
    add(prefixes, 2);
    add(digits, UpTo(random, 1) == 0 ? 12 : 24);
    return text;
}

TEST(CharToInt, RandomTextsAgainstTheModel) {
    std::mt19937 random = SeededRandom();
    for (int i = 0; i < 60000; ++i)
        ExpectModels(NearlyInteger(random));
}

TEST(CharToInt, StaysWithinMalformedText) {
    std::mt19937 random = SeededRandom();
    for (int i = 0; i < 20000; ++i) {
        const std::string bytes = HostileBytes(random);
        const ExactBytes text(bytes);
        std::int64_t offset = -1;
        static_cast<void>(CharToInt<std::int64_t>(text.Get(), offset));
        ASSERT_GE(offset, 0);
        ASSERT_LE(offset, static_cast<std::int64_t>(bytes.size()));
    }
}

TEST(CharToInt, AnOverlongNulEndsTheNumber) {
    std::int64_t offset = -1;
    EXPECT_EQ(CharToInt<std::int32_t>("12\xC0\x80"
                                      "3",
                                      offset),
              12);
    EXPECT_EQ(offset, 2);
}

}  // namespace
