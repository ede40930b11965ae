/// @file
/// What bytes of known length are: ASCII, what the encoder writes, or anything else; eight at a time.
///
/// The tests that every way into a text begins with, and those that decide whether its characters may be
/// taken for its bytes. Not for bare payload pointers: to load eight bytes where a text may end is to read
/// out of bounds.
#pragma once

#include <cstddef>
#include <string_view>

#include "text/Words.h"

namespace vapp_text {

/// True where no byte is 0x80 or above.
[[nodiscard]] inline bool AllAscii(std::string_view bytes) noexcept {
    const char* walk = bytes.data();
    std::size_t left = bytes.size();
    for (; left >= cnWordBytes; left -= cnWordBytes, walk += cnWordBytes) {
        if ((LoadWord(walk) & cnHighBits) != 0) return false;
    }
    return (LoadPart(walk, left) & cnHighBits) == 0;
}

/// True for ASCII without a NUL: text of which each byte is a character, and which ends at its end.
[[nodiscard]] inline bool IsPlain(std::string_view bytes) noexcept {
    // A zero byte borrows from its high bit; that it borrows from its neighbour's too does no harm.
    const auto other = [](Word word) { return ((word - cnEachByte) | word) & cnHighBits; };
    const std::size_t size = bytes.size();
    if (size < cnWordBytes) {
        return size == 0 || other(LoadPart(bytes.data(), size) | (cnEachByte << (8U * size))) == 0;
    }
    for (std::size_t at = 0; at + cnWordBytes <= size; at += cnWordBytes) {
        if (other(LoadWord(bytes.data() + at)) != 0) return false;
    }
    return other(LoadWord(bytes.data() + size - cnWordBytes)) == 0;
}

/// How the characters of a text lie in its bytes.
enum class TextForm {
    Plain,    ///< each byte is one: IsPlain
    Encoded,  ///< as EncodeChar writes them, one of them outside of ASCII, and none a NUL
    Other,    ///< anything else: malformed, overlong, of four bytes, or with a NUL inside
};

/// The form of a payload. In the first two a text of either form stands exactly where its bytes stand, and
/// what is put together of such texts is of one of them again.
[[nodiscard]] TextForm FormOf(std::string_view payload) noexcept;

/// The bytes before the first NUL.
struct TScanned {
    std::size_t size;
    bool nonAscii;  ///< whether one of them is 0x80 or above
};
[[nodiscard]] inline TScanned ScanToNul(std::string_view bytes) noexcept {
    Word high = 0;
    std::size_t at = 0;
    for (; at + cnWordBytes <= bytes.size(); at += cnWordBytes) {
        const Word word = LoadWord(bytes.data() + at);
        if (const Word nuls = ZeroBytes(word)) {
            high |= word & ((nuls & (0 - nuls)) - 1);  // what stands before the first
            return {at + FirstMarked(nuls), (high & cnHighBits) != 0};
        }
        high |= word;
    }
    // The zeros behind the last byte are a NUL at the end.
    const Word word = LoadPart(bytes.data() + at, bytes.size() - at);
    const Word nuls = ZeroBytes(word);
    high |= word & ((nuls & (0 - nuls)) - 1);
    return {at + FirstMarked(nuls), (high & cnHighBits) != 0};
}

}  // namespace vapp_text
