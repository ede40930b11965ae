// Hostile bytes into the reader of quoted lists. Whatever it reads must come back the same once it is
// written, and no item can be longer than the text.
//
// Input: the text, NULs included.

#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "text/QuotedList.h"

namespace {

void Require(bool holds) {
    if (!holds) std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size > 4096) return 0;
    const CString text(std::string_view(reinterpret_cast<const char*>(data), size));
    CStringArray items;
    Require(vapp_text::SplitQuoted(text, items) == items.GetSize());
    int bytes = 2 * items.GetSize();
    for (const CString& item : items)
        bytes += item.GetLength();
    Require(bytes <= text.GetLength());
    CStringArray again;
    vapp_text::SplitQuoted(vapp_text::JoinQuoted(items), again);
    Require(again == items);
    return 0;
}
