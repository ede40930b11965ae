/// @file
/// One byte for another in a run of bytes, eight at a time.
///
/// For the replacement of ASCII characters. Hits among names come where no processor can foresee them, so
/// that nothing here branches on one.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>

namespace vapp_text {

/// Replaces each such byte of `size` and gives the number of replacements.
inline std::size_t ReplaceBytes(char* bytes, std::size_t size, char oldByte, char newByte) noexcept {
    using Word = std::uint64_t;
    constexpr Word cnOnes = 0x0101010101010101U;
    constexpr Word cnLow = 0x7F * cnOnes;
    const auto oldBits = static_cast<unsigned char>(oldByte);
    const auto changedBits = static_cast<unsigned char>(oldBits ^ static_cast<unsigned char>(newByte));
    std::size_t replaced = 0;
    for (; size >= sizeof(Word); size -= sizeof(Word), bytes += sizeof(Word)) {
        Word word = 0;
        std::memcpy(&word, bytes, sizeof word);
        const Word differing = word ^ (oldBits * cnOnes);
        // The lowest bit of each byte that does not differ; no carry leaves its byte.
        const Word hits = (~(((differing & cnLow) + cnLow) | differing | cnLow)) >> 7U;
        word ^= hits * changedBits;
        std::memcpy(bytes, &word, sizeof word);
        replaced += static_cast<std::size_t>((hits * cnOnes) >> 56U);
    }
    for (; size > 0; --size, ++bytes) {
        const bool hit = *bytes == oldByte;
        *bytes = hit ? newByte : *bytes;
        replaced += static_cast<std::size_t>(hit);
    }
    return replaced;
}

}  // namespace vapp_text
