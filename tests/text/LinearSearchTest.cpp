// Searches of texts of any length beside the standard library's, and how long the worst of them take.
#include "text/LinearSearch.h"

#include <gtest/gtest.h>

#include <string>

#include "tests/text/HostileText.h"
#include "text/PlainNoCaseSearch.h"

namespace {

using vapp_text::LinearSearch;

std::string FewLetters(std::mt19937& random, std::size_t longest, std::string_view alphabet) {
    std::string text;
    for (std::size_t left = text_test::UpTo(random, longest); left > 0; --left)
        text += alphabet[text_test::UpTo(random, alphabet.size() - 1)];
    return text;
}

std::string Small(std::string text) {
    for (char& byte : text)
        byte = vapp_text::FoldAsciiByte(byte);
    return text;
}

// A piece of the text, or something like it.
std::string Wanted(std::mt19937& random, const std::string& text, std::string_view alphabet) {
    if (text.empty() || text_test::UpTo(random, 2) == 0) return FewLetters(random, 40, alphabet);
    const std::size_t from = text_test::UpTo(random, text.size() - 1);
    return text.substr(from, text_test::UpTo(random, 40));
}

TEST(LinearSearch, FindsWhatTheStandardSearchFinds) {
    std::mt19937 random = text_test::SeededRandom();
    for (int round = 0; round < 20000; ++round) {
        const std::string_view alphabet = round % 2 == 0 ? "ab" : "a";
        const std::string text = FewLetters(random, 80, alphabet);
        const std::string wanted = Wanted(random, text, alphabet);
        const std::size_t from = text_test::UpTo(random, text.size() + 3);
        ASSERT_EQ(LinearSearch<char>(wanted).Find(text, from), text.find(wanted, from))
            << text << ' ' << wanted << ' ' << from;
        const std::u16string units(text.begin(), text.end());
        const std::u16string wantedUnits(wanted.begin(), wanted.end());
        ASSERT_EQ(LinearSearch<char16_t>(wantedUnits).Find(units, from), units.find(wantedUnits, from));
    }
}

TEST(LinearSearch, PlainSearchesWithoutCaseFindWhatFoldedTextsHold) {
    std::mt19937 random = text_test::SeededRandom();
    for (int round = 0; round < 20000; ++round) {
        const std::string_view alphabet = round % 2 == 0 ? "aAbB_@`[{" : "aA";
        const std::string text = FewLetters(random, 80, alphabet);
        const std::string wanted = Wanted(random, text, alphabet);
        const std::size_t from = text_test::UpTo(random, text.size() + 3);
        const std::size_t expected = Small(text).find(Small(wanted), from);
        const std::vector<char> alone(text.begin(), text.end());
        ASSERT_EQ(vapp_text::LongNoCaseSearch(text, wanted).Find(text, from), expected);
        if (wanted.empty() || wanted.size() > vapp_text::ShortNoCaseSearch::cnLongest) continue;
        ASSERT_EQ(vapp_text::ShortNoCaseSearch(wanted).Find({alone.data(), alone.size()}, from), expected)
            << text << ' ' << wanted << ' ' << from;
    }
}

// Forward over all hits, overlapping or not; then back, where it begins anew.
TEST(LinearSearch, GoesOnWhereItWas) {
    std::mt19937 random = text_test::SeededRandom();
    for (int round = 0; round < 5000; ++round) {
        const std::string text = FewLetters(random, 200, round % 2 == 0 ? "a" : "aaaaaaaab");
        const std::string wanted = Wanted(random, text, "ab");
        LinearSearch<char> search(wanted);
        for (const std::size_t step : {std::size_t{1}, text_test::UpTo(random, 40), std::size_t{0}}) {
            for (std::size_t from = 0, calls = 0; from <= text.size() && calls < 100; ++calls) {
                const std::size_t hit = search.Find(text, from);
                ASSERT_EQ(hit, text.find(wanted, from)) << text << ' ' << wanted << ' ' << from;
                from = hit == std::string::npos ? from + 1 : hit + step;
            }
        }
    }
}

// Each place tried anew would take a hundred thousand million steps.
TEST(LinearSearch, TextsThatAreAlikeTakeNoLonger) {
    const std::string text(1000000, 'a');
    const std::string wanted = std::string(300000, 'a') + 'b';
    EXPECT_EQ(LinearSearch<char>(wanted).Find(text, 0), std::string::npos);
    EXPECT_EQ(vapp_text::LongNoCaseSearch(text, wanted).Find(text, 0), std::string::npos);
    LinearSearch<char> overlapping(std::string_view(text).substr(0, 500000));
    for (std::size_t place = 0; place <= 500000; ++place)
        ASSERT_EQ(overlapping.Find(text, place), place);
}

}  // namespace
