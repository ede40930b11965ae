/// @file
/// The bytes of a small file that the system or a user keeps: a setting, a shortcut.
#pragma once

#include <cstddef>
#include <optional>
#include <string>

namespace vapp_platform {

/// The first bytes of a regular file, at most `limit` of them; nothing where there is no such file or it may
/// not be read. NATIVE: the path is bytes. Never waits, as opening a pipe would.
[[nodiscard]] std::optional<std::string> ReadSmallFile(const std::string& path, std::size_t limit);

}  // namespace vapp_platform
