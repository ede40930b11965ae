/// @file
/// User texts: each is keyed by its English text behind a fixed prefix.
#pragma once

#include "vapp/Export.h"
#include "vapp/text/CString.h"

namespace vlang {

/// Prefix of every translatable key.
inline constexpr char csKeyPrefix[] = "__$$Translatable$$_";

/// The text for a key: the host's translation if it has set one, otherwise the key without its prefix. A text
/// without the prefix comes back as it is. Any thread.
[[nodiscard]] VAPP_EXPORT CString gTranslate(const char* key);
/// Sets the translation (UTF-8) of a key, with its prefix.
VAPP_EXPORT void gSetTranslation(const CString& key, const CString& text);
/// Forgets all translations.
VAPP_EXPORT void gClearTranslations();

}  // namespace vlang
