#pragma once
/// The Tcl command `usermenu`: scripts add items to the menus of the cell list, the library list and the
/// tabs, in every style that those know, and say what a double click does. What is added stays until it is
/// removed; it is asked each time whether it is enabled and checked.

#include <functional>
#include <span>
#include <string>
#include <utility>
#include <vector>

#include "host/CommandTable.h"
#include "host/MenuItems.h"
#include "host/TclCommand.h"

namespace navigator {

class UserMenuCommand {
public:
    /// What a double click on a cell runs.
    struct TDoubleClick {
        std::string command;
        vapp_library_browser::TLibraryBrowserTclInterfaceStyle style = vapp_library_browser::StyleFocusedLcv;
    };

    /// Registers the command. The browser must outlive this object.
    /// @param failed  told the sentence of each script of an item that fails
    UserMenuCommand(Tcl_Interp* interp, vapp_library_browser::TLibraryBrowser& browser,
                    std::function<void(const std::string&)> failed);

    /// The items of a menu as they are to be shown now: their scripts run in the call. One that fails leaves
    /// its item greyed, or unchecked.
    [[nodiscard]] std::vector<MenuItem> ItemsOf(TMenuPlace place);

    /// Sets what a double click runs.
    void SetDoubleClick(TDoubleClick command);
    [[nodiscard]] const TDoubleClick& DoubleClick() const { return m_doubleClick; }

    /// All sub-commands, by name.
    static std::span<const CommandHelp> Help();

private:
    struct TEntry {
        TMenuPlace place = TMenuPlace::Cells;
        MenuItem item;
        std::string enabledScript;
        std::string checkedScript;
    };
    static const SubCommandRow<UserMenuCommand> csSubCommands[];

    int Add(Tcl_Interp* interp, TclWords words);
    int AddSeparator(Tcl_Interp* interp, TclWords words);
    int SetDoubleClick(Tcl_Interp* interp, TclWords words);
    int ListItems(Tcl_Interp* interp, TclWords words);
    int Remove(Tcl_Interp* interp, TclWords words);

    static int TakeOption(Tcl_Interp* interp, Tcl_Obj* name, Tcl_Obj* value, TEntry& entry);
    bool Ask(const std::string& script);

    Tcl_Interp* m_interp;
    vapp_library_browser::TLibraryBrowser& m_browser;
    std::function<void(const std::string&)> m_failed;
    std::vector<TEntry> m_entries;
    TDoubleClick m_doubleClick;
    TclCommand m_command;
};

}  // namespace navigator
