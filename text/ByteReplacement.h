/// @file
/// One byte for another in a run of bytes, with or without its case: sixteen at a time, or eight.
///
/// For the replacement of ASCII characters. Hits among names come where no processor can foresee them, so
/// that nothing here branches on one.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <limits>
#include <numeric>

#include "text/Fold.h"
#include "text/Words.h"

namespace vapp_text {

/// Which bytes are replaced, and by what.
class ByteReplacement {
public:
    /// The byte itself; of a letter of ASCII the capital and the small one if `anyCase`.
    ByteReplacement(char oldByte, char newByte, bool anyCase = false) noexcept
        : m_caseBit(anyCase ? static_cast<std::uint8_t>(AsciiCaseBit(oldByte)) : std::uint8_t{0}),
          m_old(static_cast<std::uint8_t>(static_cast<std::uint8_t>(oldByte) | m_caseBit)),
          m_new(static_cast<std::uint8_t>(newByte)) {}

    /// Copies `size` bytes with each hit replaced, and gives the number of hits. `to` is `from`, or does not
    /// overlap with it.
    std::size_t Copy(const char* from, char* to, std::size_t size) const noexcept {
        return size < cnFewestInBlocks ? CopyWords(from, to, size) : CopyLong(from, to, size);
    }

private:
    static constexpr std::size_t cnBlock = 16;
    // A short text is done before the counters of blocks are summed up.
    static constexpr std::size_t cnFewestInBlocks = 4 * cnBlock;
    // As many as a byte can count.
    static constexpr std::size_t cnMostBlocks = std::numeric_limits<std::uint8_t>::max();

    struct TReplaced {
        Word bytes;
        Word hits;  ///< the lowest bit of each
    };
    // Each byte eight times. A copy of its own, for the bytes that are written could be those of this object.
    struct TEights {
        explicit TEights(const ByteReplacement& bytes) noexcept
            : caseBits(bytes.m_caseBit * cnEachByte),
              old(bytes.m_old * cnEachByte),
              replacing(bytes.m_new * cnEachByte) {}
        [[nodiscard]] TReplaced In(Word word) const noexcept {
            const Word marks = ZeroBytes((word | caseBits) ^ old);
            const Word hits = marks >> 7U;
            const Word hitBytes = (marks << 1U) - hits;
            return {word ^ ((word ^ replacing) & hitBytes), hits};
        }

        Word caseBits;
        Word old;
        Word replacing;
    };

    // Of so few that a byte counts the hits.
    [[nodiscard]] std::size_t CopyWords(const char* from, char* to, std::size_t size) const noexcept {
        const TEights eights(*this);
        if (size < cnWordBytes) {
            if (size == 0) return 0;
            const TReplaced part = eights.In(LoadPart(from, size));
            StorePart(to, size, part.bytes);
            return Sum(part.hits & (~Word{0} >> (8U * (cnWordBytes - size))));
        }
        Word hits = 0;
        std::size_t at = 0;
        for (; at + cnWordBytes <= size; at += cnWordBytes) {
            const TReplaced word = eights.In(LoadWord(from + at));
            StoreWord(to + at, word.bytes);
            hits += word.hits;
        }
        if (at == size) return Sum(hits);
        // The last word overlaps with the one before it, whose hits are counted already.
        const std::size_t last = size - cnWordBytes;
        const TReplaced word = eights.In(LoadWord(from + last));
        StoreWord(to + last, word.bytes);
        return Sum(hits + (word.hits & (~Word{0} << (8U * (at - last)))));
    }
    [[nodiscard]] static std::size_t Sum(Word bytes) noexcept {
        return static_cast<std::size_t>((bytes * cnEachByte) >> 56U);
    }

    // Apart, for the registers that it takes are put away first.
    [[nodiscard, gnu::noinline]] std::size_t CopyLong(const char* from, char* to,
                                                      std::size_t size) const noexcept {
        std::size_t at = 0;
        std::size_t replaced = 0;
        while (size - at >= cnBlock) {
            const std::size_t blocks = std::min((size - at) / cnBlock, cnMostBlocks);
            replaced += CopyBlocks(from + at, to + at, blocks);
            at += blocks * cnBlock;
        }
        return replaced + CopyWords(from + at, to + at, size - at);
    }

    // One register of any processor we build for; the compilers of both systems have the type, and take it
    // apart for a processor without such registers.
    using Block [[gnu::vector_size(cnBlock)]] = std::uint8_t;

    [[nodiscard]] std::size_t CopyBlocks(const char* from, char* to, std::size_t blocks) const noexcept {
        const Block caseBits = Block{} + m_caseBit;
        const Block old = Block{} + m_old;
        const Block replacing = Block{} + m_new;
        Block counts{};
        for (; blocks > 0; --blocks, from += cnBlock, to += cnBlock) {
            Block bytes;
            std::memcpy(&bytes, from, cnBlock);
            const auto hits =
                reinterpret_cast<Block>((bytes | caseBits) == old);  // 0xFF, which is -1, for each
            counts -= hits;
            bytes = (bytes & ~hits) | (replacing & hits);
            std::memcpy(to, &bytes, cnBlock);
        }
        std::array<std::uint8_t, cnBlock> counted{};
        std::memcpy(counted.data(), &counts, cnBlock);
        return std::accumulate(counted.begin(), counted.end(), std::size_t{0});
    }

    std::uint8_t m_caseBit;
    std::uint8_t m_old;
    std::uint8_t m_new;
};

}  // namespace vapp_text
