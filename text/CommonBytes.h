/// @file
/// How far two texts of known length are equal, eight bytes at a time.
///
/// Not for bare payload pointers: to load eight bytes where a text may end is to read out of bounds.
#pragma once

#include <cstddef>

#include "text/Words.h"

namespace vapp_text {

/// The number of bytes that two texts have in common at their front; `size` is that of the shorter one.
[[nodiscard]] inline std::size_t CommonBytes(const char* a, const char* b, std::size_t size) noexcept {
    std::size_t at = 0;
    for (; at + cnWordBytes <= size; at += cnWordBytes) {
        if (const Word differing = LoadWord(a + at) ^ LoadWord(b + at)) return at + FirstMarked(differing);
    }
    while (at < size && a[at] == b[at])
        ++at;
    return at;
}

}  // namespace vapp_text
