/// @file
/// A set of row numbers kept as ranges, so that "all of a million rows" costs one entry.
#pragma once

#include <cstddef>
#include <vector>

#include "vapp/Export.h"

/// Selected rows as sorted, disjoint, non-touching ranges. Row numbers are not negative; calls with others,
/// or with last below first, change nothing.
class VAPP_EXPORT RowSelection {
public:
    struct Range {
        int first = 0;
        int last = 0;  ///< inclusive

        friend bool operator==(const Range&, const Range&) = default;
    };

    void Clear() { m_ranges.clear(); }
    /// Adds, or removes, rows first to last, inclusive; true if that changed anything.
    bool Add(int first, int last);
    bool Remove(int first, int last);
    /// Drops every row at or above the count; true if there was one.
    bool Truncate(int rowCount);
    /// Makes room for a new row, which is not selected: rows from this one on move up by one.
    void InsertRow(int row);
    [[nodiscard]] bool Contains(int row) const;
    [[nodiscard]] bool IsEmpty() const { return m_ranges.empty(); }
    [[nodiscard]] std::size_t GetCount() const;
    /// First selected row at or behind `row`, or -1.
    [[nodiscard]] int NextFrom(int row) const;
    [[nodiscard]] const std::vector<Range>& GetRanges() const { return m_ranges; }

    friend bool operator==(const RowSelection&, const RowSelection&) = default;

private:
    std::vector<Range> m_ranges;
};
