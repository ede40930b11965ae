/// @file
/// The cell pane: its controls, where they stand, what they report, and the mark that a refresh is due.
#include "vapp/celllist/TCellListView.h"

#include <algorithm>
#include <array>

#include "celllist/FilterHistory.h"
#include "toolkit/DialogItems.h"
#include "vapp/browser/HostCallScope.h"
#include "vapp/browser/Messages.h"
#include "vapp/browser/TLibraryView.h"
#include "vapp/browser/TSymbolPreview.h"
#include "vapp/browser/TclBridge.h"
#include "vapp/toolkit/CWinAppEx.h"

namespace vapp_library_browser {

namespace {

constexpr UINT cnDialog = 388;
constexpr int cnTabCount = 3;
constexpr int cnMargin = 4;
// The answer of `database filter` is read as a byte, and hosts rely on it.
constexpr int cnFilterAnswerMask = 0xFF;

constexpr std::array cnCellListItems = {
    DialogItem{TCellListView::cnFilterCombo, {4, 4, 84, 28}},
    DialogItem{TCellListView::cnFilterEdit, {88, 4, 208, 28}},
    DialogItem{TCellListView::cnFilterButton, {208, 4, 232, 28}},
    DialogItem{TCellListView::cnReport, {4, 32, 232, 232}},
    DialogItem{TCellListView::cnTabs, {4, 236, 232, 260}},
    DialogItem{TCellListView::cnStatus, {4, 264, 232, 280}},
};
const DialogTemplate cnCellListTemplate{cnDialog, {236, 284}, cnCellListItems};

// Names for assistive technology.
struct ControlName {
    UINT id;
    const char* key;
};
constexpr std::array cnNames = {
    ControlName{TCellListView::cnFilterCombo, "__$$Translatable$$_Filter type"},
    ControlName{TCellListView::cnFilterEdit, "__$$Translatable$$_Filter cells"},
    ControlName{TCellListView::cnReport, "__$$Translatable$$_Cells"},
    ControlName{TCellListView::cnTabs, "__$$Translatable$$_Column setups"},
    ControlName{TCellListView::cnStatus, "__$$Translatable$$_Number of cells"},
};

}  // namespace

TCellListView::TCellListView()
    : CFormView(cnCellListTemplate), m_report(*this), m_filterHistory(std::make_unique<FilterHistory>()) {}

TCellListView::~TCellListView() {
    // While the controls are still there to be told.
    DestroyWindow();
}

void TCellListView::OnCreate() {
    CFormView::OnCreate();
    CreateItem(m_filterCombo, cnFilterCombo);
    CreateItem(m_filterEdit, cnFilterEdit);
    CreateItem(m_filterButton, cnFilterButton);
    CreateItem(m_report, cnReport);
    CreateItem(m_tabs, cnTabs);
    CreateItem(m_status, cnStatus);
    ShowFilterButton(true);
    m_tabs.SetMinWidthText("WWW");
    m_filterEdit.SetCueText(gTranslateWindowText("__$$Translatable$$_Filter cells"));
    while (m_tabs.GetItemCount() < cnTabCount)
        m_tabs.InsertItem(m_tabs.GetItemCount(), "");
    SetAccessibleName(gTranslateWindowText("__$$Translatable$$_Cell list"));
    for (const ControlName& name : cnNames) {
        if (CWnd* control = GetDlgItem(name.id)) control->SetAccessibleName(gTranslateWindowText(name.key));
    }
}

void TCellListView::OnInitialUpdate() {
    CFormView::OnInitialUpdate();
    m_report.Init();
    LoadFilterHistory();
}

// --- Refresh -------------------------------------------------------------------------------------------

void TCellListView::RequestDelayedPopulate(TUpdateCellListReason reason) {
    if (m_needsPopulate) return;
    if (reason != UpdateIfFilterSaysSo) {
        m_needsPopulate = true;
        return;
    }
    if (m_libraryView == nullptr) return;
    TLineBuilder line("database filter ");
    line.Text(GetDropDownFilter());
    const TTclObject answer = AskTcl(m_libraryView->GetTclInterp(), line.GetString());
    // The answer is the last word, also over what the host asked for in the course of the line.
    if (const auto number = ReadInteger(answer.Get())) m_needsPopulate = (*number & cnFilterAnswerMask) != 0;
}

// An idle call that comes while rows are being fetched further up on the stack leaves nothing behind: a host
// whose lines run an event loop would otherwise be busy with refreshes for ever.
void TCellListView::Populate() {
    if (!m_needsPopulate || m_report.IsPopulating()) return;
    m_report.Populate();
    m_needsPopulate = m_report.IsPopulationPostponed();
}

void TCellListView::SetStatusText(const CStringU& text) {
    m_status.SetWindowText(text.ToAnsi());
}

// --- What the controls report --------------------------------------------------------------------------

void TCellListView::OnCbnCloseupFilterCombo() {
    SetNeedsPopulate(true);
    if (CWnd* mainWnd = gGetMainWnd()) mainWnd->SetFocus();
}

// With a refresh due, the rows that the host would ask about are not those that the user has selected.
void TCellListView::OnReportSelectionChanged() {
    if (!m_needsPopulate) AskMainWindow(WM_LN_HOSTNOTIFY, cnNotifySelectionChanged);
    // The host may have ended the window; what was its preview has nothing to show any more.
    if (IsWindow() && m_previewView != nullptr) m_previewView->DisplayNewPreview();
}

void TCellListView::OnReportSortOrderChanged() {
    m_report.Populate();
}

bool TCellListView::OnNotify(Notification& notification, LRESULT& result) {
    if (notification.from == &m_filterEdit && notification.code == cnEditChanged) {
        OnEditFilterChange();
    } else if (notification.from == &m_filterButton && notification.code == cnButtonClicked) {
        OnFilterBtnClicked();
    } else if (notification.from == &m_filterCombo && notification.code == cnComboSelectionChanged) {
        OnCbnSelchangeFilterCombo();
    } else if (notification.from == &m_filterCombo && notification.code == cnComboClosedUp) {
        OnCbnCloseupFilterCombo();
    } else if (notification.from == &m_report && notification.code == cnReportSelectionChanged) {
        if (!m_report.GetIgnoreSelectionChange()) OnReportSelectionChanged();
    } else if (notification.from == &m_report && notification.code == cnReportSortOrderChanged) {
        OnReportSortOrderChanged();
    } else if (notification.from == &m_tabs && notification.code == cnTabSelectionChanged) {
        m_report.OnSwitchSetupTab(m_tabs.GetCurSel());
    } else if (notification.from == &m_tabs && notification.code == cnTabContextClicked) {
        const auto& click = static_cast<const NotifyTabClick&>(notification);
        OnTabRClick(click.tab, click.screen);
    } else {
        return CFormView::OnNotify(notification, result);
    }
    result = 0;
    return true;
}

// With the host's column chooser on the screen no control of the pane takes the keyboard.
void TCellListView::OnSetFocus() {
    const HostCallScope scope;
    if (AskMainWindow(WM_LN_COLCHOOSERSHOWN) == 0) CFormView::OnSetFocus();
}

// --- Layout --------------------------------------------------------------------------------------------

// The filter row keeps its height at the top, tabs and status theirs at the bottom, the report has the rest.
// In a pane too small for them all, what doesn't fit gets no room, but never a negative one.
void TCellListView::OnSize(UINT type, int cx, int cy) {
    CFormView::OnSize(type, cx, cy);
    if (type == cnSizeMinimized || !m_status.IsWindow()) return;
    const int width = std::max(cx - 2 * cnMargin, 0);
    const auto place = [](CWnd& control, int left, int top, int itemWidth, int height) {
        control.MoveWindow({left, top, left + std::max(itemWidth, 0), top + std::max(height, 0)});
    };
    const CRect filter = GetTemplateRect(cnFilterCombo);
    const int comboWidth = std::min(std::max(filter.Width(), width / 3), width);
    const int buttonWidth =
        std::clamp(width - comboWidth - cnMargin, 0, GetTemplateRect(cnFilterButton).Width());
    const int editLeft = cnMargin + comboWidth + cnMargin;
    const int editWidth = std::max(width - comboWidth - cnMargin - buttonWidth, 0);
    place(m_filterCombo, cnMargin, filter.top, comboWidth, filter.Height());
    place(m_filterEdit, editLeft, filter.top, editWidth, filter.Height());
    place(m_filterButton, editLeft + editWidth, filter.top, buttonWidth, filter.Height());

    const int reportTop = filter.bottom + cnMargin;
    const int statusHeight = GetTemplateRect(cnStatus).Height();
    const int tabsHeight = GetTemplateRect(cnTabs).Height();
    const int statusTop = std::max(cy - cnMargin - statusHeight, reportTop);
    const int tabsTop = std::max(statusTop - cnMargin - tabsHeight, reportTop);
    place(m_report, cnMargin, reportTop, width, tabsTop - cnMargin - reportTop);
    place(m_tabs, cnMargin, tabsTop, width, std::min(tabsHeight, statusTop - cnMargin - tabsTop));
    place(m_status, cnMargin, statusTop, width, std::min(statusHeight, cy - cnMargin - statusTop));
}

}  // namespace vapp_library_browser
