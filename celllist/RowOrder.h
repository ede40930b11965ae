/// @file
/// RowOrder: what the columns of a report say about the order of its rows, read once before the sort, because
/// host script that runs during the sort may click headers and hide columns.
#pragma once

#include <vector>

#include "celllist/CellRows.h"
#include "vapp/celllist/TCellNamesReportCtrl.h"

namespace vapp_library_browser {

/// The name that a built-in column shows; nothing for a column of the host.
[[nodiscard]] std::optional<NameRole> RoleOf(const CXTPReportColumn* column);

struct RowOrder {
    /// The sort columns, then all other built-in columns as they stand. A host column that is not the first
    /// to sort by has no keys and decides nothing.
    std::vector<NameCriterion> names;
    /// The host's column that the report is sorted by first, or null.
    TCellNamesReportCtrl::TCustomColumn* keyColumn = nullptr;
    bool keyForward = true;

    [[nodiscard]] static RowOrder Read(const CXTPReportColumns& columns);
    /// True if library, cell and view all take part.
    [[nodiscard]] bool HasAllNames() const { return names.size() == cnRoleCount; }
};

}  // namespace vapp_library_browser
