/// @file
/// strtod as it is in C's plain locale, on every system the same.
///
///     text    = space* [sign] number            the rest stays unread
///     number  = mantissa [("e" | "E") [sign] digit+]
///             | "0x" hexadecimal mantissa [("p" | "P") [sign] digit+]      also "0X"
///             | "inf" | "infinity" | "nan" | "nan(" letters, digits, "_" ")"    in any case
///
/// The C library's own strtod reads "1,5" or "1.5" as the host's locale says, and does not know all of these
/// forms on every system; files written by one must be read by the other. The value is correctly rounded.
/// A magnitude too great gives infinity and one too small 0, both with errno ERANGE, which is not touched
/// otherwise; a subnormal result is a result like any other, where most C libraries' strtod sets errno.
///
/// Not the reader of engineering numbers: that is ParseEngineering, which knows suffixes.
#pragma once

namespace vapp_text {

/// The number at `text`, which ends with a NUL. `end`, unless null, is set behind the number, or to `text` if
/// there is none; the value is 0 then.
double ReadDouble(const char* text, const char** end) noexcept;

}  // namespace vapp_text
