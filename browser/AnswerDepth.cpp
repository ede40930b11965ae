/// @file
/// Walks lists and dictionaries that have no text yet, with a stack of its own.
#include "browser/AnswerDepth.h"

#include <tcl.h>

#include <string_view>
#include <vector>

namespace vapp_library_browser {

namespace {

/// Elements that are still to be looked at, on one level.
struct TLevel {
    Tcl_Obj* const* next;
    Tcl_Obj* const* end;
};

bool IsList(const Tcl_Obj* object) {
    return object->bytes == nullptr && object->typePtr != nullptr &&
           std::string_view(object->typePtr->name) == "list";
}

bool IsDictionary(const Tcl_Obj* object) {
    return object->bytes == nullptr && object->typePtr != nullptr &&
           std::string_view(object->typePtr->name) == "dict";
}

/// The size that is left is counted down over the whole walk: elements that are shared count each time, as
/// they do in the text.
class TWalk {
public:
    bool Fits(Tcl_Obj* root) {
        if (!Enter(root)) return false;
        while (!m_levels.empty()) {
            TLevel& level = m_levels.back();
            if (level.next == level.end) {
                m_levels.pop_back();
            } else if (!Enter(*level.next++)) {
                return false;
            }
        }
        return true;
    }

private:
    bool Enter(Tcl_Obj* object) {
        if (IsDictionary(object)) {
            // As a list it has the same text, and its values can be walked like any.
            int ignored = 0;
            Tcl_ListObjLength(nullptr, object, &ignored);
        }
        if (!IsList(object)) return Take(object->bytes == nullptr ? 1 : std::size_t(object->length) + 1);
        int count = 0;
        Tcl_Obj** elements = nullptr;
        if (Tcl_ListObjGetElements(nullptr, object, &count, &elements) != TCL_OK) return false;
        if (m_levels.size() == cnMaxAnswerDepth || !Take(std::size_t(count) + 1)) return false;
        m_levels.push_back({elements, elements + count});
        return true;
    }

    bool Take(std::size_t size) {
        if (size > m_left) return false;
        m_left -= size;
        return true;
    }

    std::size_t m_left = cnMaxAnswerSize;
    std::vector<TLevel> m_levels;
};

}  // namespace

bool HasReadableText(Tcl_Obj* object) {
    if (object == nullptr) return false;
    if (!IsList(object) && !IsDictionary(object)) return true;
    return TWalk().Fits(object);
}

}  // namespace vapp_library_browser
