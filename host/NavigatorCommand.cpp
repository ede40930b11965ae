/// `navigator`: host scripts shape the window by it. Each line only notes what is to be done; the next idle
/// refresh does it, apart from choosing a design and sorting, which take effect at once.

#include "host/NavigatorCommand.h"

#include <array>
#include <iostream>
#include <string>
#include <vector>

#include "vapp/browser/TLibraryBrowser.h"
#include "vapp/celllist/TCellListView.h"

namespace navigator {

namespace {

CStringU TextOf(Tcl_Obj* word) {
    return {Tcl_GetString(word), TextEncoding::Utf8Auto};
}

/// Reads the words behind caption and command of `addcolumn`.
int TakeColumnOptions(Tcl_Interp* interp, TclWords words, bool& sortForward, bool& hideInThirdSetup) {
    static constexpr std::array<const char*, 3> csOptions{"-backward", "-hideinthird", nullptr};
    for (Tcl_Obj* word : words) {
        int option = 0;
        const int code = Tcl_GetIndexFromObj(interp, word, csOptions.data(), "option", TCL_EXACT, &option);
        if (code != TCL_OK) return code;
        (option == 0 ? sortForward : hideInThirdSetup) = option != 0;
    }
    return TCL_OK;
}

}  // namespace

const SubCommandRow<NavigatorCommand> NavigatorCommand::csSubCommands[] = {
    {{"addcolumn", "navigator addcolumn CAPTION COMMAND ?-backward? ?-hideinthird?",
      "Adds a column to the cell list. Its text is the answer to COMMAND DESIGN LIBRARY CELL VIEW. -backward "
      "turns "
      "the order of its header around; -hideinthird hides it in the third arrangement."},
     2,
     4,
     &NavigatorCommand::AddColumn},
    {{"addfiltertype", "navigator addfiltertype NAME",
      "Adds a filter type to the drop-down. Lists are then asked with \"-filter NAME\"."},
     1,
     1,
     &NavigatorCommand::AddFilterType},
    {{"onidle", "navigator onidle SCRIPT",
      "Runs SCRIPT whenever the window is shown, all is refreshed and nothing else is to be done; an empty "
      "one "
      "ends that."},
     1,
     1,
     &NavigatorCommand::OnIdle},
    {{"refresh", "navigator refresh", "Marks libraries and cells for a refresh."},
     0,
     0,
     &NavigatorCommand::Refresh},
    {{"selectdesign", "navigator selectdesign DESIGN", "Chooses a design in the drop-down."},
     1,
     1,
     &NavigatorCommand::SelectDesign},
    {{"selectlibrary", "navigator selectlibrary LIBRARY",
      "Selects a library, and no other, in the library list."},
     1,
     1,
     &NavigatorCommand::SelectLibrary},
    {{"sortby", "navigator sortby CAPTION ?increasing|decreasing?", "Sorts the cell list by a column."},
     1,
     2,
     &NavigatorCommand::SortBy},
    {{"tabtext", "navigator tabtext TAB TEXT", "Names one of the tabs 0, 1, 2 below the cell list."},
     2,
     2,
     &NavigatorCommand::SetTabText},
    {{nullptr, nullptr, nullptr}, 0, 0, nullptr}};

NavigatorCommand::NavigatorCommand(Tcl_Interp* interp, vapp_library_browser::TLibraryBrowser& browser)
    : m_browser(browser),
      m_interp(interp),
      m_command(interp, "navigator", [this](Tcl_Interp* caller, TclWords words) {
          return gDispatch(*this, csSubCommands, caller, words);
      }) {}

std::span<const CommandHelp> NavigatorCommand::Help() {
    static const std::vector<CommandHelp> help = gHelpOf(csSubCommands);
    return help;
}

int NavigatorCommand::AddColumn(Tcl_Interp* interp, TclWords words) {
    bool sortForward = true;
    bool hideInThirdSetup = false;
    const int code = TakeColumnOptions(interp, words.subspan(2), sortForward, hideInThirdSetup);
    if (code != TCL_OK) return code;
    m_browser.AddCellViewListColumn(TextOf(words[0]), TextOf(words[1]), sortForward, hideInThirdSetup);
    m_browser.RequestCellListViewDelayedPopulate(vapp_library_browser::UpdateAlways);
    return TCL_OK;
}

int NavigatorCommand::AddFilterType(Tcl_Interp*, TclWords words) {
    m_browser.AddCellViewListFilterType(TextOf(words[0]));
    return TCL_OK;
}

int NavigatorCommand::OnIdle(Tcl_Interp*, TclWords words) {
    m_idleScript = gTextOf(words[0]);
    return TCL_OK;
}

void NavigatorCommand::RunIdleScript() {
    if (m_idleScript.empty() || m_isIdleScriptRunning) return;
    // The script may put another one in its place while it runs.
    const std::string script = m_idleScript;
    m_isIdleScriptRunning = true;
    const int code = Tcl_EvalEx(m_interp, script.data(), static_cast<int>(script.size()), TCL_EVAL_GLOBAL);
    m_isIdleScriptRunning = false;
    if (code == TCL_OK) return;
    const char* const place = Tcl_GetVar(m_interp, "errorInfo", TCL_GLOBAL_ONLY);
    std::cerr << "navigator: " << (place != nullptr ? place : Tcl_GetStringResult(m_interp)) << '\n';
    m_idleScript.clear();
}

int NavigatorCommand::Refresh(Tcl_Interp*, TclWords) {
    m_browser.RequestLibraryViewDelayedPopulate();
    m_browser.RequestCellListViewDelayedPopulate(vapp_library_browser::UpdateAlways);
    return TCL_OK;
}

int NavigatorCommand::SelectDesign(Tcl_Interp*, TclWords words) {
    m_hasChosen = true;
    m_browser.SetSelectedDesign(TextOf(words[0]));
    return TCL_OK;
}

int NavigatorCommand::SelectLibrary(Tcl_Interp*, TclWords words) {
    m_hasChosen = true;
    m_browser.SelectInLibraryList(TextOf(words[0]));
    m_browser.RequestCellListViewDelayedPopulate(vapp_library_browser::UpdateAlways);
    return TCL_OK;
}

int NavigatorCommand::SetTabText(Tcl_Interp* interp, TclWords words) {
    int tab = 0;
    const int code = Tcl_GetIntFromObj(interp, words[0], &tab);
    if (code != TCL_OK) return code;
    if (tab < 0 || tab > 2) return gTclFailure(interp, "TAB is 0, 1 or 2");
    if (auto* const pane = m_browser.GetCellListView()) pane->SetCellTabsText(tab, TextOf(words[1]).ToAnsi());
    return TCL_OK;
}

int NavigatorCommand::SortBy(Tcl_Interp* interp, TclWords words) {
    static constexpr std::array<const char*, 3> csDirections{"increasing", "decreasing", nullptr};
    int direction = 0;
    if (words.size() == 2) {
        const int code =
            Tcl_GetIndexFromObj(interp, words[1], csDirections.data(), "direction", 0, &direction);
        if (code != TCL_OK) return code;
    }
    auto* const pane = m_browser.GetCellListView();
    if (pane == nullptr) return TCL_OK;
    const CString caption = TextOf(words[0]).ToAnsi();
    CXTPReportColumns& columns = pane->GetReport().GetColumns();
    for (int position = 0; position < columns.GetCount(); ++position) {
        CXTPReportColumn* const column = columns.GetAt(position);
        if (column->GetCaption() != caption) continue;
        m_hasSorted = true;
        columns.SetSortColumn(column, direction == 0);
        pane->OnReportSortOrderChanged();
        return TCL_OK;
    }
    return gTclFailure(interp, std::string("no column has the caption \"") + Tcl_GetString(words[0]) + "\"");
}

}  // namespace navigator
