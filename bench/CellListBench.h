/// @file
/// Rows for the benches of the cell list, and what the peers need of them.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

struct BenchRow {
    std::string library;
    std::string cell;
    std::string view;
};

/// How the names look and in which order the rows come.
enum class BenchRows {
    Sorted,          ///< zero-padded numbers, in the order in which the list shows them
    Shuffled,        ///< the same, in random order
    Unpadded,        ///< numbers without leading zeros, shuffled
    SharedShuffled,  ///< each library has the same cells, shuffled
    Distinct         ///< each row has a cell of its own, in order
};

/// Triples of 40 libraries and 3 views.
[[nodiscard]] std::vector<BenchRow> MakeBenchRows(BenchRows kind, std::size_t count);

/// Fills a QStandardItemModel with the rows and sorts it by the first column; seconds of processor time, or
/// below 0 where Qt is not installed.
[[nodiscard]] double FillAndSortItemModel(const std::vector<BenchRow>& rows);
