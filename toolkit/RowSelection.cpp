/// @file
/// Arithmetic of row ranges. Every sum that could pass the greatest row number is written as a difference.
#include "vapp/toolkit/RowSelection.h"

#include <algorithm>
#include <limits>
#include <utility>

namespace {

constexpr int cnMaxRow = std::numeric_limits<int>::max();

bool EndsBefore(const RowSelection::Range& range, int row) {
    return range.last < row;
}

}  // namespace

bool RowSelection::Add(int first, int last) {
    if (first < 0 || last < first) return false;
    // From the first range that reaches or touches the new one, to the last that begins in it or touches it.
    const auto from = std::lower_bound(m_ranges.begin(), m_ranges.end(), first - 1, EndsBefore);
    if (from != m_ranges.end() && from->first <= first && from->last >= last) return false;
    auto behind = from;
    Range merged{first, last};
    for (; behind != m_ranges.end() && behind->first - 1 <= last; ++behind) {
        merged = {std::min(merged.first, behind->first), std::max(merged.last, behind->last)};
    }
    if (from == behind) {
        m_ranges.insert(from, merged);
    } else {
        *from = merged;
        m_ranges.erase(from + 1, behind);
    }
    return true;
}

bool RowSelection::Remove(int first, int last) {
    if (first < 0 || last < first) return false;
    const auto from = std::lower_bound(m_ranges.begin(), m_ranges.end(), first, EndsBefore);
    auto behind = from;
    std::vector<Range> kept;
    for (; behind != m_ranges.end() && behind->first <= last; ++behind) {
        if (behind->first < first) kept.push_back({behind->first, first - 1});
        if (behind->last > last) kept.push_back({last + 1, behind->last});
    }
    if (from == behind) return false;
    const auto at = m_ranges.erase(from, behind);
    m_ranges.insert(at, kept.begin(), kept.end());
    return true;
}

bool RowSelection::Truncate(int rowCount) {
    return Remove(std::max(rowCount, 0), cnMaxRow);
}

void RowSelection::InsertRow(int row) {
    if (row < 0) return;
    std::vector<Range> moved;
    moved.reserve(m_ranges.size() + 1);
    for (const Range& range : m_ranges) {
        if (range.last < row) {
            moved.push_back(range);
            continue;
        }
        if (range.first < row) moved.push_back({range.first, row - 1});
        // A row that is moved beyond the greatest number is lost.
        const int first = std::max(range.first, row);
        if (first < cnMaxRow) moved.push_back({first + 1, range.last < cnMaxRow ? range.last + 1 : cnMaxRow});
    }
    m_ranges = std::move(moved);
}

bool RowSelection::Contains(int row) const {
    const auto found = std::lower_bound(m_ranges.begin(), m_ranges.end(), row, EndsBefore);
    return found != m_ranges.end() && found->first <= row;
}

std::size_t RowSelection::GetCount() const {
    std::size_t count = 0;
    for (const Range& range : m_ranges)
        count += static_cast<std::size_t>(range.last - range.first) + 1;
    return count;
}

int RowSelection::NextFrom(int row) const {
    const auto found = std::lower_bound(m_ranges.begin(), m_ranges.end(), row, EndsBefore);
    return found == m_ranges.end() ? -1 : std::max(found->first, row);
}
