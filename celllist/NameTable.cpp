/// @file
/// The table is a pool of bytes and an index, so that a name costs no allocation of its own. The index holds
/// short names itself, and growing it never looks at the bytes.
#include "celllist/NameTable.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cassert>
#include <cstring>
#include <functional>

namespace vapp_library_browser {

namespace {

constexpr std::size_t cnFirstSlots = 64;
// So many names are looked up together.
constexpr std::size_t cnBatch = 32;
// An index of this size stays in the nearest memory anyway.
constexpr std::size_t cnHotSlots = 512;

template <typename Word>
std::uint64_t Load(const char* from) {
    Word word;
    std::memcpy(&word, from, sizeof word);
    return word;
}

}  // namespace

// Names are short, and the standard hash spends most of its time on being called: front and back are
// multiplied together.
NameTable::Digest::Digest(std::string_view name) : size(static_cast<std::uint32_t>(name.size())) {
    if (size > 16) {
        front = Load<std::uint64_t>(name.data());
        back = std::hash<std::string_view>()(name);
    } else if (size >= 8) {
        front = Load<std::uint64_t>(name.data());
        back = Load<std::uint64_t>(name.data() + size - 8);
    } else if (size >= 4) {
        front = Load<std::uint32_t>(name.data());
        back = Load<std::uint32_t>(name.data() + size - 4);
    } else if (size > 0) {
        front = Load<std::uint8_t>(name.data());
        back = Load<std::uint8_t>(name.data() + size / 2) << 8U | Load<std::uint8_t>(name.data() + size - 1);
    }
    // Both halves of the product: the last byte of a name, often the one that differs, is in its high half
    // only.
    const auto product =
        static_cast<unsigned __int128>(front ^ size ^ 0x9E3779B97F4A7C15U) * (back ^ 0xC2B2AE3D27D4EB4FU);
    // A half that cancels against its constant makes the product 0, whatever the other one is; and a place in
    // the index is made of the lowest bits, which have to know of all others.
    const auto folded = static_cast<std::uint64_t>(product) ^ static_cast<std::uint64_t>(product >> 64U);
    const std::uint64_t mixed = folded ^ front ^ std::rotl(back, 32);
    hash = static_cast<std::uint32_t>(((mixed ^ mixed >> 32U) * 0xD6E8FEB86659FD93U) >> 32U);
}

std::uint32_t NameTable::Intern(std::string_view name) {
    assert(!IsFrozen());
    return InternDigested(name, Digest(name));
}

// A lookup waits for the memory of its slot, so all slots of a batch are asked for first.
void NameTable::InternAll(std::span<const std::string_view> names, std::uint32_t* numbers) {
    assert(!IsFrozen());
    if (m_slots.size() <= cnHotSlots && names.size() <= cnHotSlots / 4) {
        std::transform(names.begin(), names.end(), numbers,
                       [this](std::string_view name) { return Intern(name); });
        return;
    }
    std::array<Digest, cnBatch> digests;
    for (std::size_t first = 0; first < names.size(); first += cnBatch) {
        const std::size_t count = std::min(cnBatch, names.size() - first);
        while (IsFullFor(count))
            Grow();
        const std::size_t mask = m_slots.size() - 1;
        for (std::size_t at = 0; at < count; ++at) {
            digests[at] = Digest(names[first + at]);
            __builtin_prefetch(&m_slots[digests[at].hash & mask]);
        }
        for (std::size_t at = 0; at < count; ++at)
            numbers[first + at] = InternDigested(names[first + at], digests[at]);
    }
}

std::uint32_t NameTable::InternDigested(std::string_view name, const Digest& digest) {
    if (IsFullFor(1)) Grow();
    Slot& slot = m_slots[SlotOf(name, digest)];
    if (slot.numberPlusOne == 0) {
        slot = {digest.front, digest.back, digest.size, digest.hash, static_cast<std::uint32_t>(Count() + 1)};
        m_bytes.insert(m_bytes.end(), name.begin(), name.end());
        m_bytes.push_back('\0');
        m_starts.push_back(m_bytes.size());
    }
    return slot.numberPlusOne - 1;
}

std::optional<std::uint32_t> NameTable::Find(std::string_view name) const {
    assert(!IsFrozen());
    if (m_slots.empty()) return std::nullopt;
    const Slot& slot = m_slots[SlotOf(name, Digest(name))];
    return slot.numberPlusOne == 0 ? std::nullopt : std::optional(slot.numberPlusOne - 1);
}

bool NameTable::IsFullFor(std::size_t more) const {
    return 4 * (Count() + more) > 3 * m_slots.size();
}

// The slot that holds the name, or the empty one where it belongs.
std::size_t NameTable::SlotOf(std::string_view name, const Digest& digest) const {
    const std::size_t mask = m_slots.size() - 1;
    const auto isName = [&](const Slot& slot) {
        return slot.front == digest.front && slot.back == digest.back && slot.size == digest.size &&
               (digest.size <= 16 || At(slot.numberPlusOne - 1) == name);
    };
    std::size_t at = digest.hash & mask;
    while (m_slots[at].numberPlusOne != 0 && !isName(m_slots[at]))
        at = (at + 1) & mask;
    return at;
}

CStringU NameTable::Text(std::uint32_t number) const {
    const std::string_view name = At(number);
    return {name.data(), TextEncoding::Utf8Auto, static_cast<int>(name.size())};
}

void NameTable::Freeze() {
    m_slots = {};
}

std::size_t NameTable::LongestProbe() const {
    const std::size_t mask = m_slots.size() - 1;
    std::size_t longest = 0;
    for (std::size_t at = 0; at < m_slots.size(); ++at) {
        if (m_slots[at].numberPlusOne != 0) longest = std::max(longest, ((at - m_slots[at].hash) & mask) + 1);
    }
    return longest;
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
