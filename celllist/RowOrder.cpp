/// @file
/// From columns to criteria.
#include "celllist/RowOrder.h"

#include <set>

namespace vapp_library_browser {

namespace {

using TReport = TCellNamesReportCtrl;

class Reader {
public:
    explicit Reader(RowOrder& order) : m_order(order) { m_order.parts.emplace_back(); }

    // A column that decides already finds nothing left to decide a second time.
    void Add(CXTPReportColumn* column, bool forward, bool first) {
        auto* own = dynamic_cast<TReport::TColumn*>(column);
        if (own == nullptr || m_nameCount == cnRoleCount || !m_known.insert(own).second) return;
        const auto* custom = dynamic_cast<TReport::TCustomColumn*>(own);
        if (const auto role = RoleOf(own)) {
            AddName(*role, forward);
        } else if (custom == nullptr) {
            AddKey(own, forward).comparesCells = true;
        } else if (first) {
            AddKey(own, forward == custom->GetSortForward());
        }
    }

private:
    // There may be more than one column of a name.
    void AddName(NameRole role, bool forward) {
        for (const RowOrderPart& part : m_order.parts) {
            for (const NameCriterion& name : part.names) {
                if (name.role == role) return;
            }
        }
        m_order.parts.back().names.push_back({role, forward});
        ++m_nameCount;
    }
    RowOrderPart& AddKey(TReport::TColumn* column, bool forward) {
        if (m_order.parts.size() > 1 || m_order.parts[0].keyColumn != nullptr || m_nameCount > 0)
            m_order.parts.emplace_back();
        m_order.parts.back().keyColumn = column;
        m_order.parts.back().keyForward = forward;
        return m_order.parts.back();
    }

    RowOrder& m_order;
    std::set<const TReport::TColumn*> m_known;
    std::size_t m_nameCount = 0;
};

}  // namespace

std::optional<NameRole> RoleOf(const CXTPReportColumn* column) {
    if (dynamic_cast<const TReport::TColCellName*>(column) != nullptr) return NameRole::Cell;
    if (dynamic_cast<const TReport::TColViewName*>(column) != nullptr) return NameRole::View;
    if (dynamic_cast<const TReport::TColLibName*>(column) != nullptr) return NameRole::Library;
    return std::nullopt;
}

RowOrder RowOrder::Read(const CXTPReportColumns& columns) {
    RowOrder order;
    Reader reader(order);
    const CXTPReportColumnOrder& sortOrder = columns.GetSortOrder();
    for (int place = 0; place < sortOrder.GetCount(); ++place) {
        CXTPReportColumn* column = sortOrder.GetAt(place);
        reader.Add(column, column->IsSortedIncreasing(), place == 0);
    }
    for (int position = 0; position < columns.GetCount(); ++position)
        reader.Add(columns.GetAt(position), true, false);
    return order;
}

}  // namespace vapp_library_browser
