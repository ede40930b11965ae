/// @file
/// The menus of the report: that of the rows, and that of the view names, which is a part of it and the whole
/// menu of the View column's header.
///
/// A menu waits for the user, and much may happen meanwhile: rows may be fetched, the design may change, the
/// window may go. So nothing that was read before a menu is trusted behind it but the names in it.
#include <algorithm>
#include <array>
#include <iterator>
#include <memory>
#include <optional>

#include "celllist/CellMenu.h"
#include "celllist/CellRows.h"
#include "celllist/OptionCommands.h"
#include "text/TranslatedText.h"
#include "vapp/browser/CExcludeDlg.h"
#include "vapp/browser/ExcludeViewNames.h"
#include "vapp/browser/HostCallScope.h"
#include "vapp/browser/Messages.h"
#include "vapp/browser/TLibraryView.h"
#include "vapp/browser/TProfileSection.h"
#include "vapp/browser/TclBridge.h"
#include "vapp/celllist/TCellListView.h"
#include "vapp/celllist/TCellNamesReportCtrl.h"
#include "vapp/toolkit/CMenu.h"

using vapp_text::TranslatedText;

namespace vapp_library_browser {

namespace {

using TReport = TCellNamesReportCtrl;

constexpr std::array cnOptionCommands = {
    ShowHiddenCells, ShowVias,          FilterCaseSensitive, FilterAllColumns, FilterCellName,
    FilterViewName,  ColorFilteredList, ColorReservedCells,  ColorHiddenCells, ColorUnresolvedCells};
constexpr std::array cnSetupCommands = {UseSetup1, UseSetup2, UseSetup3};
// The schematic editor shows all cells, in one colour.
constexpr std::array cnNotForSchematicEditor = {ShowHiddenCells, ShowVias, ColorHiddenCells};

}  // namespace

// The names are asked for anew each time: nothing of the design is kept here, and rows that are filtered out
// have views too. Nothing if the host gave no proper answer.
std::optional<std::set<CStringIU>> TReport::AskViewNames() const {
    const TLibraryView* view = m_pane.GetLibraryView();
    if (view == nullptr) return std::nullopt;
    const CStringU design = view->GetSelectedDesign();
    if (design.IsEmpty()) return std::nullopt;
    TLineBuilder line("database cells -lcv -library ");
    line.Name(design);
    const TTclObject answer = AskTcl(view->GetTclInterp(), line.GetString());
    const std::optional<CellRows> rows = answer ? CellRows::Read(answer.Get()) : std::nullopt;
    if (!rows) return std::nullopt;
    const NameTable& names = rows->Names(NameRole::View);
    std::set<CStringIU> views;
    for (std::uint32_t number = 0; number < names.Count(); ++number)
        views.insert(CStringIU(names.Text(number)));
    return views;
}

void TReport::CreateViewNameFilterMenu(CMenu* menu, const std::set<CStringIU>& views) const {
    if (menu == nullptr) return;
    menu->RemoveAt(0);
    menu->Append(AllViewNames, TranslatedText("__$$Translatable$$_Show All View-names"));
    menu->Check(AllViewNames, m_options.viewFilter.empty());
    menu->AppendSeparator();
    UINT id = cnBaseID;
    for (const CStringIU& view : views) {
        menu->AppendChecked(id, gMenuTextOf(view), m_options.viewFilter.contains(view));
        ++id;
    }
}

bool TReport::ProcessViewNameFilterMenu(int id, const std::set<CStringIU>& views) {
    std::set<CStringIU>& filter = m_options.viewFilter;
    if (id == static_cast<int>(AllViewNames)) {
        if (filter.empty()) return true;
        filter.clear();
    } else if (id < static_cast<int>(cnBaseID)) {
        return false;
    } else if (const auto number = static_cast<std::size_t>(id) - cnBaseID; number < views.size()) {
        const CStringIU& view = *std::next(views.begin(), static_cast<std::ptrdiff_t>(number));
        if (filter.erase(view) == 0) filter.insert(view);
    }
    Populate();
    return true;
}

void TReport::OnContextMenu(CWnd& /*from*/, CPoint screen) {
    const HostCallScope scope;
    const std::optional<std::set<CStringIU>> views = AskViewNames();
    if (!views || !IsWindow()) return;
    const CPoint point = ScreenToClient(screen);
    // Any column of the header, also one that a host has made of the toolkit's own class.
    if (const CXTPReportColumn* column = GetReportHeader().HitTest(point)) {
        if (dynamic_cast<const TColViewName*>(column) != nullptr) ShowViewNameMenu(screen, *views);
        return;
    }
    ShowCellMenu(screen, *views);
}

void TReport::ShowViewNameMenu(CPoint screen, const std::set<CStringIU>& views) {
    CMenu menu;
    CreateViewNameFilterMenu(&menu, views);
    const UINT picked = menu.Track(*this, screen);
    // A menu outlives the window under which it was opened.
    if (picked == 0 || !IsWindow()) return;
    static_cast<void>(ProcessViewNameFilterMenu(static_cast<int>(picked), views));
}

void TReport::ShowCellMenu(CPoint screen, const std::set<CStringIU>& views) {
    // A host that asks for a menu while it is filling one has that one.
    if (IsBuildingMenu()) return;
    const std::unique_ptr<CMenu> menu = MakeCellMenu();
    // Found before the host adds items, whose numbers are its own affair.
    CMenu* const viewNames = menu->FindOwner(AllViewNames);
    const TLibraryView* view = m_pane.GetLibraryView();
    const bool isSchematicEditor = view != nullptr && view->GetQEdit();
    if (isSchematicEditor) {
        for (const UINT command : cnNotForSchematicEditor)
            menu->Delete(command);
    }
    AskHostForItems(*menu);
    CheckCellMenu(*menu, isSchematicEditor);
    if (!IsWindow()) return;
    CreateViewNameFilterMenu(viewNames, views);
    const UINT picked = menu->Track(*this, screen);
    if (picked == 0 || !IsWindow() || OnMenuCommand(picked)) return;
    RunMenuPick(picked, views);
}

// Handlers are the host's to give anew for each menu, those of the two fixed items too.
void TReport::AskHostForItems(CMenu& menu) {
    if (TLibraryView* view = m_pane.GetLibraryView()) view->ClearCommandHandlers();
    const THostMenu::TScope building(m_hostMenu, menu, FirstHostCommand);
    AskMainWindow(WM_LN_BUILDCELLMENU);
}

// The host's items stand ahead, so that one of the same number is not taken for the list's own.
void TReport::CheckCellMenu(CMenu& menu, bool isSchematicEditor) const {
    menu.Enable(SelectAll, AreAnyCellsSelected());
    menu.Check(ColumnChooser, AskMainWindow(WM_LN_COLCHOOSERSHOWN) != 0);
    for (const UINT command : cnOptionCommands) {
        const bool isGone = isSchematicEditor && std::ranges::count(cnNotForSchematicEditor, command) > 0;
        if (!isGone) menu.Check(command, IsOptionOn(m_options, command));
    }
    if (const std::optional<TColSetup> setup = FindActiveSetup())
        menu.Check(cnSetupCommands[static_cast<std::size_t>(*setup)], true);
}

bool TReport::OnMenuCommand(UINT command) {
    if (ApplyOptionCommand(m_options, command)) {
        Populate();
        return true;
    }
    const auto* setup = std::find(cnSetupCommands.begin(), cnSetupCommands.end(), command);
    if (setup != cnSetupCommands.end()) {
        UseSetup(static_cast<TColSetup>(setup - cnSetupCommands.begin()));
    } else if (command == ExcludeViews) {
        EditExcludeViews();
    } else if (command == SelectAll) {
        OnSelectAll();
    } else {
        return false;
    }
    return true;
}

// Also for the setup that is active already the list is fetched anew: the user asked for it.
void TReport::UseSetup(TColSetup setup) {
    SwitchSetup(setup);
    m_pane.SwitchSetupTab(setup);
    Populate();
}

void TReport::EditExcludeViews() {
    const HostCallScope scope;
    CExcludeDlg dialog;
    if (dialog.DoModal() != IDOK) return;
    // What was stored, and not the dialog's text: that has question marks for what the code page lacks.
    TProfileSection(false).ExchangeText(csExcludeViewNamesKey, m_excludeViews, csDefaultExcludeViewNames);
    Populate();
}

}  // namespace vapp_library_browser
