/// @file
/// A text that is looked for again and again in another one, in time that both lengths bound by their sum.
///
/// For replacements, whose two texts may come from anywhere: a search that tries each place anew takes hours
/// where a million equal letters are searched for half as many and one. Not for the single searches of
/// Search.h, which follow rules of their own.
///
/// The surprise is that a search goes on where it was: hits that overlap, as a replacement by a shorter text
/// meets them, would else be read as often as they overlap. No library's search gives those in linear time.
#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

namespace vapp_text {

/// Looks for characters as they stand. They must outlive the search.
template <typename Char>
class LinearSearch {
public:
    using View = std::basic_string_view<Char>;
    /// What is no longer than this is tried at each place: so few characters are a bound too, and quicker.
    static constexpr std::size_t cnShort = 16;

    explicit LinearSearch(View wanted) : m_wanted(wanted) {
        if (wanted.size() > cnShort) FindBorders();
    }

    /// The first place at or behind `from`; npos for none. What is empty is found at once, even at the end.
    /// All calls are about one text. Those that go forward take linear time together; one that goes back
    /// begins anew.
    [[nodiscard]] std::size_t Find(View text, std::size_t from) {
        return m_borders.empty() ? text.find(m_wanted, from) : FindLong(text, from);
    }

private:
    // For each head of the wanted text, how much of its front is also its end.
    void FindBorders() {
        m_borders.reserve(m_wanted.size());
        m_borders.push_back(0);
        for (std::size_t border = 0; m_borders.size() < m_wanted.size(); m_borders.push_back(border))
            border = Matched(border, m_wanted[m_borders.size()]);
    }

    // How much of the wanted text's front ends with a character in front of which so much of it stood.
    [[nodiscard]] std::size_t Matched(std::size_t before, Char next) const noexcept {
        while (before > 0 && (before == m_wanted.size() || m_wanted[before] != next))
            before = m_borders[before - 1];
        return m_wanted[before] == next ? before + 1 : 0;
    }

    [[nodiscard]] std::size_t FindLong(View text, std::size_t from) {
        if (from < m_nextFrom) {
            m_at = from;
            m_matched = 0;
        }
        m_nextFrom = from;
        while (m_at < text.size()) {
            m_matched = Matched(m_matched, text[m_at++]);
            if (m_matched != m_wanted.size() || m_at - m_matched < from) continue;
            m_nextFrom = m_at - m_matched + 1;
            return m_at - m_matched;
        }
        return View::npos;
    }

    View m_wanted;
    std::vector<std::size_t> m_borders;  // of a long text
    std::size_t m_at = 0;                // read so far
    std::size_t m_matched = 0;           // so much of the wanted text ends there
    std::size_t m_nextFrom = 0;          // the least place that what was read is good for
};

}  // namespace vapp_text
