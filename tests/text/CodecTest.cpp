// How characters become bytes and come back, the oddities of the decoding rule included.

#include "text/Codec.h"

#include <gtest/gtest.h>

#include <array>
#include <memory>
#include <string>

namespace {

using vapp_text::DecodeChar;

struct TDecoded {
    char16_t unit;
    std::int64_t bytes;
    bool operator==(const TDecoded&) const = default;
};

std::ostream& operator<<(std::ostream& out, const TDecoded& decoded) {
    return out << std::hex << static_cast<unsigned>(decoded.unit) << " in " << decoded.bytes << " bytes";
}

// Decodes from a heap block that ends right behind the NUL, so that the sanitizer sees any further read.
TDecoded Decode(const std::string& bytes) {
    const auto block = std::make_unique<char[]>(bytes.size() + 1);
    bytes.copy(block.get(), bytes.size());
    std::int64_t next = -1;
    const char16_t unit = DecodeChar(block.get(), 0, next);
    return {unit, next};
}

TEST(Codec, EveryUnitReturnsFromItsBytes) {
    for (unsigned value = 1; value <= 0xFFFF; ++value) {
        const auto unit = static_cast<char16_t>(value);
        std::array<char, 4> bytes{};
        const int size = vapp_text::EncodeChar(unit, bytes.data());
        ASSERT_EQ(size, vapp_text::EncodedSize(unit));
        std::int64_t next = 0;
        ASSERT_EQ(DecodeChar(bytes.data(), 0, next), unit);
        ASSERT_EQ(next, size);
        ASSERT_EQ(vapp_text::StepForward(bytes.data(), 0), size);
        ASSERT_EQ(vapp_text::StepBackward(bytes.data(), size), 0);
    }
}

TEST(Codec, EncodesByTheThreeRanges) {
    const auto encoded = [](char16_t unit) {
        std::string bytes(3, '\0');
        bytes.resize(static_cast<std::size_t>(vapp_text::EncodeChar(unit, bytes.data())));
        return bytes;
    };
    EXPECT_EQ(encoded(0x7F), "\x7F");
    EXPECT_EQ(encoded(0x80), "\xC2\x80");
    EXPECT_EQ(encoded(0x7FF), "\xDF\xBF");
    EXPECT_EQ(encoded(0x800), "\xE0\xA0\x80");
    EXPECT_EQ(encoded(0xFFFF), "\xEF\xBF\xBF");
    EXPECT_EQ(encoded(0xD83D), "\xED\xA0\xBD");
}

TEST(Codec, BitTestsInTheirOrderDecideAboutEveryLeadByte) {
    for (unsigned lead = 1; lead <= 0xFF; ++lead) {
        const std::string bytes{static_cast<char>(lead), '\x91', '\x92', '\x93', 'x'};
        TDecoded expected{};
        if (lead < 0x80U) {
            expected = {static_cast<char16_t>(lead), 1};
        } else if ((lead & 0x20U) == 0) {
            expected = {static_cast<char16_t>(((lead & 0x1FU) << 6U) | 0x11U), 2};
        } else if ((lead & 0x10U) == 0) {
            expected = {static_cast<char16_t>(((lead & 0x0FU) << 12U) | (0x11U << 6U) | 0x12U), 3};
        } else if ((lead & 0x08U) == 0) {
            expected = {static_cast<char16_t>((0x01U << 12U) | (0x12U << 6U) | 0x13U), 4};
        } else {
            expected = {u'?', 1};
        }
        EXPECT_EQ(Decode(bytes), expected) << "lead byte " << lead;
    }
}

TEST(Codec, FourByteSequenceKeepsItsLowBitsOnly) {
    EXPECT_EQ(Decode("\xF0\x9F\x98\x80"), (TDecoded{0xF600, 4}));
}

TEST(Codec, HopelessLeadByteIsAQuestionMark) {
    EXPECT_EQ(Decode("\xFFz"), (TDecoded{u'?', 1}));
}

TEST(Codec, StrayContinuationByteSwallowsTheNextByte) {
    EXPECT_EQ(Decode("\x85\x61z"), (TDecoded{(0x05U << 6U) | 0x21U, 2}));
}

TEST(Codec, ContinuationBytesAreNotValidated) {
    EXPECT_EQ(Decode("\xC3zz"), (TDecoded{0xFA, 2}));
}

TEST(Codec, SequenceCutOffByTheEndReadsNothingBehindTheTerminator) {
    EXPECT_EQ(Decode("\xC3"), (TDecoded{0xC0, 1}));
    EXPECT_EQ(Decode("\xE4"), (TDecoded{0x4000, 1}));
    EXPECT_EQ(Decode("\xE4\xB8"), (TDecoded{0x4E00, 2}));
    EXPECT_EQ(Decode("\xF0"), (TDecoded{0, 1}));
    EXPECT_EQ(Decode("\xF0\x9F"), (TDecoded{0xF000, 2}));
    EXPECT_EQ(Decode("\xF0\x9F\x98"), (TDecoded{0xF600, 3}));
}

TEST(Codec, StepsGoByTheLookOfTheBytes) {
    const char* const text = "a\xE4\xB8\xAD\x80\x80\x80z";
    EXPECT_EQ(vapp_text::StepForward(text, 1), 7);
    EXPECT_EQ(vapp_text::StepBackward(text, 7), 3) << "at most four bytes back";
    EXPECT_EQ(vapp_text::StepForward(text, 8), 8) << "the NUL stops it";
    EXPECT_EQ(vapp_text::StepBackward(text, 0), 0);
    EXPECT_EQ(vapp_text::StepBackward("\x80\x80", 2), 0);
}

TEST(Codec, PeekGivesZeroAtTheTerminator) {
    EXPECT_EQ(vapp_text::PeekChar(""), 0);
    EXPECT_EQ(vapp_text::PeekChar("a"), u'a');
}

}  // namespace
