/// @file
/// NameRanks: the place of each name in an order, as a number, so that rows are compared by numbers alone.
///
/// The order goes by sort keys (text/NaturalKey.h) and is therefore an order whatever bytes a host answers;
/// the compare functions on malformed text may contradict one another.
#pragma once

#include <cstdint>
#include <vector>

#include "celllist/NameTable.h"

namespace vapp_library_browser {

/// The orders in which names stand.
enum class NameOrder {
    Natural,  ///< numbers by value, without regard to case: what users see
    Folded    ///< by character, without regard to case: what makes two names one
};

/// Ranks of all names of a table.
struct NameRanks {
    std::vector<std::uint32_t> rank;  ///< by number of the name; equal names share a rank
    std::uint32_t count = 0;          ///< ranks are 0 to count - 1
    /// Names share a rank that differ in more than case ("3" and the Arabic three).
    bool joinsDifferentNames = false;
};

[[nodiscard]] NameRanks RankNames(const NameTable& names, NameOrder order);

}  // namespace vapp_library_browser
