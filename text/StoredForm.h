/// @file
/// How the characters of a CStringU lie in what it stores: whether an operation may go by its bytes.
#pragma once

#include <string_view>

#include "text/AsciiBytes.h"
#include "text/Codec.h"
#include "vapp/text/CStringU.h"

namespace vapp_text {

/// True where the bytes are those of the characters that the text decodes to. High bytes in a text that says
/// that it is ASCII are read one by one.
[[nodiscard]] inline bool IsEncoded(const CStringU& text) {
    const TextForm form = FormOf(text.PayloadView());
    return form == TextForm::Plain || (form == TextForm::Encoded && text.HasNonAscii());
}

/// True where the marker is there just if it is due.
[[nodiscard]] inline bool HasDueMarker(const CStringU& text) {
    const std::string_view payload = text.PayloadView();
    const bool due = !AllAscii(payload) && IsAsciiByte(payload.front());
    return due == (payload.size() != text.Stored().View().size());
}

}  // namespace vapp_text
