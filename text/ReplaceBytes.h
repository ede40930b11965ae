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
        const Word hits = (ZeroBytes(word ^ oldBytes) & counted) >> 7U;  // the lowest bit of each
        replaced += static_cast<std::size_t>((hits * cnEachByte) >> 56U);
        return word ^ (hits * changedBits);
    };
    for (; size >= cnWordBytes; size -= cnWordBytes, from += cnWordBytes, to += cnWordBytes)
        StoreWord(to, replacedIn(LoadWord(from), cnHighBits));
    if (size > 0) StorePart(to, size, replacedIn(LoadPart(from, size), cnHighBits >> (64U - 8U * size)));
    return replaced;
}

}  // namespace vapp_text
