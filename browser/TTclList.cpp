/// @file
/// Reads a Tcl list without a trace: the interpreter is not told of a failure.
#include "vapp/browser/TTclList.h"

#include <tcl.h>

namespace vapp_library_browser {

std::optional<TTclList> TTclList::Read(Tcl_Obj* object) noexcept {
    if (object == nullptr) return std::nullopt;
    int count = 0;
    Tcl_Obj** elements = nullptr;
    if (Tcl_ListObjGetElements(nullptr, object, &count, &elements) != TCL_OK) return std::nullopt;
    return TTclList(elements, static_cast<std::size_t>(count));
}

}  // namespace vapp_library_browser
