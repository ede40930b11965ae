/// @file
/// Putting paths together, and their inverse: the way from one path to another.
///
///     JoinPath         "C:\a\b" + "c"      "C:\a\b\c"
///                      "C:\a\b" + "\c"     "C:\c"            a rooted path lands on the base's drive
///                      "\\s\sh\x" + "\c"   "\\s\sh\c"        or on its share
///                      "C:" + "dir"        "C:dir"           relative to the drive's folder, on purpose
///     MakeRelativePath "C:\a\b" to "C:\a\c"                  "..\c"
///
/// Not for taking names apart (PathNames.h).
///
/// The surprises: joining normalises, so a "$NAME" is replaced on the way, whereas MakeRelativePath compares
/// the texts as they stand, with ASCII letters alike in both cases and "\" and "/" different.
#pragma once

#include "platform/PathRules.h"

namespace vapp_platform {

/// The normal form of `relative` seen from `base`; of `relative` alone if it is absolute or `base` is empty.
[[nodiscard]] CStringU JoinPath(const CStringU& base, const CStringU& relative, const PathRules& rules);

/// The normal form of `path` if it is absolute, otherwise that of `path` seen from `base`.
[[nodiscard]] CStringU ResolvePath(const CStringU& base, const CStringU& path, const PathRules& rules);

/// The way from the folder `base` to `path`. `path` itself if it is not absolute, if `base` is empty, or if
/// the two share neither drive, nor share, nor (in the world of Wine) a first folder. In the world of Wine
/// the result has "/" in place of every "\", also where it is `path` itself.
[[nodiscard]] CStringU MakeRelativePath(const CStringU& base, const CStringU& path, const PathRules& rules);

}  // namespace vapp_platform
