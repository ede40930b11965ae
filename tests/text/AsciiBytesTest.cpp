// The quick scans of bytes, beside plain loops: at every length, at every place of a byte that tells.
#include "text/AsciiBytes.h"

#include <gtest/gtest.h>

#include <string>

#include "tests/text/HostileText.h"
#include "text/Codec.h"

namespace {

using vapp_text::TextForm;

TEST(AsciiBytes, FindsOneHighByteWhereverItStands) {
    for (std::size_t length = 0; length < 40; ++length) {
        std::string bytes(length, '\x7f');
        EXPECT_TRUE(vapp_text::AllAscii(bytes));
        EXPECT_TRUE(vapp_text::IsPlain(bytes));
        for (std::size_t at = 0; at < length; ++at) {
            bytes[at] = '\x80';
            EXPECT_FALSE(vapp_text::AllAscii(text_test::ExactBytes(bytes).Get())) << length << ' ' << at;
            EXPECT_FALSE(vapp_text::IsPlain(text_test::ExactBytes(bytes).Get())) << length << ' ' << at;
            bytes[at] = '\0';
            EXPECT_TRUE(vapp_text::AllAscii(bytes)) << length << ' ' << at;
            EXPECT_FALSE(vapp_text::IsPlain(bytes)) << length << ' ' << at;
            bytes[at] = '\x01';
        }
    }
}

TEST(AsciiBytes, LooksAtTheGivenBytesAlone) {
    const std::string bytes = "abcdefghij\xC3\xA9";
    EXPECT_TRUE(vapp_text::AllAscii(std::string_view(bytes).substr(0, 10)));
    EXPECT_FALSE(vapp_text::AllAscii(std::string_view(bytes).substr(0, 11)));
}

TEST(AsciiBytes, TheScanEndsAtTheFirstNulAndSeesWhatStandsBeforeIt) {
    std::mt19937 random = text_test::SeededRandom();
    for (int round = 0; round < 20000; ++round) {
        std::string bytes;
        const std::size_t kinds = text_test::UpTo(random, 1) == 0 ? 8 : 10;
        for (std::size_t left = text_test::UpTo(random, 30); left > 0; --left)
            bytes += "abcdefg\x01\0\x80"[text_test::UpTo(random, kinds - 1)];
        const std::vector<char> alone(bytes.begin(), bytes.end());
        const std::string head = bytes.substr(0, bytes.find('\0'));
        const vapp_text::TScanned scanned = vapp_text::ScanToNul({alone.data(), alone.size()});
        ASSERT_EQ(scanned.size, head.size()) << text_test::Shown(bytes);
        ASSERT_EQ(scanned.nonAscii, head.find('\x80') != std::string::npos) << text_test::Shown(bytes);
    }
}

// The rule by decoding: a payload has a form just where encoding what it decodes to gives it again.
TextForm FormByDecoding(const std::string& payload) {
    std::string again;
    bool nonAscii = false;
    for (const char* walk = payload.c_str(); *walk != '\0';) {
        const char16_t unit = vapp_text::DecodeNext(walk);
        std::array<char, vapp_text::cnMaxEncodedBytes> bytes{};
        again.append(bytes.data(), static_cast<std::size_t>(vapp_text::EncodeChar(unit, bytes.data())));
        nonAscii = nonAscii || unit >= 0x80;
        if (unit == 0) return TextForm::Other;
    }
    if (again != payload) return TextForm::Other;
    return nonAscii ? TextForm::Encoded : TextForm::Plain;
}

void ExpectForm(const std::string& payload) {
    const std::vector<char> alone(payload.begin(), payload.end());
    ASSERT_EQ(vapp_text::FormOf({alone.data(), alone.size()}), FormByDecoding(payload))
        << text_test::Shown(payload);
}

TEST(AsciiBytes, EveryCharacterHasItsFormAtEveryPlaceOfAWord) {
    for (unsigned unit = 1; unit <= 0xFFFF; unit += unit < 0x900 ? 1 : 61) {
        const std::string character = text_test::Bytes(std::u16string(1, static_cast<char16_t>(unit)));
        const std::string front(unit % 9, 'a');
        ExpectForm(front + character);
        ExpectForm(front + character + "b");
        ExpectForm(front + character.substr(0, character.size() - 1));
        ExpectForm(front + character + "\x80");
    }
}

TEST(AsciiBytes, EveryLeadByteBesideEveryOtherByte) {
    for (unsigned lead = 0x80; lead <= 0xFF; ++lead) {
        for (unsigned second = 0; second <= 0xFF; ++second) {
            const std::string pair{static_cast<char>(lead), static_cast<char>(second)};
            for (const std::size_t front : {0U, 5U, 6U, 7U}) {
                const std::string text = std::string(front, 'a') + pair;
                ExpectForm(text);
                ExpectForm(text + "\x80");
                ExpectForm(text + "\xBFz");
            }
        }
    }
}

TEST(AsciiBytes, RandomBytesHaveTheFormThatDecodingFinds) {
    std::mt19937 random = text_test::SeededRandom();
    for (int round = 0; round < 50000; ++round) {
        std::string bytes = text_test::Bytes(text_test::HostileName(random, 30));
        ExpectForm(bytes);
        if (bytes.empty()) continue;
        bytes[text_test::UpTo(random, bytes.size() - 1)] = static_cast<char>(text_test::UpTo(random, 255));
        ExpectForm(bytes);
        ExpectForm(text_test::HostileBytes(random, 20));
    }
}

}  // namespace
