/// @file
/// CellSet: a set of library/cell/view triples without regard to case, for asking it about every row of a
/// list. What a `std::set<TLibCellView>` would answer, but the work is done per distinct name, not per row:
/// restoring a selection of a million rows must not cost a million tree walks.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "celllist/CellRows.h"
#include "celllist/NameTable.h"
#include "vapp/browser/TLibCellView.h"

namespace vapp_library_browser {

class CellSet {
public:
    void Add(const TLibCellView& cell);
    [[nodiscard]] bool IsEmpty() const { return m_cells.empty(); }

    /// Numbers of the rows that are in the set, ascending.
    [[nodiscard]] std::vector<std::uint32_t> RowsOf(const CellRows& rows) const;

    /// Adds rows of one list.
    class Adder {
    public:
        Adder(CellSet& set, const CellRows& rows);
        void Add(std::size_t row);

    private:
        CellSet& m_set;
        const CellRows& m_rows;
        std::array<std::vector<std::uint32_t>, cnRoleCount> m_known;
    };

private:
    using Cell = std::array<std::uint32_t, cnRoleCount>;

    [[nodiscard]] std::uint32_t Intern(std::size_t role, const char* payload);

    std::array<NameTable, cnRoleCount> m_names;  ///< folded names
    std::vector<Cell> m_cells;                   ///< may hold a cell twice
};

}  // namespace vapp_library_browser
