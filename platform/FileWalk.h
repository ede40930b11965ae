/// @file
/// Collecting files below a folder, through sub-folders, shortcuts and links.
///
/// The order of the result: what lies below comes before the folder's own entries, folder after folder in the
/// natural order of names, and a folder's own entries in that order too. A path is that of the folder, a
/// separator, and the name as it is on the disk: nothing in a name is expanded.
///
/// A shortcut to a folder, or to a shortcut to one, is followed as if the folder were there; one to a file
/// adds nothing but itself. A folder whose own name ends in ".lnk" is no shortcut and is not entered. A
/// folder that is reached again from inside itself is not entered again, so that every walk ends. Folders
/// that can't be read, or vanish meanwhile, have no entries. On Linux a link that leads nowhere is no entry.
///
/// Extensions are compared exactly, as texts.
#pragma once

#include <set>
#include <vector>

#include "vapp/text/CStringU.h"

/// The paths of all entries below the folder `path` whose extension is in the set (all of them for an empty
/// set): files, and with the flag folders too. A `path` that is a shortcut stands for its target; one that is
/// no folder gives nothing.
[[nodiscard]] std::vector<CStringU> gCollectFiles(const CStringU& path, const std::set<CStringU>& extensions,
                                                  bool includeDirectories);

/// The same with the extensions in one text, separated by blanks, commas or semicolons. Without any, or with
/// "*" among them, every extension counts.
[[nodiscard]] std::vector<CStringU> gCollectFiles(const CStringU& path, const CStringU& extensions,
                                                  bool includeDirectories);

/// The paths of all files below the folder `path` that have exactly this name.
[[nodiscard]] std::vector<CStringU> gFindFiles(const CStringU& path, const CStringU& name);
