/// @file
/// The rules by which letters become words.
#include "celllist/FilterHistory.h"

#include <algorithm>
#include <cstdlib>
#include <string_view>

#include "text/Compare.h"

namespace vapp_library_browser {

namespace {

// One character more or less at the end: the next step of typing or deleting.
bool IsNextStep(const CStringU& text, const CStringU& before) {
    const int length = text.GetCharCount();
    const int lengthBefore = before.GetCharCount();
    if (std::abs(length - lengthBefore) != 1) return false;
    const auto shorter = static_cast<std::size_t>(std::min(length, lengthBefore));
    return vapp_text::CompareNNoCaseU(text.Payload(), before.Payload(), shorter) == 0;
}

}  // namespace

void FilterHistory::Note(const CStringU& text) {
    if (text.IsEmpty()) return;
    if (!m_entries.empty() && IsNextStep(text, m_entries.front())) m_entries.erase(m_entries.begin());
    const auto same = std::find_if(m_entries.begin(), m_entries.end(),
                                   [&text](const CStringU& entry) { return entry.EqualsNoCase(text); });
    if (same != m_entries.end()) m_entries.erase(same);
    m_entries.insert(m_entries.begin(), text);
    if (m_entries.size() > cnMaxEntries) m_entries.resize(cnMaxEntries);
}

CStringU FilterHistory::ToText() const {
    CStringU text;
    for (const CStringU& entry : m_entries) {
        text += entry;
        text += '\n';
    }
    return text;
}

void FilterHistory::Read(const CStringU& text) {
    m_entries.clear();
    std::string_view rest = text.PayloadView();
    while (m_entries.size() < cnMaxEntries) {
        const std::string_view entry = rest.substr(0, rest.find('\n'));
        if (entry.empty()) return;
        m_entries.emplace_back(entry.data(), TextEncoding::Utf8Auto, static_cast<int>(entry.size()));
        rest.remove_prefix(std::min(entry.size() + 1, rest.size()));
    }
}

}  // namespace vapp_library_browser
