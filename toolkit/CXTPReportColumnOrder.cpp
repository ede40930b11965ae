/// @file
/// The sort order: a list of columns. The direction lies in the column and outlives its place here, so that a
/// header can tell how it was sorted last.
#include "vapp/toolkit/CXTPReportColumnOrder.h"

#include <algorithm>

#include "vapp/toolkit/CXTPReportControl.h"

CXTPReportColumn* CXTPReportColumnOrder::GetAt(int index) const {
    return index >= 0 && index < GetCount() ? m_columns[static_cast<std::size_t>(index)] : nullptr;
}

int CXTPReportColumnOrder::IndexOf(const CXTPReportColumn* column) const {
    const auto found = std::find(m_columns.begin(), m_columns.end(), column);
    return found == m_columns.end() ? -1 : static_cast<int>(found - m_columns.begin());
}

void CXTPReportColumnOrder::Clear() {
    if (m_columns.empty()) return;
    m_columns.clear();
    m_control.PartChanged(cnChangeSort);
}

void CXTPReportColumnOrder::Add(CXTPReportColumn* column, bool increasing) {
    if (m_control.GetColumns().IndexOf(column) < 0) return;
    if (IndexOf(column) < 0) m_columns.push_back(column);
    column->m_increasing = increasing;
    m_control.PartChanged(cnChangeSort);
}
