/// @file
/// The test of rows, with the answers for names remembered.
#include "celllist/SubstringFilter.h"

#include <algorithm>
#include <utility>

#include "celllist/RowOrder.h"

namespace vapp_library_browser {

namespace {

bool IsSearched(const TCellNamesReportCtrl::TOptions& options, std::optional<NameRole> role) {
    return options.filterAllColumns || (options.filterCellName && role == NameRole::Cell) ||
           (options.filterViewName && role == NameRole::View);
}

// A triple with this one name, for a column that looks at no other.
TLibCellView OneName(NameRole role, CStringU name) {
    TLibCellView cell;
    (role == NameRole::Cell   ? cell.cell
     : role == NameRole::View ? cell.view
                              : cell.library) = std::move(name);
    return cell;
}

}  // namespace

SubstringFilter::SubstringFilter(const TCellNamesReportCtrl& report, const CStringU& text)
    : m_text(text), m_caseSensitive(report.GetOptions().filterCaseSensitive) {
    const CXTPReportColumns& columns = report.GetColumns();
    for (int position = 0; position < columns.GetCount(); ++position) {
        auto* column = dynamic_cast<TCellNamesReportCtrl::TColumn*>(columns.GetAt(position));
        if (column == nullptr || !column->IsVisible()) continue;
        const std::optional<NameRole> role = RoleOf(column);
        if (IsSearched(report.GetOptions(), role)) m_tests.push_back({column, role, {}});
    }
}

bool SubstringFilter::MayAskHost() const {
    return !m_text.IsEmpty() &&
           std::any_of(m_tests.begin(), m_tests.end(), [](const Test& test) { return !test.role; });
}

void SubstringFilter::Apply(CellRows& rows) {
    if (m_text.IsEmpty()) return;
    for (Test& test : m_tests) {
        if (test.role)
            test.answer = SearchNames(rows.Names(*test.role), m_text.PayloadView(), m_caseSensitive);
    }
    rows.Keep([this, &rows](std::size_t row) {
        return std::any_of(m_tests.begin(), m_tests.end(),
                           [&](Test& test) { return Matches(test, rows, row); });
    });
}

bool SubstringFilter::Matches(Test& test, const CellRows& rows, std::size_t row) const {
    if (!test.role) return test.column->MatchesFilter(rows.At(row), m_text, m_caseSensitive);
    const std::uint32_t number = rows.NumberOf(row, *test.role);
    NameAnswer& answer = test.answer[number];
    if (answer == NameAnswer::Unknown) {
        const TLibCellView cell = OneName(*test.role, rows.Names(*test.role).Text(number));
        const bool matches = test.column->MatchesFilter(cell, m_text, m_caseSensitive);
        answer = matches ? NameAnswer::Yes : NameAnswer::No;
    }
    return answer == NameAnswer::Yes;
}

}  // namespace vapp_library_browser
