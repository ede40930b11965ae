#pragma once
/// What was typed into the console before, and the walk through it: backwards and forwards, and at the end
/// again what was being typed when the walk began.

#include <cstddef>
#include <deque>
#include <optional>
#include <string>

namespace navigator {

class InputHistory {
public:
    static constexpr std::size_t cnMostKept = 500;

    /// Takes what was sent, and ends the walk. Nothing is kept of blanks alone, nor of the last one again.
    void Add(const std::string& text);
    /// One step back; `typed` is what stands in the field now. Nothing if there is none before.
    [[nodiscard]] std::optional<std::string> Previous(const std::string& typed);
    /// One step forward; nothing if no walk is going on.
    [[nodiscard]] std::optional<std::string> Next();
    [[nodiscard]] std::size_t Count() const { return m_sent.size(); }

private:
    std::deque<std::string> m_sent;
    std::size_t m_at = 0;  ///< Of the text in the field; Count() outside of a walk.
    std::string m_typed;
};

}  // namespace navigator
