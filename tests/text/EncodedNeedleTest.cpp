/// @file
/// The bytes of needles on both sides of the size from which they need the heap.
#include "text/EncodedNeedle.h"

#include <gtest/gtest.h>

#include "tests/text/HostileText.h"

namespace {

using text_test::Bytes;
using vapp_text::EncodedNeedle;

TEST(EncodedNeedle, HoldsTheBytesOfTheUnits) {
    for (const std::u16string needle : {u"", u"abc", u"a\u00e9\u4e2d", u"\xd83d\xde00"}) {
        EXPECT_EQ(EncodedNeedle(needle.c_str()).Bytes(), Bytes(needle));
    }
}

TEST(EncodedNeedle, StaysOffTheHeapUpTo256Bytes) {
    for (const std::size_t size : {255U, 256U, 257U, 5000U}) {
        const std::u16string needle(size, u'n');
        const EncodedNeedle encoded(needle.c_str());
        EXPECT_EQ(encoded.OnHeap(), size > 256) << size;
        EXPECT_EQ(encoded.Bytes(), std::string(size, 'n'));
    }
    const std::u16string twoBytes(128, u'\u00e9');
    EXPECT_FALSE(EncodedNeedle(twoBytes.c_str()).OnHeap()) << "bytes count, not units";
    const std::u16string threeBytes(86, u'\u4e2d');
    EXPECT_TRUE(EncodedNeedle(threeBytes.c_str()).OnHeap());
}

}  // namespace
