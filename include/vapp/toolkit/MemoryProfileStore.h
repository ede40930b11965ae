/// @file
/// Settings that last as long as the program. A key holds one value, a text or an integer: writing the one
/// forgets the other, as in the stores that keep settings for good.
#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <utility>

#include "vapp/Export.h"
#include "vapp/text/CString.h"
#include "vapp/toolkit/ProfileStore.h"

/// A store that lives in memory: for tests and for hosts without settings.
class VAPP_EXPORT MemoryProfileStore final : public ProfileStore {
public:
    [[nodiscard]] std::optional<CString> ReadText(const CString& section, const CString& key) const override;
    void WriteText(const CString& section, const CString& key, const CString& value) override;
    [[nodiscard]] std::optional<std::int32_t> ReadInteger(const CString& section,
                                                          const CString& key) const override;
    void WriteInteger(const CString& section, const CString& key, std::int32_t value) override;

    /// Number of writes so far, of either kind.
    [[nodiscard]] unsigned GetWriteCount() const { return m_writes; }

private:
    using Name = std::pair<CString, CString>;
    std::map<Name, CString> m_texts;
    std::map<Name, std::int32_t> m_integers;
    unsigned m_writes = 0;
};
