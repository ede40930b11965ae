/// @file
/// Reads shortcuts of Windows (the open Shell Link format, files "*.lnk") where no shell does: the places
/// that one names as its target. Pure: bytes in, texts out, on any system.
///
/// Not read: the list of shell item ids, which only a shell can interpret, the icon, and the extra blocks
/// behind the strings. A shortcut to something that has no path (a printer) so has no target here.
///
/// The layout, all numbers little-endian:
///
///     file      = header [ids] [info] strings...
///     header    = 76 bytes: size %x4C, class id, flags; the rest says nothing of the target
///     ids       = size16 bytes                           ; skipped
///     info      = size32 headerSize32 flags32 volumeAt32 localAt32 networkAt32 suffixAt32
///                 [localWideAt32 suffixWideAt32] ...     ; both only if headerSize is 36 or more
///     network   = size32 flags32 nameAt32 deviceAt32 type32 [nameWideAt32 deviceWideAt32] ...
///     string    = count16 characters                     ; 16 bits each where the header's flags say so
///
/// Each "At" is an offset from the start of its own structure, to a text with a NUL at its end. Whatever a
/// file claims, nothing outside of the bytes is read: an offset that leads out of its structure gives empty
/// text, and a file cut off gives what stood in front of the cut.
#pragma once

#include <optional>
#include <string_view>

#include "vapp/text/CStringU.h"

namespace vapp_platform {

/// What a shortcut says of its target, with `\` as separator; empty where it says nothing.
struct TShellLink {
    CStringU localPath;     ///< on a drive of the machine where the shortcut was made
    CStringU networkPath;   ///< `\\server\share\...`
    CStringU relativePath;  ///< as seen from the shortcut's folder
};

/// Reads the bytes of a file; nothing where they are no shortcut.
[[nodiscard]] std::optional<TShellLink> ReadShellLink(std::string_view bytes);

}  // namespace vapp_platform
