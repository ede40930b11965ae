// The quick scan for high bytes, at every length and every place of the high byte.
#include "text/AsciiBytes.h"

#include <gtest/gtest.h>

#include <string>

#include "tests/text/HostileText.h"

namespace {

TEST(AsciiBytes, FindsOneHighByteWhereverItStands) {
    for (std::size_t length = 0; length < 40; ++length) {
        std::string bytes(length, '\x7f');
        EXPECT_TRUE(vapp_text::AllAscii(bytes));
        for (std::size_t at = 0; at < length; ++at) {
            bytes[at] = '\x80';
            EXPECT_FALSE(vapp_text::AllAscii(text_test::ExactBytes(bytes).Get())) << length << ' ' << at;
            bytes[at] = '\x01';
        }
    }
}

TEST(AsciiBytes, LooksAtTheGivenBytesAlone) {
    const std::string bytes = "abcdefghij\xC3\xA9";
    EXPECT_TRUE(vapp_text::AllAscii(std::string_view(bytes).substr(0, 10)));
    EXPECT_FALSE(vapp_text::AllAscii(std::string_view(bytes).substr(0, 11)));
}

}  // namespace
