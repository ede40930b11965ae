/// @file
/// Reading and arranging rows. Neighbours of an answer share most of their names, so each name is compared
/// with the one above it before it is looked up.
#include "celllist/CellRows.h"

#include <tcl.h>

#include <algorithm>
#include <utility>

#include "text/Compare.h"
#include "vapp/browser/TTclList.h"

namespace vapp_library_browser {

namespace {

constexpr std::array cnSetOrder = {NameRole::Cell, NameRole::View, NameRole::Library};

// The names of one item of the triples, on their way into a table.
class NameReader {
public:
    explicit NameReader(NameTable& table) : m_table(table) {}

    std::uint32_t Read(Tcl_Obj* object) {
        if (object == m_last) return m_number;
        const std::string_view name = Tcl_GetString(object);
        if (m_last == nullptr || name != m_name) m_number = m_table.Intern(name);
        m_last = object;
        m_name = name;
        return m_number;
    }

private:
    NameTable& m_table;
    Tcl_Obj* m_last = nullptr;
    std::string_view m_name;
    std::uint32_t m_number = 0;
};

// Which names of a table equal the text without regard to case; a null text is all of them.
std::vector<bool> NamesThatEqual(const NameTable& names, const CStringU* text) {
    std::vector<bool> equal(names.Count(), true);
    if (text == nullptr) return equal;
    for (std::uint32_t number = 0; number < names.Count(); ++number)
        equal[number] = vapp_text::CompareNoCaseU(names.At(number).data(), text->Payload()) == 0;
    return equal;
}

}  // namespace

std::optional<CellRows> CellRows::Read(Tcl_Obj* answer) {
    const std::optional<TTclList> triples = TTclList::Read(answer);
    if (!triples) return std::nullopt;
    std::optional<CellRows> result(std::in_place);
    std::array<NameReader, cnRoleCount> readers = {
        NameReader(result->m_names[0]), NameReader(result->m_names[1]), NameReader(result->m_names[2])};
    result->m_rows.reserve(triples->size());
    for (Tcl_Obj* const element : *triples) {
        const std::optional<TTclList> triple = TTclList::Read(element);
        if (!triple) return std::nullopt;
        if (triple->size() != cnRoleCount) continue;
        Row& row = result->m_rows.emplace_back();
        for (std::size_t role = 0; role < cnRoleCount; ++role)
            row[role] = readers[role].Read((*triple)[role]);
    }
    for (NameTable& names : result->m_names)
        names.Freeze();
    return result;
}

TLibCellView CellRows::At(std::size_t row) const {
    const auto text = [this, row](NameRole role) { return Names(role).Text(NumberOf(row, role)); };
    return {text(NameRole::Library), text(NameRole::Cell), text(NameRole::View)};
}

std::optional<std::size_t> CellRows::Find(const CStringU& library, const CStringU& cell,
                                          const CStringU* view) const {
    const std::array<const CStringU*, cnRoleCount> wanted = {&library, &cell, view};
    std::array<std::vector<bool>, cnRoleCount> equal;
    for (std::size_t role = 0; role < cnRoleCount; ++role)
        equal[role] = NamesThatEqual(m_names[role], wanted[role]);
    const auto found = std::find_if(m_rows.begin(), m_rows.end(), [&equal](const Row& row) {
        return equal[0][row[0]] && equal[1][row[1]] && equal[2][row[2]];
    });
    if (found == m_rows.end()) return std::nullopt;
    return static_cast<std::size_t>(found - m_rows.begin());
}

SortCriterion CellRows::Criterion(NameRole role, const NameRanks& ranks, bool forward) const {
    return {m_rows.front().data() + Index(role), cnRoleCount, ranks.rank, ranks.count, forward};
}

void CellRows::ArrangeAsSet() {
    if (m_rows.empty()) return;
    std::array<NameRanks, cnRoleCount> ranks;
    std::vector<SortCriterion> criteria;
    for (const NameRole role : cnSetOrder) {
        ranks[Index(role)] = RankNames(Names(role), NameOrder::Folded);
        criteria.push_back(Criterion(role, ranks[Index(role)], true));
    }
    Arrange(criteria, true);
}

void CellRows::ArrangeByNames(std::span<const NameCriterion> names, bool dropEqual) {
    if (m_rows.empty()) return;
    std::array<NameRanks, cnRoleCount> natural;
    std::array<NameRanks, cnRoleCount> folded;
    std::vector<SortCriterion> criteria;
    bool joinsDifferentNames = false;
    for (const NameCriterion& name : names) {
        NameRanks& ranks = natural[Index(name.role)];
        ranks = RankNames(Names(name.role), NameOrder::Natural);
        joinsDifferentNames = joinsDifferentNames || ranks.joinsDifferentNames;
        criteria.push_back(Criterion(name.role, ranks, name.forward));
    }
    // Names that are equal in this order are nearly always the same but for case. Where they aren't, what
    // makes rows equal has to be asked as well.
    for (const NameRole role : cnSetOrder) {
        if (!joinsDifferentNames) break;
        folded[Index(role)] = RankNames(Names(role), NameOrder::Folded);
        criteria.push_back(Criterion(role, folded[Index(role)], true));
    }
    Arrange(criteria, dropEqual);
}

void CellRows::ArrangeByKeys(const RowKeys& keys, std::span<const NameCriterion> names) {
    if (m_rows.empty()) return;
    const NameRanks keyRanks = RankNames(keys.texts, NameOrder::Natural);
    std::array<NameRanks, cnRoleCount> natural;
    std::vector<SortCriterion> criteria = {
        {keys.ofRow.data(), 1, keyRanks.rank, keyRanks.count, keys.forward}};
    for (const NameCriterion& name : names) {
        natural[Index(name.role)] = RankNames(Names(name.role), NameOrder::Natural);
        criteria.push_back(Criterion(name.role, natural[Index(name.role)], name.forward));
    }
    Arrange(criteria, false);
}

void CellRows::Keep(const std::function<bool(std::size_t row)>& test) {
    std::size_t kept = 0;
    for (std::size_t row = 0; row < m_rows.size(); ++row) {
        if (test(row)) m_rows[kept++] = m_rows[row];
    }
    m_rows.resize(kept);
}

void CellRows::Arrange(std::span<const SortCriterion> criteria, bool dropEqual) {
    const std::vector<std::uint32_t> order = SortRowNumbers(m_rows.size(), criteria, dropEqual);
    std::vector<Row> arranged;
    arranged.reserve(order.size());
    for (const std::uint32_t row : order)
        arranged.push_back(m_rows[row]);
    m_rows = std::move(arranged);
}

}  // namespace vapp_library_browser
