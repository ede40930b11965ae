// Words of eight bytes, each test of them beside the same test of each byte.
#include "text/Words.h"

#include <gtest/gtest.h>

#include "tests/text/HostileText.h"

namespace {

using vapp_text::cnWordBytes;
using vapp_text::LoadWord;
using vapp_text::Word;

std::string EightBytes(std::mt19937& random) {
    // Neighbours of the borders of each test, side by side, where a carry would show.
    static constexpr std::string_view borders("\0\x01\x7f\x80\x81\xff@AZ[`az{", 14);
    std::string bytes;
    while (bytes.size() < cnWordBytes)
        bytes += text_test::UpTo(random, 3) == 0 ? static_cast<char>(text_test::UpTo(random, 255))
                                                 : borders[text_test::UpTo(random, borders.size() - 1)];
    return bytes;
}

template <typename Test>
Word Marks(const std::string& bytes, const Test& test) {
    Word marks = 0;
    for (std::size_t at = 0; at < bytes.size(); ++at) {
        if (test(bytes[at])) marks |= Word{0x80} << (8U * at);
    }
    return marks;
}

TEST(Words, TestsOfEightBytesAreThoseOfEach) {
    std::mt19937 random = text_test::SeededRandom();
    for (int round = 0; round < 50000; ++round) {
        const std::string bytes = EightBytes(random);
        const Word word = LoadWord(bytes.data());
        ASSERT_EQ(vapp_text::ZeroBytes(word), Marks(bytes, [](char c) { return c == 0; }))
            << text_test::Shown(bytes);
        ASSERT_EQ(vapp_text::BytesBetween(word, 'A', 'Z'),
                  Marks(bytes, [](char c) { return c >= 'A' && c <= 'Z'; }));
        ASSERT_EQ(vapp_text::BytesBetween(word, '\0', '\x7f'), Marks(bytes, [](char c) { return c >= 0; }));
        std::string lower(cnWordBytes, '?');
        std::string upper(cnWordBytes, '?');
        vapp_text::StoreWord(lower.data(), vapp_text::LowerWord(word));
        vapp_text::StoreWord(upper.data(), vapp_text::UpperWord(word));
        for (std::size_t at = 0; at < cnWordBytes; ++at) {
            const char c = bytes[at];
            ASSERT_EQ(lower[at], c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c);
            ASSERT_EQ(upper[at], c >= 'a' && c <= 'z' ? static_cast<char>(c - 32) : c);
        }
    }
    EXPECT_EQ(vapp_text::FirstMarked(0x80), 0U);
    EXPECT_EQ(vapp_text::FirstMarked(Word{0x80} << 56U), 7U);
}

// Under AddressSanitizer no byte beside the part is touched.
TEST(Words, PartsAreReadAndWrittenAlone) {
    const std::string bytes =
        "\x81"
        "b\xC3"
        "defg";
    for (std::size_t size = 0; size < cnWordBytes; ++size) {
        const std::string part = bytes.substr(bytes.size() - size);
        const std::vector<char> alone(part.begin(), part.end());
        std::string padded = part;
        padded.resize(cnWordBytes, '\0');
        EXPECT_EQ(vapp_text::LoadPart(alone.data(), size), LoadWord(padded.data())) << size;
        std::vector<char> written(size, '?');
        vapp_text::StorePart(written.data(), size, LoadWord(padded.data()));
        EXPECT_EQ(written, alone) << size;
    }
}

TEST(Words, BytesAreCopiedAloneAndMayOverlap) {
    std::mt19937 random = text_test::SeededRandom();
    for (int round = 0; round < 20000; ++round) {
        std::string bytes;
        for (int at = 0; at < 90; ++at)
            bytes += static_cast<char>(text_test::UpTo(random, 255));
        const std::size_t size = text_test::UpTo(random, 40);
        const std::size_t from = text_test::UpTo(random, 50);
        const std::size_t to = text_test::UpTo(random, 50);
        std::string expected = bytes;
        expected.replace(to, size, bytes.substr(from, size));
        const std::vector<char> alone(bytes.begin() + static_cast<std::ptrdiff_t>(from),
                                      bytes.begin() + static_cast<std::ptrdiff_t>(from + size));
        std::vector<char> copied(size, '?');
        vapp_text::CopyBytes(copied.data(), alone.data(), size);
        ASSERT_EQ(copied, alone);
        vapp_text::CopyBytes(bytes.data() + to, bytes.data() + from, size);
        ASSERT_EQ(bytes, expected) << size << ' ' << from << ' ' << to;
    }
}

}  // namespace
