/// @file
/// The process's environment, asked by name in UTF-16.
///
/// Asking only; changing it is the host's business. Names are matched as the system does: without case on
/// Windows, with case elsewhere. Where the environment is bytes, names and values are in the active code
/// page.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace vapp_platform {

/// The value of a variable; nothing where it is unset, or where no variable can have that name (an empty one,
/// one with "=" or a NUL in it). As with getenv, nobody may change the environment meanwhile.
[[nodiscard]] std::optional<std::u16string> GetEnvironmentValue(std::u16string_view name);

}  // namespace vapp_platform
