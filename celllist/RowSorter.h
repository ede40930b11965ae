/// @file
/// Sorts row numbers by ranks: the ranks of a row are packed into one number, and the numbers are sorted by
/// their digits, which takes a few straight passes and no comparison.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace vapp_library_browser {

/// One criterion, the most important first in a list of them.
struct SortCriterion {
    const std::uint32_t* numbers = nullptr;  ///< number of the name in the first row
    std::size_t stride = 1;                  ///< distance to that of the next row
    std::span<const std::uint32_t> rank;     ///< rank by number of the name
    std::uint32_t rankCount = 0;             ///< ranks are below this
    bool forward = true;

    [[nodiscard]] std::uint32_t RankOf(std::size_t row) const {
        const std::uint32_t place = rank[numbers[row * stride]];
        return forward ? place : rankCount - 1 - place;
    }
};

/// The numbers 0 to `rowCount` - 1 in the order of the criteria. Rows that are equal in all of them keep
/// their order; with `dropEqual` only the first of them stays. Row counts are below 2^32.
[[nodiscard]] std::vector<std::uint32_t> SortRowNumbers(std::size_t rowCount,
                                                        std::span<const SortCriterion> criteria,
                                                        bool dropEqual);

}  // namespace vapp_library_browser
