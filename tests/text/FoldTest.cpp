/// @file
/// The folding of every one of the 65536 characters, and that remembering them is no matter of who asks
/// first.
#include "text/Fold.h"

#include <gtest/gtest.h>

#include <thread>
#include <vector>

namespace {

using vapp_text::FoldChar;

TEST(Fold, AsciiCapitalsBecomeSmallAndAllOtherAsciiStays) {
    for (char16_t c = 0; c < 0x80; ++c) {
        const bool capital = c >= u'A' && c <= u'Z';
        EXPECT_EQ(FoldChar(c), capital ? c + 32 : c) << static_cast<int>(c);
    }
}

TEST(Fold, EveryHigherCharacterIsThePlatformsLowerCase) {
    for (unsigned c = 0x80; c <= 0xFFFF; ++c) {
        const auto unit = static_cast<char16_t>(c);
        ASSERT_EQ(FoldChar(unit), vapp_platform::LowerCaseChar(unit)) << c;
        ASSERT_EQ(FoldChar(unit), vapp_platform::LowerCaseChar(unit)) << c << " asked again";
    }
}

TEST(Fold, OneCharacterBecomesOneCharacter) {
    const struct {
        char16_t from;
        char16_t to;
    } rows[] = {
        {0x00C9, 0x00E9},  // É
        {0x00DF, 0x00DF},  // ß is no "ss"
        {0x0080, 0x0080},  // the first that the platform is asked for
        {0x0410, 0x0430},  // А of the Cyrillic script
        {0x0391, 0x03B1},  // Alpha
        {0xFF21, 0xFF41},  // full-width A
        {0x023A, 0x2C65},  // Ⱥ takes a byte more when it is small
        {0x4E2D, 0x4E2D},  // no case
        {0xD83D, 0xD83D},  // half a surrogate pair
        {0xFFFF, 0xFFFF},
    };
    for (const auto& row : rows)
        EXPECT_EQ(FoldChar(row.from), row.to) << static_cast<int>(row.from);
}

TEST(Fold, ThreadsThatAskAtOnceGetTheSameAnswers) {
    std::vector<std::vector<char16_t>> answers(4, std::vector<char16_t>(0x10000));
    std::vector<std::thread> threads;
    threads.reserve(answers.size());
    for (auto& mine : answers) {
        threads.emplace_back([&mine] {
            for (unsigned c = 0; c <= 0xFFFF; ++c)
                mine[c] = FoldChar(static_cast<char16_t>(c));
        });
    }
    for (auto& thread : threads)
        thread.join();
    for (const auto& mine : answers)
        EXPECT_EQ(mine, answers.front());
}

}  // namespace
