/// @file
/// NameTable: gives each distinct name a small number.
///
/// A list of a million rows has far fewer names than rows. Rows keep numbers; what costs per name (keys,
/// ranks, filter tests) is done once for each name.
///
/// Names are told apart by their bytes alone: "A" and "a" are two names here. Which of them count as the same
/// is a matter of ranks (NameRanks.h). No name has a NUL inside.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string_view>
#include <vector>

#include "vapp/text/CStringU.h"

namespace vapp_library_browser {

class NameTable {
public:
    /// Number of the name, which is added if it is new. Not after `Freeze`.
    std::uint32_t Intern(std::string_view name);
    /// Numbers of names, which are added if they are new: as `Intern` of one after the other, but the memory
    /// that one lookup waits for is fetched while others are worked on. For a large table that is a multiple
    /// of the speed. `numbers` has room for as many.
    void InternAll(std::span<const std::string_view> names, std::uint32_t* numbers);
    /// Number of the name, or nothing if the table doesn't have it. Not after `Freeze`.
    [[nodiscard]] std::optional<std::uint32_t> Find(std::string_view name) const;
    [[nodiscard]] std::size_t Count() const { return m_starts.size() - 1; }
    /// The bytes of a name, NUL behind them; valid until the next name is added.
    [[nodiscard]] std::string_view At(std::uint32_t number) const {
        const std::size_t start = m_starts[number];
        return {m_bytes.data() + start, m_starts[number + 1] - start - 1};
    }
    /// All names in the order of their numbers, a NUL behind each: for looking through all at once. Valid
    /// until the next name is added.
    [[nodiscard]] std::string_view AllBytes() const { return {m_bytes.data(), m_bytes.size()}; }
    /// Where each name begins in `AllBytes`, and the size of that behind the last one.
    [[nodiscard]] std::span<const std::size_t> Starts() const { return m_starts; }
    /// The name as a text of the system.
    [[nodiscard]] CStringU Text(std::uint32_t number) const;
    /// Gives back what only `Intern` and `Find` need; neither may be called afterwards.
    void Freeze();
    /// The most places that a lookup of one of the names has to look at; for judging the index, not for use.
    [[nodiscard]] std::size_t LongestProbe() const;

private:
    /// What tells names apart. Up to sixteen bytes it is the whole name: its first and its last bytes, which
    /// may overlap, and its size. A longer name has its hash in place of the last bytes, and is compared as
    /// well.
    struct Digest {
        explicit Digest(std::string_view name);
        Digest() = default;

        std::uint64_t front = 0;
        std::uint64_t back = 0;
        std::uint32_t size = 0;
        std::uint32_t hash = 0;
    };
    /// Half a line of the cache, so that a lookup of a short name waits for memory once.
    struct alignas(32) Slot {
        std::uint64_t front = 0;
        std::uint64_t back = 0;
        std::uint32_t size = 0;
        std::uint32_t hash = 0;
        std::uint32_t numberPlusOne = 0;  ///< 0: empty
    };

    std::uint32_t InternDigested(std::string_view name, const Digest& digest);
    [[nodiscard]] bool IsFullFor(std::size_t more) const;
    [[nodiscard]] std::size_t SlotOf(std::string_view name, const Digest& digest) const;
    [[nodiscard]] bool IsFrozen() const { return m_slots.empty() && Count() > 0; }
    void Grow();

    std::vector<char> m_bytes;
    std::vector<std::size_t> m_starts = {0};  ///< place of each name, and of the next one to be added
    std::vector<Slot> m_slots;                ///< open addressing; the count is a power of two
};

}  // namespace vapp_library_browser
