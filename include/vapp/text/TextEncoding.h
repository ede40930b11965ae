/// @file
/// TextEncoding: how the bytes that come into a CStringU are to be read.
#pragma once

/// How CStringU::Assign reads incoming bytes. The numbers are fixed: hosts keep them.
enum class TextEncoding {
    /// Copied as they stand; nothing is added. For bytes that are known to be ASCII.
    Raw = 0,
    /// All ASCII: copied. Otherwise converted from the active code page.
    AnsiAuto = 1,
    /// Always converted from the active code page.
    Ansi = 2,
    /// All ASCII: copied. Otherwise as Utf8.
    Utf8Auto = 3,
    /// UTF-8: if the first byte is ASCII, the marker is put in front without a look at the rest, so that pure
    /// ASCII gets a marker that it does not need; otherwise copied.
    Utf8 = 4,
};
