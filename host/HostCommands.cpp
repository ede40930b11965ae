/// `logaction` and `librarynavigator`.

#include "host/HostCommands.h"

#include <algorithm>
#include <array>

namespace navigator {

namespace {

constexpr std::array<CommandHelp, 2> csHelp{{
    {"librarynavigator",
     "librarynavigator preview set ?-primary DESIGN? -library LIBRARY -cell CELL -view VIEW -bmwidth WIDTH "
     "-bmheight HEIGHT",
     "Draws a view into the preview pane, in a picture of that many pixels."},
    {"logaction", "logaction LINE",
     "Keeps a line in the log of user actions and evaluates it at global level; the log has its failure "
     "too."},
}};

enum class PreviewOption { Primary, Library, Cell, View, Width, Height };
constexpr std::array<const char*, 7> csPreviewOptions{"-primary", "-library",  "-cell", "-view",
                                                      "-bmwidth", "-bmheight", nullptr};

int TakeSize(Tcl_Interp* interp, Tcl_Obj* word, int& size) {
    const int code = Tcl_GetIntFromObj(interp, word, &size);
    // A pane without a size is no error of the line: there is just nothing to draw.
    size = code == TCL_OK ? std::clamp(size, 0, cnLargestPreview) : 0;
    return code;
}

int TakeOption(Tcl_Interp* interp, PreviewOption option, Tcl_Obj* value, PreviewRequest& request) {
    switch (option) {
        case PreviewOption::Primary:
            request.name.design = gTextOf(value);
            break;
        case PreviewOption::Library:
            request.name.library = gTextOf(value);
            break;
        case PreviewOption::Cell:
            request.name.cell = gTextOf(value);
            break;
        case PreviewOption::View:
            request.name.view = gTextOf(value);
            break;
        case PreviewOption::Width:
            return TakeSize(interp, value, request.width);
        case PreviewOption::Height:
            return TakeSize(interp, value, request.height);
    }
    return TCL_OK;
}

int ParsePreview(Tcl_Interp* interp, TclWords options, PreviewRequest& request) {
    for (std::size_t next = 0; next < options.size(); next += 2) {
        int option = 0;
        int code =
            Tcl_GetIndexFromObj(interp, options[next], csPreviewOptions.data(), "option", TCL_EXACT, &option);
        if (code != TCL_OK) return code;
        if (next + 1 == options.size()) {
            return gTclFailure(interp, std::string("option ") +
                                           csPreviewOptions[static_cast<std::size_t>(option)] +
                                           " needs a value");
        }
        code = TakeOption(interp, static_cast<PreviewOption>(option), options[next + 1], request);
        if (code != TCL_OK) return code;
    }
    return TCL_OK;
}

}  // namespace

HostCommands::HostCommands(Tcl_Interp* interp)
    : m_logAction(interp, "logaction",
                  [this](Tcl_Interp* caller, TclWords words) { return LogAction(caller, words); }),
      m_libraryNavigator(interp, "librarynavigator", [this](Tcl_Interp* caller, TclWords words) {
          return LibraryNavigator(caller, words);
      }) {}

std::span<const CommandHelp> HostCommands::Help() {
    return csHelp;
}

int HostCommands::LogAction(Tcl_Interp* interp, TclWords words) {
    if (words.size() != 2) {
        Tcl_WrongNumArgs(interp, 1, words.data(), "LINE");
        return TCL_ERROR;
    }
    m_log.Add(ActionLog::TKind::Action, gTextOf(words[1]));
    const int code = Tcl_EvalObjEx(interp, words[1], TCL_EVAL_GLOBAL);
    // The navigator asks for no answer, so that a failure would be lost.
    if (code == TCL_ERROR) m_log.Add(ActionLog::TKind::Failure, gTextOf(Tcl_GetObjResult(interp)));
    return code;
}

int HostCommands::LibraryNavigator(Tcl_Interp* interp, TclWords words) const {
    if (words.size() < 3 || gTextOf(words[1]) != "preview" || gTextOf(words[2]) != "set")
        return gTclFailure(interp, std::string("wrong # args: should be \"") + csHelp[0].usage + "\"");
    PreviewRequest request;
    const int code = ParsePreview(interp, words.subspan(3), request);
    if (code == TCL_OK && m_preview) m_preview(request);
    return code;
}

}  // namespace navigator
