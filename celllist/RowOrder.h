/// @file
/// RowOrder: what the columns of a report say about the order of its rows, read once before the sort, because
/// host script that runs during the sort may click headers and hide columns.
#pragma once

#include <optional>
#include <vector>

#include "celllist/CellRows.h"
#include "vapp/celllist/TCellNamesReportCtrl.h"

namespace vapp_library_browser {

/// The name that a built-in column shows; nothing for a column of the host.
[[nodiscard]] std::optional<NameRole> RoleOf(const CXTPReportColumn* column);

/// Criteria that follow one another, behind a column whose texts are the keys of the rows.
struct RowOrderPart {
    TCellNamesReportCtrl::TColumn* keyColumn = nullptr;  ///< null: the names alone
    bool comparesCells = false;  ///< the column compares cells itself, and has no keys
    bool keyForward = true;
    std::vector<NameCriterion> names;
};

struct RowOrder {
    /// The most important part first; it alone may have no key column. Behind the third name nothing is left
    /// to decide, and nothing is in here. A column that was added by `AddColumn` with a command or a function
    /// takes part only if it is the first to sort by.
    std::vector<RowOrderPart> parts;

    [[nodiscard]] static RowOrder Read(const CXTPReportColumns& columns);
    /// True if library, cell and view all take part, and nothing else.
    [[nodiscard]] bool IsByNamesAlone() const {
        return parts.size() == 1 && parts[0].keyColumn == nullptr && parts[0].names.size() == cnRoleCount;
    }
};

}  // namespace vapp_library_browser
