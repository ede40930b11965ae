/// @file
/// CellRows: the rows of the cell list, as numbers into tables of names.
///
/// A row takes twelve bytes, and everything that costs per name (sort keys, filter tests, comparisons without
/// regard to case) is done once for each distinct name. A TLibCellView is made only when somebody asks for a
/// row. Nothing here sends a line or knows a window; rows are read from an answer, arranged, and then stay.
///
/// The surprise: the order of rows is decided by sort keys, not by the compare functions, and therefore
/// holds for any bytes that a host may answer. Only which rows are one is not left to keys where a name is no
/// proper text: the compare of such names reads their bytes in its own way, and rows are put into a set.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string_view>
#include <vector>

#include "celllist/NameRanks.h"
#include "celllist/NameTable.h"
#include "celllist/RowSorter.h"
#include "vapp/browser/TLibCellView.h"

struct Tcl_Obj;

namespace vapp_library_browser {

/// Which of the three names of a row.
enum class NameRole : std::size_t { Library = 0, Cell = 1, View = 2 };
inline constexpr std::size_t cnRoleCount = 3;

/// A criterion of the order in which rows are shown.
struct NameCriterion {
    NameRole role = NameRole::Cell;
    bool forward = true;
};

/// Keys of a column of the host, one for each row: equal texts share one.
struct RowKeys {
    NameTable texts;
    std::vector<std::uint32_t> ofRow;  ///< number of the row's text
    bool forward = true;
};

class CellRows {
public:
    /// The rows of an answer, in its order, duplicates included: each element of exactly three items is
    /// library, cell and view; other lengths are skipped. Nothing if the answer or an element is no list.
    [[nodiscard]] static std::optional<CellRows> Read(Tcl_Obj* answer);

    [[nodiscard]] std::size_t Count() const { return m_rows.size(); }
    /// A row; the number must be below the count.
    [[nodiscard]] TLibCellView At(std::size_t row) const;
    [[nodiscard]] std::uint32_t NumberOf(std::size_t row, NameRole role) const {
        return m_rows[row][Index(role)];
    }
    [[nodiscard]] const NameTable& Names(NameRole role) const { return m_names[Index(role)]; }
    /// A row's name, NUL behind it.
    [[nodiscard]] std::string_view Name(std::size_t row, NameRole role) const {
        return Names(role).At(NumberOf(row, role));
    }

    /// The first row with these names, without regard to case; a null view is any view.
    [[nodiscard]] std::optional<std::size_t> Find(const CStringU& library, const CStringU& cell,
                                                  const CStringU* view) const;

    /// Orders by cell, view, library without regard to case and keeps the first of equal rows: what a
    /// `std::set<TLibCellView>` would hold after the rows were inserted one by one.
    void ArrangeAsSet();
    /// Orders by the criteria, in natural order without regard to case. Rows without a difference stand as
    /// in the set. All three names must be among the criteria.
    /// @param dropEqual  keep only the first of rows that are equal without regard to case
    void ArrangeByNames(std::span<const NameCriterion> criteria, bool dropEqual);
    /// Orders by keys, in natural order without regard to case, then by the criteria. Rows without a
    /// difference keep their order.
    void ArrangeByKeys(const RowKeys& keys, std::span<const NameCriterion> criteria);
    /// Orders by these names alone, in natural order without regard to case. Rows without a difference keep
    /// their order.
    void ArrangeByTies(std::span<const NameCriterion> criteria);
    /// Puts the rows into the order of these numbers; rows that are not among them are dropped.
    void Reorder(std::span<const std::uint32_t> order);
    /// Keeps the rows for which the test is true. It is asked in the order of the rows.
    template <typename Test>
    void Keep(const Test& test) {
        std::size_t kept = 0;
        for (std::size_t row = 0; row < m_rows.size(); ++row) {
            if (test(row)) m_rows[kept++] = m_rows[row];
        }
        m_rows.resize(kept);
    }

private:
    using Row = std::array<std::uint32_t, cnRoleCount>;

    [[nodiscard]] static constexpr std::size_t Index(NameRole role) { return static_cast<std::size_t>(role); }
    [[nodiscard]] SortCriterion Criterion(NameRole role, const NameRanks& ranks, bool forward) const;
    void Arrange(std::span<const SortCriterion> criteria, bool dropEqual);
    [[nodiscard]] bool HasOddNames() const;
    void InsertIntoSet();

    std::array<NameTable, cnRoleCount> m_names;
    std::vector<Row> m_rows;
};

}  // namespace vapp_library_browser
