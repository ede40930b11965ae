/// @file
/// Questions about one file. Nothing throws: where there is no answer it is false, -1, 0 or the path itself.
///
/// On Linux links are followed, names are taken as they stand (no wildcards), and a pipe, a socket or a
/// device is no file. On Windows paths of 260 characters and more are not found.
#pragma once

#include <cstdint>

#include "vapp/text/CStringU.h"

/// Whether there is a file, that is, neither a folder nor a device.
[[nodiscard]] bool gFileExists(const CStringU& path);

/// The bytes of a file; 0 for a folder, -1 where there is nothing. On Windows a name beyond the ANSI code
/// page is not found.
[[nodiscard]] std::int64_t gGetFileSize(const CStringU& path);

/// The time of the last write to a file or folder, in units of 100 ns since the year 1601 (UTC); 0 where
/// there is nothing.
[[nodiscard]] std::uint64_t gGetFileWriteTime(const CStringU& path);

/// Where a shortcut leads to: the target of a shell link, on Linux also that of a symbolic link (followed to
/// its end). Anything else, also a shortcut that can't be read or names nothing, gives `path`; so does, on
/// Windows, a thread without COM. On Linux the target is a path of this machine where the shortcut allows it.
[[nodiscard]] CStringU gResolveShortcut(const CStringU& path);
