#pragma once
/// The user's own scripts: every file *.tcl of a folder, sourced at each start in the order of their names.
/// One that fails is told of and does not keep the others, or the window, from coming.

#include <filesystem>
#include <vector>

#include "host/Navigator.h"

namespace navigator {

/// The scripts of a folder; none if there is no such folder.
[[nodiscard]] std::vector<std::filesystem::path> gScriptsIn(const std::filesystem::path& folder);

/// Sources them, and puts the failures into the log. Gives their number.
int gSourceScripts(Navigator& navigator, const std::filesystem::path& folder);

/// Where the scripts of this user are, beside the settings.
[[nodiscard]] std::filesystem::path gUserScriptFolder();

}  // namespace navigator
