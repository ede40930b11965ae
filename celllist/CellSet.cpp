/// @file
/// A triple is three numbers of folded names; the numbers of a list's names are looked up once for each.
#include "celllist/CellSet.h"

#include <algorithm>
#include <string_view>

#include "celllist/OddName.h"
#include "text/Codec.h"
#include "text/NaturalKey.h"

namespace vapp_library_browser {

namespace {

constexpr std::uint32_t cnUnknown = 0xFFFFFFFFu;
constexpr std::uint32_t cnAbsent = 0xFFFFFFFEu;

// No key begins so.
constexpr char cnOddFront = '\xFF';

// The fold key without the 0 byte at its end, which says nothing here. A name that is no proper text is found
// again by its bytes: its key may be that of another one.
std::string Folded(const char* stored) {
    const char* const payload = vapp_text::SkipMarker(stored);
    std::string key;
    if (IsOddName(payload)) return cnOddFront + std::string(payload);
    vapp_text::AppendFoldKey(payload, key);
    key.pop_back();
    return key;
}

}  // namespace

std::uint32_t CellSet::Intern(std::size_t role, const char* payload) {
    return m_names[role].Intern(Folded(payload));
}

void CellSet::Add(const TLibCellView& cell) {
    m_cells.push_back(
        {Intern(0, cell.library.Payload()), Intern(1, cell.cell.Payload()), Intern(2, cell.view.Payload())});
}

std::vector<std::uint32_t> CellSet::RowsOf(const CellRows& rows) const {
    std::vector<std::uint32_t> result;
    if (m_cells.empty()) return result;
    std::vector<Cell> sorted = m_cells;
    std::sort(sorted.begin(), sorted.end());
    std::array<std::vector<std::uint32_t>, cnRoleCount> known;
    for (std::size_t role = 0; role < cnRoleCount; ++role)
        known[role].assign(rows.Names(static_cast<NameRole>(role)).Count(), cnUnknown);
    const auto numberOf = [&](std::size_t row, std::size_t role) {
        std::uint32_t& number = known[role][rows.NumberOf(row, static_cast<NameRole>(role))];
        if (number == cnUnknown) {
            const std::string_view name = rows.Name(row, static_cast<NameRole>(role));
            number = m_names[role].Find(Folded(name.data())).value_or(cnAbsent);
        }
        return number;
    };
    for (std::size_t row = 0; row < rows.Count(); ++row) {
        const Cell cell = {numberOf(row, 0), numberOf(row, 1), numberOf(row, 2)};
        if (std::binary_search(sorted.begin(), sorted.end(), cell))
            result.push_back(static_cast<std::uint32_t>(row));
    }
    return result;
}

CellSet::Adder::Adder(CellSet& set, const CellRows& rows) : m_set(set), m_rows(rows) {
    for (std::size_t role = 0; role < cnRoleCount; ++role)
        m_known[role].assign(rows.Names(static_cast<NameRole>(role)).Count(), cnUnknown);
}

void CellSet::Adder::Add(std::size_t row) {
    Cell& cell = m_set.m_cells.emplace_back();
    for (std::size_t role = 0; role < cnRoleCount; ++role) {
        std::uint32_t& number = m_known[role][m_rows.NumberOf(row, static_cast<NameRole>(role))];
        if (number == cnUnknown)
            number = m_set.Intern(role, m_rows.Name(row, static_cast<NameRole>(role)).data());
        cell[role] = number;
    }
}

}  // namespace vapp_library_browser
