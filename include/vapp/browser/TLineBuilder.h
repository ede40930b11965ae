/// @file
/// TLineBuilder: puts a line for the interpreter together.
///
/// Painting sends several lines for each visible cell, so the line grows in room that the builder brings
/// along; only a long one goes to the heap. What is appended is plain UTF-8 without the marker of CStringU,
/// which Tcl never sees. The builder adds no quotes: whether a name is one word is the business of the hook
/// (see SanitizeTclInput).
#pragma once

#include <array>
#include <cstddef>
#include <memory_resource>
#include <string>
#include <string_view>

#include "vapp/Export.h"
#include "vapp/browser/TLibCellView.h"
#include "vapp/text/CStringU.h"

namespace vapp_library_browser {

/// A growing line. Not copyable; made, filled and sent within one function.
class VAPP_EXPORT TLineBuilder {
public:
    /// Begins with a fixed text.
    explicit TLineBuilder(std::string_view start = {});
    TLineBuilder(const TLineBuilder&) = delete;
    TLineBuilder& operator=(const TLineBuilder&) = delete;
    ~TLineBuilder() = default;

    /// Bytes as they stand.
    TLineBuilder& Literal(std::string_view text);
    /// A text as it stands.
    TLineBuilder& Text(const CStringU& text);
    /// A name, sanitised.
    TLineBuilder& Name(const CStringU& name);
    /// Library, cell and view, each sanitised by itself, with a blank between them.
    TLineBuilder& Triple(const TLibCellView& cell);
    TLineBuilder& Number(int number);

    /// The line, NUL at its end; valid until the next change.
    [[nodiscard]] const char* GetString() const noexcept { return m_line.c_str(); }
    [[nodiscard]] std::string_view View() const noexcept { return m_line; }
    /// The line as a text of the system.
    [[nodiscard]] CStringU ToText() const;

private:
    std::array<std::byte, 512> m_room;
    std::pmr::monotonic_buffer_resource m_pool{m_room.data(), m_room.size()};
    std::pmr::string m_line{&m_pool};
};

}  // namespace vapp_library_browser
