/// The arithmetic of rows, columns and bars, from the controls' own geometry.

#include "host/ScreenPlaces.h"

#include <algorithm>

#include "vapp/browser/TLibraryBrowser.h"
#include "vapp/browser/TLibraryView.h"
#include "vapp/celllist/TCellListView.h"

namespace navigator {

using vapp_library_browser::TLibraryBrowser;

namespace {

CRect OnScreen(const CWnd& window, const CRect& rect) {
    const CPoint corner = window.ClientToScreen({rect.left, rect.top});
    return {corner.x, corner.y, corner.x + rect.Width(), corner.y + rect.Height()};
}

}  // namespace

int gRowOfLibrary(TLibraryBrowser& browser, const std::string& library) {
    auto* const pane = browser.GetLibraryView();
    const int count = pane != nullptr ? pane->GetLibraryListCtrl().GetItemCount() : 0;
    for (int row = 0; row < count; ++row)
        if (library == pane->GetLibraryListCtrl().GetItemText(row).Payload()) return row;
    return -1;
}

std::optional<CRect> gPlaceOfLibrary(TLibraryBrowser& browser, const std::string& library) {
    const int row = gRowOfLibrary(browser, library);
    if (row < 0) return std::nullopt;
    const auto& list = browser.GetLibraryView()->GetLibraryListCtrl();
    if (row < list.GetTopIndex() || row >= list.GetTopIndex() + list.GetCountPerPage()) return std::nullopt;
    const int top = list.GetHeaderHeight() + (row - list.GetTopIndex()) * list.GetRowHeight();
    return OnScreen(list, {0, top, list.GetClientRect().right, top + list.GetRowHeight()});
}

std::optional<CRect> gPlaceOfHeader(TLibraryBrowser& browser, const std::string& caption) {
    auto* const cells = browser.GetCellListView();
    if (cells == nullptr) return std::nullopt;
    const auto& report = cells->GetReport();
    const CXTPReportColumns& columns = report.GetColumns();
    int left = 0;
    int frozenEdge = 0;
    for (int visible = 0; CXTPReportColumn* const column = columns.GetVisibleAt(visible); ++visible) {
        if (visible == report.GetFreezeColumnsCount()) {
            frozenEdge = left;
            left -= report.GetScrollX();
        }
        const int right = std::min(left + column->GetShownWidth(), report.GetClientRect().right);
        const int shownLeft = std::max(left, frozenEdge);
        if (column->GetCaption() == caption.c_str()) {
            if (shownLeft >= right) return std::nullopt;
            return OnScreen(report, {shownLeft, 0, right, report.GetHeaderHeight()});
        }
        left += column->GetShownWidth();
    }
    return std::nullopt;
}

std::optional<CRect> gPlaceOfRow(TLibraryBrowser& browser, int row) {
    auto* const cells = browser.GetCellListView();
    if (cells == nullptr) return std::nullopt;
    const auto& report = cells->GetReport();
    const int below = row - report.GetTopRowIndex();
    const bool isThere = row >= 0 && row < report.GetRows().GetCount();
    if (!isThere || below < 0 || below >= report.GetCountPerPage()) return std::nullopt;
    const int top = report.GetHeaderHeight() + below * report.GetRowHeight();
    return OnScreen(report, {0, top, report.GetClientRect().right, top + report.GetRowHeight()});
}

std::optional<CRect> gPlaceOfControl(TLibraryBrowser& browser, int id) {
    const auto* const cells = browser.GetCellListView();
    const CWnd* const found = cells != nullptr && id > 0 ? cells->GetDlgItem(static_cast<UINT>(id)) : nullptr;
    return found != nullptr ? std::optional(found->GetWindowRect()) : std::nullopt;
}

std::optional<CRect> gPlaceOfPane(TLibraryBrowser& browser, int pane) {
    const CView* const found = browser.GetPane(pane, 0);
    return found != nullptr ? std::optional(found->GetWindowRect()) : std::nullopt;
}

std::optional<CRect> gPlaceOfBar(TLibraryBrowser& browser, int bar) {
    if (bar + 1 >= browser.GetRowCount()) return std::nullopt;
    const std::optional<CRect> pane = gPlaceOfPane(browser, bar);
    if (!pane) return std::nullopt;
    return CRect(pane->left, pane->bottom, pane->right, pane->bottom + CSplitterWnd::cnBarHeight);
}

}  // namespace navigator
