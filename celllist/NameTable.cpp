/// @file
/// The table is a pool of bytes and an index of hashes, so that a name costs no allocation of its own and
/// growing the index never looks at the bytes.
#include "celllist/NameTable.h"

#include <functional>

namespace vapp_library_browser {

namespace {

constexpr std::size_t cnFirstSlots = 64;

std::uint32_t HashOf(std::string_view name) {
    return static_cast<std::uint32_t>(std::hash<std::string_view>()(name));
}

}  // namespace

std::uint32_t NameTable::Intern(std::string_view name) {
    if (2 * Count() >= m_slots.size()) Grow();
    const std::uint32_t hash = HashOf(name);
    Slot& slot = m_slots[SlotOf(name, hash)];
    if (slot.numberPlusOne == 0) {
        m_bytes.insert(m_bytes.end(), name.begin(), name.end());
        m_bytes.push_back('\0');
        m_ends.push_back(m_bytes.size());
        slot = {hash, static_cast<std::uint32_t>(Count())};
    }
    return slot.numberPlusOne - 1;
}

std::optional<std::uint32_t> NameTable::Find(std::string_view name) const {
    if (m_slots.empty()) return std::nullopt;
    const Slot& slot = m_slots[SlotOf(name, HashOf(name))];
    return slot.numberPlusOne == 0 ? std::nullopt : std::optional(slot.numberPlusOne - 1);
}

// The slot that holds the name, or the empty one where it belongs.
std::size_t NameTable::SlotOf(std::string_view name, std::uint32_t hash) const {
    const std::size_t mask = m_slots.size() - 1;
    std::size_t at = hash & mask;
    while (m_slots[at].numberPlusOne != 0 &&
           (m_slots[at].hash != hash || At(m_slots[at].numberPlusOne - 1) != name)) {
        at = (at + 1) & mask;
    }
    return at;
}

CStringU NameTable::Text(std::uint32_t number) const {
    const std::string_view name = At(number);
    return {name.data(), TextEncoding::Utf8Auto, static_cast<int>(name.size())};
}

void NameTable::Freeze() {
    m_slots = {};
    m_bytes.shrink_to_fit();
    m_ends.shrink_to_fit();
}

void NameTable::Grow() {
    std::vector<Slot> old(m_slots.empty() ? cnFirstSlots : 2 * m_slots.size());
    old.swap(m_slots);
    const std::size_t mask = m_slots.size() - 1;
    for (const Slot& slot : old) {
        if (slot.numberPlusOne == 0) continue;
        std::size_t at = slot.hash & mask;
        while (m_slots[at].numberPlusOne != 0)
            at = (at + 1) & mask;
        m_slots[at] = slot;
    }
}

}  // namespace vapp_library_browser
