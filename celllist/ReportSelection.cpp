/// @file
/// Selecting rows and reading the selection.
#include <algorithm>

#include "celllist/CellRows.h"
#include "celllist/CellSet.h"
#include "vapp/celllist/TCellNamesReportCtrl.h"

namespace vapp_library_browser {

namespace {

using TReport = TCellNamesReportCtrl;

// After a fetching that failed the rows are still there, also as selected ones, and the cells are not.
CXTPReportSelectedRowPosition WithCell(const TReport& report, CXTPReportSelectedRowPosition position) {
    return position >= 0 && static_cast<std::uint64_t>(position) < report.GetCellViewCount() ? position : -1;
}

}  // namespace

TLibCellView TReport::TSelectedColl::const_iterator::operator*() const {
    CXTPReportSelectedRowPosition position = m_position;
    const std::optional<CXTPReportRow> row = m_report->GetSelectedRows().GetNextSelectedRow(position);
    return row ? m_report->GetCell(row->GetIndex()) : TLibCellView();
}

TReport::TSelectedColl::const_iterator& TReport::TSelectedColl::const_iterator::operator++() {
    static_cast<void>(m_report->GetSelectedRows().GetNextSelectedRow(m_position));
    m_position = WithCell(*m_report, m_position);
    return *this;
}

TReport::TSelectedColl::const_iterator TReport::TSelectedColl::begin() const {
    return {*m_report, WithCell(*m_report, m_report->GetSelectedRows().GetFirstSelectedRowPosition())};
}

bool TReport::AreAnyCellsSelected() const {
    return !GetSelected().empty();
}

void TReport::OnSelectAll() {
    SetFocus();
    BeginUpdate();
    GetSelectedRows().Clear();
    if (const int count = GetRows().GetCount(); count > 0) GetSelectedRows().AddBlock(0, count - 1);
    EndUpdate();
}

void TReport::AddToCellListSelections(const std::set<TLibCellView>& cells) {
    SetFocus();
    CellSet wanted;
    for (const TLibCellView& cell : cells)
        wanted.Add(cell);
    BeginUpdate();
    SelectRows(wanted);
    EndUpdate();
}

// Adds the rows to the selection, neighbours as one block.
void TReport::SelectRows(const CellSet& cells) {
    const std::vector<std::uint32_t> rows = cells.RowsOf(*m_cells);
    for (auto first = rows.begin(); first != rows.end();) {
        auto behind = std::adjacent_find(
            first, rows.end(), [](std::uint32_t row, std::uint32_t next) { return next != row + 1; });
        if (behind != rows.end()) ++behind;
        GetSelectedRows().AddBlock(static_cast<int>(*first), static_cast<int>(*(behind - 1)));
        first = behind;
    }
}

std::size_t TReport::Find(const CStringU& library, const CStringU& cell) const {
    return m_cells->Find(library, cell, nullptr).value_or(cnNotFound);
}

void TReport::HighlightCellInList(const CStringU& library, const CStringU& cell) {
    const std::size_t found = Find(library, cell);
    if (found == cnNotFound) return;
    const CXTPReportRow row(static_cast<int>(found));
    BeginUpdate();
    GetSelectedRows().Clear();
    SetFocusedRow(row, true);
    GetSelectedRows().Select(row);
    EndUpdate();
}

}  // namespace vapp_library_browser
