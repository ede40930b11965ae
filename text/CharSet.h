/// @file
/// A set of characters that is asked often: what trimming, spans and the tokeniser separate by.
///
/// Not for the searches for one of a set: those ask each set once for few characters and read it where it
/// stands.
///
/// ASCII characters are bits of two words, so that the usual sets (",", " \t") cost one test a character; the
/// others are sorted, each there once, so that a set of any size and of any repetitions is asked quickly.
#pragma once

#include <algorithm>
#include <array>
#include <bit>
#include <cstdint>
#include <string>

#include "text/Codec.h"
#include "text/Fold.h"

namespace vapp_text {

class CharSet {
public:
    /// The characters of a payload up to its NUL; with `folded`, the folded form of each. A set so folded
    /// expects to be asked for folded characters.
    explicit CharSet(const char* payload, bool folded = false) {
        while (*payload != '\0') {
            const char16_t unit = DecodeNext(payload);
            Add(folded ? FoldChar(unit) : unit);
        }
        if (!m_others.empty()) SortOthers();
    }

    [[nodiscard]] bool Holds(char16_t unit) const noexcept {
        if (unit < 0x80U) return ((m_ascii[unit / cnBits] >> (unit % cnBits)) & 1U) != 0;
        return std::binary_search(m_others.begin(), m_others.end(), unit);
    }

    /// True where no character of the set is outside of ASCII.
    [[nodiscard]] bool IsAscii() const noexcept { return m_others.empty(); }
    /// The one ASCII character of the set; 0 for none or for more.
    [[nodiscard]] char OnlyAscii() const noexcept {
        const bool inFirst = m_ascii[0] != 0;
        const std::uint64_t word = m_ascii[inFirst ? 0 : 1];
        if (word == 0 || (word & (word - 1)) != 0 || (inFirst && m_ascii[1] != 0)) return '\0';
        return static_cast<char>(std::countr_zero(word) + (inFirst ? 0 : static_cast<int>(cnBits)));
    }

private:
    static constexpr unsigned cnBits = 64;

    void Add(char16_t unit) {
        if (unit < 0x80U) {
            m_ascii[unit / cnBits] |= std::uint64_t{1} << (unit % cnBits);
        } else {
            m_others += unit;
        }
    }

    void SortOthers() {
        std::sort(m_others.begin(), m_others.end());
        m_others.erase(std::unique(m_others.begin(), m_others.end()), m_others.end());
    }

    std::array<std::uint64_t, 2> m_ascii{};
    std::u16string m_others;
};

}  // namespace vapp_text
