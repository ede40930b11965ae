/// @file
/// The walk of the tokeniser, by whole characters.

#include "text/Tokenizer.h"

#include <algorithm>
#include <string_view>

namespace vapp_text {

char TTokenizer::WithoutCase(char separator) const noexcept {
    return m_fold && separator >= 'a' && separator <= 'z' ? '\0' : separator;
}

// In text outside of ASCII only one separator is looked for by its byte, and no letter: characters outside of
// ASCII have small forms within it.
bool TTokenizer::GoesByBytes(TextForm form) const noexcept {
    if (form != TextForm::Encoded) return form == TextForm::Plain;
    return m_onlySeparator != '\0' && m_separators.IsAscii();
}

// Moves over characters while they are separators, or while they are none.
template <bool Separators>
std::int64_t TTokenizer::Skip(std::int64_t from) const noexcept {
    const char* const text = m_text.Payload();
    for (const char* at = text + from;;) {
        const char* next = at;
        if (*at == '\0' || IsSeparator(DecodeNext(next)) != Separators) return at - text;
        at = next;
    }
}

// The same by bytes, given what is left of the text; gives their number.
template <bool Separators>
std::size_t TTokenizer::SkipBytes(std::string_view left) const noexcept {
    std::size_t at = 0;
    if (m_onlySeparator != '\0') {
        if (!Separators) return std::min(left.find(m_onlySeparator), left.size());
        while (at < left.size() && left[at] == m_onlySeparator)
            ++at;
        return at;
    }
    while (at < left.size() && IsSeparator(static_cast<unsigned char>(left[at])) == Separators)
        ++at;
    return at;
}

std::int64_t TTokenizer::SkipSeparators(std::int64_t from) const noexcept {
    const std::string_view payload = m_text.PayloadView();
    const auto length = static_cast<std::int64_t>(payload.size());
    const std::int64_t start = std::clamp<std::int64_t>(from, 0, length);
    if (m_byBytes) {
        return start +
               static_cast<std::int64_t>(SkipBytes<true>(payload.substr(static_cast<std::size_t>(start))));
    }
    const std::int64_t at = Skip<true>(start);
    return payload.data()[at] == '\0' ? length : at;
}

void TTokenizer::ReadToken(std::int64_t& pos, CStringU& token) const {
    std::string_view read = m_text.PayloadView().substr(static_cast<std::size_t>(pos));
    if (m_byBytes) {
        const std::size_t size = SkipBytes<false>(read);
        pos += static_cast<std::int64_t>(size + SkipBytes<true>(read.substr(size)));
        read = read.substr(0, size);
    } else {
        const std::int64_t end = Skip<false>(pos);
        read = read.substr(0, static_cast<std::size_t>(end - pos));
        pos = SkipSeparators(end);
    }
    if (m_text.HasNonAscii()) {
        token.AssignUtf8(read);
    } else {
        token.AssignAscii(read);
    }
}

CStringU TTokenizer::NextToken(std::int64_t& pos) const {
    CStringU token;
    pos = SkipSeparators(pos);
    ReadToken(pos, token);
    return token;
}

}  // namespace vapp_text
