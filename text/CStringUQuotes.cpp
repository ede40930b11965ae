/// @file
/// Quotes around a CStringU.
///
/// The surprise is which characters count: five, of which only two could ever open and close a text alike.
/// The closing forms U+00BB and U+201D are not among them, so that a text between proper typographic quotes
/// is not quoted here, whereas one that begins with U+201C and ends with a plain quote is. Texts stored by
/// hosts depend on it.

#include <climits>
#include <string_view>

#include "text/AsciiBytes.h"
#include "text/Codec.h"
#include "vapp/text/CStringU.h"

namespace {

constexpr bool IsQuoteChar(char16_t unit) noexcept {
    return unit == u'"' || unit == u'\u00AB' || unit == u'\u201C' || unit == u'\u201F' || unit == u'\uFF02';
}

/// What stands between the first and the last character; nothing where one of them is no quote character, or
/// where they are the same.
struct TQuoted {
    explicit TQuoted(std::string_view text) {
        if (text.empty()) return;
        const char* walk = text.data();
        if (!IsQuoteChar(vapp_text::DecodeNext(walk))) return;
        first = walk - text.data();
        behind = vapp_text::StepBackward(text.data(), static_cast<std::int64_t>(text.size()));
        holds = behind >= first && IsQuoteChar(vapp_text::PeekChar(text.data() + behind));
    }

    bool holds = false;
    std::int64_t first = 0;
    std::int64_t behind = 0;
};

CString Surrounded(std::string_view payload, bool marked) {
    const std::string_view kept = payload.substr(0, INT_MAX - 3);
    const std::size_t marker = marked ? 1 : 0;
    CString text;
    char* const out = text.GetBufferSetLength(static_cast<int>(kept.size() + 2 + marker));
    if (marked) *out = vapp_text::cnTextMarker;
    char* const quoted = out + marker;
    quoted[0] = '"';
    kept.copy(quoted + 1, kept.size());
    quoted[kept.size() + 1] = '"';
    return text;
}

}  // namespace

CStringU CStringU::WithoutQuotes() const {
    const TQuoted quoted(PayloadView());
    return quoted.holds ? Piece(quoted.first, quoted.behind) : *this;
}

CStringU& CStringU::RemoveQuotes() {
    return *this = WithoutQuotes();
}

CStringU CStringU::WithQuotes() const {
    const std::string_view payload = PayloadView();
    if (TQuoted(payload).holds) return *this;
    CStringU quoted;
    quoted.m_stored = Surrounded(payload, HasNonAscii() && !vapp_text::AllAscii(payload));
    return quoted;
}

CStringU& CStringU::AddQuotes() {
    return *this = WithQuotes();
}
