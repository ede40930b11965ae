/// @file
/// The calls that the facade only passes on to a pane. Without the pane they do nothing and answer empty.
#include "vapp/browser/TLibraryBrowser.h"
#include "vapp/browser/TLibraryView.h"

namespace vapp_library_browser {

namespace {

/// The call's answer, or an empty one without the pane.
template <typename Pane, typename Call>
auto Ask(Pane* pane, Call call) -> decltype(call(*pane)) {
    if (pane == nullptr) return {};
    return call(*pane);
}

}  // namespace

// --- To the library pane -------------------------------------------------------------------------------

void TLibraryBrowser::ModifyForQEdit() {
    if (TLibraryView* view = GetLibraryView()) view->ModifyForQEdit();
}

void TLibraryBrowser::RequestLibraryViewDelayedPopulate() {
    if (TLibraryView* view = GetLibraryView()) view->RequestDelayedPopulate();
}

CStringU TLibraryBrowser::GetSelectedDesign() const {
    return Ask(GetLibraryView(), [](const TLibraryView& view) { return view.GetSelectedDesign(); });
}

void TLibraryBrowser::SetSelectedDesign(const CStringU& design) {
    if (TLibraryView* view = GetLibraryView()) view->SetSelectedDesign(design);
}

CStringU TLibraryBrowser::GetFocusedLibrary() const {
    return Ask(GetLibraryView(), [](const TLibraryView& view) { return view.GetFocusedLibrary(); });
}

std::set<CStringIU> TLibraryBrowser::GetAllLibrariesSet() const {
    return Ask(GetLibraryView(), [](const TLibraryView& view) { return view.GetAllLibrariesSet(); });
}

std::set<CStringIU> TLibraryBrowser::GetSelectedLibrariesSet() const {
    return Ask(GetLibraryView(), [](const TLibraryView& view) { return view.GetSelectedLibrariesSet(); });
}

void TLibraryBrowser::SelectInLibraryList(const CStringU& library) {
    if (TLibraryView* view = GetLibraryView()) view->SelectInLibraryList(library);
}

bool TLibraryBrowser::GetAlphabeticalLibraryNames() const {
    return Ask(GetLibraryView(), [](const TLibraryView& view) { return view.GetAlphabetical(); });
}

void TLibraryBrowser::SetCommandHandler(unsigned id, const CStringU& command,
                                        TLibraryBrowserTclInterfaceStyle style) {
    if (TLibraryView* view = GetLibraryView()) view->SetCommandHandler(id, command, style);
}

std::pair<CStringU, TLibraryBrowserTclInterfaceStyle> TLibraryBrowser::GetCommandHandler(unsigned id) const {
    return Ask(GetLibraryView(), [id](const TLibraryView& view) { return view.GetCommandHandler(id); });
}

void TLibraryBrowser::SetOaViewReserved(const TLibCellView& lcv, bool reserved) {
    if (TLibraryView* view = GetLibraryView()) view->SetOaViewReserved(lcv, reserved);
}

bool TLibraryBrowser::HasOaReservedViews(const CStringU& library) const {
    return Ask(GetLibraryView(), [&](const TLibraryView& view) { return view.HasOaReservedViews(library); });
}

void TLibraryBrowser::SetLcvModified(const TLibCellView& lcv, bool modified) {
    if (TLibraryView* view = GetLibraryView()) view->SetLcvModified(lcv, modified);
}

bool TLibraryBrowser::HasModifiedLcvs(const CStringU& library) const {
    return Ask(GetLibraryView(), [&](const TLibraryView& view) { return view.HasModifiedLcvs(library); });
}

bool TLibraryBrowser::IsLcvModified(const TLibCellView& lcv) {
    return Ask(GetLibraryView(), [&](TLibraryView& view) { return view.IsLcvModified(lcv); });
}

void TLibraryBrowser::SetPreview(bool clear, const CStringU& caption, HBITMAP bitmap) {
    if (TLibraryView* view = GetLibraryView()) view->SetPreview(clear, caption, bitmap);
}

// --- To the cell pane ----------------------------------------------------------------------------------

void TLibraryBrowser::RequestCellListViewDelayedPopulate(TUpdateCellListReason reason) {
    if (TCellListView* cells = GetCellListView()) cells->RequestDelayedPopulate(reason);
}

void TLibraryBrowser::PopulateCellListView() {
    if (TCellListView* cells = GetCellListView()) cells->Populate();
}

void TLibraryBrowser::UpdateWindowCellListView() {
    if (TCellListView* cells = GetCellListView()) cells->UpdateWindow();
}

void TLibraryBrowser::AddCellViewListColumn(const CStringU& caption, const CStringU& tclCommand,
                                            bool sortForward, bool hideInThirdSetup) {
    if (TCellListView* cells = GetCellListView()) {
        cells->GetReport().AddColumn(caption, tclCommand, sortForward, hideInThirdSetup);
    }
}

void TLibraryBrowser::AddCellViewListColumn(const CStringU& caption, CStringU (*getText)(const TLibCellView&),
                                            bool sortForward, bool hideInThirdSetup) {
    if (TCellListView* cells = GetCellListView()) {
        cells->GetReport().AddColumn(caption, getText, sortForward, hideInThirdSetup);
    }
}

void TLibraryBrowser::AddCellViewListFilterType(const CStringU& name) {
    if (TCellListView* cells = GetCellListView()) cells->AddFilterType(name);
}

void TLibraryBrowser::ResetCellViewListFilter() {
    if (TCellListView* cells = GetCellListView()) cells->ResetFilter();
}

void TLibraryBrowser::SetCellTabsText(int tab, const CString& text) {
    if (TCellListView* cells = GetCellListView()) cells->SetCellTabsText(tab, text);
}

TLibCellView TLibraryBrowser::GetFocusedCell() const {
    return Ask(GetCellListView(), [](const TCellListView& cells) { return cells.GetFocusedCell(); });
}

std::vector<TLibCellView> TLibraryBrowser::GetSelectedCells() const {
    std::vector<TLibCellView> selected;
    if (const TCellListView* cells = GetCellListView()) {
        for (const TLibCellView& cell : cells->GetSelectedCells())
            selected.push_back(cell);
    }
    return selected;
}

bool TLibraryBrowser::AreAnyCellsSelected() const {
    return Ask(GetCellListView(), [](const TCellListView& cells) { return cells.AreAnyCellsSelected(); });
}

void TLibraryBrowser::AddToCellListSelections(const std::set<TLibCellView>& selection) {
    if (TCellListView* cells = GetCellListView()) cells->GetReport().AddToCellListSelections(selection);
}

void TLibraryBrowser::HighlightCellInList(const CStringU& library, const CStringU& cell) {
    SelectInLibraryList(library);
    if (TCellListView* cells = GetCellListView()) cells->GetReport().HighlightCellInList(library, cell);
}

std::size_t TLibraryBrowser::GetCellViewCount() const {
    return Ask(GetCellListView(), [](const TCellListView& cells) { return cells.GetCellViewCount(); });
}

CStringU TLibraryBrowser::GetShownCellList() const {
    return Ask(GetCellListView(),
               [](const TCellListView& cells) { return cells.GetReport().GetShownCellList(); });
}

CStringU TLibraryBrowser::GetShownCellViewList() const {
    return Ask(GetCellListView(),
               [](const TCellListView& cells) { return cells.GetReport().GetShownCellViewList(); });
}

CStringU TLibraryBrowser::GetExcludeViews() const {
    return Ask(GetCellListView(),
               [](const TCellListView& cells) { return CStringU(cells.GetExcludeViews()); });
}

}  // namespace vapp_library_browser
