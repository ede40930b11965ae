/// @file
/// Eight bytes at a time: the words that the loops over bytes of known length are made of.
///
/// Plain arithmetic on integers, and so the same on every processor of the two systems. Not for bare payload
/// pointers: to load eight bytes where a text may end is to read out of bounds.
///
/// The first byte of a text is the lowest of its word. Marks, the answers of a test, are the high bits of the
/// bytes that it holds for; each test is exact for each byte, for no carry leaves one.
#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>

namespace vapp_text {

static_assert(std::endian::native == std::endian::little, "the first byte is the lowest");

using Word = std::uint64_t;

/// The bytes of a word.
inline constexpr std::size_t cnWordBytes = sizeof(Word);
/// Times a byte: that byte eight times.
inline constexpr Word cnEachByte = 0x0101010101010101U;
inline constexpr Word cnHighBits = 0x80U * cnEachByte;

[[nodiscard]] inline Word LoadWord(const char* bytes) noexcept {
    Word word = 0;
    std::memcpy(&word, bytes, sizeof word);
    return word;
}

inline void StoreWord(char* bytes, Word word) noexcept {
    std::memcpy(bytes, &word, sizeof word);
}

/// So many bytes, 0 to 7, with zeros behind them. None beside them is read.
[[nodiscard]] inline Word LoadPart(const char* bytes, std::size_t size) noexcept {
    if (size >= sizeof(std::uint32_t)) {  // two halves, which may overlap
        std::uint32_t first = 0;
        std::uint32_t last = 0;
        std::memcpy(&first, bytes, sizeof first);
        std::memcpy(&last, bytes + size - sizeof last, sizeof last);
        return first | (Word{last} << (8U * (size - sizeof last)));
    }
    if (size == 0) return 0;
    const auto byte = [bytes](std::size_t at) {
        return Word{static_cast<unsigned char>(bytes[at])} << (8U * at);
    };
    return byte(0) | byte(size / 2) | byte(size - 1);
}

/// Writes so many bytes of a word, 0 to 7.
inline void StorePart(char* bytes, std::size_t size, Word word) noexcept {
    if (size >= sizeof(std::uint32_t)) {
        const auto first = static_cast<std::uint32_t>(word);
        const auto last = static_cast<std::uint32_t>(word >> (8U * (size - sizeof first)));
        std::memcpy(bytes, &first, sizeof first);
        std::memcpy(bytes + size - sizeof last, &last, sizeof last);
        return;
    }
    for (; size > 0; --size, word >>= 8U)
        *bytes++ = static_cast<char>(word);
}

/// Copies bytes, which may overlap. Names are copied by a few words, without a call.
inline void CopyBytes(char* to, const char* from, std::size_t size) noexcept {
    constexpr std::size_t cnTwo = 2 * cnWordBytes;
    if (size < cnWordBytes || size > 2 * cnTwo) {
        if (size > 0) std::memmove(to, from, size);
        return;
    }
    const Word first = LoadWord(from);
    const Word last = LoadWord(from + size - cnWordBytes);
    if (size > cnTwo) {
        const Word second = LoadWord(from + cnWordBytes);
        const Word third = LoadWord(from + size - cnTwo);
        StoreWord(to + cnWordBytes, second);
        StoreWord(to + size - cnTwo, third);
    }
    StoreWord(to, first);
    StoreWord(to + size - cnWordBytes, last);
}

/// One byte eight times.
[[nodiscard]] constexpr Word EightOf(char byte) noexcept {
    return static_cast<unsigned char>(byte) * cnEachByte;
}

/// Marks the bytes that are 0.
[[nodiscard]] constexpr Word ZeroBytes(Word word) noexcept {
    return ~(((word & ~cnHighBits) + ~cnHighBits) | word) & cnHighBits;
}

/// The place of the first byte that is marked; `marks` is not 0.
[[nodiscard]] constexpr std::size_t FirstMarked(Word marks) noexcept {
    return static_cast<std::size_t>(std::countr_zero(marks)) / 8U;
}

/// Marks the bytes from `first` to `last`, both ASCII.
[[nodiscard]] constexpr Word BytesBetween(Word word, char first, char last) noexcept {
    const Word low = word & ~cnHighBits;
    const Word fromFirst = low + EightOf(static_cast<char>(0x80 - first));
    const Word behindLast = low + EightOf(static_cast<char>(0x7F - last));
    return (fromFirst ^ behindLast) & ~word & cnHighBits;
}

/// The word with its ASCII letters small, or capital; other bytes stay.
[[nodiscard]] constexpr Word LowerWord(Word word) noexcept {
    return word ^ (BytesBetween(word, 'A', 'Z') >> 2U);
}
[[nodiscard]] constexpr Word UpperWord(Word word) noexcept {
    return word ^ (BytesBetween(word, 'a', 'z') >> 2U);
}

}  // namespace vapp_text
