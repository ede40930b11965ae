/// @file
/// The facade: makes and connects the panes, keeps their heights, passes calls on.
#include "vapp/browser/TLibraryBrowser.h"

#include <array>
#include <memory>
#include <utility>
#include <vector>

#include "vapp/browser/ColumnChooser.h"
#include "vapp/browser/ExcludeViewNames.h"
#include "vapp/browser/HostCallScope.h"
#include "vapp/browser/TLibraryView.h"
#include "vapp/browser/TProfileSection.h"
#include "vapp/browser/TSymbolPreview.h"
#include "vapp/toolkit/CDocument.h"
#include "vapp/toolkit/CFrameWnd.h"
#include "vapp/toolkit/CWinAppEx.h"

namespace vapp_library_browser {

namespace {

constexpr int cnTabOfSchematicEditor = 2;

/// A row of the splitter: what stands there, and under which name and with which default its height is kept.
struct TPaneRow {
    CRuntimeClass paneClass;
    const char* heightKey;
    int defaultHeight;
};

const std::array<TPaneRow, 3>& PaneRows() {
    static const std::array<TPaneRow, 3> s_rows = {{
        {gRuntimeClass<TLibraryView>("TLibraryView"), "LibrariesPaneHeight", 200},
        {gRuntimeClass<TCellListView>("TCellListView"), "CellsPaneHeight", 500},
        {gRuntimeClass<TSymbolPreview>("TSymbolPreview"), "PreviewPaneHeight", 200},
    }};
    return s_rows;
}

// The tools of the suite share the section, each with heights of its own.
CString HeightKey(const TPaneRow& row) {
    const CWinAppEx* app = CWinAppEx::GetApp();
    return (app != nullptr ? app->GetAppName() : CString()) + row.heightKey;
}

CStringU FindText(const std::map<TLibCellView, CStringU>& texts, const TLibCellView& view) {
    const auto found = texts.find(view);
    return found == texts.end() ? CStringU() : found->second;
}

// Panes whose navigator has gone while one of their menus or drags was open. Whoever opened it goes on in
// them once it is over; nobody tells when that has ended, so they wait for the next navigator.
std::vector<std::unique_ptr<CView>>& OutlivingPanes() {
    static std::vector<std::unique_ptr<CView>> s_panes;
    return s_panes;
}

void FreeOutlivingPanes() {
    const std::vector<std::unique_ptr<CView>> panes = std::exchange(OutlivingPanes(), {});
}

}  // namespace

TLibraryBrowser::TLibraryBrowser() = default;

TLibraryBrowser::~TLibraryBrowser() {
    DestroyWindow();
    if (MayFreePanes()) return;
    for (std::unique_ptr<CView>& pane : TakeEndedPanes())
        OutlivingPanes().push_back(std::move(pane));
}

bool TLibraryBrowser::Initialize(CFrameWnd* parent, Tcl_Interp* interp,
                                 CXTPReportSubListControl* columnChooser) {
    if (GetRowCount() != 0) return false;
    if (MayFreePanes()) {
        FreeEndedPanes();
        FreeOutlivingPanes();
    }
    gColumnChooser() = columnChooser;
    if (!CreateStatic(parent, static_cast<int>(PaneRows().size()), 1, cnFirstPaneID)) return false;
    CreatePanes();
    ConnectPanes(interp);
    return true;
}

// All heights before the first pane, whose own settings are read as it comes.
void TLibraryBrowser::CreatePanes() {
    std::array<int, 3> heights{};
    for (std::size_t row = 0; row < heights.size(); ++row) {
        const TPaneRow& pane = PaneRows()[row];
        TProfileSection(false).ExchangeInteger(HeightKey(pane), heights[row], pane.defaultHeight);
    }
    for (std::size_t row = 0; row < heights.size(); ++row)
        CreateView(static_cast<int>(row), 0, PaneRows()[row].paneClass, {0, heights[row]});
}

void TLibraryBrowser::ConnectPanes(Tcl_Interp* interp) {
    TLibraryView* libraries = GetLibraryView();
    TCellListView* cells = GetCellListView();
    TSymbolPreview* preview = GetSymbolPreview();
    if (libraries == nullptr || cells == nullptr || preview == nullptr) return;
    cells->SetLibraryView(libraries);
    cells->SetPreviewView(preview);
    libraries->SetCellListView(cells);
    libraries->SetPreviewView(preview);
    libraries->SetTclInterp(interp);
    preview->SetLibraryView(libraries);
    // As the pane stands: one that was made just now is of no editor until ModifyForQEdit.
    if (libraries->GetQEdit()) cells->SwitchSetupTab(cnTabOfSchematicEditor);
}

void TLibraryBrowser::OnDestroy() {
    if (GetLibraryView() != nullptr && GetCellListView() != nullptr && GetSymbolPreview() != nullptr) {
        int row = 0;
        for (const TPaneRow& pane : PaneRows()) {
            int height = GetPane(row++, 0)->GetWindowRect().Height();
            TProfileSection(true).ExchangeInteger(HeightKey(pane), height, pane.defaultHeight);
        }
    }
    CSplitterWnd::OnDestroy();
}

bool TLibraryBrowser::OnKey(CWnd& from, TKey key, TModifiers modifiers) {
    TCellListView* cells = GetCellListView();
    if (key != TKey::Find || cells == nullptr) return CSplitterWnd::OnKey(from, key, modifiers);
    cells->FocusFilter();
    return true;
}

// A line's sender goes on when the line has ended, whatever the line did to the window.
bool TLibraryBrowser::MayFreePanes() const {
    return !IsLineRunning();
}

void TLibraryBrowser::SerializeSetup(bool store) {
    if (TCellListView* cells = GetCellListView()) cells->GetReport().SerializeSetup(store);
}

void TLibraryBrowser::AddViewsToDoc(CDocument* document) const {
    if (document == nullptr) return;
    const std::vector<CView*>& views = document->GetViews();
    const std::set<CView*> present(views.begin(), views.end());
    for (int row = 0; row < GetRowCount(); ++row) {
        CView* pane = GetPane(row, 0);
        if (pane != nullptr && !present.contains(pane)) document->AddView(pane);
    }
}

TLibraryView* TLibraryBrowser::GetLibraryView() const {
    return dynamic_cast<TLibraryView*>(GetPane(0, 0));
}

TCellListView* TLibraryBrowser::GetCellListView() const {
    return dynamic_cast<TCellListView*>(GetPane(1, 0));
}

TSymbolPreview* TLibraryBrowser::GetSymbolPreview() const {
    return dynamic_cast<TSymbolPreview*>(GetPane(2, 0));
}

void TLibraryBrowser::Populate() {
    if (TLibraryView* libraries = GetLibraryView()) libraries->Populate();
    PopulateCellListView();
}

CString TLibraryBrowser::GetExcludeViewNames() const {
    CStringU names;
    TProfileSection(false).ExchangeText(csExcludeViewNamesKey, names, csDefaultExcludeViewNames);
    return names.ToAnsi();
}

CStringU TLibraryBrowser::GetReservedBy(const TLibCellView& view) const {
    return FindText(m_reservedBy, view);
}

void TLibraryBrowser::SetReservedBy(const TLibCellView& view, const CStringU& user) {
    m_reservedBy[view] = user;
}

CStringU TLibraryBrowser::GetRepoState(const TLibCellView& view) const {
    return FindText(m_repoState, view);
}

void TLibraryBrowser::SetRepoState(const TLibCellView& view, const CStringU& state) {
    m_repoState[view] = state;
}

CStringU TLibraryBrowser::GetVersion(const TLibCellView& view) const {
    return FindText(m_version, view);
}

void TLibraryBrowser::SetVersion(const TLibCellView& view, const CStringU& version) {
    m_version[view] = version;
}

void TLibraryBrowser::ClearCaches() {
    m_reservedBy.clear();
    m_repoState.clear();
    m_version.clear();
    if (TLibraryView* libraries = GetLibraryView()) libraries->ClearCaches();
}

}  // namespace vapp_library_browser
