/// @file
/// The pane's row of filters: the drop-down of types, the sub-string, its button and its history.
///
/// Nothing here refreshes the list. Each letter only marks it and stores the history, so that a word typed
/// fast costs one refresh, when the host is idle.
///
/// NATIVE: the edit's text is in the active code page; the history is in the text of the system, and UTF-8 in
/// the setting.
#include <utility>

#include "celllist/FilterHistory.h"
#include "celllist/FilterImages.h"
#include "toolkit/DialogItems.h"
#include "vapp/browser/HostCallScope.h"
#include "vapp/browser/TProfileSection.h"
#include "vapp/celllist/TCellListView.h"
#include "vapp/toolkit/CMenu.h"

namespace vapp_library_browser {

namespace {

constexpr char csHistoryKey[] = "CellFilterHistory";
// Identifier of the newest entry in the menu of the history; the older ones follow.
constexpr UINT cnFirstEntry = 101;

}  // namespace

void TCellListView::AddFilterType(const CStringU& name) {
    m_filterCombo.AddString(name);
    if (m_filterCombo.GetCount() == 1) m_filterCombo.SetCurSel(0);
}

CStringU TCellListView::GetDropDownFilter() const {
    return m_filterCombo.GetLBText(m_filterCombo.GetCurSel());
}

void TCellListView::ResetFilter() {
    m_filterCombo.SetCurSel(0);
    EmptyFilterText();
}

void TCellListView::EmptyFilterText() {
    m_filterEdit.SetWindowText("");
    OnEditFilterChange();
}

void TCellListView::FocusFilter() {
    m_filterEdit.SetFocus();
}

void TCellListView::OnEditFilterChange() {
    const CString text = GetFilterText();
    ShowFilterButton(text.IsEmpty());
    SetNeedsPopulate(true);
    m_filterHistory->Note(text);
    CString history = m_filterHistory->ToText().StripMarker();
    SetCellFilterHistory(history);
}

// The name goes with the image: it is what the button does now.
void TCellListView::ShowFilterButton(bool isEmpty) {
    m_filterButton.SetAccessibleName(gTranslateWindowText(isEmpty ? "__$$Translatable$$_Recent filters"
                                                                  : "__$$Translatable$$_Clear filter"));
    m_filterButton.SetImageResource(isEmpty ? cnFilterImageEmpty : cnFilterImageFilled);
}

// --- The history -----------------------------------------------------------------------------------------

CString TCellListView::GetCellFilterHistory() const {
    CStringU history;
    TProfileSection(false).ExchangeText(csHistoryKey, history, CStringU());
    return history.StripMarker();
}

void TCellListView::SetCellFilterHistory(CString& history) {
    CStringU text(history, TextEncoding::Utf8Auto);
    TProfileSection(true).ExchangeText(csHistoryKey, text, CStringU());
}

void TCellListView::LoadFilterHistory() {
    m_filterHistory->Read({GetCellFilterHistory(), TextEncoding::Utf8Auto});
}

void TCellListView::OnFilterBtnClicked() {
    if (GetFilterText().IsEmpty() && !m_filterHistory->GetEntries().empty()) {
        OfferFilterHistory();
    } else {
        m_filterEdit.SetWindowText("");
    }
    OnEditFilterChange();
}

// The menu's right edge stands at the button's left one, so that it opens over the edit.
void TCellListView::OfferFilterHistory() {
    // Whatever happens while the menu is open, this pane is needed afterwards.
    const HostCallScope scope;
    const std::vector<CStringU> entries = m_filterHistory->GetEntries();
    CMenu menu;
    for (const CStringU& entry : entries)
        menu.Append(cnFirstEntry + static_cast<UINT>(menu.GetItemCount()), gMenuTextOf(entry));
    const CRect button = m_filterButton.GetWindowRect();
    const UINT picked = menu.Track(*this, {button.left, button.bottom}, TMenuAlign::Right);
    if (picked >= cnFirstEntry && picked - cnFirstEntry < entries.size())
        m_filterEdit.SetWindowText(entries[picked - cnFirstEntry].ToAnsi());
}

// --- Keys ------------------------------------------------------------------------------------------------

bool TCellListView::OnKey(CWnd& from, TKey key, TModifiers modifiers) {
    if (&from != &m_filterEdit) return CFormView::OnKey(from, key, modifiers);
    if (key == TKey::Down) {
        FocusRows();
    } else if (key == TKey::Escape && GetFilterText().IsEmpty()) {
        m_report.SetFocus();
    } else if (key == TKey::Escape) {
        EmptyFilterText();
    } else {
        return CFormView::OnKey(from, key, modifiers);
    }
    return true;
}

// Among rows that nobody has been at yet, the first one is where the next key counts from.
void TCellListView::FocusRows() {
    m_report.SetFocus();
    if (!m_report.GetFocusedRow() || !m_report.AreAnyCellsSelected()) {
        const int row = m_report.GetFocusedRow() ? m_report.GetFocusedRow()->GetIndex() : 0;
        m_report.ClickedByUser(row, {});
    }
}

}  // namespace vapp_library_browser
