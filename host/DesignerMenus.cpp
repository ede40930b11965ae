/// The items, and the answers.

#include "host/DesignerMenus.h"

#include <array>

#include "host/Reservation.h"
#include "host/TabNames.h"
#include "host/TclList.h"
#include "vapp/browser/Messages.h"
#include "vapp/browser/TLibraryBrowser.h"
#include "vapp/celllist/TCellListCommand.h"
#include "vapp/celllist/TCellListView.h"
#include "vapp/toolkit/CTabCtrl.h"

namespace navigator {

using namespace vapp_library_browser;

namespace {

/// Of more selected views than these it is not asked what they are: their items are all enabled then.
constexpr int cnMostAsked = 1000;

constexpr char csCopy[] = "&Copy";
constexpr char csAsk[] = "Ask before reserving";
constexpr char csRename[] = "rename";
constexpr char csOriginal[] = "original";

MenuItem Item(const char* text, std::string command, TLibraryBrowserTclInterfaceStyle style, bool isEnabled) {
    MenuItem item;
    item.text = text;
    item.command = std::move(command);
    item.style = style;
    item.isDisabled = !isEnabled;
    return item;
}

MenuItem In(const char* subMenu, MenuItem item) {
    item.subMenu = subMenu;
    return item;
}

MenuItem Separator() {
    MenuItem item;
    item.isSeparator = true;
    return item;
}

MenuItem AskItem(const char* text, prefs::TAskReserveOption option, prefs::TAskReserveOption now) {
    MenuItem item = Item(text, "cell askreserve " + gListOfWords({gAskReserveText(option).Payload()}),
                         StyleCommandOnly, true);
    item.isChecked = option == now;
    return In(csAsk, std::move(item));
}

/// The items of scripts behind the host's own, with a line between them where there are lines.
void AddScriptItems(std::vector<MenuItem>& items, std::vector<MenuItem> added, bool hasSeparators) {
    if (added.empty()) return;
    if (hasSeparators) items.push_back(Separator());
    for (MenuItem& item : added)
        items.push_back(std::move(item));
}

}  // namespace

std::vector<MenuItem> gCellItems(const CellMenuFacts& facts) {
    const bool any = facts.hasSelection;
    MenuItem open = Item("&Open as text", csOpenCommand, StyleFocusedLcv, facts.hasFocusedCell);
    open.isDefault = facts.doesDoubleClickOpen;
    return {
        std::move(open),
        In(csCopy, Item("Selected &cell names", "CopySelectedCellNamesToClipboard", StyleCommandOnly, any)),
        In(csCopy, Item("Selected cell &views", "CopySelectedCellViewsToClipboard", StyleCommandOnly, any)),
        In(csCopy, Item("Selected &files", "cell copyfiles", StyleSelectedLcvs, any)),
        In(csCopy, Separator()),
        In(csCopy, Item("&All cell names", "CopyAllCellNamesToClipboard", StyleCommandOnly, facts.hasRows)),
        In(csCopy, Item("A&ll cell views", "CopyAllCellViewsToClipboard", StyleCommandOnly, facts.hasRows)),
        Separator(),
        Item("&Reserve", "cell reserve", StyleSelectedLcvs, any && facts.hasFree),
        Item("Re&lease", "cell release", StyleSelectedLcvs, any && facts.hasReserved),
        AskItem("&Always", prefs::AskAlways, facts.askReserve),
        AskItem("&Managed cells only", prefs::AskManagedCellsOnly, facts.askReserve),
        AskItem("&Never", prefs::AskNever, facts.askReserve),
        Separator(),
        Item("&Hide in lists", "cell hide", StyleSelectedLcvs, any && facts.hasShown),
        Item("&Show in lists again", "cell unhide", StyleSelectedLcvs, any && facts.hasHidden)};
}

std::vector<MenuItem> gLibraryItems(bool hasSelection, bool isAlphabetical) {
    MenuItem alphabetical = Item("&Alphabetical order", "Alphabetical", StyleBuiltIn, true);
    alphabetical.isChecked = isAlphabetical;
    MenuItem defined = Item("Order of &definition", "LibDefsOrder", StyleBuiltIn, true);
    defined.isChecked = !isAlphabetical;
    return {Item("&Copy names", "CopyNamestoClipboard", StyleBuiltIn, hasSelection), std::move(alphabetical),
            std::move(defined),
            Item("&Show hidden cells again", "cell unhideall", StyleSelectedLibraries, true)};
}

std::vector<MenuItem> gTabItems(bool hasNameOfUser) {
    std::vector<MenuItem> items{Item("Rename...", csRename, StyleCommandOnly, true)};
    // Items of a tab can't be greyed.
    if (hasNameOfUser) items.push_back(Item("Original name", csOriginal, StyleCommandOnly, true));
    return items;
}

void DesignerMenus::Start() {
    m_parts.script.SetDoubleClick({csOpenCommand, StyleFocusedLcv});
    for (int tab = 0; tab < cnTabs; ++tab)
        m_parts.browser.SetCellTabsText(tab, gTabName(m_parts.app, tab).c_str());
}

std::optional<LRESULT> DesignerMenus::Answer(UINT message, WPARAM wParam, LPARAM lParam) {
    constexpr WPARAM cnLowWord = 0xFFFF;
    const int tab = static_cast<int>(wParam & cnLowWord);
    switch (message) {
        case WM_LN_BUILDCELLMENU:
            BuildCellMenu();
            return 0;
        case WM_LN_BUILDLIBRARYMENU:
            BuildLibraryMenu();
            return 0;
        case WM_LN_BUILDTABMENU:
            BuildTabMenu(tab);
            return 0;
        case WM_LN_TABMENUPICK:
            PickTabItem(tab, static_cast<std::size_t>(lParam), wParam > cnLowWord);
            return 0;
        case WM_LN_HOSTNOTIFY:
            if (wParam != cnNotifyStatusText || !m_status) return std::nullopt;
            m_status(lParam == 0 ? std::string() : reinterpret_cast<const CStringU*>(lParam)->Payload());
            return 0;
        default:
            return std::nullopt;
    }
}

CellMenuFacts DesignerMenus::Facts() const {
    CellMenuFacts facts;
    const TCellListView* const pane = m_parts.browser.GetCellListView();
    if (pane == nullptr) return facts;
    facts.hasRows = pane->GetCellViewCount() > 0;
    facts.hasFocusedCell = !m_parts.browser.GetFocusedCell().cell.IsEmpty();
    facts.hasSelection = m_parts.browser.AreAnyCellsSelected();
    const UserMenuCommand::TDoubleClick& click = m_parts.script.DoubleClick();
    facts.doesDoubleClickOpen = click.command == csOpenCommand && click.style == StyleFocusedLcv;
    facts.askReserve = gAskReserveOption(m_parts.app);
    const std::string design = m_parts.browser.GetSelectedDesign().Payload();
    int asked = 0;
    for (const TLibCellView& cell : pane->GetSelectedCells()) {
        const CellViewRef view =
            m_parts.store.Find(design, cell.library.Payload(), cell.cell.Payload(), cell.view.Payload());
        (m_parts.store.Flag(view, CellKey::IsHiddenInLists) ? facts.hasHidden : facts.hasShown) = true;
        (m_parts.store.Flag(view, CellKey::IsReserved) ? facts.hasReserved : facts.hasFree) = true;
        if (++asked < cnMostAsked) continue;
        facts.hasHidden = facts.hasShown = facts.hasReserved = facts.hasFree = true;
        break;
    }
    return facts;
}

void DesignerMenus::BuildCellMenu() {
    std::vector<MenuItem> items = gCellItems(Facts());
    AddScriptItems(items, m_parts.script.ItemsOf(TMenuPlace::Cells), true);
    items.push_back(Separator());
    gAddCellItems(m_parts.browser, items);
    m_parts.browser.SetCommandHandler(SelectHierarchy, "cell selecthierarchy", StyleFocusedLcv);
}

void DesignerMenus::BuildLibraryMenu() {
    std::vector<MenuItem> items = gLibraryItems(!m_parts.browser.GetSelectedLibrariesSet().empty(),
                                                m_parts.browser.GetAlphabeticalLibraryNames());
    AddScriptItems(items, m_parts.script.ItemsOf(TMenuPlace::Libraries), false);
    gAddLibraryItems(m_parts.browser, items);
}

void DesignerMenus::BuildTabMenu(int tab) {
    const bool isOwn =
        tab < 0 || tab >= cnTabs || gTabName(m_parts.app, tab) == csTabNames[static_cast<std::size_t>(tab)];
    std::vector<MenuItem> items = gTabItems(!isOwn);
    AddScriptItems(items, m_parts.script.ItemsOf(TMenuPlace::Tabs), true);
    m_tabCommands = gAddTabItems(m_parts.browser, items);
}

void DesignerMenus::PickTabItem(int tab, std::size_t item, bool becameChecked) {
    if (item >= m_tabCommands.size() || m_tabCommands[item].empty()) return;
    const std::string command = m_tabCommands[item];
    // The host's own stand in front.
    if (item == 0) {
        RenameTab(tab);
    } else if (item == 1 && command == csOriginal) {
        NameTab(tab, std::string());
    } else {
        RunAction(command + " " + std::to_string(tab) + (becameChecked ? " 1" : " 0"));
    }
}

void DesignerMenus::RenameTab(int tab) {
    if (!m_askTabName) return;
    const std::optional<std::string> name = m_askTabName(gTabName(m_parts.app, tab));
    if (name) NameTab(tab, *name);
}

// The window may have gone while the user was asked; the name counts at the next start then.
void DesignerMenus::NameTab(int tab, const std::string& name) {
    gSetTabName(m_parts.app, tab, name);
    if (m_parts.browser.GetCellListView() == nullptr) return;
    RunAction("navigator tabtext " + std::to_string(tab) + " " + gListOfWords({gTabName(m_parts.app, tab)}));
}

void DesignerMenus::RunAction(const std::string& line) const {
    Tcl_InterpState const kept = Tcl_SaveInterpState(m_parts.interp, TCL_OK);
    const std::array<Tcl_Obj*, 2> words{gTclText("logaction"), gTclText(line)};
    for (Tcl_Obj* word : words)
        Tcl_IncrRefCount(word);
    Tcl_EvalObjv(m_parts.interp, static_cast<int>(words.size()), words.data(), TCL_EVAL_GLOBAL);
    for (Tcl_Obj* word : words)
        Tcl_DecrRefCount(word);
    Tcl_RestoreInterpState(m_parts.interp, kept);
}

}  // namespace navigator
