/// @file
/// The one file of the tests that is linked with Tcl itself instead of its stubs.
#undef USE_TCL_STUBS
#include "tests/browser/TclInterpreter.h"

#include <tcl.h>

Tcl_Interp* MakeTclInterpreter() {
    [[maybe_unused]] static const bool s_started = (Tcl_FindExecutable(nullptr), true);
    return Tcl_CreateInterp();
}

void EndTclInterpreter(Tcl_Interp* interp) {
    Tcl_DeleteInterp(interp);
}
