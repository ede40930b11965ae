#pragma once
/// What the user did, as the lines that came of it, and what of it failed. It lives in memory alone and keeps
/// the last of them; whoever shows them is told of each. A line may name a million cells, so that it is kept
/// up to a length.

#include <cstddef>
#include <deque>
#include <functional>
#include <string>
#include <string_view>
#include <utility>

namespace navigator {

class ActionLog {
public:
    enum class TKind {
        Action,   ///< a line that was sent
        Failure,  ///< the sentence with which the last line ended
        Notice    ///< what came of a line that is more, or less, than one may have expected
    };
    struct TEntry {
        TKind kind = TKind::Action;
        std::string text;  ///< UTF-8, at most cnMostBytes and a word of what is left out.
    };

    static constexpr std::size_t cnMostKept = 1000;
    static constexpr std::size_t cnMostBytes = 4000;

    /// Called for each new entry, after it was taken, and with null after Clear.
    void SetHandler(std::function<void(const TEntry*)> handler) { m_handler = std::move(handler); }

    void Add(TKind kind, std::string_view text);
    void Clear();
    /// The oldest first.
    [[nodiscard]] const std::deque<TEntry>& Entries() const { return m_entries; }

private:
    std::deque<TEntry> m_entries;
    std::function<void(const TEntry*)> m_handler;
};

}  // namespace navigator
