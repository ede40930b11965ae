/// @file
/// Lines, byte by byte. The hook is asked only where there is one: without it a name is appended as it lies
/// in its text, uncopied.
#include "vapp/browser/TLineBuilder.h"

#include <array>
#include <charconv>

#include "browser/SanitizeHook.h"

namespace vapp_library_browser {

TLineBuilder::TLineBuilder(std::string_view start) {
    // All the room at once: growing step by step would use up the pool for buffers that are thrown away.
    m_line.reserve(m_room.size() - 1);
    m_line.append(start);
}

TLineBuilder& TLineBuilder::Literal(std::string_view text) {
    m_line.append(text);
    return *this;
}

TLineBuilder& TLineBuilder::Text(const CStringU& text) {
    return Literal(text.PayloadView());
}

TLineBuilder& TLineBuilder::Name(const CStringU& name) {
    return HasSanitizeHook() ? Text(CallSanitizeHook(name)) : Text(name);
}

TLineBuilder& TLineBuilder::Triple(const TLibCellView& cell) {
    Name(cell.library).Literal(" ");
    Name(cell.cell).Literal(" ");
    return Name(cell.view);
}

TLineBuilder& TLineBuilder::Number(int number) {
    std::array<char, 16> digits;
    const auto [end, error] = std::to_chars(digits.data(), digits.data() + digits.size(), number);
    static_cast<void>(error);  // an int always fits
    return Literal({digits.data(), static_cast<std::size_t>(end - digits.data())});
}

CStringU TLineBuilder::ToText() const {
    return {m_line.c_str(), TextEncoding::Utf8Auto, static_cast<int>(m_line.size())};
}

}  // namespace vapp_library_browser
