/// @file
/// TCellListView: the middle pane of the navigator, with filter row, report of cells, tabs and status line.
///
/// It holds the widgets around the report and the mark that a refresh is due. Nothing here refreshes by
/// itself: requests only set the mark, and the host's idle call to `TLibraryBrowser::Populate` does the work,
/// so that many requests cost one refresh.
///
/// Not here: rows and columns (TCellNamesReportCtrl).
#pragma once

#include <cstddef>
#include <memory>

#include "vapp/Export.h"
#include "vapp/celllist/TCellNamesReportCtrl.h"
#include "vapp/celllist/TUpdateCellListReason.h"
#include "vapp/toolkit/CButton.h"
#include "vapp/toolkit/CComboBox.h"
#include "vapp/toolkit/CEdit.h"
#include "vapp/toolkit/CFormView.h"
#include "vapp/toolkit/CStatic.h"
#include "vapp/toolkit/CTabCtrl.h"

namespace vapp_library_browser {

class FilterHistory;
class TLibraryView;
class TSymbolPreview;

class VAPP_EXPORT TCellListView : public CFormView {
public:
    // Identifiers of the pane's controls.
    static constexpr UINT cnFilterCombo = 7701;
    static constexpr UINT cnFilterEdit = 7695;
    static constexpr UINT cnFilterButton = 7843;
    static constexpr UINT cnReport = 7702;
    static constexpr UINT cnTabs = 7718;
    static constexpr UINT cnStatus = 7719;

    TCellListView();
    ~TCellListView() override;

    void OnInitialUpdate() override;

    // The other panes; not owned, null until the browser wires them.
    void SetLibraryView(TLibraryView* view) { m_libraryView = view; }
    [[nodiscard]] TLibraryView* GetLibraryView() const { return m_libraryView; }
    void SetPreviewView(TSymbolPreview* preview) { m_previewView = preview; }
    [[nodiscard]] TSymbolPreview* GetPreviewView() const { return m_previewView; }
    [[nodiscard]] TCellNamesReportCtrl& GetReport() { return m_report; }
    [[nodiscard]] const TCellNamesReportCtrl& GetReport() const { return m_report; }

    // --- Refresh ---------------------------------------------------------------------------------------

    /// Marks the list for a refresh. With UpdateIfFilterSaysSo the host is asked whether the change matters
    /// for the filter type that is selected.
    void RequestDelayedPopulate(TUpdateCellListReason reason);
    /// Refreshes if marked, and takes the mark away, also one that was set in the course of the refresh.
    /// Does nothing while a population runs. The mark stays if the report's own Populate was called in the
    /// middle of this refresh.
    void Populate();
    [[nodiscard]] bool NeedsPopulate() const { return m_needsPopulate; }
    /// Sets the mark or takes it away.
    void SetNeedsPopulate(bool needsPopulate) { m_needsPopulate = needsPopulate; }
    /// Number of rows.
    [[nodiscard]] std::size_t GetCellViewCount() const { return m_report.GetCellViewCount(); }
    /// The line below the list.
    void SetStatusText(const CStringU& text);

    // --- Filter ----------------------------------------------------------------------------------------

    /// Adds a type to the drop-down; the first one is selected.
    void AddFilterType(const CStringU& name);
    /// The selected type; empty without one. It goes into lines as it stands.
    [[nodiscard]] CStringU GetDropDownFilter() const;
    /// The sub-string that rows must hold, in the active code page; empty for all rows.
    [[nodiscard]] CString GetFilterText() const { return m_filterEdit.GetWindowText(); }
    /// Selects the first type and empties the sub-string.
    void ResetFilter();
    /// Empties the sub-string.
    void EmptyFilterText();
    /// Gives the keyboard to the edit of the sub-string.
    void FocusFilter();
    /// The setting with the sub-strings of the past, the newest first, each followed by a line feed; UTF-8.
    [[nodiscard]] CString GetCellFilterHistory() const;
    /// Stores that setting, nothing else: the history of this pane goes on as it is.
    void SetCellFilterHistory(CString& history);
    /// The views that hosts are asked to leave out, divided by semicolons and blanks.
    [[nodiscard]] const CStringU& GetExcludeViews() const { return m_report.GetExcludeViews(); }

    // --- Tabs ------------------------------------------------------------------------------------------

    /// Selects a tab, with no other effect.
    void SwitchSetupTab(int tab) { m_tabs.SetCurSel(tab); }
    /// The current tab.
    [[nodiscard]] int GetSetupTab() const { return m_tabs.GetCurSel(); }
    void SetCellTabsText(int tab, const CString& text) { m_tabs.SetItemText(tab, text); }
    /// Adds an item to the menu of a tab while the host answers WM_LN_BUILDTABMENU; nothing at other times.
    void AddCellTabsMenuItem(const CString& text, bool checked);
    /// A separator, which counts as an item where WM_LN_TABMENUPICK tells an item's number.
    void AddCellTabsMenuSeparator();

    // --- Selection -------------------------------------------------------------------------------------

    [[nodiscard]] TCellNamesReportCtrl::TSelectedColl GetSelectedCells() const {
        return m_report.GetSelected();
    }
    [[nodiscard]] bool AreAnyCellsSelected() const { return m_report.AreAnyCellsSelected(); }
    [[nodiscard]] TLibCellView GetFocusedCell() const { return m_report.GetFocusedCell(); }

    // --- Handlers --------------------------------------------------------------------------------------

    /// The sub-string has changed: notes and stores it in the history, and marks the list.
    void OnEditFilterChange();
    /// The button beside the sub-string: empties it, or, where it is empty, offers those of the past.
    void OnFilterBtnClicked();
    /// Another type was picked: nothing until the drop-down closes.
    void OnCbnSelchangeFilterCombo() {}
    /// The drop-down closed: marks the list and gives the keyboard to the main window.
    void OnCbnCloseupFilterCombo();
    /// Selection or focus changed: tells the main window, unless a refresh is due, and the preview.
    void OnReportSelectionChanged();
    /// The user asked for the menu of a tab: selects the tab, lets the host fill a menu, tells it what was
    /// picked, and shows the tab's setup with rows that are fetched anew, also if nothing was picked.
    void OnTabRClick(int tab, CPoint screen);
    /// The user sorted by a header: refreshes at once.
    void OnReportSortOrderChanged();

protected:
    void OnCreate() override;
    void OnSize(UINT type, int cx, int cy) override;
    void OnSetFocus() override;
    bool OnNotify(Notification& notification, LRESULT& result) override;
    /// In the edit, Down goes on to the rows, and Escape empties the edit or, once it is empty, goes back to
    /// the rows.
    bool OnKey(CWnd& from, TKey key, TModifiers modifiers) override;

private:
    void ShowFilterButton(bool isEmpty);
    static void TellTabPick(int tab, UINT item, const CMenu& menu);
    void LoadFilterHistory();
    void OfferFilterHistory();
    void FocusRows();

    TComboBoxCtrl m_filterCombo;
    CXTPEdit m_filterEdit;
    CXTPButton m_filterButton;
    TCellNamesReportCtrl m_report;
    CTabCtrl m_tabs;
    CStatic m_status;
    TLibraryView* m_libraryView = nullptr;
    TSymbolPreview* m_previewView = nullptr;
    std::unique_ptr<FilterHistory> m_filterHistory;
    CMenu* m_tabsMenu = nullptr;
    bool m_needsPopulate = true;
};

}  // namespace vapp_library_browser
