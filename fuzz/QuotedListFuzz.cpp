// Hostile bytes into the reader of quoted lists. It must read what a plain search for the quotes finds, and
// that must come back the same once it is written.
//
// Input: the text, NULs included.

#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

#include "text/QuotedList.h"

namespace {

void Require(bool holds) {
    if (!holds) std::abort();
}

// From each opening quote to the next one that has no backslash in front; the last may lack it.
CStringArray Searched(std::string_view text) {
    CStringArray items;
    for (std::size_t at = text.find('"'); at < text.size(); at = text.find('"', at)) {
        std::string item;
        for (++at; at < text.size() && text[at] != '"'; ++at) {
            if (text[at] == '\\' && ++at == text.size()) break;
            item += text[at];
        }
        if (at >= text.size()) break;
        items.Add(CString(item));
        ++at;
    }
    return items;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size > 4096) return 0;
    const CString text(std::string_view(reinterpret_cast<const char*>(data), size));
    CStringArray items;
    Require(vapp_text::SplitQuoted(text, items) == items.GetSize());
    Require(items == Searched(text.View()));
    CStringArray again;
    vapp_text::SplitQuoted(vapp_text::JoinQuoted(items), again);
    Require(again == items);
    return 0;
}
