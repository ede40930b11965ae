// Every suffix in both readings, in every case, with every character behind it.

#include "text/EngineeringSuffix.h"

#include <gtest/gtest.h>

#include <string>

#include "tests/text/HostileText.h"
#include "tests/text/NumberModels.h"

namespace {

using namespace text_test;
using vapp_text::FindEngineeringSuffix;
using vapp_text::TEngineeringSuffix;

struct TSuffixRow {
    const char* text;
    int exponent;
    double factor;
    int length;
};

constexpr TSuffixRow cnSpiceRows[] = {
    {"%", -2, 1, 1},        {"a", -18, 1, 1}, {"f", -15, 1, 1}, {"ft", 0, 0.305, 2}, {"g", 9, 1, 1},
    {"k", 3, 1, 1},         {"m", -3, 1, 1},  {"meg", 6, 1, 3}, {"n", -9, 1, 1},     {"p", -12, 1, 1},
    {"mi", 0, 2.54e-05, 2}, {"t", 12, 1, 1},  {"u", -6, 1, 1},  {"x", 6, 1, 1},
};

constexpr TSuffixRow cnSiRows[] = {
    {"%", -2, 1, 1},  {"ft", 0, 0.305, 2}, {"meg", 6, 1, 3}, {"mi", 0, 2.54e-05, 2}, {"x", 6, 1, 1},
    {"Y", 24, 1, 1},  {"Z", 21, 1, 1},     {"E", 18, 1, 1},  {"e", 18, 1, 1},        {"P", 15, 1, 1},
    {"T", 12, 1, 1},  {"t", 12, 1, 1},     {"G", 9, 1, 1},   {"g", 9, 1, 1},         {"M", 6, 1, 1},
    {"K", 3, 1, 1},   {"k", 3, 1, 1},      {"m", -3, 1, 1},  {"U", -6, 1, 1},        {"u", -6, 1, 1},
    {"N", -9, 1, 1},  {"n", -9, 1, 1},     {"p", -12, 1, 1}, {"F", -15, 1, 1},       {"f", -15, 1, 1},
    {"a", -18, 1, 1}, {"z", -21, 1, 1},    {"y", -24, 1, 1},
};

/// All spellings of a text in small and capital letters.
std::vector<std::string> Spellings(const std::string& text) {
    std::vector<std::string> spellings;
    for (unsigned capitals = 0; capitals < 1U << text.size(); ++capitals) {
        std::string spelling = text;
        for (std::size_t i = 0; i < text.size(); ++i) {
            if (((capitals >> i) & 1U) != 0 && text[i] >= 'a')
                spelling[i] = static_cast<char>(text[i] - 0x20);
        }
        spellings.push_back(spelling);
    }
    return spellings;
}

template <typename Unit>
TEngineeringSuffix Find(const std::string& text, bool si) {
    std::basic_string<Unit> wide;
    for (const char c : text)
        wide += static_cast<Unit>(c);
    return FindEngineeringSuffix(ExactCopy<Unit>(wide).Get(), si);
}

void ExpectRow(const std::string& text, bool si, const TSuffixRow& row) {
    for (const TEngineeringSuffix& suffix :
         {Find<char>(text, si), Find<char16_t>(text, si), Find<wchar_t>(text, si)}) {
        EXPECT_EQ(suffix.length, row.length) << text << " si " << si;
        EXPECT_EQ(suffix.exponent, row.exponent) << text << " si " << si;
        EXPECT_EQ(suffix.factor, row.factor) << text << " si " << si;
    }
}

TEST(EngineeringSuffix, EverySpiceRowInEveryCase) {
    for (const TSuffixRow& row : cnSpiceRows) {
        for (const std::string& spelling : Spellings(row.text)) {
            ExpectRow(spelling, false, row);
            ExpectRow(spelling + "?", false, row);
        }
    }
}

TEST(EngineeringSuffix, EverySiRowAsItStandsAndTheFirstFiveInEveryCase) {
    for (const TSuffixRow& row : cnSiRows) {
        ExpectRow(row.text, true, row);
        ExpectRow(std::string(row.text) + "?", true, row);
    }
    for (std::size_t first = 0; first < 5; ++first) {
        for (const std::string& spelling : Spellings(cnSiRows[first].text))
            ExpectRow(spelling, true, cnSiRows[first]);
    }
}

TEST(EngineeringSuffix, EveryCharacterBehindEveryCharacter) {
    unsigned suffixes = 0;
    for (const bool si : {false, true}) {
        for (unsigned first = 1; first < 0x80; ++first) {
            for (unsigned second = 0; second < 0x80; ++second) {
                for (const char third : {'\0', 'g', 'G', 'l', 'k'}) {
                    const std::string text{static_cast<char>(first), static_cast<char>(second), third};
                    const std::string visible = text.c_str();
                    const auto [rule, length] = SuffixByRules(visible, si);
                    ExpectRow(visible, si, {"", rule.exponent, rule.factor, static_cast<int>(length)});
                    suffixes += static_cast<unsigned>(length > 0);
                }
            }
        }
    }
    // Letters of the SPICE reading in both cases and "%", then the SI letters, each with 5 times 128 behind.
    EXPECT_EQ(suffixes, (11U * 2 - 1 + 26U) * 640U);
}

TEST(EngineeringSuffix, NothingAboveAsciiIsASuffix) {
    for (const bool si : {false, true}) {
        for (unsigned code = 0x80; code <= 0xFFFF; ++code) {
            const char16_t text[] = {static_cast<char16_t>(code), 0};
            ASSERT_EQ(FindEngineeringSuffix(text, si).length, 0) << code;
            const char16_t behind[] = {u'm', static_cast<char16_t>(code), 0};
            ASSERT_EQ(FindEngineeringSuffix(behind, si).length, 1) << code;
        }
        for (unsigned code = 0x80; code <= 0xFF; ++code) {
            const char text[] = {static_cast<char>(code), 0};
            ASSERT_EQ(FindEngineeringSuffix(text, si).length, 0) << code;
        }
    }
}

}  // namespace
