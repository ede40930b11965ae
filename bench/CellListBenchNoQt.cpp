/// @file
/// Stands in where Qt is not installed.
#include "bench/CellFilterBench.h"
#include "bench/CellListBench.h"

double FillAndSortItemModel(const std::vector<BenchRow>& /*rows*/) {
    return -1;
}

double FilterItemModel(const std::vector<std::string>& /*names*/, const char* /*text*/,
                       std::size_t& /*kept*/) {
    return -1;
}
