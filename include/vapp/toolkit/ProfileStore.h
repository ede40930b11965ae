/// @file
/// Where settings live: named sections of named texts and integers.
#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <utility>

#include "vapp/Export.h"
#include "vapp/text/CString.h"

/// A store of settings. A section's name may hold backslashes, which divide it into a path; a backslash in
/// the name of a value is a plain character. Texts are UTF-8 bytes as given.
class VAPP_EXPORT ProfileStore {
public:
    ProfileStore() = default;
    ProfileStore(const ProfileStore&) = delete;
    ProfileStore& operator=(const ProfileStore&) = delete;
    virtual ~ProfileStore();

    /// The text stored under the key, or nothing. An integer is not a text.
    [[nodiscard]] virtual std::optional<CString> ReadText(const CString& section,
                                                          const CString& key) const = 0;
    virtual void WriteText(const CString& section, const CString& key, const CString& value) = 0;
    /// The integer stored under the key, or nothing. A text is not an integer.
    [[nodiscard]] virtual std::optional<std::int32_t> ReadInteger(const CString& section,
                                                                  const CString& key) const = 0;
    virtual void WriteInteger(const CString& section, const CString& key, std::int32_t value) = 0;
};

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
