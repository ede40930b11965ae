/// @file
/// An element is the packed ranks of a row with the row's number in the low bits, so that nothing but the
/// elements is moved. Criteria that do not fit into one element are sorted in several turns, the least
/// important ones first: each turn keeps the order of the one before where it finds no difference.
#include "celllist/RowSorter.h"

#include <algorithm>
#include <array>
#include <bit>
#include <numeric>

namespace vapp_library_browser {

namespace {

constexpr unsigned cnDigitBits = 11;
constexpr std::size_t cnDigits = std::size_t{1} << cnDigitBits;

unsigned BitsFor(std::size_t count) {
    return count < 2 ? 0 : static_cast<unsigned>(std::bit_width(count - 1));
}

// Sorts by the bits from `lowBit` up to `highBit`, keeping the order of equals.
void SortByBits(std::vector<std::uint64_t>& elements, unsigned lowBit, unsigned highBit) {
    std::vector<std::uint64_t> other;
    for (unsigned shift = lowBit; shift < highBit; shift += cnDigitBits) {
        const unsigned bits = std::min(cnDigitBits, highBit - shift);
        const std::uint64_t mask = (std::uint64_t{1} << bits) - 1;
        std::array<std::size_t, cnDigits> place{};
        for (const std::uint64_t element : elements)
            ++place[(element >> shift) & mask];
        if (std::find(place.begin(), place.end(), elements.size()) != place.end()) continue;
        std::exclusive_scan(place.begin(), place.end(), place.begin(), std::size_t{0});
        other.resize(elements.size());
        for (const std::uint64_t element : elements)
            other[place[(element >> shift) & mask]++] = element;
        elements.swap(other);
    }
}

// One turn: orders `order` by the criteria, whose bits and those of a row number fit into an element.
void SortTurn(std::vector<std::uint64_t>& order, std::span<const SortCriterion> criteria, unsigned rowBits,
              unsigned keyBits) {
    const std::uint64_t rowMask = (std::uint64_t{1} << rowBits) - 1;
    bool sorted = true;
    std::uint64_t before = 0;
    for (std::uint64_t& element : order) {
        const std::uint64_t row = element & rowMask;
        std::uint64_t word = 0;
        for (const SortCriterion& criterion : criteria)
            word = word << BitsFor(criterion.rankCount) | criterion.RankOf(row);
        sorted = sorted && before <= word;
        before = word;
        element = word << rowBits | row;
    }
    if (!sorted) SortByBits(order, rowBits, rowBits + keyBits);
}

bool AreRowsEqual(std::span<const SortCriterion> criteria, std::size_t left, std::size_t right) {
    return std::all_of(criteria.begin(), criteria.end(), [left, right](const SortCriterion& criterion) {
        return criterion.RankOf(left) == criterion.RankOf(right);
    });
}

}  // namespace

std::vector<std::uint32_t> SortRowNumbers(std::size_t rowCount, std::span<const SortCriterion> criteria,
                                          bool dropEqual) {
    std::vector<std::uint64_t> order(rowCount);
    std::iota(order.begin(), order.end(), std::uint64_t{0});
    const unsigned rowBits = BitsFor(rowCount);
    const std::uint64_t rowMask = (std::uint64_t{1} << rowBits) - 1;
    int turns = 0;
    for (std::size_t behind = criteria.size(); behind > 0; ++turns) {
        unsigned keyBits = 0;
        std::size_t first = behind;
        while (first > 0 && rowBits + keyBits + BitsFor(criteria[first - 1].rankCount) <= 64)
            keyBits += BitsFor(criteria[--first].rankCount);
        SortTurn(order, criteria.subspan(first, behind - first), rowBits, keyBits);
        behind = first;
    }
    const auto isSame = [&](std::uint64_t left, std::uint64_t right) {
        if (turns <= 1) return left >> rowBits == right >> rowBits;
        return AreRowsEqual(criteria, left & rowMask, right & rowMask);
    };
    std::vector<std::uint32_t> rows;
    rows.reserve(rowCount);
    for (std::size_t at = 0; at < rowCount; ++at) {
        if (dropEqual && at > 0 && isSame(order[at - 1], order[at])) continue;
        rows.push_back(static_cast<std::uint32_t>(order[at] & rowMask));
    }
    return rows;
}

}  // namespace vapp_library_browser
