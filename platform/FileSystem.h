/// @file
/// What files and folders ask of the system, one call each. Implemented once for each system.
///
/// For the rules in Files, Folders and FileWalk; callers elsewhere take those. A path is text with either
/// separator. On Windows each function is the Win32 call that it is named for, with that call's limits (a
/// path of 260 characters and more is refused). On Linux symbolic links are followed, `\` in a path becomes
/// `/`, and names are bytes (platform/posix/NativePath.h).
///
/// Any thread; nothing throws on what the disk holds.
#pragma once

#include <cstdint>
#include <optional>

#include "vapp/text/CStringU.h"

namespace vapp_platform {

/// Attributes that a found entry is asked for, by their Windows values; Linux tells no others.
inline constexpr unsigned cnDirectoryAttribute = 0x10;
/// A device: on Linux also a pipe and a socket, everything that has no content at rest.
inline constexpr unsigned cnDeviceAttribute = 0x40;

/// What the system tells of one entry.
struct TFileFacts {
    unsigned attributes = 0;
    /// Of the last write, in units of 100 ns since the year 1601 (UTC).
    std::uint64_t writeTime = 0;
};

/// Looks an entry up by its name; nothing where there is none or its folder can't be searched. A root has no
/// name to be looked up by. On Windows the name can hold wildcards, and the first hit counts.
[[nodiscard]] std::optional<TFileFacts> FindFile(const CStringU& path);

/// Whether there is anything at the path.
[[nodiscard]] bool PathExists(const CStringU& path);

/// Bytes of a file, 0 for a folder, -1 where there is nothing. On Windows the path goes through the ANSI code
/// page, so that a name beyond it is not found.
[[nodiscard]] std::int64_t FileSize(const CStringU& path);

/// Makes one folder whose parent exists; 0, or the system's error code. An existing entry is
/// cnAlreadyExistsError on both systems.
[[nodiscard]] std::uint32_t CreateFolder(const CStringU& path);

/// Where a shortcut (on Linux also a symbolic link) leads to; empty where the path is none or can't be read.
[[nodiscard]] CStringU ShortcutTarget(const CStringU& path);

}  // namespace vapp_platform
