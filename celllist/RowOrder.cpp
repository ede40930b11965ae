/// @file
/// From columns to criteria.
#include "celllist/RowOrder.h"

#include <algorithm>

namespace vapp_library_browser {

namespace {

using TReport = TCellNamesReportCtrl;

// A name that decides already finds nothing left to decide a second time.
void AddName(std::vector<NameCriterion>& names, NameRole role, bool forward) {
    const bool known = std::any_of(names.begin(), names.end(),
                                   [role](const NameCriterion& name) { return name.role == role; });
    if (!known) names.push_back({role, forward});
}

}  // namespace

std::optional<NameRole> RoleOf(const CXTPReportColumn* column) {
    if (dynamic_cast<const TReport::TColCellName*>(column) != nullptr) return NameRole::Cell;
    if (dynamic_cast<const TReport::TColViewName*>(column) != nullptr) return NameRole::View;
    if (dynamic_cast<const TReport::TColLibName*>(column) != nullptr) return NameRole::Library;
    return std::nullopt;
}

RowOrder RowOrder::Read(const CXTPReportColumns& columns) {
    RowOrder order;
    const CXTPReportColumnOrder& sortOrder = columns.GetSortOrder();
    order.keyColumn = dynamic_cast<TReport::TCustomColumn*>(sortOrder.GetAt(0));
    if (order.keyColumn != nullptr)
        order.keyForward = order.keyColumn->IsSortedIncreasing() == order.keyColumn->GetSortForward();
    for (int place = 0; place < sortOrder.GetCount(); ++place) {
        const CXTPReportColumn* column = sortOrder.GetAt(place);
        if (const auto role = RoleOf(column)) AddName(order.names, *role, column->IsSortedIncreasing());
    }
    for (int position = 0; position < columns.GetCount(); ++position) {
        if (const auto role = RoleOf(columns.GetAt(position))) AddName(order.names, *role, true);
    }
    return order;
}

}  // namespace vapp_library_browser
