/// The border to the interpreter: no exception crosses it, and a handler stays alive while it runs.

#include "host/TclCommand.h"

#include <exception>

namespace navigator {

/// Shared by the object here and by the interpreter, so that either may go first.
struct TclCommand::Registration {
    Tcl_Interp* interp = nullptr;
    Tcl_Command token = nullptr;
    Handler handler;

    using Held = std::shared_ptr<Registration>;

    static int Call(ClientData data, Tcl_Interp* caller, int count, Tcl_Obj* const* words) {
        const Held held = *static_cast<Held*>(data);
        try {
            return held->handler(caller, TclWords(words, static_cast<std::size_t>(count)));
        } catch (const std::exception& failure) {
            return gTclFailure(caller, failure.what());
        }
    }

    static void Deleted(ClientData data) {
        const std::unique_ptr<Held> held(static_cast<Held*>(data));
        (*held)->token = nullptr;
    }
};

TclCommand::TclCommand(Tcl_Interp* interp, const char* name, Handler handler)
    : m_registration(std::make_shared<Registration>()) {
    m_registration->interp = interp;
    m_registration->handler = std::move(handler);
    auto held = std::make_unique<Registration::Held>(m_registration);
    // The interpreter owns the second hold and gives it to Deleted.
    m_registration->token =
        Tcl_CreateObjCommand(interp, name, &Registration::Call, held.release(), &Registration::Deleted);
}

TclCommand::~TclCommand() {
    if (m_registration->token != nullptr)
        Tcl_DeleteCommandFromToken(m_registration->interp, m_registration->token);
}

Tcl_Obj* gTclText(std::string_view text) {
    return Tcl_NewStringObj(text.data(), static_cast<int>(text.size()));
}

std::string_view gTextOf(Tcl_Obj* object) {
    int length = 0;
    const char* const text = Tcl_GetStringFromObj(object, &length);
    return {text, static_cast<std::size_t>(length)};
}

int gTclFailure(Tcl_Interp* interp, const std::string& message) {
    Tcl_SetObjResult(interp, gTclText(message));
    return TCL_ERROR;
}

std::string gDescribe(std::span<const CommandHelp> commands) {
    std::string text;
    for (const CommandHelp& command : commands) {
        text += command.usage;
        text += "\n    ";
        text += command.help;
        text += '\n';
    }
    return text;
}

}  // namespace navigator
