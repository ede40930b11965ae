#include "celllist/NameSearch.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <random>
#include <string>
#include <string_view>

#include "tests/text/HostileText.h"
#include "text/Search.h"

namespace {

using namespace vapp_library_browser;
using TAnswers = std::vector<NameAnswer>;
constexpr auto cnYes = NameAnswer::Yes;
constexpr auto cnNo = NameAnswer::No;
constexpr auto cnUnknown = NameAnswer::Unknown;

NameTable TableOf(const std::vector<std::string>& names) {
    NameTable table;
    for (const std::string& name : names)
        table.Intern(name);
    return table;
}

TEST(NameSearchTest, AnswersForEachName) {
    const NameTable table = TableOf({"inv", "nand2", "INVx", ""});
    EXPECT_EQ(SearchNames(table, "inv", false), (TAnswers{cnYes, cnNo, cnYes, cnNo}));
    EXPECT_EQ(SearchNames(table, "INV", false), (TAnswers{cnYes, cnNo, cnYes, cnNo}));
    EXPECT_EQ(SearchNames(table, "inv", true), (TAnswers{cnYes, cnNo, cnNo, cnNo}));
    EXPECT_EQ(SearchNames(table, "n", true), (TAnswers{cnYes, cnYes, cnNo, cnNo}));
    EXPECT_EQ(SearchNames(table, "2", false), (TAnswers{cnNo, cnYes, cnNo, cnNo}));
}

TEST(NameSearchTest, FindsNothingAcrossTheEndOfAName) {
    const NameTable table = TableOf({"ab", "cd"});
    EXPECT_EQ(SearchNames(table, "bc", false), (TAnswers{cnNo, cnNo}));
}

TEST(NameSearchTest, FoldsLettersAlone) {
    const NameTable table = TableOf({"a[b", "a{b", "a@b", "a`b"});
    EXPECT_EQ(SearchNames(table, "[", false), (TAnswers{cnYes, cnNo, cnNo, cnNo}));
    EXPECT_EQ(SearchNames(table, "@", false), (TAnswers{cnNo, cnNo, cnYes, cnNo}));
}

TEST(NameSearchTest, LeavesWhatIsNotAsciiToOthers) {
    const NameTable table = TableOf({"abc",
                                     "\xC3\xA4"
                                     "bc",
                                     "x"});
    EXPECT_EQ(SearchNames(table, "b", false), (TAnswers{cnYes, cnUnknown, cnNo}));
    EXPECT_EQ(SearchNames(table, "b", true), (TAnswers{cnYes, cnUnknown, cnNo}));
    EXPECT_EQ(SearchNames(table, "\xC3\xA4", false), (TAnswers{cnUnknown, cnUnknown, cnUnknown}));
    EXPECT_EQ(SearchNames(table, "", false), (TAnswers{cnUnknown, cnUnknown, cnUnknown}));
    EXPECT_EQ(SearchNames(NameTable(), "x", false), TAnswers());
}

bool IsAscii(std::string_view text) {
    return std::all_of(text.begin(), text.end(),
                       [](char byte) { return static_cast<unsigned char>(byte) < 0x80; });
}

bool HoldsText(const char* name, const std::string& text, bool caseSensitive) {
    return caseSensitive ? std::strstr(name, text.c_str()) != nullptr
                         : vapp_text::FindTextNoCaseU(name, text.c_str()) >= 0;
}

// Names are searched many at a time, some kilobytes in a block: here are names on both sides of the ends of
// blocks, one that is longer than a block, and texts that are longer than most names.
TEST(NameSearchTest, AgreesAcrossTheEndsOfBlocks) {
    std::mt19937 random = text_test::SeededRandom();
    std::vector<std::string> names;
    for (int number = 0; number < 4000; ++number) {
        std::string name = "n" + std::to_string(number);
        for (std::size_t left = random() % 24; left > 0; --left)
            name += "aAbB_["[random() % 6];
        names.push_back(name);
    }
    std::string huge(20'000, 'a');
    huge[19'990] = 'Q';
    names.insert(names.begin() + 1000, huge);
    names.insert(names.begin() + 3000, std::string(17'000, 'B') + "zQz");
    const NameTable table = TableOf(names);
    for (const std::string& text :
         {std::string("q"), std::string("zqz"), std::string("aB_"), std::string("n39"), std::string("3999"),
          std::string("n0"), std::string(30, 'a'), std::string(16'500, 'b'), std::string("none of them")}) {
        for (const bool caseSensitive : {false, true}) {
            const TAnswers answers = SearchNames(table, text, caseSensitive);
            ASSERT_EQ(answers.size(), table.Count());
            for (std::uint32_t number = 0; number < table.Count(); ++number) {
                ASSERT_NE(answers[number], cnUnknown) << number;
                ASSERT_EQ(answers[number] == cnYes, HoldsText(table.At(number).data(), text, caseSensitive))
                    << number << " / " << text.substr(0, 40);
            }
        }
    }
}

// Beside the search of one name at a time, over names and texts of few letters, so that there are many hits.
TEST(NameSearchTest, AgreesWithTheSearchOfEachName) {
    std::mt19937 random = text_test::SeededRandom();
    const auto word = [&random](std::size_t longest) {
        static constexpr const char* csLetters[] = {"a", "A", "b", "B", "_", "0", "[", "\xC3\xA4"};
        std::string text;
        for (std::size_t left = random() % (longest + 1); left > 0; --left)
            text += csLetters[random() % 40 < 39 ? random() % 7 : 7];
        return text;
    };
    for (int round = 0; round < 300; ++round) {
        std::vector<std::string> names(random() % 60);
        for (std::string& name : names)
            name = word(9);
        const NameTable table = TableOf(names);
        const std::string text = word(3);
        for (const bool caseSensitive : {false, true}) {
            const TAnswers answers = SearchNames(table, text, caseSensitive);
            ASSERT_EQ(answers.size(), table.Count());
            for (std::uint32_t number = 0; number < table.Count(); ++number) {
                const char* name = table.At(number).data();
                const bool isOurs = IsAscii(name) && IsAscii(text) && !text.empty();
                ASSERT_EQ(answers[number] != cnUnknown, isOurs) << name << " / " << text;
                if (isOurs) {
                    ASSERT_EQ(answers[number] == cnYes, HoldsText(name, text, caseSensitive))
                        << name << " / " << text;
                }
            }
        }
    }
}

}  // namespace
