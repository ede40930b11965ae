#include "celllist/FilterHistory.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <random>
#include <string>
#include <vector>

#include "tests/text/HostileText.h"

namespace {

using namespace vapp_library_browser;
using TEntries = std::vector<std::string>;

CStringU Utf8(const std::string& text) {
    return {text.c_str(), TextEncoding::Utf8Auto};
}

TEntries EntriesOf(const FilterHistory& history) {
    TEntries entries;
    for (const CStringU& entry : history.GetEntries())
        entries.emplace_back(entry.Payload());
    return entries;
}

TEntries AfterTexts(std::initializer_list<const char*> texts) {
    FilterHistory history;
    for (const char* text : texts)
        history.Note(Utf8(text));
    return EntriesOf(history);
}

TEST(FilterHistoryTest, AWordTypedLetterByLetterIsOneEntry) {
    EXPECT_EQ(AfterTexts({"a", "ab", "abc"}), TEntries{"abc"});
}

TEST(FilterHistoryTest, ADeletedLastLetterLeavesTheShorterWordAlone) {
    EXPECT_EQ(AfterTexts({"a", "ab", "abc", "ab"}), TEntries{"ab"});
}

TEST(FilterHistoryTest, AWordOfTheSameLengthLeavesTheOtherOne) {
    EXPECT_EQ(AfterTexts({"abc", "abx"}), (TEntries{"abx", "abc"}));
}

TEST(FilterHistoryTest, AStepOfTwoLettersLeavesTheOtherWord) {
    EXPECT_EQ(AfterTexts({"ab", "abcd"}), (TEntries{"abcd", "ab"}));
    EXPECT_EQ(AfterTexts({"abcd", "ab"}), (TEntries{"ab", "abcd"}));
}

TEST(FilterHistoryTest, ALetterInFrontLeavesTheOtherWord) {
    EXPECT_EQ(AfterTexts({"bc", "abc"}), (TEntries{"abc", "bc"}));
}

TEST(FilterHistoryTest, AWordInOtherCaseReplacesTheOldOneAndComesToTheFront) {
    EXPECT_EQ(AfterTexts({"abc", "other", "ABC"}), (TEntries{"ABC", "other"}));
}

TEST(FilterHistoryTest, AStepInOtherCaseIsAStep) {
    EXPECT_EQ(AfterTexts({"AB", "abc"}), TEntries{"abc"});
}

TEST(FilterHistoryTest, AStepMayLeadToAWordThatIsThereAlready) {
    EXPECT_EQ(AfterTexts({"abc", "x", "ab", "abc"}), (TEntries{"abc", "x"}));
}

TEST(FilterHistoryTest, AnEmptyTextChangesNothing) {
    EXPECT_EQ(AfterTexts({""}), TEntries());
    EXPECT_EQ(AfterTexts({"a", ""}), TEntries{"a"}) << "although the lengths differ by one";
    EXPECT_EQ(AfterTexts({"a", "", "ab"}), TEntries{"ab"});
}

TEST(FilterHistoryTest, CountsCharactersAndNotBytes) {
    EXPECT_EQ(AfterTexts({"\xC3\xA4", "\xC3\xA4\xC3\xB6"}), TEntries{"\xC3\xA4\xC3\xB6"});
    EXPECT_EQ(AfterTexts({"a\xE2\x82\xAC", "a"}), TEntries{"a"});
    EXPECT_EQ(AfterTexts({"\xC3\x84", "\xC3\xA4x"}), TEntries{"\xC3\xA4x"}) << "in other case";
    // The first half of a pair is a character too.
    EXPECT_EQ(AfterTexts({"a", "a\xED\xA0\xBD\xED\xB8\x80"}).size(), 2u);
}

TEST(FilterHistoryTest, TheTwentyFirstEntryDropsTheOldest) {
    FilterHistory history;
    for (int number = 10; number < 31; ++number)
        history.Note(("text" + std::to_string(number)).c_str());
    const TEntries entries = EntriesOf(history);
    ASSERT_EQ(entries.size(), 20u);
    EXPECT_EQ(entries.front(), "text30");
    EXPECT_EQ(entries.back(), "text11");
}

TEST(FilterHistoryTest, IsKeptAsLines) {
    FilterHistory history;
    history.Note("one two");
    history.Note(Utf8("M\xC3\xBCller\\{x}"));
    EXPECT_STREQ(history.ToText().Payload(), "M\xC3\xBCller\\{x}\none two\n");
    FilterHistory read;
    read.Note("gone");
    read.Read(history.ToText());
    EXPECT_EQ(EntriesOf(read), EntriesOf(history));
}

TEST(FilterHistoryTest, ReadsToTheFirstEmptyLine) {
    const std::pair<const char*, TEntries> cases[] = {{"", {}},
                                                      {"\n", {}},
                                                      {"a", {"a"}},
                                                      {"a\n", {"a"}},
                                                      {"a\nb", {"a", "b"}},
                                                      {"\na\n", {}},
                                                      {"a\n\nb\n", {"a"}},
                                                      {"a\n\n", {"a"}},
                                                      {" \nb\n", {" ", "b"}},
                                                      {"a\r\nb", {"a\r", "b"}}};
    for (const auto& [text, entries] : cases) {
        SCOPED_TRACE(text);
        FilterHistory history;
        history.Read(text);
        EXPECT_EQ(EntriesOf(history), entries);
    }
}

TEST(FilterHistoryTest, ReadsNoMoreThanItKeeps) {
    CStringU text;
    for (int number = 0; number < 50; ++number)
        text += CStringU((std::to_string(number) + "\n").c_str());
    FilterHistory history;
    history.Read(text);
    ASSERT_EQ(history.GetEntries().size(), FilterHistory::cnMaxEntries);
    EXPECT_EQ(history.GetEntries().back(), "19");
}

// Whatever is typed: never more than it may hold, no entry twice, the last text in front, and what is kept
// comes back.
TEST(FilterHistoryTest, HoldsItsPromisesOverRandomTyping) {
    std::mt19937 random = text_test::SeededRandom();
    FilterHistory history;
    std::string typed;
    const char* const letters[] = {"a", "B", "b", "_", "7", "\xC3\xA4", "\xC3\x84", "\xF0\x9F\x98\x80"};
    for (int step = 0; step < 5000; ++step) {
        if (random() % 4 == 0) typed.clear();
        typed += letters[random() % std::size(letters)];
        const CStringU text = Utf8(typed);
        history.Note(text);
        const auto& entries = history.GetEntries();
        ASSERT_LE(entries.size(), FilterHistory::cnMaxEntries);
        ASSERT_EQ(entries.front(), text);
        for (std::size_t one = 0; one < entries.size(); ++one) {
            for (std::size_t other = one + 1; other < entries.size(); ++other)
                ASSERT_FALSE(entries[one].EqualsNoCase(entries[other]));
        }
        FilterHistory read;
        read.Read(history.ToText());
        ASSERT_EQ(read.GetEntries(), entries);
    }
}

}  // namespace
