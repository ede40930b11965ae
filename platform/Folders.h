/// @file
/// Questions about folders, and making them. Nothing throws; only gCreateDirectories says why it failed.
///
/// The surprise: a root can't be looked up by name, so roots and what lies right below them (`C:\`, `C:\dir`,
/// `\\server\share`, under Wine and on Linux `/dir`) are asked for their entries instead, by a path that is
/// joined and so has its references replaced. On Windows a folder there that may not be read counts as
/// missing.
#pragma once

#include <cstdint>
#include <vector>

#include "vapp/text/CStringU.h"

/// Whether there is such a folder. One `\` at the end doesn't count.
[[nodiscard]] bool gDirectoryExists(const CStringU& path);

/// The same for a path that starts with "..\", "../" or "./" and is then below `folder`; any other path, one
/// with ".\" too, is taken as it is.
[[nodiscard]] bool gDirectoryExistsIn(const CStringU& path, const CStringU& folder);

/// Whether the folder can be read and has no entries. On Windows the first entry is taken to be ".", which
/// the root of a drive doesn't have: one entry there goes unseen.
[[nodiscard]] bool gIsDirectoryEmpty(const CStringU& path);

/// Makes a folder with its parents; gives whether the path exists now. On failure the reason, on one line,
/// and the system's code (183 where a file is in the way) are stored, unless the pointers are null. They can
/// be stored beside a true result, when another process made the folder meanwhile.
bool gCreateDirectories(const CStringU& path, CStringU* errorText = nullptr,
                        std::uint32_t* errorCode = nullptr);

/// The names of all entries of a folder, without "." and "..", in the system's order. On Windows they come
/// through the ANSI code page, with "?" for what it can't express.
[[nodiscard]] std::vector<CStringU> gListFolder(const CStringU& folder);
