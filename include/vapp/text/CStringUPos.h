/// @file
/// CStringUPos: a position in a CStringU, the only means of iteration over its characters.
///
/// A position counts bytes of the payload (the text behind any marker) and knows its text; the bytes are
/// found anew at each step. So it stays good when the text's buffer moves, and only a change of the text in
/// front of it spoils it. Two steps differ on purpose: `Step` goes by the look of the bytes (over
/// continuation bytes), whereas `*` decodes by the lead byte alone. On malformed text they can disagree.
///
/// No step leaves the text, whatever the offset says: outside of the text a position reads as its end.
#pragma once

#include <compare>
#include <cstdint>

#include "vapp/Export.h"

class CStringU;

/// A byte offset into the payload of a text, with the text it belongs to (not owned; it must outlive the
/// position).
class VAPP_EXPORT CStringUPos {
public:
    /// A position without a text: reads as the end of an empty one.
    CStringUPos() noexcept = default;
    CStringUPos(std::int64_t byteOffset, const CStringU* text) noexcept : offset(byteOffset), owner(text) {}

    /// Moves to the next byte that is no continuation byte; stays at the terminating NUL.
    CStringUPos& Step() noexcept;
    /// Moves back to the nearest byte that is no continuation byte, at most four bytes; stays at offset 0.
    CStringUPos& StepBack() noexcept;
    CStringUPos& operator++() noexcept { return Step(); }
    CStringUPos& operator--() noexcept { return StepBack(); }
    CStringUPos operator++(int) noexcept;
    CStringUPos operator--(int) noexcept;

    /// That many `Step`s, or `StepBack`s where negative. Overlong encodings of NUL are stepped over.
    CStringUPos& operator+=(std::int64_t count) noexcept;
    CStringUPos& operator-=(std::int64_t count) noexcept;
    friend CStringUPos operator+(CStringUPos pos, std::int64_t count) noexcept { return pos += count; }
    friend CStringUPos operator-(CStringUPos pos, std::int64_t count) noexcept { return pos -= count; }

    /// That many `Step`s, but not beyond a place where `AtEnd` holds. The signed forms do nothing below 1.
    CStringUPos& Advance(std::int32_t count) noexcept;
    CStringUPos& Advance(std::int64_t count) noexcept;
    CStringUPos& Advance(std::uint32_t count) noexcept;
    CStringUPos& Advance(std::uint64_t count) noexcept;

    /// The character here, decoded by its lead byte; 0 at the end.
    [[nodiscard]] char16_t operator*() const noexcept;
    /// True at the terminating NUL, or where the character decodes to 0 (an overlong encoding of NUL).
    [[nodiscard]] bool AtEnd() const noexcept;

    /// The distance in bytes.
    friend std::int64_t operator-(const CStringUPos& left, const CStringUPos& right) noexcept {
        return left.offset - right.offset;
    }
    friend bool operator==(const CStringUPos& left, const CStringUPos& right) noexcept {
        return left.offset == right.offset;
    }
    friend std::strong_ordering operator<=>(const CStringUPos& left, const CStringUPos& right) noexcept {
        return left.offset <=> right.offset;
    }

    /// Bytes of the payload before this place; the marker does not count.
    std::int64_t offset = 0;
    /// The text walked; may be null.
    const CStringU* owner = nullptr;

private:
    [[nodiscard]] const char* Bytes() noexcept;
    [[nodiscard]] const char* Here() const noexcept;
};
