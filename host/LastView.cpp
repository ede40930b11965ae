/// Three entries of the settings. Names may hold anything, so that lists of them are kept as Tcl writes
/// lists.

#include "host/LastView.h"

#include <string>
#include <vector>

#include "host/TclList.h"
#include "vapp/browser/TLibraryBrowser.h"
#include "vapp/browser/TLibraryView.h"
#include "vapp/celllist/TCellListView.h"
#include "vapp/toolkit/CWinAppEx.h"

namespace navigator {

namespace {

constexpr char csLastViewSection[] = "LastView";
constexpr char csDesign[] = "Design";
constexpr char csLibraries[] = "Libraries";
constexpr char csOrder[] = "Order";
constexpr char csIncreasing[] = "increasing";
constexpr char csDecreasing[] = "decreasing";

CXTPReportColumn* FindColumn(const CXTPReportColumns& columns, const std::string& caption) {
    for (int position = 0; position < columns.GetCount(); ++position) {
        CXTPReportColumn* const column = columns.GetAt(position);
        if (column->GetCaption() == caption.c_str()) return column;
    }
    return nullptr;
}

}  // namespace

void gKeepView(CWinAppEx& app, const vapp_library_browser::TLibraryBrowser& browser) {
    std::vector<std::string> libraries;
    for (const CStringIU& library : browser.GetSelectedLibrariesSet())
        libraries.emplace_back(library.Payload());
    std::vector<std::string> order;
    if (const auto* const cells = browser.GetCellListView()) {
        const CXTPReportColumnOrder& sorted = cells->GetReport().GetColumns().GetSortOrder();
        for (int place = 0; place < sorted.GetCount(); ++place) {
            const CXTPReportColumn& column = *sorted.GetAt(place);
            order.emplace_back(column.GetCaption().GetString());
            order.emplace_back(column.IsSortedIncreasing() ? csIncreasing : csDecreasing);
        }
    }
    app.WriteProfileString(csLastViewSection, csDesign, browser.GetSelectedDesign().Payload());
    app.WriteProfileString(csLastViewSection, csLibraries, gListOfWords(libraries).c_str());
    app.WriteProfileString(csLastViewSection, csOrder, gListOfWords(order).c_str());
}

bool gRestoreChoice(const CWinAppEx& app, vapp_library_browser::TLibraryBrowser& browser) {
    auto* const pane = browser.GetLibraryView();
    const CString kept = app.GetProfileString(csLastViewSection, csDesign);
    if (pane == nullptr || kept.IsEmpty()) return false;
    const CStringU design(kept.GetString(), TextEncoding::Utf8Auto);
    browser.SetSelectedDesign(design);
    // Libraries of the same name in another design are other ones.
    if (browser.GetSelectedDesign() != design) return false;
    auto& list = pane->GetLibraryListCtrl();
    RowSelection rows;
    for (const std::string& library :
         gWordsOfList(app.GetProfileString(csLastViewSection, csLibraries).GetString())) {
        for (int row = 0; row < list.GetItemCount(); ++row)
            if (library == list.GetItemText(row).Payload()) rows.Add(row, row);
    }
    if (rows.IsEmpty()) return true;
    list.SelectItems(rows);
    list.EnsureVisible(rows.NextFrom(0));
    return true;
}

void gRestoreOrder(const CWinAppEx& app, vapp_library_browser::TLibraryBrowser& browser) {
    auto* const cells = browser.GetCellListView();
    const std::vector<std::string> words =
        gWordsOfList(app.GetProfileString(csLastViewSection, csOrder).GetString());
    if (cells == nullptr || words.empty()) return;
    CXTPReportColumns& columns = cells->GetReport().GetColumns();
    columns.SetSortColumn(nullptr, true);
    for (std::size_t word = 0; word + 1 < words.size(); word += 2) {
        if (CXTPReportColumn* const column = FindColumn(columns, words[word]))
            columns.GetSortOrder().Add(column, words[word + 1] != csDecreasing);
    }
    cells->OnReportSortOrderChanged();
}

}  // namespace navigator
