#pragma once
/// The Tcl command `user`: a script does what a user does, by the same operations of the controls that a
/// mouse reaches, and looks at what a user sees. It works with and without a screen.

#include <functional>
#include <span>
#include <string>
#include <utility>

#include "host/CommandTable.h"
#include "host/TclCommand.h"

class CFrameWnd;
namespace vapp_library_browser {
class TLibraryBrowser;
}

namespace navigator {

class UserCommand {
public:
    /// Registers the command. Frame and browser must outlive this object.
    /// @param settle  refreshes what is due
    UserCommand(Tcl_Interp* interp, CFrameWnd& frame, vapp_library_browser::TLibraryBrowser& browser,
                std::function<void()> settle);

    /// Called with each text that a script types into the console.
    void SetConsoleHandler(std::function<void(const std::string&)> handler) {
        m_console = std::move(handler);
    }

    /// Asked for the items of the open menus, as a list; without a handler none is open.
    void SetMenuHandler(std::function<Tcl_Obj*()> handler) { m_menus = std::move(handler); }

    /// Texts that explain what is under the pointer.
    struct Tips {
        std::string tip;      ///< beside the pointer
        std::string message;  ///< at the lower edge of the window
    };
    /// Asked for the texts that are seen; without a handler there are none.
    void SetTipHandler(std::function<Tips()> handler) { m_tips = std::move(handler); }

    /// All sub-commands, by name.
    static std::span<const CommandHelp> Help();

private:
    static const SubCommandRow<UserCommand> csSubCommands[];

    int Click(Tcl_Interp* interp, TclWords words);
    int Drag(Tcl_Interp* interp, TclWords words);
    int Menu(Tcl_Interp* interp, TclWords words);
    int Place(Tcl_Interp* interp, TclWords words);
    int Resize(Tcl_Interp* interp, TclWords words);
    int Settle(Tcl_Interp* interp, TclWords words);
    int State(Tcl_Interp* interp, TclWords words);
    int Tip(Tcl_Interp* interp, TclWords words);
    int Type(Tcl_Interp* interp, TclWords words);

    int ClickLibrary(Tcl_Interp* interp, Tcl_Obj* library, bool isAdding);
    int ClickHeader(Tcl_Interp* interp, Tcl_Obj* caption, bool isAdding);
    int ClickRow(Tcl_Interp* interp, Tcl_Obj* row, bool isAdding);

    CFrameWnd& m_frame;
    vapp_library_browser::TLibraryBrowser& m_browser;
    std::function<void()> m_settle;
    std::function<void(const std::string&)> m_console;
    std::function<Tcl_Obj*()> m_menus;
    std::function<Tips()> m_tips;
    TclCommand m_command;
};

}  // namespace navigator
