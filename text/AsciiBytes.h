/// @file
/// Whether bytes of known length are pure ASCII, eight at a time.
///
/// The test that every way into a text begins with. Not for bare payload pointers: to load eight bytes where
/// a text may end is to read out of bounds.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>

#include "text/Codec.h"

namespace vapp_text {

/// True where no byte is 0x80 or above.
[[nodiscard]] inline bool AllAscii(std::string_view bytes) noexcept {
    using Word = std::uint64_t;
    constexpr Word cnHighBits = 0x8080808080808080U;
    const char* walk = bytes.data();
    std::size_t left = bytes.size();
    for (; left >= sizeof(Word); left -= sizeof(Word), walk += sizeof(Word)) {
        Word word = 0;
        std::memcpy(&word, walk, sizeof word);
        if ((word & cnHighBits) != 0) return false;
    }
    return std::all_of(walk, walk + left, IsAsciiByte);
}

}  // namespace vapp_text
