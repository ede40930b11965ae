/// @file
/// How far two texts of known length are equal, eight bytes at a time.
///
/// Not for bare payload pointers: to load eight bytes where a text may end is to read out of bounds.
#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>

namespace vapp_text {

/// The number of bytes that two texts have in common at their front; `size` is that of the shorter one.
[[nodiscard]] inline std::size_t CommonBytes(const char* a, const char* b, std::size_t size) noexcept {
    using Word = std::uint64_t;
    std::size_t at = 0;
    for (; at + sizeof(Word) <= size; at += sizeof(Word)) {
        Word wordA = 0;
        Word wordB = 0;
        std::memcpy(&wordA, a + at, sizeof wordA);
        std::memcpy(&wordB, b + at, sizeof wordB);
        const Word differing = wordA ^ wordB;
        if (differing == 0) continue;
        const int equalBits = std::endian::native == std::endian::little ? std::countr_zero(differing)
                                                                         : std::countl_zero(differing);
        return at + static_cast<std::size_t>(equalBits) / 8;
    }
    while (at < size && a[at] == b[at])
        ++at;
    return at;
}

}  // namespace vapp_text
