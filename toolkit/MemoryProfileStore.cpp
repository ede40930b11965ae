/// @file
/// Two maps, of which a key is in one at most.
#include "vapp/toolkit/MemoryProfileStore.h"

std::optional<CString> MemoryProfileStore::ReadText(const CString& section, const CString& key) const {
    const auto found = m_texts.find({section, key});
    return found == m_texts.end() ? std::nullopt : std::optional<CString>(found->second);
}

void MemoryProfileStore::WriteText(const CString& section, const CString& key, const CString& value) {
    ++m_writes;
    m_integers.erase({section, key});
    m_texts.insert_or_assign({section, key}, value);
}

std::optional<std::int32_t> MemoryProfileStore::ReadInteger(const CString& section,
                                                            const CString& key) const {
    const auto found = m_integers.find({section, key});
    return found == m_integers.end() ? std::nullopt : std::optional<std::int32_t>(found->second);
}

void MemoryProfileStore::WriteInteger(const CString& section, const CString& key, std::int32_t value) {
    ++m_writes;
    m_texts.erase({section, key});
    m_integers.insert_or_assign({section, key}, value);
}
