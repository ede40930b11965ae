/// @file
/// The code page that narrow text with high bytes is in. Controls hold their captions in it, so that a host
/// which wants every name unchanged sets UTF-8 before it makes its first window.
#pragma once

#include "vapp/Export.h"

/// The number of the code page UTF-8.
inline constexpr unsigned cnUtf8CodePage = 65001;

/// The active code page's number: the one that was set, otherwise the system's (that of the locale; UTF-8
/// counts as 65001).
[[nodiscard]] VAPP_EXPORT unsigned gGetActiveCodePage();
/// The number of the system's own code page, whatever was set: what other programs take narrow text for.
[[nodiscard]] VAPP_EXPORT unsigned gGetSystemCodePage();
/// Sets it for the whole process; 0 returns to the system's own.
VAPP_EXPORT void gSetActiveCodePage(unsigned codePage);
