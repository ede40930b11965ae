/// @file
/// Names as design libraries have them.
#include <algorithm>
#include <random>

#include "bench/CellListBench.h"

namespace {

// A number behind a front, with leading zeros up to `digits`.
std::string Numbered(const char* front, unsigned number, std::size_t digits) {
    const std::string text = std::to_string(number);
    return front + std::string(text.size() < digits ? digits - text.size() : 0, '0') + text;
}

}  // namespace

std::vector<BenchRow> MakeBenchRows(BenchRows kind, std::size_t count) {
    constexpr unsigned cnLibraries = 40;
    const char* const views[] = {"layout", "schematic", "symbol"};
    std::vector<BenchRow> rows;
    rows.reserve(count);
    for (unsigned triple = 0; rows.size() < count; ++triple) {
        const unsigned place = kind == BenchRows::Distinct ? triple : triple / 3;
        const unsigned library = place % cnLibraries;
        const unsigned cell = kind == BenchRows::SharedShuffled ? place / cnLibraries : place;
        rows.push_back({Numbered("lib_", library, 2),
                        Numbered("cell_", cell, kind == BenchRows::Unpadded ? 1 : 7), views[triple % 3]});
    }
    if (kind != BenchRows::Sorted && kind != BenchRows::Distinct)
        std::shuffle(rows.begin(), rows.end(), std::mt19937(1));
    return rows;
}
