// Hostile bytes as text and as separators of the tokeniser. Its loop must advance and end, its tokens must be
// pieces of the text in order, without a separator, and never empty.
//
// Input: one byte for case and encoding, one for the length of the set, the set, the text.

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

#include "text/Tokenizer.h"

namespace {

void Require(bool holds) {
    if (!holds) std::abort();
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
    const std::string_view payload = text.PayloadView();
    std::size_t at = 0;
    tokenizer.ForEachToken([&](const CStringU& token) {
        // A token that begins with a stray byte 0x80 takes it for its marker.
        Require(token.Stored().GetLength() > 0);
        const std::size_t found = payload.find(token.PayloadView(), at);
        Require(found != std::string_view::npos);
        at = found + static_cast<std::size_t>(token.GetByteLength());
    });
    for (std::int64_t pos = -1; pos < tokenizer.GetByteLength();) {
        const std::int64_t before = pos;
        static_cast<void>(tokenizer.NextToken(pos));
        Require(pos > before && pos <= tokenizer.GetByteLength());
    }
    return 0;
}
