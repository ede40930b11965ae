#pragma once
/// The Tcl command `navigator`: what a host script may do to the window itself.

#include <span>
#include <string>

#include "host/CommandTable.h"
#include "host/TclCommand.h"

namespace vapp_library_browser {
class TLibraryBrowser;
}

namespace navigator {

class NavigatorCommand {
public:
    /// Registers the command. The browser must outlive this object.
    NavigatorCommand(Tcl_Interp* interp, vapp_library_browser::TLibraryBrowser& browser);

    /// Runs what a script has asked for by `navigator onidle`; to be called when all is refreshed. A script
    /// that fails is told on the standard error stream, and not asked again.
    void RunIdleScript();
    /// Whether a script has chosen a design or a library, or an order, itself.
    [[nodiscard]] bool HasChosen() const { return m_hasChosen; }
    [[nodiscard]] bool HasSorted() const { return m_hasSorted; }

    /// All sub-commands, by name.
    static std::span<const CommandHelp> Help();

private:
    static const SubCommandRow<NavigatorCommand> csSubCommands[];

    int AddColumn(Tcl_Interp* interp, TclWords words);
    int AddFilterType(Tcl_Interp* interp, TclWords words);
    int OnIdle(Tcl_Interp* interp, TclWords words);
    int Refresh(Tcl_Interp* interp, TclWords words);
    int SelectDesign(Tcl_Interp* interp, TclWords words);
    int SelectLibrary(Tcl_Interp* interp, TclWords words);
    int SetTabText(Tcl_Interp* interp, TclWords words);
    int SortBy(Tcl_Interp* interp, TclWords words);

    vapp_library_browser::TLibraryBrowser& m_browser;
    Tcl_Interp* m_interp;
    std::string m_idleScript;
    bool m_isIdleScriptRunning = false;
    bool m_hasChosen = false;
    bool m_hasSorted = false;
    TclCommand m_command;
};

}  // namespace navigator
