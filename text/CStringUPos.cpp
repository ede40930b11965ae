/// @file
/// The steps of CStringUPos.
///
/// Every step looks the bytes up anew through the owner and first brings the offset inside of the text, so
/// that a position which a changed text has left behind reads as its end instead of beyond its buffer.

#include "vapp/text/CStringUPos.h"

#include <algorithm>

#include "text/Codec.h"
#include "vapp/text/CStringU.h"

// The payload, with `offset` brought inside of it. A position without a text is one of an empty text.
const char* CStringUPos::Bytes() noexcept {
    offset = std::clamp<std::int64_t>(offset, 0, owner != nullptr ? owner->GetByteLength() : 0);
    return owner != nullptr ? owner->Payload() : "";
}

// The byte at the offset; the terminating NUL for an offset outside of the text.
const char* CStringUPos::Here() const noexcept {
    if (owner == nullptr) return "";
    const std::int64_t end = owner->GetByteLength();
    return owner->Payload() + (offset >= 0 && offset < end ? offset : end);
}

CStringUPos& CStringUPos::Step() noexcept {
    const char* const bytes = Bytes();
    offset = vapp_text::StepForward(bytes, offset);
    return *this;
}

CStringUPos& CStringUPos::StepBack() noexcept {
    const char* const bytes = Bytes();
    offset = vapp_text::StepBackward(bytes, offset);
    return *this;
}

CStringUPos CStringUPos::operator++(int) noexcept {
    const CStringUPos before = *this;
    Step();
    return before;
}

CStringUPos CStringUPos::operator--(int) noexcept {
    const CStringUPos before = *this;
    StepBack();
    return before;
}

// Steps that no longer move end the walk: a count may be larger than any text.
CStringUPos& CStringUPos::operator+=(std::int64_t count) noexcept {
    if (count == 0) return *this;
    const char* const bytes = Bytes();
    const bool forward = count > 0;
    for (; count != 0; count += forward ? -1 : 1) {
        const std::int64_t next =
            forward ? vapp_text::StepForward(bytes, offset) : vapp_text::StepBackward(bytes, offset);
        if (next == offset) break;
        offset = next;
    }
    return *this;
}

CStringUPos& CStringUPos::operator-=(std::int64_t count) noexcept {
    // The most negative count has no positive twin; no text is that long, so one step less changes nothing.
    return *this += count == INT64_MIN ? INT64_MAX : -count;
}

CStringUPos& CStringUPos::Advance(std::uint64_t count) noexcept {
    const char* const bytes = Bytes();
    for (; count > 0 && vapp_text::PeekChar(bytes + offset) != u'\0'; --count) {
        offset = vapp_text::StepForward(bytes, offset);
    }
    return *this;
}

CStringUPos& CStringUPos::Advance(std::uint32_t count) noexcept {
    return Advance(static_cast<std::uint64_t>(count));
}

CStringUPos& CStringUPos::Advance(std::int64_t count) noexcept {
    return count < 1 ? *this : Advance(static_cast<std::uint64_t>(count));
}

CStringUPos& CStringUPos::Advance(std::int32_t count) noexcept {
    return Advance(static_cast<std::int64_t>(count));
}

char16_t CStringUPos::operator*() const noexcept {
    return vapp_text::PeekChar(Here());
}

bool CStringUPos::AtEnd() const noexcept {
    return **this == u'\0';
}
