/// @file
/// The name of an application as a piece of the name of a file or of a kernel object.
#pragma once

#include <string>
#include <string_view>

namespace vapp_platform {

/// The longest key, in bytes.
inline constexpr std::size_t cnMostKeyBytes = 100;

/// Letters and digits of ASCII, `.`, `-` and `_` as they are, every other byte as `%` and two digits. A long
/// name is cut and ends in a number made of the whole of it. Two names have the same key only if they are
/// equal, or long and met by chance. Never empty.
[[nodiscard]] std::string InstanceKey(std::string_view name);

}  // namespace vapp_platform
