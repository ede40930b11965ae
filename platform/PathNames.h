/// @file
/// Taking a path apart into folder, name, base name and extension, and changing its extension: by the text
/// alone, in every world alike.
///
/// A name ends to the left at the last "\", "/" or ":"; an extension is what stands behind the last dot of
/// the name. Not for joining (PathJoin.h).
///
/// The surprises: the folder of "C:\x" keeps its separator, that of "C:\a\x" loses it, and that of "\x" is
/// empty; and a name that begins with its only dot, ".profile", is all extension.
#pragma once

#include "platform/PathRules.h"

namespace vapp_platform {

/// True for what starts with "/", "../" or "./", also between a pair of quotes of one kind, or several pairs.
[[nodiscard]] bool IsUnixPath(const CStringU& path) noexcept;

/// The text behind the last "\", "/" or ":"; the whole path if there is none.
[[nodiscard]] CStringU GetFileName(const CStringU& path);
/// The text in front of it, with the separator where it is a drive's colon or stands behind one.
[[nodiscard]] CStringU GetDirectory(const CStringU& path);
/// The name without its last dot and what follows.
[[nodiscard]] CStringU GetBaseName(const CStringU& path);

/// True where a dot stands in the name.
[[nodiscard]] bool HasExtension(const CStringU& path) noexcept;
/// The text behind the name's last dot, empty if it has none.
[[nodiscard]] CStringU GetExtension(const CStringU& path);
/// The path with another extension, or with a first one.
[[nodiscard]] CStringU ReplaceExtension(const CStringU& path, const CStringU& extension);
/// The path if that is its extension, letter by letter; otherwise the path with it appended, behind any other
/// extension: "a.b" gets "a.b.c".
[[nodiscard]] CStringU EnsureExtension(const CStringU& path, const CStringU& extension);
/// The folder joined with the base name, and so normalised. A folder that is only a root "\" is lost.
[[nodiscard]] CStringU RemoveExtension(const CStringU& path, const PathRules& rules);

}  // namespace vapp_platform
