/// @file
/// The process's environment, asked by name in UTF-16.
///
/// Asking only; changing it is the host's business. Names are matched as the system does: without case on
/// Windows, with case elsewhere. Where the environment is bytes, names and values are UTF-8 whatever the
/// locale; a byte that isn't is the lone half of a surrogate pair, so that it finds its way back.
///
/// The surprise: on Windows a process has two environments, the system's and a copy that the C runtime made
/// when it started. Asked is the copy, which a host changes by _wputenv. SetEnvironmentValue, which makes the
/// environment of a child, changes the system's and is not seen here. In the copy no variable can be set to
/// nothing: _wputenv then removes it, so that a reference to it stays, where on Linux it vanishes.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace vapp_platform {

/// The value of a variable, empty where it is set to nothing; no value where it is unset, or where no
/// variable can have that name (an empty one, one with "=" or a NUL in it). Any thread, also while this
/// library sets variables; as with getenv, nobody else may change the environment meanwhile.
[[nodiscard]] std::optional<std::u16string> GetEnvironmentValue(std::u16string_view name);

}  // namespace vapp_platform
