// Bytes replaced eight at a time, beside a plain loop: every pair of bytes, every length and alignment.
#include "text/ReplaceBytes.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

#include "tests/text/HostileText.h"

namespace {

void ExpectAsALoop(std::string bytes, std::size_t from, char oldByte, char newByte) {
    std::string expected = bytes;
    const auto replaced =
        std::count(expected.begin() + static_cast<std::ptrdiff_t>(from), expected.end(), oldByte);
    std::replace(expected.begin() + static_cast<std::ptrdiff_t>(from), expected.end(), oldByte, newByte);
    std::string copied(bytes.size() - from, 0);
    ASSERT_EQ(vapp_text::ReplaceBytes(bytes.data() + from, copied.data(), copied.size(), oldByte, newByte),
              static_cast<std::size_t>(replaced));
    ASSERT_EQ(copied, expected.substr(from));
    ASSERT_EQ(
        vapp_text::ReplaceBytes(bytes.data() + from, bytes.data() + from, copied.size(), oldByte, newByte),
        static_cast<std::size_t>(replaced));
    ASSERT_EQ(bytes, expected) << static_cast<int>(oldByte) << " to " << static_cast<int>(newByte);
}

TEST(ReplaceBytes, EveryByteBecomesEveryOtherAndItsNeighboursStay) {
    for (int oldByte = 0; oldByte < 256; ++oldByte) {
        std::string bytes;
        for (const int near : {0, 1, -1, 0, 0x80, 0x7F, -0x80, 0, 0, 0})
            bytes += static_cast<char>(oldByte + near);
        for (int newByte = 0; newByte < 256; newByte += 5)
            ExpectAsALoop(bytes, 0, static_cast<char>(oldByte), static_cast<char>(newByte));
    }
}

TEST(ReplaceBytes, RandomBytesAgreeWithALoop) {
    std::mt19937 random = text_test::SeededRandom();
    for (int round = 0; round < 20000; ++round) {
        std::string bytes;
        for (std::size_t left = text_test::UpTo(random, 40); left > 0; --left)
            bytes += "aab_\x80\xDF\xFF"[text_test::UpTo(random, 6)];
        const char oldByte = "a_\x80z"[text_test::UpTo(random, 3)];
        const char newByte = "b_\xFF"[text_test::UpTo(random, 2)];
        ExpectAsALoop(bytes, text_test::UpTo(random, bytes.size()), oldByte, newByte);
    }
}

}  // namespace
