#pragma once
/// What the navigator's menus offer a designer, in front of the items of the lists themselves: the host's own
/// items and behind them those of scripts. It answers the messages by which the lists ask for items; which
/// items there are is said by plain functions. What an item does is told by the commands `cell` and
/// `navigator`, so that the log has it.

#include <tcl.h>

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "host/DesignStore.h"
#include "host/MenuItems.h"
#include "host/UserMenuCommand.h"
#include "vapp/app/AskReserve.h"
#include "vapp/toolkit/BasicTypes.h"

class CWinAppEx;

namespace navigator {

/// What the items of the cell list depend on.
struct CellMenuFacts {
    bool hasRows = false;
    bool hasFocusedCell = false;
    bool hasSelection = false;
    bool hasHidden = false;  ///< among the selected views, as the three below
    bool hasShown = false;
    bool hasReserved = false;
    bool hasFree = false;
    bool doesDoubleClickOpen = false;
    prefs::TAskReserveOption askReserve = prefs::AskManagedCellsOnly;
};

[[nodiscard]] std::vector<MenuItem> gCellItems(const CellMenuFacts& facts);
[[nodiscard]] std::vector<MenuItem> gLibraryItems(bool hasSelection, bool isAlphabetical);
/// Their commands are for DesignerMenus alone.
[[nodiscard]] std::vector<MenuItem> gTabItems(bool hasNameOfUser);

/// The command behind a double click, until a script says otherwise.
inline constexpr char csOpenCommand[] = "cell open";

class DesignerMenus {
public:
    /// What it works on; all outlive it.
    struct TParts {
        Tcl_Interp* interp;
        CWinAppEx& app;
        DesignStore& store;
        vapp_library_browser::TLibraryBrowser& browser;
        UserMenuCommand& script;
    };
    explicit DesignerMenus(const TParts& parts) : m_parts(parts) {}

    /// Names the tabs and the double click's command; call once, when the panes exist.
    void Start();
    /// The answer to a message of the lists; nothing for any other.
    std::optional<LRESULT> Answer(UINT message, WPARAM wParam, LPARAM lParam);

    /// Asks the user for a text that begins as it is now: nothing if the user gave it up. Without a handler
    /// nobody is asked.
    using TQuestion = std::function<std::optional<std::string>(const std::string& now)>;
    void SetTabNameQuestion(TQuestion handler) { m_askTabName = std::move(handler); }
    /// Shows what the lists want to be seen in the status line; empty for nothing any more.
    void SetStatusHandler(std::function<void(const std::string&)> handler) { m_status = std::move(handler); }

private:
    [[nodiscard]] CellMenuFacts Facts() const;
    void BuildCellMenu();
    void BuildLibraryMenu();
    void BuildTabMenu(int tab);
    void PickTabItem(int tab, std::size_t item, bool becameChecked);
    void RenameTab(int tab);
    void NameTab(int tab, const std::string& name);
    void RunAction(const std::string& line) const;

    TParts m_parts;
    TQuestion m_askTabName;
    std::function<void(const std::string&)> m_status;
    std::vector<std::string> m_tabCommands;  ///< of the tab menu that was filled last
};

}  // namespace navigator
