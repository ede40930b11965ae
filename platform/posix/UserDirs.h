/// @file
/// Reads the file user-dirs.dirs, in which a desktop keeps the places of the user's folders.
///
/// It looks like a piece of shell and is none: lines NAME="PATH", the path beginning with "$HOME" or "/", a
/// `\` in front of a character that would end it or mean something. Other lines are ignored; the last one
/// wins.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace vapp_platform {

/// The path that the file sets for a name such as "XDG_DOCUMENTS_DIR", absolute, without a separator at its
/// end
/// ("$HOME/" is the home folder itself, which says that there is no folder for it). NATIVE: all are bytes.
[[nodiscard]] std::optional<std::string> FindUserDir(std::string_view file, std::string_view name,
                                                     const std::string& home);

}  // namespace vapp_platform
