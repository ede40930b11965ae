/// @file
/// The walk of the tokeniser, by whole characters.

#include "text/Tokenizer.h"

#include <algorithm>
#include <string_view>

namespace vapp_text {

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

std::int64_t TTokenizer::SkipSeparators(std::int64_t from) const noexcept {
    const std::int64_t length = m_text.GetByteLength();
    const std::int64_t at = Skip<true>(std::clamp<std::int64_t>(from, 0, length));
    return m_text.Payload()[at] == '\0' ? length : at;
}

CStringU TTokenizer::NextToken(std::int64_t& pos) const {
    const std::int64_t start = SkipSeparators(pos);
    // The character at the start is no separator, so that a token is never empty.
    const std::int64_t end = Skip<false>(start);
    pos = SkipSeparators(end);
    const std::string_view token(m_text.Payload() + start, static_cast<std::size_t>(end - start));
    if (!m_text.HasNonAscii()) return {CString(token), CStringU::TAscii()};
    return {token.data(), TextEncoding::Utf8Auto, static_cast<int>(token.size())};
}

}  // namespace vapp_text
