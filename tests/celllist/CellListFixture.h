/// @file
/// A navigator whose host answers with triples, for tests of the cell list.
#pragma once

#include <initializer_list>
#include <string>
#include <vector>

#include "tests/browser/NavigatorFixture.h"
#include "vapp/celllist/TCellListView.h"

class CellListFixture : public NavigatorFixture {
protected:
    using TReport = vapp_library_browser::TCellNamesReportCtrl;
    using TLibCellView = vapp_library_browser::TLibCellView;
    using TTriples = std::vector<std::vector<std::string>>;

    static constexpr char csCount[] = "database cells -lcv -library top -count";
    static constexpr char csList[] = "database cells -lcv -library top -filter ";

    /// Library, cell and view of each row, as the host answers them.
    void AnswerCells(const TTriples& triples, int total = -1) {
        std::vector<std::string> elements;
        for (const std::vector<std::string>& triple : triples)
            elements.push_back(RecordingHost::List(triple));
        m_host.AnswerStart(csCount, std::to_string(total < 0 ? static_cast<int>(triples.size()) : total));
        m_host.AnswerStart(csList, RecordingHost::List(elements));
    }
    /// Shows the libraries l1 and l2 and these rows, and forgets the lines.
    void ShowCells(const TTriples& triples, int total = -1) {
        AnswerCells(triples, total);
        Show({"l1", "l2"});
        ASSERT_EQ(Libraries().GetSelectedDesign(), "top");
    }
    void Repopulate() {
        Cells().SetNeedsPopulate(true);
        Cells().Populate();
    }

    [[nodiscard]] TReport& Report() { return Cells().GetReport(); }
    /// All rows as "library cell view".
    [[nodiscard]] std::vector<std::string> Rows() {
        std::vector<std::string> rows;
        for (std::uint64_t row = 0; row < Report().GetCellViewCount(); ++row)
            rows.emplace_back(Report().GetCell(row).Join(" ").Payload());
        return rows;
    }
    [[nodiscard]] std::vector<std::string> SelectedCells() {
        std::vector<std::string> cells;
        for (const TLibCellView& cell : Cells().GetSelectedCells())
            cells.emplace_back(cell.Join(" ").Payload());
        return cells;
    }
    [[nodiscard]] CString Status() {
        return Cells().GetDlgItem(vapp_library_browser::TCellListView::cnStatus)->GetWindowText();
    }
    [[nodiscard]] CString NoItems() { return Report().GetPaintManager().GetNoItemsText(); }
    [[nodiscard]] COLORREF FilteredColor() {
        return Report().GetPaintManager().GetColor(TReportColor::FilteredList);
    }
    [[nodiscard]] CEdit& FilterEdit() {
        return dynamic_cast<CEdit&>(*Cells().GetDlgItem(vapp_library_browser::TCellListView::cnFilterEdit));
    }
    void Type(const char* text) { FilterEdit().EditedByUser(text); }
    void SelectRow(int row) { Report().GetSelectedRows().Select(CXTPReportRow(row)); }
    void SetOptions(void (*change)(TReport::TOptions&)) {
        TReport::TOptions options = Report().GetOptions();
        change(options);
        Report().SetOptions(options);
    }
    [[nodiscard]] CXTPReportColumn& Column(const char* caption) {
        for (int position = 0; position < Report().GetColumns().GetCount(); ++position) {
            CXTPReportColumn* column = Report().GetColumns().GetAt(position);
            if (column->GetCaption() == caption) return *column;
        }
        ADD_FAILURE() << "no column " << caption;
        return *Report().GetColumns().GetAt(0);
    }
    CXTPReportRecordItemMetrics Measure(int row, const char* caption) {
        CXTPReportRecordItemMetrics metrics;
        Report().MeasureItem(row, Column(caption), metrics);
        return metrics;
    }
};
