#pragma once
/// The Tcl command `navigator`: what a host script may do to the window itself.

#include <span>

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

    /// All sub-commands, by name.
    static std::span<const CommandHelp> Help();

private:
    static const SubCommandRow<NavigatorCommand> csSubCommands[];

    int AddColumn(Tcl_Interp* interp, TclWords words);
    int AddFilterType(Tcl_Interp* interp, TclWords words);
    int Refresh(Tcl_Interp* interp, TclWords words);
    int SelectDesign(Tcl_Interp* interp, TclWords words);
    int SelectLibrary(Tcl_Interp* interp, TclWords words);
    int SetTabText(Tcl_Interp* interp, TclWords words);
    int SortBy(Tcl_Interp* interp, TclWords words);

    vapp_library_browser::TLibraryBrowser& m_browser;
    TclCommand m_command;
};

}  // namespace navigator
