/// @file
/// Every length of a common front around the words that are read at once, in memory that ends where they end.
#include "text/CommonBytes.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

TEST(CommonBytes, CountsTheBytesBeforeTheFirstDifferenceOfAnyPlaceAndLength) {
    for (std::size_t size = 0; size <= 40; ++size) {
        const std::vector<char> text(size, 'x');
        EXPECT_EQ(vapp_text::CommonBytes(text.data(), text.data(), size), size);
        for (std::size_t at = 0; at < size; ++at) {
            std::vector<char> other = text;
            // The second difference, in a higher or lower bit, must not count.
            other[at] = '\xF8';
            other.back() = 'y';
            EXPECT_EQ(vapp_text::CommonBytes(text.data(), other.data(), size), at) << size;
        }
    }
}

}  // namespace
