/// @file
/// What the rules of paths depend on, as a value, and the little words they are told in.
///
/// Paths are text here: nothing in the rules touches a file system. Both "\" and "/" separate on input in
/// every world; positions are bytes of the payload, and cuts happen at separators, dots and colons only, so
/// that no character is ever split.
///
/// The surprise: a drive is any one character before a colon, a letter or not.
#pragma once

#include <cstddef>
#include <string_view>

#include "platform/World.h"
#include "text/EnvironmentReferences.h"
#include "vapp/text/CStringU.h"

namespace vapp_platform {

/// The world whose paths are meant, and where references to the environment are looked up. The function must
/// outlive the value.
struct PathRules {
    World world;
    const vapp_text::EnvironmentLookup& environment;
};

/// The rules of this process: its world, and the system's environment.
[[nodiscard]] PathRules CurrentPathRules();

/// No such place in a path.
inline constexpr std::size_t cnNone = std::string_view::npos;

/// The separators of folders.
inline constexpr std::string_view cnSeparators = "\\/";

/// True for "\" and "/".
template <typename Unit>
[[nodiscard]] constexpr bool IsSeparator(Unit unit) noexcept {
    return unit == Unit('\\') || unit == Unit('/');
}

/// True for what ends the part before a name: the colon of a drive counts too.
[[nodiscard]] constexpr bool IsNameSeparator(char byte) noexcept {
    return IsSeparator(byte) || byte == ':';
}

/// The place of the next separator at or behind `from`; cnNone without one.
[[nodiscard]] constexpr std::size_t FindSeparator(std::string_view text, std::size_t from) noexcept {
    while (from < text.size() && !IsSeparator(text[from]))
        ++from;
    return from < text.size() ? from : cnNone;
}

/// True where a text has a separator at its start, at its end, or twice at its start (a share).
[[nodiscard]] constexpr bool StartsWithSeparator(std::string_view text) noexcept {
    return !text.empty() && IsSeparator(text.front());
}
[[nodiscard]] constexpr bool EndsWithSeparator(std::string_view text) noexcept {
    return !text.empty() && IsSeparator(text.back());
}
[[nodiscard]] constexpr bool StartsWithTwoSeparators(std::string_view text) noexcept {
    return text.size() >= 2 && IsSeparator(text[0]) && IsSeparator(text[1]);
}

/// The bytes of the first two characters if the second one is a colon, otherwise 0.
[[nodiscard]] std::size_t DriveBytes(const CStringU& path) noexcept;

/// The place behind the first two characters, or the end of a shorter path.
[[nodiscard]] std::size_t StartOfThird(const CStringU& path) noexcept;

/// A piece of a path's payload as a text of its own, which has or has not the marker by its own content.
[[nodiscard]] CStringU PieceOf(const CStringU& path, std::string_view piece);

/// Payload bytes put together from pieces, as a text.
[[nodiscard]] CStringU TextOf(std::string_view payload);

}  // namespace vapp_platform
