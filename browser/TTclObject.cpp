/// @file
/// The reference counts of Tcl objects, kept out of the header: hosts see it without Tcl's own one.
#include "vapp/browser/TTclObject.h"

#include <tcl.h>

namespace vapp_library_browser {

TTclObject::TTclObject(Tcl_Obj* object) noexcept : m_object(object) {
    if (m_object != nullptr) Tcl_IncrRefCount(m_object);
}

void TTclObject::Drop(Tcl_Obj* object) noexcept {
    Tcl_DecrRefCount(object);
}

}  // namespace vapp_library_browser
