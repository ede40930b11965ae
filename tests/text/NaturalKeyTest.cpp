/// @file
/// Keys byte for byte where their grammar has a corner, and their order against the compares they stand for.
#include "text/NaturalKey.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "tests/text/HostileText.h"
#include "text/Compare.h"
#include "text/NaturalOrder.h"

namespace {

using namespace vapp_text;
using namespace text_test;
using namespace std::string_literals;

std::string NaturalKeyOf(const std::string& payload, bool fold) {
    std::string key;
    AppendNaturalKey(ExactBytes(payload).Get(), fold, key);
    return key;
}

std::string FoldKeyOf(const std::string& payload) {
    std::string key;
    AppendFoldKey(ExactBytes(payload).Get(), key);
    return key;
}

TEST(NaturalKey, FollowsItsGrammar) {
    const struct {
        std::string name;
        std::string key;
    } rows[] = {
        {"", "\0"s},
        {"Ab", "ab\0"s},
        {"a7",
         "a0\x01"
         "7\0\0"s},
        {"a007b10",
         "a0\x01"
         "7b0\x02"
         "10\0\x02\0"s},
        {"000",
         "0\x01"
         "0\0\x02"s},
        {"x\xC3\x89\xD9\xA3",
         "x\xC3\xA9"
         "0\x01"
         "3\0\0"s},
    };
    for (const auto& row : rows)
        EXPECT_EQ(NaturalKeyOf(row.name, true), row.key) << row.name;
    EXPECT_EQ(NaturalKeyOf("Ab", false), "Ab\0"s);
    EXPECT_EQ(FoldKeyOf("A007\xC3\x89"), "a007\xC3\xA9\0"s);
}

TEST(NaturalKey, AppendsToWhatIsThere) {
    std::string key = "before";
    AppendNaturalKey("x", true, key);
    AppendFoldKey("Y", key);
    EXPECT_EQ(key, "beforex\0y\0"s);
}

TEST(NaturalKey, NumbersOfEveryLengthKeepTheirOrder) {
    std::vector<std::string> names;
    for (const std::size_t size : {1U, 2U, 0xF6U, 0xF7U, 0xF8U, 0xFFU, 0x100U, 0x101U, 0xFFFFU, 0x10000U}) {
        names.push_back("a1" + std::string(size - 1, '0'));
        names.push_back("a" + std::string(size, '8'));
        names.push_back("a" + std::string(size, '8') + "z");
        names.push_back("a" + std::string(size, '0') + "1");
        names.push_back("a" + std::string(size, '0'));
    }
    for (const auto& left : names) {
        for (const auto& right : names) {
            ASSERT_EQ(Sign(NaturalKeyOf(left, true).compare(NaturalKeyOf(right, true))),
                      Sign(CompareNaturalNoCase(left.c_str(), right.c_str())))
                << left.size() << ' ' << right.size();
        }
    }
}

TEST(NaturalKey, TheOrderOfKeysIsTheOrderOfTheCompares) {
    std::mt19937 random = SeededRandom();
    for (int round = 0; round < 100'000; ++round) {
        const std::u16string name = HostileName(random);
        const std::string left = Bytes(name);
        const std::string right = Bytes(UpTo(random, 4) == 0 ? HostileName(random) : Mutated(random, name));
        SCOPED_TRACE(Shown(left) + " " + Shown(right));
        ASSERT_EQ(Sign(NaturalKeyOf(left, true).compare(NaturalKeyOf(right, true))),
                  Sign(CompareNaturalNoCase(left.c_str(), right.c_str())));
        ASSERT_EQ(Sign(NaturalKeyOf(left, false).compare(NaturalKeyOf(right, false))),
                  Sign(CompareNatural(left.c_str(), right.c_str(), false)));
        ASSERT_EQ(Sign(FoldKeyOf(left).compare(FoldKeyOf(right))),
                  Sign(CompareNoCaseU(left.c_str(), right.c_str())));
    }
}

TEST(NaturalKey, StrungKeysOrderByOneNameAfterTheOther) {
    std::mt19937 random = SeededRandom();
    const auto smallName = [&random] { return Bytes(HostileName(random, 3)); };
    for (int round = 0; round < 50'000; ++round) {
        const std::string cellA = smallName();
        const std::string viewA = smallName();
        const std::string cellB = UpTo(random, 1) == 0 ? cellA : smallName();
        const std::string viewB = smallName();
        const int byCell = Sign(CompareNaturalNoCase(cellA.c_str(), cellB.c_str()));
        const int byView = Sign(CompareNaturalNoCase(viewA.c_str(), viewB.c_str()));
        const std::string keyA = NaturalKeyOf(cellA, true) + NaturalKeyOf(viewA, true);
        const std::string keyB = NaturalKeyOf(cellB, true) + NaturalKeyOf(viewB, true);
        ASSERT_EQ(Sign(keyA.compare(keyB)), byCell != 0 ? byCell : byView)
            << Shown(cellA) << Shown(viewA) << ' ' << Shown(cellB) << Shown(viewB);
        const int foldCell = Sign(CompareNoCaseU(cellA.c_str(), cellB.c_str()));
        const int foldView = Sign(CompareNoCaseU(viewA.c_str(), viewB.c_str()));
        ASSERT_EQ(Sign((FoldKeyOf(cellA) + FoldKeyOf(viewA)).compare(FoldKeyOf(cellB) + FoldKeyOf(viewB))),
                  foldCell != 0 ? foldCell : foldView);
    }
}

TEST(NaturalKey, MalformedTextHasTheKeyOfTheCharactersItDecodesTo) {
    std::mt19937 random = SeededRandom();
    for (int round = 0; round < 50'000; ++round) {
        const std::string bytes = HostileBytes(random, 16);
        std::u16string characters = Decoded(bytes.c_str());
        characters = characters.substr(0, characters.find(u'\0'));  // an overlong NUL ends it
        const std::string wellFormed = Bytes(characters);
        for (const bool fold : {false, true}) {
            ASSERT_EQ(NaturalKeyOf(bytes, fold), NaturalKeyOf(wellFormed, fold)) << Shown(bytes);
        }
        ASSERT_EQ(FoldKeyOf(bytes), FoldKeyOf(wellFormed)) << Shown(bytes);
    }
}

TEST(NaturalKey, StaysWithinItsBound) {
    std::mt19937 random = SeededRandom();
    std::vector<std::string> texts = {
        "",
        "1",
        "1a1a1a",
        "0",
        "\xE4",
        "\xEF\xBC",
        "\xC8\xBA\xC8\xBA",
        std::string(1000, '0') + "1",
        std::string(1000, '7'),
        "\xFF\xFF",
    };
    for (int count = 0; count < 20'000; ++count) {
        texts.push_back(UpTo(random, 1) == 0 ? HostileBytes(random) : Bytes(HostileName(random)));
    }
    for (const std::string& text : texts) {
        // Written to memory of exactly the bound, so that a sanitizer sees a byte too many.
        std::vector<char> memory(KeyBound(text.size()));
        for (const bool fold : {false, true}) {
            const char* end = WriteNaturalKey(text.c_str(), fold, memory.data());
            ASSERT_LE(end - memory.data(), static_cast<std::ptrdiff_t>(memory.size())) << Shown(text);
        }
        ASSERT_LE(WriteFoldKey(text.c_str(), memory.data()) - memory.data(),
                  static_cast<std::ptrdiff_t>(memory.size()));
    }
}

TEST(NaturalKey, PrefixesThatDifferHaveTheOrderOfTheirKeys) {
    EXPECT_EQ(KeyPrefix(""), 0U);
    EXPECT_EQ(KeyPrefix("\x01\xFF"), 0x01FF'0000'0000'0000U);
    EXPECT_EQ(KeyPrefix("abcdefghi"), 0x6162'6364'6566'6768U);
    std::mt19937 random = SeededRandom();
    for (int round = 0; round < 30'000; ++round) {
        const std::u16string name = HostileName(random);
        const std::string left = NaturalKeyOf(Bytes(name), true);
        const std::string right = NaturalKeyOf(Bytes(Mutated(random, name)), true);
        if (KeyPrefix(left) == KeyPrefix(right)) continue;
        ASSERT_EQ(KeyPrefix(left) < KeyPrefix(right), left < right) << Shown(left) << ' ' << Shown(right);
    }
}

}  // namespace
