/// @file
/// The selection of a report, changed by its logic. Every operation that changes something is told once.
#include "vapp/toolkit/CXTPReportSelectedRows.h"

#include <algorithm>
#include <limits>

#include "vapp/toolkit/CXTPReportControl.h"

void CXTPReportSelectedRows::Clear() {
    RowSelection& selection = m_control.GetCursor().GetSelection();
    if (selection.IsEmpty()) return;
    selection.Clear();
    m_control.SelectionChanged(cnChangeSelection);
}

void CXTPReportSelectedRows::AddBlock(int first, int last) {
    const int lastRow = m_control.GetRows().GetCount() - 1;
    if (first > lastRow) return;
    const bool changed =
        m_control.GetCursor().GetSelection().Add(std::max(first, 0), std::min(last, lastRow));
    if (changed) m_control.SelectionChanged(cnChangeSelection);
}

void CXTPReportSelectedRows::Select(const CXTPReportRow& row) {
    if (!m_control.GetRows().GetAt(row.GetIndex())) return;
    RowCursor& cursor = m_control.GetCursor();
    RowSelection selection;
    selection.Add(row.GetIndex(), row.GetIndex());
    cursor.SetAnchor(row.GetIndex());
    if (cursor.GetSelection() == selection) return;
    cursor.GetSelection() = selection;
    m_control.SelectionChanged(cnChangeSelection);
}

int CXTPReportSelectedRows::GetCount() const {
    return static_cast<int>(GetSelection().GetCount());
}

bool CXTPReportSelectedRows::Contains(const CXTPReportRow& row) const {
    return GetSelection().Contains(row.GetIndex());
}

CXTPReportSelectedRowPosition CXTPReportSelectedRows::GetFirstSelectedRowPosition() const {
    return GetSelection().NextFrom(0);
}

std::optional<CXTPReportRow> CXTPReportSelectedRows::GetNextSelectedRow(
    CXTPReportSelectedRowPosition& position) const {
    const int row = position < 0 ? -1 : GetSelection().NextFrom(position);
    const bool more = row >= 0 && row < std::numeric_limits<int>::max();
    position = more ? GetSelection().NextFrom(row + 1) : -1;
    return row < 0 ? std::nullopt : std::optional<CXTPReportRow>(row);
}

const RowSelection& CXTPReportSelectedRows::GetSelection() const {
    return m_control.GetCursor().GetSelection();
}
