/// @file
/// The header: which column stands where, and sorting by clicks.
#include "vapp/toolkit/CXTPReportHeader.h"

#include <cstdint>

#include "vapp/toolkit/CXTPReportControl.h"

CXTPReportHeader::CXTPReportHeader(CXTPReportControl& control) : m_control(control) {}

CXTPReportHeader::~CXTPReportHeader() = default;

CXTPReportColumn* CXTPReportHeader::HitTest(CPoint point) const {
    const CRect client = m_control.GetClientRect();
    if (!client.PtInRect(point) || point.y >= m_control.GetHeaderHeight()) return nullptr;
    const CXTPReportColumns& columns = m_control.GetColumns();
    // Wide: widths come from settings, and a sum of them may be any number.
    std::int64_t left = 0;
    int visible = 0;
    for (int position = 0; position < columns.GetCount(); ++position) {
        CXTPReportColumn* column = columns.GetAt(position);
        if (!column->IsVisible()) continue;
        // The frozen columns are behind us, and the point is beyond them: the rest has moved to the left.
        if (visible == m_control.GetFreezeColumnsCount()) left -= m_control.GetScrollX();
        ++visible;
        left += column->GetShownWidth();
        if (point.x < left) return column;
    }
    return nullptr;
}

void CXTPReportHeader::ClickedByUser(CXTPReportColumn* column, bool addToOrder) {
    CXTPReportColumns& columns = m_control.GetColumns();
    if (columns.IndexOf(column) < 0 || !column->IsSortable()) return;
    CXTPReportColumnOrder& order = columns.GetSortOrder();
    const bool increasing = order.IndexOf(column) < 0 || !column->IsSortedIncreasing();
    m_control.BeginUpdate();
    if (addToOrder) {
        order.Add(column, increasing);
    } else {
        columns.SetSortColumn(column, increasing);
    }
    m_control.SortChangedByUser();
    m_control.EndUpdate();
}

void CXTPReportHeader::MovedByUser(CXTPReportColumn* column, int position) {
    m_control.GetColumns().ChangeColumnOrder(position, column);
}

void CXTPReportHeader::ResizedByUser(CXTPReportColumn* column, int width) {
    if (m_control.GetColumns().IndexOf(column) >= 0) column->SetWidth(width);
}

void CXTPReportHeader::OnColumnsChanged(int /*change*/, CXTPReportColumn* /*column*/) {
    m_control.PartChanged(cnChangeColumns);
}
