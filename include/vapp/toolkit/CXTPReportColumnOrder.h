/// @file
/// The columns that the report is sorted by, the most important first.
#pragma once

#include <vector>

#include "vapp/Export.h"

class CXTPReportColumn;
class CXTPReportControl;

/// Columns are not owned.
class VAPP_EXPORT CXTPReportColumnOrder {
public:
    explicit CXTPReportColumnOrder(CXTPReportControl& control) : m_control(control) {}

    [[nodiscard]] int GetCount() const { return static_cast<int>(m_columns.size()); }
    /// The column at a place, or null.
    [[nodiscard]] CXTPReportColumn* GetAt(int index) const;
    /// Place of the column, or -1.
    [[nodiscard]] int IndexOf(const CXTPReportColumn* column) const;
    void Clear();
    /// Adds the column behind the others; one that is there only changes its direction. A column of another
    /// report, or null, is left alone.
    void Add(CXTPReportColumn* column, bool increasing);

private:
    CXTPReportControl& m_control;
    std::vector<CXTPReportColumn*> m_columns;
};
