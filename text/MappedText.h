/// @file
/// The stored bytes of a text outside of ASCII with each of its characters in another form: changes of case,
/// and of one character for another.
///
/// One character becomes one character, but not always one of as many bytes: a first walk measures, so that
/// the changed text is written once. Its old marker is never carried over; whether it gets one is asked of
/// what is written.
///
/// The surprise is an overlong NUL: it ends the changed text, for the byte 0 that it would become would end
/// it for every reader. What stands behind it is still asked for its form.
#pragma once

#include <cstddef>

#include "text/Codec.h"
#include "vapp/text/CString.h"

namespace vapp_text {

/// What the forms of a text's characters come to.
struct TMappedSize {
    std::size_t bytes = 0;  ///< of the changed payload
    bool changed = false;   ///< whether any character has another form
    bool nonAscii = false;  ///< whether any form is outside of ASCII
};

/// Asks `form`, which takes a character and gives one, for each character of a payload.
template <typename Form>
[[nodiscard]] TMappedSize MeasureMapped(const char* payload, const Form& form) {
    TMappedSize size;
    bool ended = false;
    while (*payload != '\0') {
        const char16_t unit = DecodeNext(payload);
        const char16_t formed = form(unit);
        size.changed = size.changed || formed != unit;
        ended = ended || unit == 0;
        if (ended) continue;
        size.bytes += static_cast<std::size_t>(EncodedSize(formed));
        size.nonAscii = size.nonAscii || formed >= 0x80U;
    }
    return size;
}

/// The bytes to store, of a size that was measured with the same forms.
template <typename Form>
[[nodiscard]] CString Mapped(const char* payload, const TMappedSize& size, const Form& form) {
    if (size.bytes == 0) return {};
    const bool marked = size.nonAscii && [&] {
        const char* first = payload;
        return form(DecodeNext(first)) < 0x80U;
    }();
    const std::size_t length = size.bytes + static_cast<std::size_t>(marked);
    return CString::Filled(length, [&](char* out) {
        const char* const end = out + length;
        if (marked) *out++ = cnTextMarker;
        while (out < end)
            out += EncodeChar(form(DecodeNext(payload)), out);
    });
}

}  // namespace vapp_text
