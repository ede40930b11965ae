/// @file
/// The walk of the tokeniser, by whole characters.

#include "text/Tokenizer.h"

#include <algorithm>
#include <string_view>

#include "text/AsciiBytes.h"

namespace vapp_text {

// Raw text may have high bytes behind an ASCII first byte, and text declared ASCII may have a NUL.
bool TTokenizer::IsPlain(const CStringU& text) noexcept {
    const std::string_view payload = text.PayloadView();
    return AllAscii(payload) && payload.find('\0') == std::string_view::npos;
}

char TTokenizer::WithoutCase(char separator) const noexcept {
    return m_fold && separator >= 'a' && separator <= 'z' ? '\0' : separator;
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

// The same in plain text, of which it is given what is left; gives the number of bytes.
template <bool Separators>
std::size_t TTokenizer::SkipPlain(std::string_view left) const noexcept {
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
    const std::int64_t length = m_text.GetByteLength();
    const std::int64_t at = Skip<true>(std::clamp<std::int64_t>(from, 0, length));
    return m_text.Payload()[at] == '\0' ? length : at;
}

void TTokenizer::ReadToken(std::int64_t& pos, CStringU& token) const {
    const char* const start = m_text.Payload() + pos;
    if (m_plain) {
        const std::string_view left(start, static_cast<std::size_t>(m_text.GetByteLength() - pos));
        const std::size_t size = SkipPlain<false>(left);
        pos += static_cast<std::int64_t>(size + SkipPlain<true>(left.substr(size)));
        token.AssignAscii(left.substr(0, size));
        return;
    }
    const std::int64_t end = Skip<false>(pos);
    const auto size = static_cast<int>(end - pos);
    pos = SkipSeparators(end);
    if (m_text.HasNonAscii()) {
        token.Assign(start, TextEncoding::Utf8Auto, size);
    } else {
        token.AssignAscii({start, static_cast<std::size_t>(size)});
    }
}

CStringU TTokenizer::NextToken(std::int64_t& pos) const {
    CStringU token;
    pos = SkipSeparators(pos);
    ReadToken(pos, token);
    return token;
}

}  // namespace vapp_text
