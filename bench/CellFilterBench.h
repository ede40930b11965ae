/// @file
/// How long the sub-string of the cell list takes over many rows, beside a loop of strcasestr and beside the
/// filter of an item model.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "bench/CellListBench.h"

/// Prints the figures for so many rows of the kind.
void BenchFilter(const char* name, BenchRows kind, std::size_t count);

/// Seconds of processor time of a QSortFilterProxyModel over these names, from the text that finds all to
/// this one; below 0 where Qt is not installed. `kept` receives the number of names that it keeps.
[[nodiscard]] double FilterItemModel(const std::vector<std::string>& names, const char* text,
                                     std::size_t& kept);
