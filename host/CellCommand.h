#pragma once
/// The Tcl command `cell`: what the navigator's own menu items do with the cells of the list. Each item is a
/// line of this command, so that the log has it and a script can do the same. Views come in the forms in
/// which the cell list appends them to commands.

#include <filesystem>
#include <functional>
#include <set>
#include <span>
#include <string>
#include <vector>

#include "host/ActionLog.h"
#include "host/CommandTable.h"
#include "host/DatabaseCommand.h"
#include "host/DesignStore.h"
#include "host/KeptMarks.h"
#include "host/TclCommand.h"

class CWinAppEx;
namespace vapp_library_browser {
class TLibraryBrowser;
}

namespace navigator {

class CellCommand {
public:
    /// What it works on; all outlive it.
    struct TParts {
        CWinAppEx& app;
        DesignStore& store;
        vapp_library_browser::TLibraryBrowser& browser;
        ActionLog& log;
    };

    /// Registers the command.
    /// @param changed  called after a line that changed the state of cells, while it still runs
    CellCommand(Tcl_Interp* interp, const TParts& parts, std::function<void(DatabaseChange)> changed);

    /// Called with a view that is to be read as text.
    using TOpenHandler = std::function<void(const CellViewName&, const std::filesystem::path&)>;
    void SetOpenHandler(TOpenHandler handler) { m_open = std::move(handler); }

    /// Puts what is kept of the views of designs that were opened since the last call into the store and the
    /// navigator.
    void RestoreMarks();
    /// Tells the navigator of all views that are reserved; to be called when its window was made.
    void TellReserved();

    /// All sub-commands, by name.
    static std::span<const CommandHelp> Help();

private:
    static const SubCommandRow<CellCommand> csSubCommands[];

    int AskReserve(Tcl_Interp* interp, TclWords words);
    int CopyFiles(Tcl_Interp* interp, TclWords words);
    int Hide(Tcl_Interp* interp, TclWords words) { return SetHidden(interp, words, true); }
    int Open(Tcl_Interp* interp, TclWords words);
    int Release(Tcl_Interp* interp, TclWords words);
    int Reserve(Tcl_Interp* interp, TclWords words);
    int SelectHierarchy(Tcl_Interp* interp, TclWords words);
    int Unhide(Tcl_Interp* interp, TclWords words) { return SetHidden(interp, words, false); }
    int UnhideAll(Tcl_Interp* interp, TclWords words);

    int FindView(Tcl_Interp* interp, TclWords words, CellViewRef& view) const;
    int ReadViews(Tcl_Interp* interp, TclWords words, std::vector<CellViewName>& views) const;
    int SetHidden(Tcl_Interp* interp, TclWords words, bool isHidden);
    void Mark(const std::vector<CellViewName>& views, CellKey key, bool isWanted);
    void ShowReserved(const std::vector<CellViewName>& views, bool isReserved);
    void Tell(const std::string& sentence) { m_parts.log.Add(ActionLog::TKind::Notice, sentence); }

    TParts m_parts;
    std::function<void(DatabaseChange)> m_changed;
    TOpenHandler m_open;
    KeptMarks m_marks;
    std::set<std::string> m_restored;  ///< Names of designs.
    TclCommand m_command;
};

}  // namespace navigator
