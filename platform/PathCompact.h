/// @file
/// Shortens a path for display, by leaving out folders in the middle: "C:\dir\...\sub\file.txt".
///
/// Lengths are characters, not bytes and not pixels. The result is for people's eyes and names no file.
#pragma once

#include "platform/PathRules.h"

namespace vapp_platform {

/// The path if it has at most `maximum` characters. Otherwise its root (with the first folder, or the share),
/// "\..." or "/...", and as many of its last parts as fit; the file name alone where not even that fits; and
/// where `maximum` is below the name's own length, the name if `keepName`, else empty text. So only a kept
/// name is ever longer than `maximum`.
[[nodiscard]] CStringU CompactPath(const CStringU& path, int maximum, bool keepName);

}  // namespace vapp_platform
