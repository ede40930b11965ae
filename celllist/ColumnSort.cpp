/// @file
/// A list is merged, never partitioned: a merge looks at the ends of its runs and can't be led beyond them by
/// an order that is none, as the sorts of an array can.
#include "celllist/ColumnSort.h"

#include <functional>
#include <list>
#include <numeric>

namespace vapp_library_browser {

ColumnTexts::ColumnTexts(TCellNamesReportCtrl::TColumn& column, const std::vector<TLibCellView>& cells)
    : m_column(column), m_cells(cells), m_texts(cells.size()) {
    m_column.m_sortTexts = this;
}

ColumnTexts::~ColumnTexts() {
    m_column.m_sortTexts = nullptr;
}

CStringU ColumnTexts::At(const TLibCellView& cell) {
    const std::less<> isBefore;
    const bool isOwn = !isBefore(&cell, m_cells.data()) && isBefore(&cell, m_cells.data() + m_cells.size());
    if (!isOwn) return m_column.GetCellText(cell);
    std::optional<CStringU>& text = m_texts[static_cast<std::size_t>(&cell - m_cells.data())];
    if (!text) text = m_column.GetCellText(cell);
    return *text;
}

std::vector<std::uint32_t> SortByColumn(TCellNamesReportCtrl::TColumn& column, bool forward,
                                        const std::vector<TLibCellView>& cells) {
    const ColumnTexts texts(column, cells);
    std::list<std::uint32_t> order(cells.size());
    std::iota(order.begin(), order.end(), 0U);
    order.sort([&](std::uint32_t left, std::uint32_t right) {
        const int difference = column.CompareCells(cells[left], cells[right]);
        return forward ? difference < 0 : difference > 0;
    });
    return {order.begin(), order.end()};
}

}  // namespace vapp_library_browser
