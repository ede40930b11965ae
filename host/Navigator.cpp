/// Puts the host together, and translates what changed in the database into the navigator's requests.

#include "host/Navigator.h"

#include <algorithm>
#include <iterator>
#include <utility>
#include <vector>

#include "host/CellsQuery.h"
#include "host/LastView.h"
#include "host/LibraryText.h"
#include "host/WindowLayout.h"
#include "vapp/browser/Messages.h"
#include "vapp/browser/TProfileSection.h"
#include "vapp/browser/TSymbolPreview.h"
#include "vapp/browser/TclBridge.h"
#include "vapp/celllist/TCellListView.h"

namespace navigator {

namespace {

/// One Tcl word from any name: what a list of this one element looks like.
CStringU QuoteTclWord(const CStringU& name) {
    int flags = 0;
    const int room = Tcl_ScanCountedElement(name.Payload(), name.GetByteLength(), &flags);
    std::string word(static_cast<std::size_t>(room) + 1, '\0');
    Tcl_ConvertCountedElement(name.Payload(), name.GetByteLength(), word.data(), flags);
    return gLibraryText(word);
}

Tcl_Interp* CreateInterp() {
    // Finds the interpreter's own library of scripts; a host without it still works, it only lacks its
    // commands.
    Tcl_FindExecutable(nullptr);
    Tcl_Interp* const interp = Tcl_CreateInterp();
    if (Tcl_Init(interp) != TCL_OK) Tcl_ResetResult(interp);
    return interp;
}

}  // namespace

Navigator::Navigator(CWinAppEx& app)
    : m_app(app),
      m_interp(CreateInterp()),
      m_database(m_interp.get(), m_store),
      m_commands(m_interp.get()),
      m_browser(std::make_unique<vapp_library_browser::TLibraryBrowser>()),
      m_columns(m_store, *m_browser),
      m_script(m_interp.get(), *m_browser),
      m_user(m_interp.get(), m_frame, *m_browser, [this] { Populate(); }),
      m_cells(m_interp.get(), {app, m_store, *m_browser, m_commands.Log()},
              [this](DatabaseChange change) { OnDatabaseChange(change); }),
      m_userMenu(
          m_interp.get(), *m_browser,
          [this](const std::string& sentence) { m_commands.Log().Add(ActionLog::TKind::Failure, sentence); }),
      m_menus({m_interp.get(), app, m_store, *m_browser, m_userMenu}) {
    vapp::gSetTclSanitizeInputUPointer(&QuoteTclWord);
    m_database.SetExcludedViews([this] { return std::string(m_browser->GetExcludeViews().Payload()); });
    m_database.SetChangeHandler([this](DatabaseChange change) { OnDatabaseChange(change); });
}

Navigator::~Navigator() {
    m_frame.SetMessageHandler(nullptr);
    m_app.SetMainWnd(nullptr);
}

std::optional<std::string> Navigator::OpenFolder(const std::filesystem::path& folder) {
    auto failure = m_store.OpenFolder(folder);
    m_cells.RestoreMarks();
    return failure;
}

std::optional<std::string> Navigator::ShowFolder(const std::filesystem::path& folder) {
    const auto& designs = m_store.Designs();
    auto found = std::find_if(designs.begin(), designs.end(), [&](const Design& design) {
        std::error_code error;
        return std::filesystem::equivalent(design.folder, folder, error);
    });
    if (found == designs.end()) {
        if (auto failure = OpenFolder(folder)) return failure;
        found = std::prev(designs.end());
    }
    const std::string name = found->name;
    OnDatabaseChange(DatabaseChange::Libraries);
    Populate();
    m_browser->SetSelectedDesign(gLibraryText(name));
    return std::nullopt;
}

void Navigator::CreateWindow(int width, int height, bool dark) {
    m_frame.SetDark(dark);
    m_frame.CreateFrame("Library Navigator", CRect(0, 0, width, height));
    m_app.SetMainWnd(&m_frame);
    // Each start keeps the heights at its end: if one is there, all are the user's.
    m_hasKeptHeights = m_app.GetProfileInt(vapp_library_browser::csNavigatorSection,
                                           m_app.GetAppName() + "CellsPaneHeight", -1) >= 0;
    m_browser->Initialize(&m_frame, m_interp.get(), nullptr);
    m_browser->AddViewsToDoc(&m_document);
    for (const FilterType& type : gFilterTypes())
        m_browser->AddCellViewListFilterType(gLibraryText(std::string(type.text)));
    m_frame.SetMessageHandler([this](UINT message, WPARAM wParam, LPARAM lParam) {
        return m_menus.Answer(message, wParam, lParam);
    });
    m_menus.Start();
    m_cells.TellReserved();
}

void Navigator::LoadSetup() {
    m_browser->SerializeSetup(false);
}

void Navigator::FitPanes() {
    if (m_hasKeptHeights) return;
    PaneHeights heights{};
    for (std::size_t row = 0; row < heights.size(); ++row)
        heights[row] = m_browser->GetRowHeight(static_cast<int>(row));
    const PaneHeights fitted =
        gFitPaneHeights(heights, m_browser->GetClientRect().bottom, CSplitterWnd::cnBarHeight);
    for (std::size_t row = 0; row < fitted.size(); ++row)
        m_browser->SetRowHeight(static_cast<int>(row), fitted[row]);
}

std::optional<std::string> Navigator::SourceScript(const std::string& file) {
    // Not Tcl_EvalFile: its name for the script would be in the encoding of the system, and a failure would
    // lose its place. "source" with the name as one word does both well.
    const std::string line = std::string("source ") + QuoteTclWord(gLibraryText(file)).Payload();
    if (Tcl_EvalEx(m_interp.get(), line.c_str(), -1, TCL_EVAL_GLOBAL) == TCL_OK) {
        Tcl_ResetResult(m_interp.get());
        return std::nullopt;
    }
    const char* const place = Tcl_GetVar(m_interp.get(), "errorInfo", TCL_GLOBAL_ONLY);
    return std::string(place != nullptr ? place : Tcl_GetStringResult(m_interp.get()));
}

void Navigator::ShowLastView() {
    Populate();
    const bool hasChosen = m_script.HasChosen() || m_database.SelectedMaster().has_value();
    // Of several designs the one that was opened first, and not the one whose name comes first.
    if (!hasChosen && !gRestoreChoice(m_app, *m_browser) && !m_store.Designs().empty())
        m_browser->SetSelectedDesign(gLibraryText(m_store.Designs().front().name));
    if (!m_script.HasSorted()) gRestoreOrder(m_app, *m_browser);
    Populate();
}

void Navigator::KeepLastView() {
    gKeepView(m_app, *m_browser);
}

void Navigator::Populate() {
    m_browser->Populate();
    // A list that goes to the selected master leaves the preview alone; this host wants to see the master.
    auto* const preview = m_browser->GetSymbolPreview();
    if (std::exchange(m_previewDue, false) && preview != nullptr) preview->DisplayNewPreview();
}

void Navigator::Rescan() {
    if (!m_store.Rescan()) return;
    OnDatabaseChange(DatabaseChange::Libraries);
}

void Navigator::OnDatabaseChange(DatabaseChange change) {
    using namespace vapp_library_browser;
    switch (change) {
        case DatabaseChange::Libraries:
            m_cells.RestoreMarks();
            m_browser->RequestLibraryViewDelayedPopulate();
            m_browser->RequestCellListViewDelayedPopulate(UpdateAlways);
            break;
        case DatabaseChange::CellState:
            m_browser->RequestCellListViewDelayedPopulate(UpdateIfFilterSaysSo);
            if (TCellListView* const pane = m_browser->GetCellListView()) pane->GetReport().Invalidate(false);
            break;
        case DatabaseChange::SelectedMaster:
            m_document.UpdateAllViews(nullptr, cnHintSelectedMaster);
            m_browser->RequestCellListViewDelayedPopulate(UpdateAlways);
            m_previewDue = true;
            break;
    }
}

std::string Navigator::Dump() {
    if (m_store.Designs().empty()) return {};
    Populate();
    m_browser->SetSelectedDesign(gLibraryText(m_store.Designs().front().name));
    Populate();
    auto& report = m_browser->GetCellListView()->GetReport();
    // Not by their captions: a script may give one that is taken, and would have its column told twice.
    std::vector<CXTPReportColumn*> hidden;
    for (int position = 0; position < report.GetColumns().GetCount(); ++position) {
        CXTPReportColumn* const column = report.GetColumns().GetAt(position);
        if (!column->IsVisible()) hidden.push_back(column);
    }
    for (CXTPReportColumn* const column : hidden)
        column->SetVisible(true);
    CStringU text;
    report.DumpContents({}, text);
    for (CXTPReportColumn* const column : hidden)
        column->SetVisible(false);
    return text.Payload();
}

}  // namespace navigator
