/// @file
/// ColumnSort: sorts rows by what a column says of two cells, for a column class of a host, whose
/// `CompareCells` is the only one who knows.
///
/// A host's function may contradict itself, or answer another time otherwise: the sort asks it often enough
/// and ends with every row once, whatever it says. Not here: columns whose order is known from their texts;
/// they are sorted by keys (CellRows.h), which takes a fraction of the time.
#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "vapp/celllist/TCellNamesReportCtrl.h"

namespace vapp_library_browser {

/// The texts that a column gives for the cells of one sort, each asked for once. While it lives, the column's
/// own `CompareCells` takes them from here: a text may cost a line to the host.
class ColumnTexts {
public:
    /// Both must outlive it, and the cells stay where they are.
    ColumnTexts(TCellNamesReportCtrl::TColumn& column, const std::vector<TLibCellView>& cells);
    ~ColumnTexts();
    ColumnTexts(const ColumnTexts&) = delete;
    ColumnTexts& operator=(const ColumnTexts&) = delete;

    /// The text for a cell; one that is not of this sort is asked for anew.
    [[nodiscard]] CStringU At(const TLibCellView& cell);

private:
    TCellNamesReportCtrl::TColumn& m_column;
    const std::vector<TLibCellView>& m_cells;
    std::vector<std::optional<CStringU>> m_texts;
};

/// The numbers of the cells in the order that the column says. Cells without a difference keep their order.
[[nodiscard]] std::vector<std::uint32_t> SortByColumn(TCellNamesReportCtrl::TColumn& column, bool forward,
                                                      const std::vector<TLibCellView>& cells);

}  // namespace vapp_library_browser
