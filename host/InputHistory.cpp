/// The walk through what was typed.

#include "host/InputHistory.h"

namespace navigator {

void InputHistory::Add(const std::string& text) {
    const bool isBlank = text.find_first_not_of(" \t\r\n") == std::string::npos;
    if (!isBlank && (m_sent.empty() || m_sent.back() != text)) m_sent.push_back(text);
    if (m_sent.size() > cnMostKept) m_sent.pop_front();
    m_at = m_sent.size();
    m_typed.clear();
}

std::optional<std::string> InputHistory::Previous(const std::string& typed) {
    if (m_at == 0) return std::nullopt;
    if (m_at == m_sent.size()) m_typed = typed;
    return m_sent[--m_at];
}

std::optional<std::string> InputHistory::Next() {
    if (m_at == m_sent.size()) return std::nullopt;
    return ++m_at == m_sent.size() ? m_typed : m_sent[m_at];
}

}  // namespace navigator
