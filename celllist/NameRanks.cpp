/// @file
/// Names of one list often begin alike, so the bytes that all keys share are left out and the eight bytes
/// behind them, as one number, decide nearly every comparison.
#include "celllist/NameRanks.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstring>
#include <memory>
#include <numeric>
#include <string>
#include <string_view>
#include <utility>

#include "text/NaturalKey.h"

namespace vapp_library_browser {

namespace {

// All keys of a table, one behind the other.
class Keys {
public:
    Keys(const NameTable& names, NameOrder order) {
        const auto count = static_cast<std::uint32_t>(names.Count());
        m_ends.reserve(count);
        std::size_t used = 0;
        for (std::uint32_t number = 0; number < count; ++number) {
            const std::string_view name = names.At(number);
            MakeRoom(used, vapp_text::KeyBound(name.size()));
            char* start = m_bytes.get() + used;
            const char* end = order == NameOrder::Natural
                                  ? vapp_text::WriteNaturalKey(name.data(), true, start)
                                  : vapp_text::WriteFoldKey(name.data(), start);
            used += static_cast<std::size_t>(end - start);
            m_ends.push_back(used);
        }
    }
    [[nodiscard]] std::string_view At(std::uint32_t number) const {
        const std::size_t start = number == 0 ? 0 : m_ends[number - 1];
        return {m_bytes.get() + start, m_ends[number] - start};
    }
    [[nodiscard]] std::uint32_t Count() const { return static_cast<std::uint32_t>(m_ends.size()); }
    // Bytes at the front that all keys share.
    [[nodiscard]] std::size_t CommonFront() const {
        std::size_t common = Count() == 0 ? 0 : At(0).size();
        for (std::uint32_t number = 1; number < Count(); ++number) {
            const std::string_view key = At(number);
            common = std::min(common, key.size());
            if (std::memcmp(key.data(), m_bytes.get(), common) == 0) continue;
            common = static_cast<std::size_t>(
                std::mismatch(key.begin(), key.begin() + static_cast<std::ptrdiff_t>(common), m_bytes.get())
                    .first -
                key.begin());
        }
        return common;
    }

private:
    void MakeRoom(std::size_t used, std::size_t more) {
        if (used + more <= m_room) return;
        m_room = std::max(used + more, 2 * m_room);
        auto bytes = std::make_unique_for_overwrite<char[]>(m_room);
        std::copy_n(m_bytes.get(), used, bytes.get());
        m_bytes = std::move(bytes);
    }

    std::unique_ptr<char[]> m_bytes;
    std::size_t m_room = 0;
    std::vector<std::size_t> m_ends;
};

struct Entry {
    std::uint64_t prefix = 0;
    std::uint32_t number = 0;
};

// Byte by byte, the last one first; a byte that all entries share is passed over.
void SortByPrefix(std::vector<Entry>& entries) {
    std::vector<Entry> other(entries.size());
    for (unsigned shift = 0; shift < 64; shift += 8) {
        std::array<std::size_t, 256> place{};
        for (const Entry& entry : entries)
            ++place[entry.prefix >> shift & 0xFFU];
        if (place[entries.front().prefix >> shift & 0xFFU] == entries.size()) continue;
        std::exclusive_scan(place.begin(), place.end(), place.begin(), std::size_t{0});
        for (const Entry& entry : entries)
            other[place[entry.prefix >> shift & 0xFFU]++] = entry;
        entries.swap(other);
    }
}

// The names in the order of their keys.
std::vector<Entry> SortedEntries(const Keys& keys) {
    std::vector<Entry> entries(keys.Count());
    const std::size_t common = keys.CommonFront();
    for (std::uint32_t number = 0; number < keys.Count(); ++number)
        entries[number] = {vapp_text::KeyPrefix(keys.At(number).substr(common)), number};
    const auto isBefore = [&keys](const Entry& left, const Entry& right) {
        if (left.prefix != right.prefix) return left.prefix < right.prefix;
        return keys.At(left.number) < keys.At(right.number);
    };
    if (std::is_sorted(entries.begin(), entries.end(), isBefore)) return entries;
    SortByPrefix(entries);
    for (auto first = entries.begin(); first != entries.end();) {
        const auto behind = std::find_if(
            first, entries.end(), [first](const Entry& entry) { return entry.prefix != first->prefix; });
        if (behind - first > 1) std::sort(first, behind, isBefore);
        first = behind;
    }
    return entries;
}

bool SameFolded(const NameTable& names, std::uint32_t left, std::uint32_t right) {
    std::string leftKey;
    std::string rightKey;
    vapp_text::AppendFoldKey(names.At(left).data(), leftKey);
    vapp_text::AppendFoldKey(names.At(right).data(), rightKey);
    return leftKey == rightKey;
}

}  // namespace

NameRanks RankNames(const NameTable& names, NameOrder order) {
    NameRanks ranks;
    if (names.Count() == 0) return ranks;
    const Keys keys(names, order);
    const std::vector<Entry> entries = SortedEntries(keys);
    ranks.rank.resize(entries.size());
    for (std::size_t at = 1; at < entries.size(); ++at) {
        const Entry& before = entries[at - 1];
        const Entry& entry = entries[at];
        if (entry.prefix != before.prefix || keys.At(entry.number) != keys.At(before.number)) {
            ++ranks.count;
        } else if (order == NameOrder::Natural && !SameFolded(names, before.number, entry.number)) {
            ranks.joinsDifferentNames = true;
        }
        ranks.rank[entry.number] = ranks.count;
    }
    ++ranks.count;
    return ranks;
}

}  // namespace vapp_library_browser
