/// @file
/// Narrow and wide, by the same rule: a last "&" marks nothing, and stays.

#include "text/Accelerator.h"

namespace vapp_text {

namespace {

/// Where the text has the "&" that goes; npos for nowhere.
template <typename Unit>
std::size_t MarkOf(std::basic_string_view<Unit> text) {
    if (text.empty()) return text.npos;
    return text.substr(0, text.size() - 1).find(static_cast<Unit>('&'));
}

}  // namespace

CString StripAccelerator(const CString& text) {
    const std::size_t mark = MarkOf(text.View());
    if (mark == std::string_view::npos) return text;
    CString stripped = text;
    stripped.Delete(static_cast<int>(mark));
    return stripped;
}

std::u16string StripAccelerator(std::u16string_view text) {
    std::u16string stripped(text);
    const std::size_t mark = MarkOf(text);
    if (mark != std::u16string_view::npos) stripped.erase(mark, 1);
    return stripped;
}

}  // namespace vapp_text
