/// @file
/// Makes and ends interpreters the way a host does: by calling Tcl itself. The library reaches Tcl through
/// its stubs only, and those come from an interpreter that exists already.
#pragma once

struct Tcl_Interp;

/// A new interpreter, without Tcl's own script library; starts Tcl at the first call.
[[nodiscard]] Tcl_Interp* MakeTclInterpreter();
void EndTclInterpreter(Tcl_Interp* interp);
