/// @file
/// Changing the case of a whole CStringU: for texts that a user sees. Compares fold for themselves (Fold.h).
///
/// One character becomes one character, in no locale, but not always one of as many bytes: a first walk
/// measures, so that the changed text is written once. Its old marker is never carried over; whether it gets
/// one is asked of what is written.

#include <algorithm>
#include <climits>

#include "text/Codec.h"
#include "text/Fold.h"
#include "text/Upper.h"
#include "vapp/text/CStringU.h"

namespace {

using vapp_text::DecodeNext;

struct TChange {
    std::size_t bytes = 0;  // of the changed payload
    bool changed = false;
    bool nonAscii = false;
};

// An overlong NUL ends the changed text: the byte 0 that it would become would end it for every reader. It
// is no change by itself, so that a text in which nothing else changes keeps what stands behind it.
template <char16_t Form(char16_t)>
TChange Measure(const char* payload) {
    TChange change;
    bool ended = false;
    while (*payload != '\0') {
        const char16_t unit = DecodeNext(payload);
        const char16_t formed = Form(unit);
        change.changed = change.changed || formed != unit;
        ended = ended || unit == 0;
        if (ended) continue;
        change.bytes += static_cast<std::size_t>(vapp_text::EncodedSize(formed));
        change.nonAscii = change.nonAscii || formed >= 0x80U;
    }
    return change;
}

template <char16_t Form(char16_t)>
CString Changed(const char* payload, const TChange& change) {
    CString text;
    if (change.bytes == 0) return text;
    const bool marked = change.nonAscii && [&] {
        const char* first = payload;
        return Form(DecodeNext(first)) < 0x80U;
    }();
    const std::size_t length = change.bytes + static_cast<std::size_t>(marked);
    char* out = text.GetBufferSetLength(static_cast<int>(std::min<std::size_t>(length, INT_MAX)));
    const char* const end = out + length;
    if (marked) *out++ = vapp_text::cnTextMarker;
    while (out < end)
        out += vapp_text::EncodeChar(Form(DecodeNext(payload)), out);
    return text;
}

// What is stored of a text outside of ASCII once its case is changed; the same where nothing changes.
template <char16_t Form(char16_t)>
CString Formed(const CStringU& text) {
    const TChange change = Measure<Form>(text.Payload());
    return change.changed ? Changed<Form>(text.Payload(), change) : text.Stored();
}

}  // namespace

CStringU CStringU::ToLower() const {
    CStringU result = *this;
    if (HasNonAscii()) {
        result.m_stored = Formed<vapp_text::FoldChar>(*this);
    } else {
        result.m_stored.MakeLower();
    }
    return result;
}

CStringU CStringU::ToUpper() const {
    CStringU result = *this;
    if (HasNonAscii()) {
        result.m_stored = Formed<vapp_text::UpperChar>(*this);
    } else {
        result.m_stored.MakeUpper();
    }
    return result;
}
