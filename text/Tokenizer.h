/// @file
/// Splitting a text at separators.
///
///     std::int64_t pos = tokenizer.SkipSeparators(0);
///     while (pos < tokenizer.GetByteLength()) use(tokenizer.NextToken(pos));
///
/// or ForEachToken, which is that loop. Begun at 0 instead, it makes one empty token of a text of separators
/// alone. For texts that people wrote or settings that were joined.
/// (CString::Tokenize does the same to bytes.)
///
/// A run of separators counts as one, those at the ends count as none: no token is ever empty. Blanks are
/// text, unless the set says otherwise: "a, b" at "," is "a" and " b".
#pragma once

#include <cstdint>
#include <string_view>
#include <utility>

#include "text/AsciiBytes.h"
#include "text/CharSet.h"
#include "vapp/text/CStringU.h"

namespace vapp_text {

/// A text with its separators. A small value; keeps a share of the text.
class TTokenizer {
public:
    /// Without `caseSensitive` a separator counts in either case.
    TTokenizer(CStringU text, const CStringU& separators, bool caseSensitive = false)
        : m_text(std::move(text)),
          m_separators(separators.Payload(), !caseSensitive),
          m_fold(!caseSensitive),
          m_onlySeparator(WithoutCase(m_separators.OnlyAscii())),
          m_byBytes(GoesByBytes(FormOf(m_text.PayloadView()))) {}

    /// The next token at or behind the byte offset `pos`, which moves behind the token and the separators
    /// that follow it. When no token is left: empty text, and `pos` is the text's end; a NUL inside of the
    /// text counts as that, so that every loop ends. An offset outside of the text counts as the nearer end.
    [[nodiscard]] CStringU NextToken(std::int64_t& pos) const;

    /// The first character at or behind an offset that is no separator; the text's end for none.
    [[nodiscard]] std::int64_t SkipSeparators(std::int64_t from) const noexcept;
    /// The end that `pos` reaches.
    [[nodiscard]] std::int64_t GetByteLength() const noexcept { return m_text.GetByteLength(); }

    /// Hands out all tokens in order, each as a `const CStringU&` that lasts for the call: one text, filled
    /// again and again where nobody keeps a share of it.
    template <typename Use>
    void ForEachToken(const Use& use) const {
        CStringU token;
        if (m_byBytes && m_onlySeparator != '\0') return SplitAtByte(token, use);
        std::int64_t pos = SkipSeparators(0);
        while (pos < GetByteLength()) {
            ReadToken(pos, token);
            use(std::as_const(token));
        }
    }

private:
    [[nodiscard]] bool IsSeparator(char16_t unit) const noexcept {
        return m_separators.Holds(m_fold ? FoldChar(unit) : unit);
    }
    [[nodiscard]] char WithoutCase(char separator) const noexcept;
    // The usual case of ForEachToken: one separator, searched for as a byte.
    template <typename Use>
    void SplitAtByte(CStringU& token, const Use& use) const {
        const std::string_view text = m_text.PayloadView();
        const bool nonAscii = m_text.HasNonAscii();
        for (std::size_t at = 0; at < text.size(); ++at) {
            if (text[at] == m_onlySeparator) continue;
            const std::size_t end = text.find(m_onlySeparator, at);
            const std::string_view read = text.substr(at, end - at);
            static_cast<void>(nonAscii ? token.AssignUtf8(read) : token.AssignAscii(read));
            use(std::as_const(token));
            at += read.size();
        }
    }
    [[nodiscard]] bool GoesByBytes(TextForm form) const noexcept;
    template <bool Separators>
    [[nodiscard]] std::int64_t Skip(std::int64_t from) const noexcept;
    template <bool Separators>
    [[nodiscard]] std::size_t SkipBytes(std::string_view left) const noexcept;
    // From an offset where no separator stands.
    void ReadToken(std::int64_t& pos, CStringU& token) const;

    CStringU m_text;
    CharSet m_separators;
    bool m_fold;
    char m_onlySeparator;  // the one in ASCII that is searched for as it stands; 0 for none
    bool m_byBytes;        // where bytes are separators, characters are, and nowhere else
};

}  // namespace vapp_text
