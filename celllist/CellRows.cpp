/// @file
/// Reading and arranging rows. Neighbours of an answer share most of their names, so each name is compared
/// with the one above it before it is looked up.
#include "celllist/CellRows.h"

#include <tcl.h>

#include <algorithm>
#include <set>
#include <utility>

#include "celllist/OddName.h"
#include "text/Codec.h"
#include "text/Compare.h"
#include "vapp/browser/TTclList.h"
#include "vapp/browser/TclBridge.h"

namespace vapp_library_browser {

namespace {

constexpr std::array cnSetOrder = {NameRole::Cell, NameRole::View, NameRole::Library};

// To the first NUL, as everybody reads a text of Tcl. The string is there already for nearly every object of
// an answer.
std::string_view BytesOf(Tcl_Obj* object) {
    if (object->bytes != nullptr) return object->bytes;
    const std::string_view bytes = ReadBytes(object);
    return bytes.empty() ? std::string_view("") : bytes.substr(0, bytes.find('\0'));
}

// Triples on their way into the tables, some hundred at a time: looking names up is waiting for memory, and
// a crowd waits together.
class TripleReader {
public:
    explicit TripleReader(std::array<NameTable, cnRoleCount>& tables) : m_tables(tables) {}

    void Add(const TTclList& triple) {
        for (std::size_t role = 0; role < cnRoleCount; ++role)
            m_readers[role].Add(triple[role]);
        ++m_count;
    }
    [[nodiscard]] bool IsFull() const { return m_count == cnBlock; }
    // Appends the triples to the rows.
    void Flush(std::vector<std::array<std::uint32_t, cnRoleCount>>& rows) {
        std::array<std::array<std::uint32_t, cnBlock>, cnRoleCount> numbers;
        for (std::size_t role = 0; role < cnRoleCount; ++role)
            m_readers[role].Flush(m_tables[role], m_count, numbers[role].data());
        for (std::size_t at = 0; at < m_count; ++at)
            rows.push_back({numbers[0][at], numbers[1][at], numbers[2][at]});
        m_count = 0;
    }

private:
    static constexpr std::size_t cnBlock = 256;

    // The names of one role.
    struct NameReader {
        void Add(Tcl_Obj* object) {
            if (object != last) {
                const std::string_view read = BytesOf(object);
                if (last == nullptr || read != name) names[distinct++] = read;
                name = read;
                last = object;
            }
            place[count++] = static_cast<std::uint16_t>(distinct);
        }
        // The first place may be 0: the name that the block before ended with.
        void Flush(NameTable& table, std::size_t rowCount, std::uint32_t* numbers) {
            std::array<std::uint32_t, cnBlock + 1> found;
            found[0] = lastNumber;
            table.InternAll({names.data(), distinct}, found.data() + 1);
            for (std::size_t at = 0; at < rowCount; ++at)
                numbers[at] = found[place[at]];
            lastNumber = found[distinct];
            distinct = 0;
            count = 0;
        }

        std::array<std::string_view, cnBlock> names;
        std::array<std::uint16_t, cnBlock> place{};
        std::size_t distinct = 0;
        std::size_t count = 0;
        Tcl_Obj* last = nullptr;
        std::string_view name;
        std::uint32_t lastNumber = 0;
    };

    std::array<NameTable, cnRoleCount>& m_tables;
    std::array<NameReader, cnRoleCount> m_readers;
    std::size_t m_count = 0;
};

// Which names of a table equal the text without regard to case; a null text is all of them.
std::vector<bool> NamesThatEqual(const NameTable& names, const CStringU* text) {
    std::vector<bool> equal(names.Count(), true);
    if (text == nullptr) return equal;
    for (std::uint32_t number = 0; number < names.Count(); ++number)
        equal[number] =
            vapp_text::CompareNoCaseU(vapp_text::SkipMarker(names.At(number).data()), text->Payload()) == 0;
    return equal;
}

}  // namespace

std::optional<CellRows> CellRows::Read(Tcl_Obj* answer) {
    const std::optional<TTclList> triples = TTclList::Read(answer);
    if (!triples) return std::nullopt;
    std::optional<CellRows> result(std::in_place);
    TripleReader reader(result->m_names);
    result->m_rows.reserve(triples->size());
    for (Tcl_Obj* const element : *triples) {
        const std::optional<TTclList> triple = TTclList::Read(element);
        if (!triple) return std::nullopt;
        if (triple->size() != cnRoleCount) continue;
        reader.Add(*triple);
        if (reader.IsFull()) reader.Flush(result->m_rows);
    }
    reader.Flush(result->m_rows);
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

bool CellRows::HasOddNames() const {
    return std::any_of(m_names.begin(), m_names.end(), &HasOddName);
}

// What the keys stand for, done by hand: slower by far, and the names that need it are rare.
void CellRows::InsertIntoSet() {
    const auto compare = [this](std::uint32_t left, std::uint32_t right, NameRole role) {
        return vapp_text::CompareNoCaseU(vapp_text::SkipMarker(Name(left, role).data()),
                                         vapp_text::SkipMarker(Name(right, role).data()));
    };
    const auto isBefore = [&compare](std::uint32_t left, std::uint32_t right) {
        for (const NameRole role : cnSetOrder) {
            if (const int order = compare(left, right, role); order != 0) return order < 0;
        }
        return false;
    };
    std::set<std::uint32_t, decltype(isBefore)> set(isBefore);
    for (std::uint32_t row = 0; row < m_rows.size(); ++row)
        set.insert(row);
    Reorder(std::vector<std::uint32_t>(set.begin(), set.end()));
}

void CellRows::ArrangeAsSet() {
    if (m_rows.empty()) return;
    if (HasOddNames()) {
        InsertIntoSet();
        return;
    }
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
    const bool isSetByHand = HasOddNames();
    if (isSetByHand && dropEqual) InsertIntoSet();
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
        if (!joinsDifferentNames || isSetByHand) break;
        folded[Index(role)] = RankNames(Names(role), NameOrder::Folded);
        criteria.push_back(Criterion(role, folded[Index(role)], true));
    }
    Arrange(criteria, dropEqual && !isSetByHand);
}

void CellRows::ArrangeByTies(std::span<const NameCriterion> names) {
    if (m_rows.empty() || names.empty()) return;
    std::array<NameRanks, cnRoleCount> natural;
    std::vector<SortCriterion> criteria;
    for (const NameCriterion& name : names) {
        natural[Index(name.role)] = RankNames(Names(name.role), NameOrder::Natural);
        criteria.push_back(Criterion(name.role, natural[Index(name.role)], name.forward));
    }
    Arrange(criteria, false);
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

void CellRows::Arrange(std::span<const SortCriterion> criteria, bool dropEqual) {
    Reorder(SortRowNumbers(m_rows.size(), criteria, dropEqual));
}

void CellRows::Reorder(std::span<const std::uint32_t> order) {
    std::vector<Row> arranged;
    arranged.reserve(order.size());
    for (const std::uint32_t row : order)
        arranged.push_back(m_rows[row]);
    m_rows = std::move(arranged);
}

}  // namespace vapp_library_browser
