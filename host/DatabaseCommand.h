#pragma once
/// The Tcl command `database`: what the navigator asks of the host, and a few lines by which scripts and
/// tests change the host's state. The table behind Help() is the one place that says which sub-commands there
/// are; calls are dispatched by it and the help text is printed from it.

#include <functional>
#include <optional>
#include <span>

#include "host/CommandTable.h"
#include "host/DesignStore.h"
#include "host/TclCommand.h"

namespace navigator {

/// What a line has changed.
enum class DatabaseChange {
    Libraries,       ///< A folder was opened, or a rescan found changes.
    CellState,       ///< A mark was set.
    SelectedMaster,  ///< Another selected master: the navigator's hint 110.
};

class DatabaseCommand {
public:
    /// Registers the command. The store must outlive this object; the interpreter need not.
    DatabaseCommand(Tcl_Interp* interp, DesignStore& store);

    /// Called after a line that changed something, while the line still runs: to note the change, not to
    /// refresh.
    void SetChangeHandler(std::function<void(DatabaseChange)> handler) { m_changed = std::move(handler); }

    /// Who tells which views the user leaves out of the list: names divided by semicolons and blanks.
    void SetExcludedViews(std::function<std::string()> teller) { m_excludedViews = std::move(teller); }

    /// Library, cell and view; the design stays empty.
    [[nodiscard]] const std::optional<CellViewName>& SelectedMaster() const { return m_selectedMaster; }

    /// All sub-commands, by name.
    static std::span<const CommandHelp> Help();

private:
    static const SubCommandRow<DatabaseCommand> csSubCommands[];

    int AllLibs(Tcl_Interp* interp, TclWords words);
    int Cells(Tcl_Interp* interp, TclWords words);
    int CellViewInfo(Tcl_Interp* interp, TclWords words);
    int Filter(Tcl_Interp* interp, TclWords words);
    int LibraryInfo(Tcl_Interp* interp, TclWords words);
    int Open(Tcl_Interp* interp, TclWords words);
    int PrintHelp(Tcl_Interp* interp, TclWords words);
    int Rescan(Tcl_Interp* interp, TclWords words);
    int Select(Tcl_Interp* interp, TclWords words);
    int SelectedMasterList(Tcl_Interp* interp, TclWords words);
    int SetMark(Tcl_Interp* interp, TclWords words);
    int TopLevel(Tcl_Interp* interp, TclWords words);
    int ViewText(Tcl_Interp* interp, TclWords words);
    void Notify(DatabaseChange change) const;

    DesignStore& m_store;
    std::function<void(DatabaseChange)> m_changed;
    std::function<std::string()> m_excludedViews;
    std::optional<CellViewName> m_selectedMaster;
    unsigned m_listedMembership = 0;
    unsigned m_listedState = 0;
    TclCommand m_command;
};

}  // namespace navigator
