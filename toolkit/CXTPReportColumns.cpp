/// @file
/// The columns of a report by position.
#include "vapp/toolkit/CXTPReportColumns.h"

#include <algorithm>
#include <utility>

#include "vapp/toolkit/CXTPReportControl.h"

CXTPReportColumns::CXTPReportColumns(CXTPReportControl& control) : m_control(control), m_sortOrder(control) {}

CXTPReportColumn* CXTPReportColumns::Add(std::unique_ptr<CXTPReportColumn> column) {
    if (!column) return nullptr;
    CXTPReportColumn* added = column.get();
    added->m_control = &m_control;
    m_columns.push_back(std::move(column));
    m_control.GetReportHeader().OnColumnsChanged(static_cast<int>(TColumnsChange::Added), added);
    return added;
}

CXTPReportColumn* CXTPReportColumns::GetAt(int position) const {
    return position >= 0 && position < GetCount() ? m_columns[static_cast<std::size_t>(position)].get()
                                                  : nullptr;
}

int CXTPReportColumns::IndexOf(const CXTPReportColumn* column) const {
    const auto found = std::find_if(m_columns.begin(), m_columns.end(),
                                    [column](const auto& held) { return held.get() == column; });
    return found == m_columns.end() ? -1 : static_cast<int>(found - m_columns.begin());
}

CXTPReportColumn* CXTPReportColumns::Find(int itemIndex) const {
    const auto found = std::find_if(m_columns.begin(), m_columns.end(), [itemIndex](const auto& held) {
        return held->GetItemIndex() == itemIndex;
    });
    return found == m_columns.end() ? nullptr : found->get();
}

int CXTPReportColumns::GetVisibleColumnsCount() const {
    return static_cast<int>(std::count_if(m_columns.begin(), m_columns.end(),
                                          [](const auto& held) { return held->IsVisible(); }));
}

int CXTPReportColumns::GetVisibleIndex(const CXTPReportColumn* column) const {
    int visibleIndex = 0;
    for (const auto& held : m_columns) {
        if (held.get() == column) return held->IsVisible() ? visibleIndex : -1;
        if (held->IsVisible()) ++visibleIndex;
    }
    return -1;
}

CXTPReportColumn* CXTPReportColumns::GetVisibleAt(int visibleIndex) const {
    if (visibleIndex < 0) return nullptr;
    int left = visibleIndex;
    for (const auto& held : m_columns) {
        if (!held->IsVisible()) continue;
        if (left-- == 0) return held.get();
    }
    return nullptr;
}

int CXTPReportColumns::ChangeColumnOrder(int position, const CXTPReportColumn* column) {
    const int from = IndexOf(column);
    if (from < 0) return -1;
    const int target = std::clamp(position, 0, GetCount() - 1);
    if (target == from) return target;
    const auto begin = m_columns.begin();
    if (from < target) {
        std::rotate(begin + from, begin + from + 1, begin + target + 1);
    } else {
        std::rotate(begin + target, begin + from, begin + from + 1);
    }
    m_control.GetReportHeader().OnColumnsChanged(static_cast<int>(TColumnsChange::Order), GetAt(target));
    return target;
}

void CXTPReportColumns::SetSortColumn(CXTPReportColumn* column, bool increasing) {
    m_control.BeginUpdate();
    m_sortOrder.Clear();
    m_sortOrder.Add(column, increasing);
    m_control.EndUpdate();
}
