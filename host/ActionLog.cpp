/// Keeping, shortening and telling.

#include "host/ActionLog.h"

namespace navigator {

namespace {

/// The text, or its beginning, cut between characters.
std::string Shortened(std::string_view text) {
    if (text.size() <= ActionLog::cnMostBytes) return std::string(text);
    std::size_t end = ActionLog::cnMostBytes;
    constexpr unsigned cnKindBits = 0xC0;
    constexpr unsigned cnContinuation = 0x80;
    while (end > 0 && (static_cast<unsigned char>(text[end]) & cnKindBits) == cnContinuation)
        --end;
    return std::string(text.substr(0, end)) + " ... (" + std::to_string(text.size() - end) + " bytes more)";
}

}  // namespace

void ActionLog::Add(TKind kind, std::string_view text) {
    m_entries.push_back({kind, Shortened(text)});
    if (m_entries.size() > cnMostKept) m_entries.pop_front();
    if (!m_handler) return;
    // Who is told may clear the log.
    const TEntry entry = m_entries.back();
    m_handler(&entry);
}

void ActionLog::Clear() {
    m_entries.clear();
    if (m_handler) m_handler(nullptr);
}

}  // namespace navigator
