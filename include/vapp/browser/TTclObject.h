/// @file
/// TTclObject: a reference to a Tcl object that is dropped when the holder goes.
///
/// Answers are held by it while they are read, so that an answer lives on whatever host script does to the
/// interpreter meanwhile. It never looks into the object.
#pragma once

#include <utility>

#include "vapp/Export.h"

struct Tcl_Obj;

namespace vapp_library_browser {

/// Owns one reference, or nothing. Window thread only, like the interpreter.
class VAPP_EXPORT TTclObject {
public:
    TTclObject() noexcept = default;
    /// Takes a further reference; null is nothing.
    explicit TTclObject(Tcl_Obj* object) noexcept;
    TTclObject(const TTclObject& other) noexcept : TTclObject(other.m_object) {}
    TTclObject(TTclObject&& other) noexcept : m_object(std::exchange(other.m_object, nullptr)) {}
    TTclObject& operator=(TTclObject other) noexcept {
        std::swap(m_object, other.m_object);
        return *this;
    }
    ~TTclObject() {
        if (m_object != nullptr) Drop(m_object);
    }

    /// Takes over a reference that the caller owns already.
    [[nodiscard]] static TTclObject Adopt(Tcl_Obj* owned) noexcept {
        TTclObject holder;
        holder.m_object = owned;
        return holder;
    }

    /// The object, or null; the holder keeps its reference.
    [[nodiscard]] Tcl_Obj* Get() const noexcept { return m_object; }
    /// Gives the reference away: the caller owns it now.
    [[nodiscard]] Tcl_Obj* Release() noexcept { return std::exchange(m_object, nullptr); }
    explicit operator bool() const noexcept { return m_object != nullptr; }

private:
    static void Drop(Tcl_Obj* object) noexcept;

    Tcl_Obj* m_object = nullptr;
};

}  // namespace vapp_library_browser
