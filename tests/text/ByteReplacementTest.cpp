// Bytes replaced sixteen and eight at a time, beside a plain loop: every pair of bytes, every length and
// alignment.
#include "text/ByteReplacement.h"

#include <gtest/gtest.h>

#include <random>
#include <string>

#include "tests/text/HostileText.h"

namespace {

using vapp_text::ByteReplacement;

struct TCounted {
    std::string bytes;
    std::size_t replaced = 0;
};

bool IsReplaced(char byte, char oldByte, bool anyCase) {
    const auto small = [](char letter) {
        return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
    };
    return anyCase ? small(byte) == small(oldByte) : byte == oldByte;
}

TCounted ReplacedByLoop(std::string bytes, std::size_t from, char oldByte, char newByte, bool anyCase) {
    std::size_t replaced = 0;
    for (std::size_t at = from; at < bytes.size(); ++at) {
        if (!IsReplaced(bytes[at], oldByte, anyCase)) continue;
        bytes[at] = newByte;
        ++replaced;
    }
    return {std::move(bytes), replaced};
}

void ExpectAsALoop(std::string bytes, std::size_t from, char oldByte, char newByte) {
    for (const bool anyCase : {false, true}) {
        const TCounted expected = ReplacedByLoop(bytes, from, oldByte, newByte, anyCase);
        const ByteReplacement replacement(oldByte, newByte, anyCase);
        std::string copied(bytes.size() - from, 0);
        ASSERT_EQ(replacement.Copy(bytes.data() + from, copied.data(), copied.size()), expected.replaced);
        ASSERT_EQ(copied, expected.bytes.substr(from));
        std::string changed = bytes;
        ASSERT_EQ(replacement.Copy(changed.data() + from, changed.data() + from, copied.size()),
                  expected.replaced);
        ASSERT_EQ(changed, expected.bytes) << static_cast<int>(oldByte) << " to " << static_cast<int>(newByte)
                                           << (anyCase ? " in any case" : "");
    }
}

TEST(ByteReplacement, EveryByteBecomesEveryOtherAndItsNeighboursStay) {
    for (int oldByte = 0; oldByte < 256; ++oldByte) {
        std::string bytes;
        for (const int near : {0, 1, -1, 0, 0x80, 0x7F, -0x80, 0, 0, 0, 0x20, -0x20, 0x40, -0x40, 0x60, 0xA0})
            bytes += static_cast<char>(oldByte + near);
        bytes += bytes.substr(0, 13);
        for (int newByte = 0; newByte < 256; newByte += 5)
            ExpectAsALoop(bytes, 0, static_cast<char>(oldByte), static_cast<char>(newByte));
    }
}

TEST(ByteReplacement, RandomBytesAgreeWithALoop) {
    std::mt19937 random = text_test::SeededRandom();
    for (int round = 0; round < 20000; ++round) {
        std::string bytes;
        for (std::size_t left = text_test::UpTo(random, 60); left > 0; --left)
            bytes += "aabA_\x80\xDF\xFF"[text_test::UpTo(random, 7)];
        const char oldByte = "aA_\x80z"[text_test::UpTo(random, 4)];
        const char newByte = "bA_\xFF"[text_test::UpTo(random, 3)];
        ExpectAsALoop(bytes, text_test::UpTo(random, bytes.size()), oldByte, newByte);
    }
}

// The sixteen counters have a byte each.
TEST(ByteReplacement, CountsMoreHitsThanAByteDoes) {
    for (const std::size_t size : {4079U, 4080U, 4081U, 4096U, 9000U})
        ExpectAsALoop(std::string(size, 'x'), 0, 'x', 'X');
}

}  // namespace
