/// @file
/// TTclList: the elements of an answer that is a Tcl list.
///
/// A view without copies, for walks over answers of a million elements. Lists of lists are taken apart with
/// one TTclList a level. It keeps no reference: the holder of the whole answer must outlive it, and no line
/// may be sent during the walk, for host script could turn the list into something else.
#pragma once

#include <cstddef>
#include <optional>

#include "vapp/Export.h"

struct Tcl_Obj;

namespace vapp_library_browser {

/// The elements of a Tcl list, not owned.
class VAPP_EXPORT TTclList {
public:
    /// The elements, or nothing if the object is null or no list. No error text is left in any interpreter:
    /// the host's result has been restored by then, and a bad answer must not show there.
    [[nodiscard]] static std::optional<TTclList> Read(Tcl_Obj* object) noexcept;

    [[nodiscard]] std::size_t size() const noexcept { return m_count; }
    [[nodiscard]] bool empty() const noexcept { return m_count == 0; }
    /// The element; the index must be below the size.
    [[nodiscard]] Tcl_Obj* operator[](std::size_t index) const noexcept { return m_elements[index]; }
    [[nodiscard]] Tcl_Obj* const* begin() const noexcept { return m_elements; }
    [[nodiscard]] Tcl_Obj* const* end() const noexcept { return m_elements + m_count; }

private:
    TTclList(Tcl_Obj* const* elements, std::size_t count) noexcept : m_elements(elements), m_count(count) {}

    Tcl_Obj* const* m_elements;
    std::size_t m_count;
};

}  // namespace vapp_library_browser
