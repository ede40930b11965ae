/// The sub-commands of `user`.

#include "host/UserCommand.h"

#include <array>
#include <optional>
#include <vector>

#include "host/ScreenPlaces.h"
#include "vapp/browser/TLibraryBrowser.h"
#include "vapp/browser/TLibraryView.h"
#include "vapp/celllist/TCellListView.h"
#include "vapp/toolkit/CFrameWnd.h"
#include "vapp/toolkit/CXTPReportHeader.h"

namespace navigator {

namespace {

enum TTarget { TargetBar, TargetControl, TargetHeader, TargetLibrary, TargetPane, TargetRow };
constexpr std::array<const char*, 7> csTargets{"bar", "control", "header", "library", "pane", "row", nullptr};

constexpr int cnFarthestPixel = 16384;

int ReadTarget(Tcl_Interp* interp, Tcl_Obj* word, int& target) {
    return Tcl_GetIndexFromObj(interp, word, csTargets.data(), "part", TCL_EXACT, &target);
}

Tcl_Obj* RectList(const CRect& rect) {
    const std::array<Tcl_Obj*, 4> numbers{Tcl_NewIntObj(rect.left), Tcl_NewIntObj(rect.top),
                                          Tcl_NewIntObj(rect.Width()), Tcl_NewIntObj(rect.Height())};
    return Tcl_NewListObj(static_cast<int>(numbers.size()), numbers.data());
}

void Put(Tcl_Obj* dictionary, const char* key, Tcl_Obj* value) {
    Tcl_DictObjPut(nullptr, dictionary, Tcl_NewStringObj(key, -1), value);
}

Tcl_Obj* TextObject(const CStringU& text) {
    return Tcl_NewStringObj(text.Payload(), -1);
}

Tcl_Obj* NativeObject(const CString& text) {
    return TextObject(CStringU(text));
}

/// Captions and widths of the columns that are shown, from the left.
Tcl_Obj* ColumnList(const CXTPReportColumns& columns) {
    Tcl_Obj* const list = Tcl_NewListObj(0, nullptr);
    for (int visible = 0; const CXTPReportColumn* const column = columns.GetVisibleAt(visible); ++visible) {
        Tcl_ListObjAppendElement(nullptr, list, NativeObject(column->GetCaption()));
        Tcl_ListObjAppendElement(nullptr, list, Tcl_NewIntObj(column->GetWidth()));
    }
    return list;
}

Tcl_Obj* OrderList(const CXTPReportColumnOrder& order) {
    Tcl_Obj* const list = Tcl_NewListObj(0, nullptr);
    for (int place = 0; place < order.GetCount(); ++place) {
        const CXTPReportColumn& column = *order.GetAt(place);
        Tcl_ListObjAppendElement(nullptr, list, Tcl_NewStringObj(column.GetCaption().GetString(), -1));
        Tcl_ListObjAppendElement(
            nullptr, list, Tcl_NewStringObj(column.IsSortedIncreasing() ? "increasing" : "decreasing", -1));
    }
    return list;
}

}  // namespace

const SubCommandRow<UserCommand> UserCommand::csSubCommands[] = {
    {{"click", "user click library NAME|header CAPTION|row N ?-add?",
      "Clicks on a library, on the header of a column, or on a row of the cell list, counted from 0; -add "
      "with "
      "the Control key held."},
     2,
     3,
     &UserCommand::Click},
    {{"drag", "user drag bar N PIXELS",
      "Drags the bar below pane N, 0 or 1, by so many pixels, downwards above 0."},
     3,
     3,
     &UserCommand::Drag},
    {{"menu", "user menu",
      "The items of the menus that are open, as a list of dictionaries: text, place (left, top, width and "
      "height), enabled, checked, default, submenu."},
     0,
     0,
     &UserCommand::Menu},
    {{"place", "user place library NAME|header CAPTION|row N|pane N|bar N|control N",
      "Where it stands on the screen: left, top, width and height; empty if it is not in sight. A control is "
      "one of the cell pane, by its number: 7695 the filter, 7718 the tabs."},
     2,
     2,
     &UserCommand::Place},
    {{"resize", "user resize WIDTH HEIGHT", "Gives the window's inner area another size."},
     2,
     2,
     &UserCommand::Resize},
    {{"settle", "user settle", "Refreshes what is due, as the program does when nothing else is to be done."},
     0,
     0,
     &UserCommand::Settle},
    {{"state", "user state",
      "What is seen, as a dictionary: design, libraries (the selected ones), order (of the cells: captions "
      "and "
      "directions), rows (their number), cell (of the focus: library, cell, view), heights (of the panes), "
      "window (left, top, width and height of its inner area), filter (the sub-string), type (of the "
      "filter), setup (the arrangement of columns), tab (its number, from 0), columns (captions and widths "
      "of those that are shown), status (the line below the list), drag (1 while a cell is dragged)."},
     0,
     0,
     &UserCommand::State},
    {{"tip", "user tip",
      "What explains itself at the moment, as a dictionary: tip (beside the pointer), message (at the lower "
      "edge "
      "of the window)."},
     0,
     0,
     &UserCommand::Tip},
    {{"type", "user type TEXT", "Types a text into the console and sends it."}, 1, 1, &UserCommand::Type},
    {{nullptr, nullptr, nullptr}, 0, 0, nullptr}};

UserCommand::UserCommand(Tcl_Interp* interp, CFrameWnd& frame, vapp_library_browser::TLibraryBrowser& browser,
                         std::function<void()> settle)
    : m_frame(frame),
      m_browser(browser),
      m_settle(std::move(settle)),
      m_command(interp, "user", [this](Tcl_Interp* caller, TclWords words) {
          return gDispatch(*this, csSubCommands, caller, words);
      }) {}

std::span<const CommandHelp> UserCommand::Help() {
    static const std::vector<CommandHelp> help = gHelpOf(csSubCommands);
    return help;
}

int UserCommand::Click(Tcl_Interp* interp, TclWords words) {
    int target = 0;
    if (ReadTarget(interp, words[0], target) != TCL_OK) return TCL_ERROR;
    const bool isAdding = words.size() == 3;
    if (isAdding && gTextOf(words[2]) != "-add") return gTclFailure(interp, "the only option is -add");
    switch (target) {
        case TargetLibrary:
            return ClickLibrary(interp, words[1], isAdding);
        case TargetHeader:
            return ClickHeader(interp, words[1], isAdding);
        case TargetRow:
            return ClickRow(interp, words[1], isAdding);
        default:
            return gTclFailure(interp, "only a library, a header or a row can be clicked on");
    }
}

int UserCommand::ClickLibrary(Tcl_Interp* interp, Tcl_Obj* library, bool isAdding) {
    const int row = gRowOfLibrary(m_browser, std::string(gTextOf(library)));
    if (row < 0) return gTclFailure(interp, "there is no library \"" + std::string(gTextOf(library)) + "\"");
    m_browser.GetLibraryView()->GetLibraryListCtrl().ClickedByUser(row, {.control = isAdding});
    return TCL_OK;
}

int UserCommand::ClickHeader(Tcl_Interp* interp, Tcl_Obj* caption, bool isAdding) {
    const std::string wanted(gTextOf(caption));
    auto* const cells = m_browser.GetCellListView();
    const int count = cells != nullptr ? cells->GetReport().GetColumns().GetVisibleColumnsCount() : 0;
    for (int visible = 0; visible < count; ++visible) {
        CXTPReportColumn* const column = cells->GetReport().GetColumns().GetVisibleAt(visible);
        if (column->GetCaption() != wanted.c_str()) continue;
        cells->GetReport().GetReportHeader().ClickedByUser(column, isAdding);
        return TCL_OK;
    }
    return gTclFailure(interp, "no column that is shown has the caption \"" + wanted + "\"");
}

int UserCommand::ClickRow(Tcl_Interp* interp, Tcl_Obj* row, bool isAdding) {
    int number = 0;
    if (Tcl_GetIntFromObj(interp, row, &number) != TCL_OK) return TCL_ERROR;
    auto* const cells = m_browser.GetCellListView();
    if (cells == nullptr || number < 0 || number >= cells->GetReport().GetRows().GetCount())
        return gTclFailure(interp, "there is no row " + std::to_string(number));
    cells->GetReport().ClickedByUser(number, {.control = isAdding});
    return TCL_OK;
}

int UserCommand::Drag(Tcl_Interp* interp, TclWords words) {
    int bar = 0;
    int pixels = 0;
    if (gTextOf(words[0]) != "bar") return gTclFailure(interp, "only a bar can be dragged");
    if (Tcl_GetIntFromObj(interp, words[1], &bar) != TCL_OK) return TCL_ERROR;
    if (Tcl_GetIntFromObj(interp, words[2], &pixels) != TCL_OK) return TCL_ERROR;
    if (!gPlaceOfBar(m_browser, bar)) return gTclFailure(interp, "there is no bar " + std::to_string(bar));
    if (pixels < -cnFarthestPixel || pixels > cnFarthestPixel) return gTclFailure(interp, "that is too far");
    m_browser.SetRowHeight(bar, m_browser.GetPane(bar, 0)->GetRect().Height() + pixels);
    return TCL_OK;
}

int UserCommand::Menu(Tcl_Interp* interp, TclWords) {
    if (m_menus) Tcl_SetObjResult(interp, m_menus());
    return TCL_OK;
}

int UserCommand::Tip(Tcl_Interp* interp, TclWords) {
    const Tips tips = m_tips ? m_tips() : Tips();
    Tcl_Obj* const dictionary = Tcl_NewDictObj();
    Put(dictionary, "tip", gTclText(tips.tip));
    Put(dictionary, "message", gTclText(tips.message));
    Tcl_SetObjResult(interp, dictionary);
    return TCL_OK;
}

int UserCommand::Place(Tcl_Interp* interp, TclWords words) {
    int target = 0;
    int number = 0;
    if (ReadTarget(interp, words[0], target) != TCL_OK) return TCL_ERROR;
    const bool isNumbered =
        target == TargetBar || target == TargetControl || target == TargetPane || target == TargetRow;
    if (isNumbered && Tcl_GetIntFromObj(interp, words[1], &number) != TCL_OK) return TCL_ERROR;
    const std::string name(gTextOf(words[1]));
    std::optional<CRect> place;
    if (target == TargetBar) place = gPlaceOfBar(m_browser, number);
    if (target == TargetControl) place = gPlaceOfControl(m_browser, number);
    if (target == TargetPane) place = gPlaceOfPane(m_browser, number);
    if (target == TargetRow) place = gPlaceOfRow(m_browser, number);
    if (target == TargetLibrary) place = gPlaceOfLibrary(m_browser, name);
    if (target == TargetHeader) place = gPlaceOfHeader(m_browser, name);
    if (place) Tcl_SetObjResult(interp, RectList(*place));
    return TCL_OK;
}

int UserCommand::Resize(Tcl_Interp* interp, TclWords words) {
    int width = 0;
    int height = 0;
    if (Tcl_GetIntFromObj(interp, words[0], &width) != TCL_OK) return TCL_ERROR;
    if (Tcl_GetIntFromObj(interp, words[1], &height) != TCL_OK) return TCL_ERROR;
    if (width < 1 || height < 1 || width > cnFarthestPixel || height > cnFarthestPixel)
        return gTclFailure(interp, "width and height go from 1 to 16384");
    const CRect& now = m_frame.GetRect();
    m_frame.MoveWindow({now.left, now.top, now.left + width, now.top + height});
    return TCL_OK;
}

int UserCommand::Settle(Tcl_Interp*, TclWords) {
    m_settle();
    return TCL_OK;
}

int UserCommand::State(Tcl_Interp* interp, TclWords) {
    auto* const cells = m_browser.GetCellListView();
    if (cells == nullptr) return gTclFailure(interp, "the window is not there");
    Tcl_Obj* const libraries = Tcl_NewListObj(0, nullptr);
    for (const CStringIU& library : m_browser.GetSelectedLibrariesSet())
        Tcl_ListObjAppendElement(nullptr, libraries, TextObject(library));
    Tcl_Obj* const heights = Tcl_NewListObj(0, nullptr);
    for (int row = 0; row < m_browser.GetRowCount(); ++row) {
        const int height = m_browser.GetPane(row, 0)->GetRect().Height();
        Tcl_ListObjAppendElement(nullptr, heights, Tcl_NewIntObj(height));
    }
    const vapp_library_browser::TLibCellView focused = m_browser.GetFocusedCell();
    const std::array<Tcl_Obj*, 3> names{TextObject(focused.library), TextObject(focused.cell),
                                        TextObject(focused.view)};
    Tcl_Obj* const state = Tcl_NewDictObj();
    Put(state, "design", TextObject(m_browser.GetSelectedDesign()));
    Put(state, "libraries", libraries);
    Put(state, "order", OrderList(cells->GetReport().GetColumns().GetSortOrder()));
    Put(state, "rows", Tcl_NewIntObj(cells->GetReport().GetRows().GetCount()));
    Put(state, "cell", Tcl_NewListObj(static_cast<int>(names.size()), names.data()));
    Put(state, "heights", heights);
    Put(state, "window", RectList(m_frame.GetRect()));
    Put(state, "filter", NativeObject(cells->GetFilterText()));
    Put(state, "type", TextObject(cells->GetDropDownFilter()));
    Put(state, "setup", TextObject(cells->GetReport().GetActiveSetup()));
    Put(state, "tab", Tcl_NewIntObj(cells->GetSetupTab()));
    Put(state, "columns", ColumnList(cells->GetReport().GetColumns()));
    Put(state, "status",
        NativeObject(cells->GetDlgItem(vapp_library_browser::TCellListView::cnStatus)->GetWindowText()));
    Put(state, "drag", Tcl_NewIntObj(cells->GetReport().IsInDragDrop() ? 1 : 0));
    Tcl_SetObjResult(interp, state);
    return TCL_OK;
}

int UserCommand::Type(Tcl_Interp* interp, TclWords words) {
    if (!m_console) return gTclFailure(interp, "there is no console");
    m_console(std::string(gTextOf(words[0])));
    return TCL_OK;
}

}  // namespace navigator
