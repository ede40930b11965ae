/// The sub-commands of `usermenu`.

#include "host/UserMenuCommand.h"

#include <algorithm>
#include <array>
#include <optional>

#include "vapp/browser/TLibraryBrowser.h"

namespace navigator {

namespace {

/// In the order of csItemOptions.
enum ItemOption { CheckedOption, EnabledOption, StyleOption, SubMenuOption };
constexpr std::array<const char*, 5> csItemOptions{"-checked", "-enabled", "-style", "-submenu", nullptr};
constexpr std::string_view csDefault = "-default";

int ReadPlace(Tcl_Interp* interp, Tcl_Obj* word, TMenuPlace& place) {
    const std::optional<TMenuPlace> found = gMenuPlaceOf(gTextOf(word));
    if (!found) return gTclFailure(interp, "a menu is one of cells, libraries, tabs");
    place = *found;
    return TCL_OK;
}

int ReadStyle(Tcl_Interp* interp, TMenuPlace place, Tcl_Obj* word,
              vapp_library_browser::TLibraryBrowserTclInterfaceStyle& style) {
    if (const MenuStyle* const found = gFindMenuStyle(place, gTextOf(word))) {
        style = found->style;
        return TCL_OK;
    }
    std::string known;
    for (const MenuStyle& other : gMenuStyles()) {
        if (gFindMenuStyle(place, other.word) == nullptr) continue;
        known += known.empty() ? "" : ", ";
        known += other.word;
    }
    return gTclFailure(interp, "no style \"" + std::string(gTextOf(word)) + "\" of that menu" +
                                   (known.empty() ? ", which has none" : "; it has " + known));
}

}  // namespace

const SubCommandRow<UserMenuCommand> UserMenuCommand::csSubCommands[] = {
    {{"add",
      "usermenu add cells|libraries|tabs TEXT COMMAND ?-style STYLE? ?-submenu TITLE? ?-enabled SCRIPT? "
      "?-checked SCRIPT? ?-default?",
      "Adds an item to a menu, or puts it in place of the one with that text and sub-menu. STYLE says what "
      "is appended to COMMAND: for cells command (nothing, as without it), focused, selected, master, "
      "cellview, cell; for libraries command (the design), libraries, builtin. A tab's command gets the "
      "tab's "
      "number and 1 if the item became checked, else 0. The scripts run whenever the menu is about to show; "
      "-default makes the item stand out."},
     3,
     -1,
     &UserMenuCommand::Add},
    {{"doubleclick", "usermenu doubleclick COMMAND ?STYLE?",
      "What a double click on a cell runs, with a style for cells, focused without one; an empty COMMAND for "
      "nothing."},
     1,
     2,
     &UserMenuCommand::SetDoubleClick},
    {{"items", "usermenu items cells|libraries|tabs",
      "What scripts have added: a list of {TITLE TEXT COMMAND}; a separator has an empty text."},
     1,
     1,
     &UserMenuCommand::ListItems},
    {{"remove", "usermenu remove cells|libraries|tabs ?TEXT?",
      "Removes all items with a text from a menu, or all items and separators; gives their number."},
     1,
     2,
     &UserMenuCommand::Remove},
    {{"separator", "usermenu separator cells|libraries|tabs ?-submenu TITLE?",
      "Adds a line between items; the menu of libraries has none."},
     1,
     3,
     &UserMenuCommand::AddSeparator},
    {{nullptr, nullptr, nullptr}, 0, 0, nullptr}};

UserMenuCommand::UserMenuCommand(Tcl_Interp* interp, vapp_library_browser::TLibraryBrowser& browser,
                                 std::function<void(const std::string&)> failed)
    : m_interp(interp),
      m_browser(browser),
      m_failed(std::move(failed)),
      m_command(interp, "usermenu", [this](Tcl_Interp* caller, TclWords words) {
          return gDispatch(*this, csSubCommands, caller, words);
      }) {}

std::span<const CommandHelp> UserMenuCommand::Help() {
    static const std::vector<CommandHelp> help = gHelpOf(csSubCommands);
    return help;
}

int UserMenuCommand::Add(Tcl_Interp* interp, TclWords words) {
    TEntry entry;
    if (ReadPlace(interp, words[0], entry.place) != TCL_OK) return TCL_ERROR;
    entry.item.text = gTextOf(words[1]);
    entry.item.command = gTextOf(words[2]);
    if (entry.item.text.empty() || entry.item.command.empty())
        return gTclFailure(interp, "an item needs a text and a command");
    for (std::size_t next = 3; next < words.size(); ++next) {
        if (gTextOf(words[next]) == csDefault) {
            entry.item.isDefault = true;
        } else if (next + 1 == words.size()) {
            return gTclFailure(interp, "option " + std::string(gTextOf(words[next])) + " needs a value");
        } else if (TakeOption(interp, words[next], words[next + 1], entry) != TCL_OK) {
            return TCL_ERROR;
        } else {
            ++next;
        }
    }
    const auto same = std::find_if(m_entries.begin(), m_entries.end(), [&](const TEntry& other) {
        return !other.item.isSeparator && other.place == entry.place && other.item.text == entry.item.text &&
               other.item.subMenu == entry.item.subMenu;
    });
    // A script that is sourced once more, after it was changed, leaves one item.
    if (same != m_entries.end()) {
        *same = std::move(entry);
    } else {
        m_entries.push_back(std::move(entry));
    }
    return TCL_OK;
}

int UserMenuCommand::TakeOption(Tcl_Interp* interp, Tcl_Obj* name, Tcl_Obj* value, TEntry& entry) {
    int option = 0;
    const int code = Tcl_GetIndexFromObj(interp, name, csItemOptions.data(), "option", TCL_EXACT, &option);
    if (code != TCL_OK) return code;
    switch (option) {
        case CheckedOption:
            entry.checkedScript = gTextOf(value);
            break;
        case EnabledOption:
            if (entry.place == TMenuPlace::Tabs)
                return gTclFailure(interp, "items of a tab are never greyed");
            entry.enabledScript = gTextOf(value);
            break;
        case StyleOption:
            return ReadStyle(interp, entry.place, value, entry.item.style);
        default:
            if (entry.place == TMenuPlace::Tabs) return gTclFailure(interp, "a tab's menu has no sub-menus");
            entry.item.subMenu = gTextOf(value);
            break;
    }
    return TCL_OK;
}

int UserMenuCommand::AddSeparator(Tcl_Interp* interp, TclWords words) {
    TEntry entry;
    entry.item.isSeparator = true;
    if (ReadPlace(interp, words[0], entry.place) != TCL_OK) return TCL_ERROR;
    if (entry.place == TMenuPlace::Libraries)
        return gTclFailure(interp, "the menu of libraries has no separators");
    if (words.size() > 1) {
        if (words.size() != 3 || gTextOf(words[1]) != csItemOptions[SubMenuOption])
            return gTclFailure(interp, "the only option is -submenu TITLE");
        if (TakeOption(interp, words[1], words[2], entry) != TCL_OK) return TCL_ERROR;
    }
    m_entries.push_back(std::move(entry));
    return TCL_OK;
}

int UserMenuCommand::SetDoubleClick(Tcl_Interp* interp, TclWords words) {
    TDoubleClick wanted;
    wanted.command = gTextOf(words[0]);
    if (words.size() == 2 && ReadStyle(interp, TMenuPlace::Cells, words[1], wanted.style) != TCL_OK)
        return TCL_ERROR;
    SetDoubleClick(std::move(wanted));
    return TCL_OK;
}

void UserMenuCommand::SetDoubleClick(TDoubleClick command) {
    m_doubleClick = std::move(command);
    m_browser.SetCellListDefaultMenuCommand({m_doubleClick.command.c_str(), TextEncoding::Utf8Auto},
                                            m_doubleClick.style);
}

int UserMenuCommand::ListItems(Tcl_Interp* interp, TclWords words) {
    TMenuPlace place{};
    if (ReadPlace(interp, words[0], place) != TCL_OK) return TCL_ERROR;
    Tcl_Obj* const list = Tcl_NewListObj(0, nullptr);
    for (const TEntry& entry : m_entries) {
        if (entry.place != place) continue;
        const std::array<Tcl_Obj*, 3> parts{gTclText(entry.item.subMenu), gTclText(entry.item.text),
                                            gTclText(entry.item.command)};
        Tcl_ListObjAppendElement(nullptr, list, Tcl_NewListObj(static_cast<int>(parts.size()), parts.data()));
    }
    Tcl_SetObjResult(interp, list);
    return TCL_OK;
}

int UserMenuCommand::Remove(Tcl_Interp* interp, TclWords words) {
    TMenuPlace place{};
    if (ReadPlace(interp, words[0], place) != TCL_OK) return TCL_ERROR;
    const std::size_t before = m_entries.size();
    std::erase_if(m_entries, [&](const TEntry& entry) {
        return entry.place == place && (words.size() == 1 || entry.item.text == gTextOf(words[1]));
    });
    Tcl_SetObjResult(interp, Tcl_NewWideIntObj(static_cast<Tcl_WideInt>(before - m_entries.size())));
    return TCL_OK;
}

std::vector<MenuItem> UserMenuCommand::ItemsOf(TMenuPlace place) {
    // A script that is asked may add and remove items.
    const std::vector<TEntry> entries = m_entries;
    std::vector<MenuItem> items;
    for (const TEntry& entry : entries) {
        if (entry.place != place) continue;
        items.push_back(entry.item);
        if (!entry.enabledScript.empty()) items.back().isDisabled = !Ask(entry.enabledScript);
        if (!entry.checkedScript.empty()) items.back().isChecked = Ask(entry.checkedScript);
    }
    return items;
}

// A menu may be asked for while a script waits, whose result must stay.
bool UserMenuCommand::Ask(const std::string& script) {
    Tcl_InterpState const kept = Tcl_SaveInterpState(m_interp, TCL_OK);
    const int code = Tcl_EvalEx(m_interp, script.data(), static_cast<int>(script.size()), TCL_EVAL_GLOBAL);
    int flag = 0;
    const bool isFlag =
        code == TCL_OK && Tcl_GetBooleanFromObj(m_interp, Tcl_GetObjResult(m_interp), &flag) == TCL_OK;
    if (!isFlag && m_failed) m_failed(std::string(gTextOf(Tcl_GetObjResult(m_interp))));
    Tcl_RestoreInterpState(m_interp, kept);
    return isFlag && flag != 0;
}

}  // namespace navigator
