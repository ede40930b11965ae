/// @file
/// User texts: each is keyed by its English text behind a fixed prefix.
#pragma once

#include <string_view>

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
/// Sets all translations of a table, which a host reads from a file of its own. UTF-8, one line for each
/// text: the English text without the prefix, a tab, the translation. In both, `\n`, `\t` and `\\` stand for
/// a line's end, a tab and a backslash. Empty lines and those that begin with `#` say nothing; lines may end
/// in CR LF, and the table may begin with a byte order mark. 0, or the number of the first line that is none
/// of these: nothing is set then.
[[nodiscard]] VAPP_EXPORT int gLoadTranslations(std::string_view table);
/// Forgets all translations.
VAPP_EXPORT void gClearTranslations();

}  // namespace vlang
