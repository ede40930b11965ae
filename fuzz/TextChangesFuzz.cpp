// Hostile bytes through trimming, quoting, replacing and changing the case of a CStringU.
//
// What no input may break: what is left of a text is a piece of it, quotes put on can be taken off, and where
// a rebuilt text is well-formed its first byte tells what is in it.
//
// Input: one byte for the encoding, one each for the lengths of an old and of a new text, these, the text.

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

#include "text/AsciiBytes.h"
#include "text/Codec.h"
#include "vapp/text/CStringU.h"

namespace {

void Require(bool holds) {
    if (!holds) std::abort();
}

void Trim(const CStringU& text, const CStringU& set) {
    for (const CStringU& piece :
         {text.Trimmed(), text.TrimmedLeft(), text.TrimmedRight(), text.TrimmedLeft(set),
          text.TrimmedRight(set), text.SpanExcluding(set), text.SpanIncluding(set)}) {
        Require(text.PayloadView().find(piece.PayloadView()) != std::string_view::npos);
    }
    Require(CStringU(text).Trim() == text.Trimmed());
    Require(CStringU(text).TrimLeft() == text.TrimmedLeft());
    Require(CStringU(text).TrimRight() == text.TrimmedRight());
    static_cast<void>(text.IsBlank());
}

void Quote(const CStringU& text) {
    const CStringU quoted = text.WithQuotes();
    Require(quoted.WithQuotes() == quoted);
    // A piece that begins with a stray byte 0x80 takes it for its marker.
    const bool comesBack = !text.IsEmpty() && !text.PayloadView().starts_with('\x80');
    if (quoted != text && comesBack) Require(quoted.WithoutQuotes() == text);
    Require(text.WithoutQuotes().GetByteLength() <= text.GetByteLength());
}

// The first byte tells whether the payload is ASCII, and a marker stands only where nothing else would tell.
bool HoldsMarkerInvariant(const CStringU& text) {
    const std::string_view payload = text.PayloadView();
    const bool ascii = vapp_text::AllAscii(payload);
    const bool marked = text.Stored().GetLength() != text.GetByteLength();
    return text.HasNonAscii() == !ascii && marked == (!ascii && vapp_text::IsAsciiByte(payload.front()));
}

template <typename Edit>
void Apply(const CStringU& text, bool wellFormed, const Edit& edit) {
    CStringU changed = text;
    Require(edit(changed) >= 0);
    Require(!wellFormed || HoldsMarkerInvariant(changed));
}

void Change(const CStringU& text, const CStringU& oldText, const CStringU& newText, bool wellFormed) {
    const char16_t oldUnit = oldText.LastChar();
    const char16_t newUnit = newText.LastChar();
    Apply(text, wellFormed, [&](CStringU& changed) { return changed.Replace(oldText, newText); });
    Apply(text, wellFormed, [&](CStringU& changed) { return changed.ReplaceNoCase(oldText, newText); });
    Apply(text, wellFormed, [&](CStringU& changed) { return changed.Replace(oldUnit, newUnit); });
    Apply(text, wellFormed, [&](CStringU& changed) { return changed.ReplaceNoCase(oldUnit, newUnit); });
    for (const CStringU& changed : {text.ToLower(), text.ToUpper()}) {
        Require(changed.GetByteLength() <= 3 * text.GetByteLength());
        Require(!wellFormed || HoldsMarkerInvariant(changed));
    }
    static_cast<void>(text.ToBool(true));
    Require(text.FindExtensionDot().offset <= text.GetByteLength());
}

// What has been UTF-16 is well-formed from then on.
CStringU WellFormed(const CStringU& text) {
    return CStringU(text.ToWide().c_str());
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size < 3 || size > 4096) return 0;
    const auto encoding = static_cast<TextEncoding>(data[0] % 5);
    const std::string bytes(reinterpret_cast<const char*>(data + 3), size - 3);
    const std::size_t oldSize = std::min<std::size_t>(data[1] % 16, bytes.size());
    const std::size_t newSize = std::min<std::size_t>(data[2] % 16, bytes.size() - oldSize);
    const CStringU oldText(bytes.substr(0, oldSize).c_str(), encoding);
    const CStringU newText(bytes.substr(oldSize, newSize).c_str(), encoding);
    const CStringU text(bytes.substr(oldSize + newSize).c_str(), encoding);
    Trim(text, oldText);
    Quote(text);
    Change(text, oldText, newText, false);
    Change(WellFormed(text), WellFormed(oldText), WellFormed(newText), true);
    return 0;
}
