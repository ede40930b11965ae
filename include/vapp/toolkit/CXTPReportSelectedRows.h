/// @file
/// The selected rows of a report.
#pragma once

#include <optional>

#include "vapp/Export.h"
#include "vapp/toolkit/CXTPReportRow.h"
#include "vapp/toolkit/RowSelection.h"

class CXTPReportControl;

/// Position of a walk over selected rows; the null position is -1.
using CXTPReportSelectedRowPosition = int;

/// A face of the report's selection. Changes are told to the report, which tells its peer and its parent.
class VAPP_EXPORT CXTPReportSelectedRows {
public:
    explicit CXTPReportSelectedRows(CXTPReportControl& control) : m_control(control) {}

    void Clear();
    /// Adds rows first to last, inclusive.
    void AddBlock(int first, int last);
    /// Selects the row, and no other, and makes it the anchor.
    void Select(const CXTPReportRow& row);
    [[nodiscard]] int GetCount() const;
    [[nodiscard]] bool Contains(const CXTPReportRow& row) const;
    /// Position of the first selected row, -1 if there is none.
    [[nodiscard]] CXTPReportSelectedRowPosition GetFirstSelectedRowPosition() const;
    /// The row at the position, which moves on to the next (-1 behind the last). Nothing for a null position.
    [[nodiscard]] std::optional<CXTPReportRow> GetNextSelectedRow(
        CXTPReportSelectedRowPosition& position) const;
    [[nodiscard]] const RowSelection& GetSelection() const;

private:
    CXTPReportControl& m_control;
};
