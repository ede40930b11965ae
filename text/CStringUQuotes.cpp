/// @file
/// Quotes around a CStringU.
///
/// The surprise is which characters count: five, of which only two could ever open and close a text alike.
/// The closing forms U+00BB and U+201D are not among them, so that a text between proper typographic quotes
/// is not quoted here, whereas one that begins with U+201C and ends with a plain quote is. Texts stored by
/// hosts depend on it.

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
    explicit TQuoted(std::string_view text)
        : holds(text.size() > 1 && text.front() == '"' && text.back() == '"'),
          first(1),
          behind(static_cast<std::int64_t>(text.size()) - 1) {
        if (!holds) FindAny(text);
    }

    bool holds;
    std::int64_t first;
    std::int64_t behind;

private:
    void FindAny(std::string_view text) {
        const char* walk = text.data();
        if (text.empty() || !IsQuoteChar(vapp_text::DecodeNext(walk))) return;
        first = walk - text.data();
        behind = vapp_text::StepBackward(text.data(), static_cast<std::int64_t>(text.size()));
        holds = behind >= first && IsQuoteChar(vapp_text::PeekChar(text.data() + behind));
    }
};

CString Surrounded(std::string_view payload, bool marked) {
    const std::size_t marker = marked ? 1 : 0;
    return CString::Filled(payload.size() + 2 + marker, [&](char* out) {
        if (marked) *out = vapp_text::cnTextMarker;
        char* const quoted = out + marker;
        quoted[0] = '"';
        payload.copy(quoted + 1, payload.size());
        quoted[payload.size() + 1] = '"';
    });
}

}  // namespace

CStringU CStringU::WithoutQuotes() const {
    const std::string_view stored = m_stored.View();
    if (stored.size() > 1 && stored.front() == '"' && stored.back() == '"') {
        return {CString(stored.substr(1, stored.size() - 2)), TAscii()};  // no marker in front: ASCII
    }
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
