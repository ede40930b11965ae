/// @file
/// The natural order by tables, against a model of its rules and one of its steps, and as an order.
#include "text/NaturalOrder.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "tests/text/HostileText.h"
#include "tests/text/NaturalModels.h"

namespace {

using namespace vapp_text;
using namespace text_test;

TEST(NaturalOrder, EveryDigitOfEveryBlockBecomesItsAsciiDigit) {
    ASSERT_TRUE(std::is_sorted(ZeroDigitTable.begin(), ZeroDigitTable.end()));
    for (const char16_t zero : ZeroDigitTable) {
        for (unsigned value = 0; value <= 9; ++value) {
            auto c = static_cast<char16_t>(zero + value);
            EXPECT_TRUE(NormalizeDigit(c));
            EXPECT_EQ(c, u'0' + value);
        }
    }
}

TEST(NaturalOrder, NoOtherCharacterIsADigitAndItStays) {
    unsigned digits = 0;
    for (unsigned unit = 0; unit <= 0xFFFF; ++unit) {
        auto c = static_cast<char16_t>(unit);
        const bool digit = NormalizeDigit(c);
        ASSERT_EQ(digit, unit >= 0x80 && DigitValue(static_cast<char16_t>(unit)) >= 0) << unit;
        if (!digit) {
            ASSERT_EQ(c, unit);
        }
        digits += static_cast<unsigned>(digit);
    }
    EXPECT_EQ(digits, 300U);
}

struct OrderRow {
    std::u16string_view a;
    std::u16string_view b;
    int plain;      // CompareNatural
    int longFirst;  // CompareNatural, long numbers first
    int noCase;
};

constexpr OrderRow cnOrderRows[] = {
    {u"", u"", 0, 0, 0},
    {u"", u"a", -1, -1, -1},
    {u"", u"1", -1, -1, -1},
    {u"a2", u"a10", -1, 1, -1},
    {u"a10", u"a9", 1, -1, 1},
    {u"a01", u"a1", 1, -1, 1},
    {u"a1", u"a1b", -1, -1, -1},
    // The common prefix ends inside the number; all of it has to be compared.
    {u"a12", u"a1b", 1, -1, 1},
    {u"a0", u"a01", -1, -1, -1},
    {u"1000", u"1001", -1, -1, -1},
    {u"a100", u"a10", 1, -1, 1},
    {u"a0b", u"a00b", -1, 1, -1},
    {u"a5001", u"a501", 1, -1, 1},
    {u"5001", u"501", 1, -1, 1},
    {u"0", u"1", -1, -1, -1},
    {u"00", u"0", 1, -1, 1},
    {u"000", u"0", 1, -1, 1},
    {u"0", u"00", -1, 1, -1},
    {u"10", u"9", 1, -1, 1},
    {u"19", u"21", -1, -1, -1},
    // Equal but for zeros: the first pair that differs decides, and only if nothing else does.
    {u"a01b1", u"a1b01", 1, -1, 1},
    {u"a1b01", u"a01b1", -1, 1, -1},
    {u"a01b1", u"a1b2", -1, -1, -1},
    {u"a01x", u"a1y", -1, -1, -1},
    // The half reversal: lengths and zeros turn around, digits and characters do not.
    {u"x3", u"x4", -1, -1, -1},
    {u"x03", u"x4", -1, -1, -1},
    {u"y", u"x", 1, 1, 1},
    // A digit against a character is a difference of characters.
    {u"a1", u"a:", -1, -1, -1},
    {u"a1", u"a/", 1, 1, 1},
    {u"a/", u"a1", -1, -1, -1},
    // Digits of other scripts.
    {u"\u0663", u"3", 0, 0, 0},
    {u"\u0663", u"4", -1, -1, -1},
    {u"\u0663", u"10", -1, 1, -1},
    {u"\u0661\u0660", u"\uff19", 1, -1, 1},
    {u"x\u06601", u"x1", 1, -1, 1},
    {u"x\u0660\u0660", u"x0\u0660", 0, 0, 0},
    {u"\u0663", u":", -1, -1, -1},
    {u"\u066a", u"9", 1, 1, 1},  // no digit, though behind those of its block
    // Case.
    {u"Ab", u"aB", -1, -1, 0},
    {u"Bank03", u"bank2", -1, -1, 1},
    {u"BANK10", u"bank9", -1, -1, 1},
    {u"\u00c9t2", u"\u00e9T10", -1, -1, -1},
    {u"\u00c9T2", u"\u00e9t02", -1, -1, -1},
    {u"Z", u"a", -1, -1, 1},
    {u"[", u"a", -1, -1, -1},
};

TEST(NaturalOrder, EveryFormOrdersByItsRules) {
    for (const OrderRow& row : cnOrderRows) {
        const std::string a = Bytes(row.a);
        const std::string b = Bytes(row.b);
        SCOPED_TRACE(Shown(a) + " " + Shown(b));
        EXPECT_EQ(Sign(CompareNatural(a.c_str(), b.c_str(), false)), row.plain);
        EXPECT_EQ(Sign(CompareNatural(a.c_str(), b.c_str(), true)), row.longFirst);
        EXPECT_EQ(Sign(CompareNaturalNoCase(a.c_str(), b.c_str())), row.noCase);
        EXPECT_EQ(Sign(CompareNatural(b.c_str(), a.c_str(), false)), -row.plain);
        EXPECT_EQ(Sign(CompareNatural(b.c_str(), a.c_str(), true)), -row.longFirst);
        EXPECT_EQ(Sign(CompareNaturalNoCase(b.c_str(), a.c_str())), -row.noCase);
    }
}

TEST(NaturalOrder, TheFormWithoutCaseIgnoresItsFlag) {
    EXPECT_LT(CompareNaturalNoCase("a2", "a10", true), 0);
    EXPECT_GT(CompareNaturalNoCase("a01", "a1", true), 0);
}

TEST(NaturalOrder, TheFormsOnTextsSkipTheMarker) {
    for (const OrderRow& row : cnOrderRows) {
        const CStringU a(row.a);
        const CStringU b(row.b);
        SCOPED_TRACE(Shown(a.Payload()) + " " + Shown(b.Payload()));
        EXPECT_EQ(Sign(CompareNatural(a, b)), row.plain);
        EXPECT_EQ(Sign(CompareNatural(a, b, false)), row.plain);
        EXPECT_EQ(Sign(CompareNatural(a, b, true)), row.longFirst);
        EXPECT_EQ(Sign(CompareNaturalLongFirst(a, b)), row.longFirst);
        EXPECT_EQ(Sign(CompareNaturalNoCase(a, b)), row.noCase);
        EXPECT_EQ(Sign(CompareNaturalNoCase(a, b, true)), row.noCase);
    }
}

TEST(NaturalOrder, ATieOfZerosCountsThem) {
    EXPECT_EQ(CompareNatural("a0001", "a1", false), 3);
    EXPECT_EQ(CompareNatural("a0001", "a1", true), -3);
    EXPECT_EQ(CompareNatural("000", "0", false), 2);
    EXPECT_EQ(CompareNaturalNoCase("a1", "A0001"), -3);
}

TEST(NaturalOrder, NumbersOfAnyLengthAreComparedByValue) {
    const std::string nines(5000, '9');
    const std::string one = "1" + std::string(5000, '0');
    EXPECT_LT(CompareNaturalNoCase(nines.c_str(), one.c_str()), 0);
    EXPECT_LT(CompareNaturalNoCase((std::string(9000, '0') + nines).c_str(), one.c_str()), 0);
}

/// Checks all forms for two well-formed names against both models.
void ExpectAsModels(const std::u16string& left, const std::u16string& right) {
    const ExactBytes a(Bytes(left));
    const ExactBytes b(Bytes(right));
    SCOPED_TRACE(Shown(a.Get()) + " " + Shown(b.Get()));
    ASSERT_EQ(Sign(CompareNatural(a.Get(), b.Get(), false)), OrderByRules(left, right, false, false));
    ASSERT_EQ(Sign(CompareNatural(a.Get(), b.Get(), true)), OrderByRules(left, right, false, true));
    ASSERT_EQ(Sign(CompareNaturalNoCase(a.Get(), b.Get())), OrderByRules(left, right, true, false));
    ASSERT_EQ(CompareNatural(a.Get(), b.Get(), false), OrderBySteps(a.Get(), b.Get(), false, false));
    ASSERT_EQ(CompareNatural(a.Get(), b.Get(), true), OrderBySteps(a.Get(), b.Get(), false, true));
    ASSERT_EQ(CompareNaturalNoCase(a.Get(), b.Get()), OrderBySteps(a.Get(), b.Get(), true, false));
}

TEST(NaturalOrder, RandomNamesAreOrderedByTheRulesAndByTheSteps) {
    std::mt19937 random = SeededRandom();
    for (int round = 0; round < 60'000; ++round) {
        const std::u16string left = HostileName(random);
        ASSERT_NO_FATAL_FAILURE(ExpectAsModels(left, Mutated(random, left)));
    }
}

TEST(NaturalOrder, AllShortNamesOfFewCharactersAreOrderedByTheRulesAndByTheSteps) {
    // Complete where the corrections for a prefix that ends inside a number are at work.
    std::vector<std::u16string> names = {u""};
    for (std::size_t from = 0, length = 1; length <= 4; ++length) {
        const std::size_t behind = names.size();
        for (; from < behind; ++from) {
            for (const char16_t c : {u'0', u'1', u'a', u'\u0660'})
                names.push_back(names[from] + c);
        }
    }
    ASSERT_EQ(names.size(), 341U);
    for (const auto& left : names) {
        for (const auto& right : names)
            ASSERT_NO_FATAL_FAILURE(ExpectAsModels(left, right));
    }
}

TEST(NaturalOrder, HostileNamesHaveOneOrder) {
    std::mt19937 random = SeededRandom();
    for (int round = 0; round < 40; ++round) {
        std::vector<std::string> names;
        std::u16string name = HostileName(random);
        for (int count = 0; count < 60; ++count) {
            name = UpTo(random, 3) == 0 ? HostileName(random) : Mutated(random, name);
            names.push_back(Bytes(name));
        }
        const auto compares = {
            +[](const char* a, const char* b) { return CompareNatural(a, b, false); },
            +[](const char* a, const char* b) { return CompareNatural(a, b, true); },
            +[](const char* a, const char* b) { return CompareNaturalNoCase(a, b); },
        };
        for (const auto& compare : compares) {
            std::stable_sort(names.begin(), names.end(), [&compare](const auto& a, const auto& b) {
                return compare(a.c_str(), b.c_str()) < 0;
            });
            // In a sorted row every pair must stand in order: this is transitivity over all triples at once.
            for (std::size_t i = 0; i < names.size(); ++i) {
                ASSERT_EQ(compare(names[i].c_str(), names[i].c_str()), 0);
                for (std::size_t j = i + 1; j < names.size(); ++j) {
                    const int forward = Sign(compare(names[i].c_str(), names[j].c_str()));
                    ASSERT_LE(forward, 0) << Shown(names[i]) << ' ' << Shown(names[j]);
                    ASSERT_EQ(forward, -Sign(compare(names[j].c_str(), names[i].c_str())));
                    if (forward == 0) {
                        ASSERT_EQ(compare(names[i].c_str(), names[j - 1].c_str()), 0);
                    }
                }
            }
        }
    }
}

TEST(NaturalOrder, MalformedBytesFollowTheStepsWithoutLeavingTheText) {
    std::mt19937 random = SeededRandom();
    for (int round = 0; round < 100'000; ++round) {
        const std::string left = HostileBytes(random);
        const std::string common = left.substr(0, UpTo(random, left.size()));
        const std::string right =
            UpTo(random, 3) == 0 ? HostileBytes(random) : common + HostileBytes(random, 4);
        const ExactBytes a(left);
        const ExactBytes b(right);
        SCOPED_TRACE(Shown(left) + " " + Shown(right));
        ASSERT_EQ(CompareNatural(a.Get(), b.Get(), false), OrderBySteps(left, right, false, false));
        ASSERT_EQ(CompareNatural(a.Get(), b.Get(), true), OrderBySteps(left, right, false, true));
        ASSERT_EQ(CompareNaturalNoCase(a.Get(), b.Get()), OrderBySteps(left, right, true, false));
        const std::string_view sizedA = a.Get();
        const std::string_view sizedB = b.Get();
        ASSERT_EQ(CompareNatural(sizedA, sizedB, true), OrderBySteps(left, right, false, true));
        ASSERT_EQ(CompareNaturalNoCase(sizedA, sizedB), OrderBySteps(left, right, true, false));
    }
}

}  // namespace
