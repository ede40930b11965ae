// Texts with their characters in other forms, beside a change of their UTF-16.
#include "text/MappedText.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "tests/text/HostileText.h"
#include "vapp/text/CStringU.h"

namespace {

using vapp_text::TMappedSize;

// Forms of more bytes, of fewer, and of as many; what is ASCII can become the first character that is not.
char16_t FormOf(char16_t unit) {
    switch (unit) {
        case u'a':
            return u'\u00e9';
        case u'\u00e9':
            return u'a';
        case u'0':
            return u'\u4e2d';
        case u'\u4e2d':
            return u'\u0660';
        default:
            return unit;
    }
}

TEST(MappedText, RandomTextsAgreeWithTheirUtf16) {
    std::mt19937 random = text_test::SeededRandom();
    for (int round = 0; round < 20000; ++round) {
        const CStringU text(text_test::HostileBytes(random, 12).c_str(), TextEncoding::Utf8Auto);
        if (!text.HasNonAscii()) continue;
        std::u16string units = text.ToWide();
        const std::u16string before = units;
        std::transform(units.begin(), units.end(), units.begin(), FormOf);
        const TMappedSize size = vapp_text::MeasureMapped(text.Payload(), FormOf);
        ASSERT_EQ(size.changed, units != before);
        ASSERT_EQ(vapp_text::Mapped(text.Payload(), size, FormOf),
                  CStringU(std::u16string_view(units)).Stored())
            << text_test::Shown(text_test::Stored(text));
    }
}

TEST(MappedText, AnOverlongNulEndsItButIsFollowedByQuestions) {
    const char* const payload =
        "\xC3\x89\xC0\x80"
        "a";
    const TMappedSize size = vapp_text::MeasureMapped(payload, FormOf);
    EXPECT_TRUE(size.changed) << "the letter behind it has another form";
    EXPECT_EQ(vapp_text::Mapped(payload, size, FormOf), "\xC3\x89");
    EXPECT_TRUE(vapp_text::Mapped("", vapp_text::MeasureMapped("", FormOf), FormOf).IsEmpty());
}

}  // namespace
