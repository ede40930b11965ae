// Hostile bytes as text and as separators of the tokeniser. Its loops must advance and end, and hand out what
// lies between the separators, as a walk by characters finds it.
//
// Input: one byte for case and encoding, one for the length of the set, the set, the text.

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>
#include <vector>

#include "text/CharSet.h"
#include "text/Codec.h"
#include "text/Fold.h"
#include "text/Tokenizer.h"

namespace {

void Require(bool holds) {
    if (!holds) std::abort();
}

// The pieces of a payload between separators.
std::vector<std::string_view> PiecesOf(const CStringU& text, const CStringU& set, bool caseSensitive) {
    const vapp_text::CharSet separators(set.Payload(), !caseSensitive);
    std::vector<std::string_view> pieces;
    const char* begin = text.Payload();
    for (const char* walk = begin;;) {
        const char* const at = walk;
        const bool atEnd = *walk == '\0';
        if (!atEnd) {
            const char16_t unit = vapp_text::DecodeNext(walk);
            if (!separators.Holds(caseSensitive ? unit : vapp_text::FoldChar(unit))) continue;
        }
        if (at != begin) pieces.emplace_back(begin, static_cast<std::size_t>(at - begin));
        if (atEnd) return pieces;
        begin = walk;
    }
}

// A token that begins with a stray byte 0x80 takes it for its marker.
bool IsPiece(const CStringU& token, std::string_view piece) {
    const std::string_view stored = token.Stored().View();
    return stored == piece || (stored.size() == piece.size() + 1 && stored.ends_with(piece));
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size < 2 || size > 4096) return 0;
    const bool caseSensitive = (data[0] & 1U) != 0;
    const auto encoding = static_cast<TextEncoding>((data[0] >> 1U) % 5);
    const std::string bytes(reinterpret_cast<const char*>(data + 2), size - 2);
    const std::size_t setSize = std::min<std::size_t>(data[1] % 16, bytes.size());
    const CStringU set(bytes.substr(0, setSize).c_str(), encoding);
    const CStringU text(bytes.substr(setSize).c_str(), encoding);
    const vapp_text::TTokenizer tokenizer(text, set, caseSensitive);
    const std::vector<std::string_view> pieces = PiecesOf(text, set, caseSensitive);
    std::size_t tokens = 0;
    tokenizer.ForEachToken([&](const CStringU& token) {
        Require(tokens < pieces.size() && IsPiece(token, pieces[tokens]));
        ++tokens;
    });
    Require(tokens == pieces.size());
    tokens = 0;
    for (std::int64_t pos = tokenizer.SkipSeparators(0); pos < tokenizer.GetByteLength();) {
        const std::int64_t before = pos;
        const CStringU token = tokenizer.NextToken(pos);
        Require(pos > before && pos <= tokenizer.GetByteLength());
        Require(tokens < pieces.size() && IsPiece(token, pieces[tokens]));
        ++tokens;
    }
    Require(tokens == pieces.size());
    return 0;
}
