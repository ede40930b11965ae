/// @file
/// Paths as text, in the world of this process: the names under which the rest of the library calls the path
/// rules. None of them touches a file system; the few that ask the environment say so.
///
/// Both "\" and "/" separate on input. A path that starts with "/" is absolute only in the world of Wine. The
/// rules, world by world, with their surprises, are told in PathNormalize.h, PathJoin.h, PathNames.h,
/// PathValid.h and PathCompact.h. Not here: files and folders (Files.h).
///
/// Any thread, as long as nobody but this library changes the environment meanwhile. Nothing here fails.
#pragma once

#include "vapp/text/CStringU.h"

/// True for "X:\...", "\\machine\..." and, in the world of Wine, what starts with a separator. Asks the
/// environment, for the path is judged by its normal form.
[[nodiscard]] bool gIsAbsolutePath(const CStringU& path);
/// True for what starts with "/", "../" or "./", in quotes or not.
[[nodiscard]] bool gIsUnixPath(const CStringU& path);
/// The path without ".", without ".." where it can be resolved, without empty parts, with the separators of
/// this world, and with references to the environment replaced.
[[nodiscard]] CStringU gNormalizePath(const CStringU& path);
/// The text with ${NAME}, $NAME and %NAME% replaced where the variable is set. A value that is an absolute
/// path also drops everything in front of it.
[[nodiscard]] CStringU gExpandEnvironment(const CStringU& text);

/// The normal form of `relative` seen from `base`; of `relative` alone if it is absolute or `base` is empty.
/// Asks the environment.
[[nodiscard]] CStringU gJoinPath(const CStringU& base, const CStringU& relative);
/// The normal form of an absolute path, of another one as seen from `base`. Asks the environment.
[[nodiscard]] CStringU gResolvePath(const CStringU& base, const CStringU& path);
/// The way from the folder `base` to `path`; `path` itself where there is none. Asks the environment whether
/// `path` is absolute.
[[nodiscard]] CStringU gMakeRelativePath(const CStringU& base, const CStringU& path);

/// The text behind the last "\", "/" or ":".
[[nodiscard]] CStringU gGetFileName(const CStringU& path);
/// The text in front of it; with the separator where that belongs to a drive.
[[nodiscard]] CStringU gGetDirectory(const CStringU& path);
/// The file name without its extension and dot.
[[nodiscard]] CStringU gGetBaseName(const CStringU& path);
/// True where the file name has a dot.
[[nodiscard]] bool gHasExtension(const CStringU& path);
/// The text behind the file name's last dot; empty without one.
[[nodiscard]] CStringU gGetExtension(const CStringU& path);
/// The path with `extension` (told without its dot) in place of its own, or as its first.
[[nodiscard]] CStringU gReplaceExtension(const CStringU& path, const CStringU& extension);
/// The path with `extension` appended unless it is its extension already.
[[nodiscard]] CStringU gEnsureExtension(const CStringU& path, const CStringU& extension);
/// The folder joined with the base name. Asks the environment.
[[nodiscard]] CStringU gRemoveExtension(const CStringU& path);

/// False for a text that can't be a path in this world, by its characters.
[[nodiscard]] bool gIsValidPath(const CStringU& path);
/// The path shortened for display to at most `maximum` characters, folders in the middle left out. If not
/// even the file name fits: the whole name if `keepName`, otherwise empty.
[[nodiscard]] CStringU gCompactPath(const CStringU& path, int maximum, bool keepName);
