/// @file
/// All columns of a report in the order of their positions.
#pragma once

#include <memory>
#include <vector>

#include "vapp/Export.h"
#include "vapp/toolkit/CXTPReportColumn.h"
#include "vapp/toolkit/CXTPReportColumnOrder.h"

/// Owns the columns.
class VAPP_EXPORT CXTPReportColumns {
public:
    explicit CXTPReportColumns(CXTPReportControl& control);

    /// Adds behind the last one and gives it back.
    CXTPReportColumn* Add(std::unique_ptr<CXTPReportColumn> column);
    [[nodiscard]] int GetCount() const { return static_cast<int>(m_columns.size()); }
    /// The column at a position, or null.
    [[nodiscard]] CXTPReportColumn* GetAt(int position) const;
    /// Position of the column, or -1.
    [[nodiscard]] int IndexOf(const CXTPReportColumn* column) const;
    /// The column with the item index, or null.
    [[nodiscard]] CXTPReportColumn* Find(int itemIndex) const;
    [[nodiscard]] int GetVisibleColumnsCount() const;
    /// Number of visible columns before this one, or -1 if it is hidden or not here.
    [[nodiscard]] int GetVisibleIndex(const CXTPReportColumn* column) const;
    /// The visible column with that number among the visible ones, or null.
    [[nodiscard]] CXTPReportColumn* GetVisibleAt(int visibleIndex) const;
    /// Moves a column to a position, which is kept within 0 and the last one; -1 if there is no such column,
    /// else its new position.
    int ChangeColumnOrder(int position, const CXTPReportColumn* column);

    [[nodiscard]] CXTPReportColumnOrder& GetSortOrder() { return m_sortOrder; }
    [[nodiscard]] const CXTPReportColumnOrder& GetSortOrder() const { return m_sortOrder; }
    /// Sorts by this column alone, without notification; null sorts by none.
    void SetSortColumn(CXTPReportColumn* column, bool increasing);

private:
    CXTPReportControl& m_control;
    std::vector<std::unique_ptr<CXTPReportColumn>> m_columns;
    CXTPReportColumnOrder m_sortOrder;
};
