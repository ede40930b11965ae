#pragma once
/// A command of the interpreter that lives as long as this object, or as long as the interpreter, whichever
/// ends first. The command may be renamed, replaced or deleted by a script at any time, also while it runs.

#include <tcl.h>

#include <functional>
#include <memory>
#include <span>
#include <string>
#include <string_view>

namespace navigator {

/// The words of a call, the command's own name first.
using TclWords = std::span<Tcl_Obj* const>;

class TclCommand {
public:
    /// Answers a call with a Tcl completion code, and its result in the interpreter.
    using Handler = std::function<int(Tcl_Interp*, TclWords)>;

    TclCommand(Tcl_Interp* interp, const char* name, Handler handler);
    ~TclCommand();
    TclCommand(const TclCommand&) = delete;
    TclCommand& operator=(const TclCommand&) = delete;

private:
    struct Registration;
    std::shared_ptr<Registration> m_registration;
};

/// One documented command or sub-command. The name stands first and is a plain pointer, because
/// Tcl_GetIndexFromObjStruct walks tables of that form.
struct CommandHelp {
    const char* name;
    const char* usage;
    const char* help;
};

/// A UTF-8 text as a Tcl object without a reference.
Tcl_Obj* gTclText(std::string_view text);

/// The text of an object, valid while the object is.
std::string_view gTextOf(Tcl_Obj* object);

/// Leaves the message as the interpreter's result; always TCL_ERROR.
int gTclFailure(Tcl_Interp* interp, const std::string& message);

/// "usage" lines and explanations of some commands, for people.
std::string gDescribe(std::span<const CommandHelp> commands);

}  // namespace navigator
