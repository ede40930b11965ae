/// @file
/// The refresh of the library pane: when it is due, how the answer becomes designs and libraries, how the
/// selection survives, and what the selected master of the database has to do with it.
///
/// Three places run host script: the two lines, and the refresh of the cell list for a pending highlight.
/// Script may come back here by any exported operation, and may end the window. A refresh inside of a refresh
/// returns at once, and a request inside of one is served by it (docs/decisions/0010-reentry.md).
#include <utility>

#include "toolkit/FlagGuard.h"
#include "vapp/browser/Messages.h"
#include "vapp/browser/PendingHighlight.h"
#include "vapp/browser/TLibraryView.h"
#include "vapp/browser/TclBridge.h"
#include "vapp/celllist/TCellListView.h"

namespace vapp_library_browser {

namespace {

constexpr COLORREF cnDarkEmptyText = 0xA0A0A0;
constexpr COLORREF cnLightBackground = 0xFFFFFF;

}  // namespace

void TLibraryView::RequestDelayedPopulate() {
    m_needsPopulate = true;
    if (m_libraryList.IsWindow()) m_libraryList.Invalidate(true);
}

void TLibraryView::OnUpdate(CView* /*sender*/, std::int64_t hint, CObject* /*hintObject*/) {
    if (hint == cnHintSelectedMaster && !FetchSelectedMaster()) return;
    RequestDelayedPopulate();
}

// False if the line failed or its answer is no list. A list of another length, or without a library, just
// means that there is no selected master to show.
bool TLibraryView::FetchSelectedMaster() {
    // A hint that comes from inside the question is answered by the answer that is under way.
    if (m_askingSelectedMaster) return true;
    gPendingHighlight().reset();
    TTclObject answer;
    {
        const FlagGuard asking(m_askingSelectedMaster);
        answer = AskTcl(m_interp, "database selected_master");
    }
    const auto names = TTclList::Read(answer.Get());
    if (!names) return false;
    if (names->size() != 3) return true;
    TLibCellView master(MakeText((*names)[0]), MakeText((*names)[1]), MakeText((*names)[2]));
    if (!master.library.IsEmpty()) gPendingHighlight() = std::make_unique<TLibCellView>(std::move(master));
    return true;
}

void TLibraryView::Populate() {
    if (!m_needsPopulate || m_interp == nullptr || m_populating) return;
    const FlagGuard populating(m_populating);
    UpdateListBackground();
    if (!FetchDesigns()) return;
    CStringU design = GetSelectedDesign();
    if (!m_designLibraries.contains(design)) design.Empty();
    FillDesignCombo(design);
    ShowPendingHighlight();
    m_designCombo.Invalidate();
    PopulateList();
    m_needsPopulate = false;
}

void TLibraryView::UpdateListBackground() {
    const COLORREF wanted = gIsDarkTheme() ? cnDarkBackground : cnLightBackground;
    if (m_libraryList.GetBkColor() == wanted) return;
    m_libraryList.SetBkColor(wanted);
    m_libraryList.SetEmptyTextColor(wanted == cnDarkBackground ? cnDarkEmptyText : cnNoColor);
    m_libraryList.Invalidate();
}

// False if the answer is none, or not of the form that is expected; the maps then hold what was told so far.
bool TLibraryView::FetchDesigns() {
    m_designLibraries.clear();
    m_designLibraryOrder.clear();
    const TTclObject answer = AskTcl(m_interp, "database all_libs");
    const auto designs = TTclList::Read(answer.Get());
    if (!designs) return false;
    for (Tcl_Obj* element : *designs) {
        const auto design = TTclList::Read(element);
        if (!design || !TakeDesign(*design)) return false;
    }
    return true;
}

// A design is known by its libraries: one that has none stands nowhere, and falls out of the combo box.
bool TLibraryView::TakeDesign(const TTclList& design) {
    if (design.empty()) return true;
    const CStringU name = MakeText(design[0]);
    for (std::size_t item = 1; item < design.size(); ++item) {
        const auto pair = TTclList::Read(design[item]);
        if (!pair) return false;
        if (pair->size() != 2) continue;
        const CStringU library = MakeText((*pair)[0]);
        m_designLibraries[name][library] = MakeText((*pair)[1]);
        m_designLibraryOrder[name].push_back(library);
    }
    return true;
}

void TLibraryView::FillDesignCombo(const CStringU& wanted) {
    m_designCombo.SetRedraw(false);
    m_designCombo.ResetContent();
    for (const auto& [design, libraries] : m_designLibraries)
        m_designCombo.AddString(design);
    m_designCombo.SetRedraw(true);
    if (!wanted.IsEmpty()) {
        m_designCombo.SetCurSel(m_designCombo.FindStringExact(-1, wanted));
    } else if (m_designCombo.GetCount() > 0) {
        m_designCombo.SetCurSel(0);
    }
}

// Works on the rows of the last refresh. The highlight itself stays for the cell list, which shows the cell.
void TLibraryView::ShowPendingHighlight() {
    if (!gPendingHighlight()) return;
    const CStringU library = gPendingHighlight()->library;
    for (int row = 0; row < m_libraryList.GetItemCount(); ++row) {
        if (m_libraryList.GetItemText(row) != library) continue;
        if (m_libraryList.GetItemState(row, cnListSelected) != 0) return;
        m_libraryList.SetItemState(row, cnListSelected, cnListSelected);
        if (m_cellListView != nullptr) m_cellListView->Populate();
        return;
    }
}

void TLibraryView::PopulateList() {
    if (m_interp == nullptr) return;
    static const TPathOfLibrary s_none;
    const CStringU design = GetSelectedDesign();
    const auto found = m_designLibraries.find(design);
    const TPathOfLibrary& libraries = found == m_designLibraries.end() ? s_none : found->second;
    if (!std::exchange(m_forceRelist, false) && ListShows(libraries)) return;
    FillList(design, libraries);
    MarkCellListDirty();
}

bool TLibraryView::ListShows(const TPathOfLibrary& libraries) const {
    if (static_cast<std::size_t>(m_libraryList.GetItemCount()) != libraries.size()) return false;
    for (int row = 0; row < m_libraryList.GetItemCount(); ++row) {
        if (!libraries.contains(m_libraryList.GetItemText(row))) return false;
    }
    return true;
}

void TLibraryView::FillList(const CStringU& design, const TPathOfLibrary& libraries) {
    const std::set<CStringIU> selected = GetSelectedLibrariesSet();
    m_libraryList.SetRedraw(false);
    m_libraryList.DeleteAllItems();
    // Selected at the end and at once: each change of a state is a walk over all rows.
    RowSelection again;
    const auto add = [&](const CStringU& library) {
        const int row = m_libraryList.InsertItem(m_libraryList.GetItemCount(), library);
        if (selected.contains(library)) again.Add(row, row);
    };
    if (m_alphabetical) {
        for (const auto& [library, path] : libraries)
            add(library);
    } else if (const auto order = m_designLibraryOrder.find(design); order != m_designLibraryOrder.end()) {
        for (const CStringU& library : order->second)
            add(library);
    }
    m_libraryList.SelectItems(again);
    m_libraryList.SetRedraw(true);
    m_libraryList.Invalidate();
}

void TLibraryView::MarkCellListDirty() {
    if (m_cellListView != nullptr) m_cellListView->SetNeedsPopulate(true);
}

void TLibraryView::RefreshCellListNow() {
    if (m_cellListView == nullptr) return;
    m_cellListView->SetNeedsPopulate(true);
    m_cellListView->Populate();
    m_cellListView->UpdateWindow();
}

}  // namespace vapp_library_browser
