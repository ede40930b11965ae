/// @file
/// The bytes of a character: how the payload of a text is encoded, decoded and walked.
///
/// For every routine that walks a payload (the text behind any marker). Not for conversions between whole
/// texts and code pages: those stand in CStringU and in PlatformText.h.
///
/// Grammar of the encoding, for a character u of 16 bits (a UTF-16 unit; nothing above 0xFFFF exists here):
///
///     u < 0x80     0uuuuuuu
///     u < 0x800    110uuuuu 10uuuuuu
///     else         1110uuuu 10uuuuuu 10uuuuuu
///
/// The halves of a surrogate pair are encoded one by one, three bytes each, so that UTF-16 returns unchanged.
///
/// The surprise is in decoding: a few bit tests on the lead byte decide, in a fixed order, and nothing is
/// validated. Foreign four-byte sequences come out as one wrong character, a stray continuation byte is taken
/// for a lead, and a hopeless lead byte is a "?". Compare, search and counting all depend on every walk
/// making the very same mistakes, so the rule stands here once and must not be "repaired".
#pragma once

#include <cstdint>

namespace vapp_text {

/// The byte in front of a text that holds a non-ASCII character but begins with an ASCII one.
inline constexpr char cnTextMarker = '\x80';

/// What a byte decodes to that can't be a lead byte (0xF8 and above).
inline constexpr char16_t cnBadLeadChar = u'?';

/// The most bytes that EncodeChar writes.
inline constexpr int cnMaxEncodedBytes = 3;

/// True for a byte below 0x80.
[[nodiscard]] constexpr bool IsAsciiByte(char byte) noexcept {
    return (static_cast<unsigned char>(byte) & 0x80U) == 0;
}

/// True for a byte of the pattern 10xxxxxx.
[[nodiscard]] constexpr bool IsContinuation(char byte) noexcept {
    return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U;
}

/// The payload of stored bytes: the text behind its marker, if it has one.
[[nodiscard]] constexpr const char* SkipMarker(const char* stored) noexcept {
    return *stored == cnTextMarker ? stored + 1 : stored;
}

/// The number of bytes that EncodeChar writes for the unit, 1 to 3.
[[nodiscard]] constexpr int EncodedSize(char16_t unit) noexcept {
    return unit < 0x80U ? 1 : unit < 0x800U ? 2 : 3;
}

/// Writes the bytes of one unit to `out` (room for three) and returns their number. Writes no NUL behind
/// them.
constexpr int EncodeChar(char16_t unit, char* out) noexcept {
    const unsigned u = unit;
    if (u < 0x80U) {
        out[0] = static_cast<char>(u);
        return 1;
    }
    if (u < 0x800U) {
        out[0] = static_cast<char>(0xC0U | (u >> 6U));
        out[1] = static_cast<char>(0x80U | (u & 0x3FU));
        return 2;
    }
    out[0] = static_cast<char>(0xE0U | (u >> 12U));
    out[1] = static_cast<char>(0x80U | ((u >> 6U) & 0x3FU));
    out[2] = static_cast<char>(0x80U | (u & 0x3FU));
    return 3;
}

/// DecodeNext for a lead byte of 0x80 and above; split off so that the ASCII case is inlined alone.
[[nodiscard]] constexpr char16_t DecodeHighNext(const char*& walk) noexcept {
    const unsigned lead = static_cast<unsigned char>(*walk++);
    int missing = 0;
    unsigned bits = 0;
    if ((lead & 0x20U) == 0) {
        missing = 1;
        bits = lead & 0x1FU;
    } else if ((lead & 0x10U) == 0) {
        missing = 2;
        bits = lead & 0x0FU;
    } else if ((lead & 0x08U) == 0) {
        missing = 3;  // the bits of this lead byte fall off the top of a 16-bit character
    } else {
        return cnBadLeadChar;
    }
    for (; missing > 0 && *walk != '\0'; --missing) {
        bits = (bits << 6U) | (static_cast<unsigned char>(*walk++) & 0x3FU);
    }
    // Bytes that the end of the text has cut off count as zero bits.
    return static_cast<char16_t>(bits << (6U * static_cast<unsigned>(missing)));
}

/// Decodes the character at `walk` and moves `walk` behind it. At the terminating NUL it must not be called:
/// callers test the byte first. A sequence that the end of the text cuts off ends at the NUL, its missing
/// bytes counting as zero bits; no byte behind the NUL is read.
[[nodiscard]] constexpr char16_t DecodeNext(const char*& walk) noexcept {
    if (IsAsciiByte(*walk)) return static_cast<unsigned char>(*walk++);
    return DecodeHighNext(walk);
}

/// The same by offset: decodes the character at `text[offset]` and sets `next` to the offset behind it.
[[nodiscard]] constexpr char16_t DecodeChar(const char* text, std::int64_t offset,
                                            std::int64_t& next) noexcept {
    const char* walk = text + offset;
    const char16_t unit = DecodeNext(walk);
    next = walk - text;
    return unit;
}

/// The character at `text`, or 0 at the terminating NUL.
[[nodiscard]] constexpr char16_t PeekChar(const char* text) noexcept {
    return *text == '\0' ? u'\0' : DecodeNext(text);
}

/// One step forward by the look of the bytes: over the byte at `offset` and the continuation bytes behind it.
/// At the terminating NUL it stays. On malformed text it can move differently from DecodeChar.
[[nodiscard]] constexpr std::int64_t StepForward(const char* text, std::int64_t offset) noexcept {
    if (text[offset] == '\0') return offset;
    do {
        ++offset;
    } while (IsContinuation(text[offset]));
    return offset;
}

/// One step back by the look of the bytes: over at most four bytes, to the nearest that is no continuation
/// byte. At offset 0 it stays, and never goes below.
[[nodiscard]] constexpr std::int64_t StepBackward(const char* text, std::int64_t offset) noexcept {
    const std::int64_t lowest = offset > 4 ? offset - 4 : 0;
    if (offset <= lowest) return lowest;
    do {
        --offset;
    } while (offset > lowest && IsContinuation(text[offset]));
    return offset;
}

}  // namespace vapp_text
