/// @file
/// Where settings live: named sections of named texts and integers.
#pragma once

#include <cstdint>
#include <optional>

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
