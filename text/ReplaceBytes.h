/// @file
/// One byte for another in a run of bytes, eight at a time.
///
/// For the replacement of ASCII characters. Hits among names come where no processor can foresee them, so
/// that nothing here branches on one.
#pragma once

#include <cstddef>

#include "text/Words.h"

namespace vapp_text {

/// Copies `size` bytes with each `oldByte` replaced, and gives the number of replacements. `to` is `from`, or
/// does not overlap with it.
inline std::size_t ReplaceBytes(const char* from, char* to, std::size_t size, char oldByte,
                                char newByte) noexcept {
    const Word oldBytes = EightOf(oldByte);
    const auto changedBits =
        static_cast<unsigned char>(static_cast<unsigned char>(oldByte) ^ static_cast<unsigned char>(newByte));
    std::size_t replaced = 0;
    const auto replacedIn = [&](Word word, Word counted) {
        const Word hits = ZeroBytes(word ^ oldBytes) >> 7U;  // the lowest bit of each
        replaced += static_cast<std::size_t>(((hits & (counted >> 7U)) * cnEachByte) >> 56U);
        return word ^ (hits * changedBits);
    };
    if (size < cnWordBytes) {
        if (size > 0) StorePart(to, size, replacedIn(LoadPart(from, size), cnHighBits >> (64U - 8U * size)));
        return replaced;
    }
    std::size_t at = 0;
    for (; at + cnWordBytes <= size; at += cnWordBytes)
        StoreWord(to + at, replacedIn(LoadWord(from + at), cnHighBits));
    // The last word may overlap with the one before it, whose hits are counted already.
    const std::size_t last = size - cnWordBytes;
    if (at < size) StoreWord(to + last, replacedIn(LoadWord(from + last), cnHighBits << (8U * (at - last))));
    return replaced;
}

}  // namespace vapp_text
