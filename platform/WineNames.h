/// @file
/// Names of files between the two worlds: what a Unix path is called on Windows, and the other way round.
///
/// Each operation has a plain answer where there is no Unix side to ask, on Windows and on a Wine that lacks
/// the service, so that no caller needs to know where it runs. On native Linux a name is its own name, told
/// with "/". What a path is, and which world's it is, is told in Paths.h and World.h.
///
/// The surprises: a name is narrow text on its way to and from the Unix side, in the side's own bytes, which
/// on native Linux are those that open the file. And a drive without a separator behind it, "C:", counts as a
/// relative path, which translates to itself.
///
/// Any thread. Nothing here fails: an empty text is a name that could not be translated.
#pragma once

#include "platform/PathRules.h"
#include "platform/UnixSide.h"
#include "vapp/text/CString.h"
#include "vapp/text/CStringU.h"

/// The Windows path of a Unix path. What begins with "\", or has ":" as its second character, is one already;
/// it, and everything where nobody can be asked, comes back with "\" for "/".
[[nodiscard]] CStringU gGetDosName(const char* path);
/// The Unix path, in the Unix side's bytes, of a Windows path that exists; empty where that side has no name
/// for it. A relative path comes back with "/" for "\", and where nobody can be asked the text comes back
/// unchanged; these two are UTF-8, save that on native Linux a relative path is bytes too.
[[nodiscard]] CString gGetUnixName(const CStringU& path);
/// gGetUnixName for a path with either separator, as a text.
[[nodiscard]] CStringU gGetUnixNameU(const CStringU& path);
/// The Unix path of a Windows path whose end may not exist yet: the longest head that has a Unix name, then
/// the rest with "/" for "\". A Unix path comes back as it is.
[[nodiscard]] CStringU gGetUnixPathOf(const CStringU& path);
/// The text with "\" for "/".
[[nodiscard]] CStringU gToWindowsSeparators(const CStringU& path);

namespace vapp_platform {

/// What translating depends on. Both must outlive the value.
struct TNameWorld {
    const PathRules& rules;
    const TUnixSide& unixSide;
};

/// The operations above, in a world that is told.
[[nodiscard]] CStringU DosName(const char* path, const TNameWorld& world);
[[nodiscard]] CString UnixName(const CStringU& path, const TNameWorld& world);
[[nodiscard]] CStringU UnixNameU(const CStringU& path, const TNameWorld& world);
[[nodiscard]] CStringU UnixPathOf(const CStringU& path, const TNameWorld& world);

}  // namespace vapp_platform
