/// @file
/// Absolute paths, and the normal form of a path: no ".", no ".." that can be resolved, no empty part, no
/// separator at the end, one kind of separator, references to the environment replaced.
///
///     "a/../.."         ".."           a relative path may begin with any number of ".."
///     "C:\a\..\.."      "C:\"          above a root there is nothing
///     "\\srv\a\.."      "\\srv\"       the share's machine is a prefix that stays; so is a drive
///     "$HOME/x"         "/home/me/x"
///
/// Separators come out as "\" on Windows, and in the world of Wine as "/", save in drive and share paths.
///
/// The surprises: references are replaced last, so what stands in a value stays as it is, ".." and "/" too;
/// and two separators at the start with no third one behind them are a mere root. So normalising twice is
/// normalising once, but for values, and for a name such as "D:." that the first time uncovers at the start.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "platform/PathRules.h"

namespace vapp_platform {

/// True for "X:\..." and "\\...", and in the world of Wine for what starts with any separator; judged after
/// normalising. Drive paths without a separator behind the colon are relative to the drive's folder.
[[nodiscard]] bool IsAbsolutePath(const CStringU& path, const PathRules& rules);

/// The normal form of a path; that of an empty one is empty.
[[nodiscard]] CStringU NormalizePath(const CStringU& path, const PathRules& rules);

/// The normal form before references are replaced, with "\" as the separator.
[[nodiscard]] std::u16string NormalizeUnits(std::u16string_view path);

/// The units at its start by which a path shows whether it is absolute.
inline constexpr std::size_t cnTellingUnits = 3;

/// True for a normal form, references replaced, that is absolute.
[[nodiscard]] bool IsAbsoluteForm(std::u16string_view normal, World world) noexcept;

}  // namespace vapp_platform
