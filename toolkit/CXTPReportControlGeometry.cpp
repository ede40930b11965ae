/// @file
/// Where the rows of a report lie on the screen: scrolling, pages, hit tests.
#include <algorithm>
#include <cstdint>
#include <limits>

#include "vapp/toolkit/CXTPReportControl.h"

int CXTPReportControl::LastTopRow() const {
    return std::max(m_rowCount - GetCountPerPage(), 0);
}

int CXTPReportControl::LastScrollX() const {
    std::int64_t width = 0;
    for (int position = 0; position < m_columns.GetCount(); ++position) {
        const CXTPReportColumn* column = m_columns.GetAt(position);
        if (column->IsVisible()) width += column->GetShownWidth();
    }
    width -= std::max(GetClientRect().right, 0);
    return static_cast<int>(std::clamp<std::int64_t>(width, 0, std::numeric_limits<int>::max()));
}

void CXTPReportControl::SetTopRow(int row) {
    const int top = std::clamp(row, 0, LastTopRow());
    if (m_top == top) return;
    m_top = top;
    PartChanged(cnChangeScroll);
}

void CXTPReportControl::SetScrollX(int pixels) {
    const int scrollX = std::clamp(pixels, 0, LastScrollX());
    if (m_scrollX == scrollX) return;
    m_scrollX = scrollX;
    PartChanged(cnChangeScroll);
}

void CXTPReportControl::ClampScroll() {
    SetTopRow(m_top);
    SetScrollX(m_scrollX);
}

void CXTPReportControl::EnsureVisible(int row) {
    if (row < 0 || row >= m_rowCount) return;
    if (row < m_top) {
        SetTopRow(row);
    } else if (row - m_top >= GetCountPerPage()) {
        SetTopRow(row - GetCountPerPage() + 1);
    }
}

// Also a row of which the lower edge of the window leaves a part.
bool CXTPReportControl::IsInSight(int row) const {
    const std::int64_t top = (static_cast<std::int64_t>(row) - m_top) * m_rowHeight;
    return top >= 0 && top < GetClientRect().bottom - m_headerHeight;
}

void CXTPReportControl::SetRowMetrics(int rowHeight, int headerHeight) {
    m_rowHeight = std::max(rowHeight, 1);
    m_headerHeight = std::max(headerHeight, 0);
    ClampScroll();
}

int CXTPReportControl::GetCountPerPage() const {
    return std::max((GetClientRect().bottom - m_headerHeight) / m_rowHeight, 1);
}

std::optional<CXTPReportRow> CXTPReportControl::HitTestRow(CPoint point, CRect* area) const {
    const CRect client = GetClientRect();
    if (!client.PtInRect(point) || point.y < m_headerHeight) return std::nullopt;
    const int below = (point.y - m_headerHeight) / m_rowHeight;
    if (below >= m_rowCount - m_top) return std::nullopt;
    if (area != nullptr) {
        const int top = m_headerHeight + below * m_rowHeight;
        *area = {0, top, client.right, top + m_rowHeight};
    }
    return CXTPReportRow(m_top + below);
}

void CXTPReportControl::OnSize(UINT type, int cx, int cy) {
    CWnd::OnSize(type, cx, cy);
    if (type == cnSizeMinimized) return;
    BeginUpdate();
    ClampScroll();
    EndUpdate();
}
