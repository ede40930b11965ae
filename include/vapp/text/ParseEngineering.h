/// @file
/// Numbers as chip designers write them: *1.5k*, *10MEG*, *3mil*, *2ft*, *50%*, *1e-9*.
///
///     text     = space* [sign] mantissa [exponent] [suffix]       the rest stays unread
///     space    = 0x20 | 0x09 to 0x0D
///     sign     = "+" | "-"
///     mantissa = digits and at most one ".", at least one digit   (5, 5., .5, 0.5)
///     digit    = "0" to "9"
///     exponent = ("e" | "E") [sign] digit+
///     suffix   = as text/EngineeringSuffix.h tells, by the SPICE reading or the SI reading
///
/// A suffix may follow an exponent: *1e3k* is 1e6. An "e" without digits behind it is no exponent, so *1e* is
/// 1 with the "e" unread to SPICE, and exa, 1e18, to SI.
///
/// How it differs from strtod: suffixes; always "." for the point, whatever the locale; no hexadecimal, "inf"
/// or "nan"; and the value is made by a few operations on doubles instead of a correct rounding. Only the
/// first 18 digits count, leading zeros among them; they become a double, that is multiplied by the suffix's
/// factor and then multiplied or divided by a power of ten, which is a product of 1e1, 1e2, 1e4 ... 1e256.
/// Stored values rely on each bit of this, and on what follows from it:
///  - results are correct to a few units in the last place, and exact for short numbers;
///  - the power of ten is infinite from 1e309 on: *1e-310* is 0, *1e309* infinite and *0e309* not a number;
///  - *0.00000000000000000012* is 0: its 18 digits are all zeros.
/// A power beyond 511 counts as 511 and sets errno to ERANGE; nothing else touches errno. The error text
/// stays empty then: overflow was never reported by it, and callers show every error text to the user.
///
/// The end position, where there is a number:
///  - behind the suffix where there is one, in both readings;
///  - in the SPICE reading without a suffix: behind the number;
///  - in the SI reading without a suffix: *on the last character of the number*. Callers of the SI reading
///    count on it.
/// Where there is no number, the value is 0 and the end is not written.
///
/// Text of FormatEngineering is not always read as the number it was made from: docs/numbers.md lists where.
#pragma once

#include <boost/logic/tribool.hpp>

#include "vapp/Export.h"
#include "vapp/text/CStringU.h"

namespace vapp {

/// Reads a number from text that ends with a NUL; a null pointer is empty text. `value` gets the number,
/// `end` the end position unless it is null. `siSuffix` chooses the SI reading of suffixes before the SPICE
/// one. Returns "Not a number", or empty text for success.
[[nodiscard]] VAPP_EXPORT CStringU ParseEngineering(const char* text, double* value, const char** end,
                                                    bool siSuffix);
/// The same on wide text: only ASCII characters mean anything, values above 0xFFFF too end the number.
[[nodiscard]] VAPP_EXPORT CStringU ParseEngineering(const wchar_t* text, double* value, const wchar_t** end,
                                                    bool siSuffix);
[[nodiscard]] VAPP_EXPORT CStringU ParseEngineering(const char16_t* text, double* value, const char16_t** end,
                                                    bool siSuffix);

/// The same without words: false for "Not a number". For those who show no error text, and would pay for it.
[[nodiscard]] VAPP_EXPORT bool ReadEngineering(const char* text, double* value, const char** end,
                                               bool siSuffix) noexcept;

/// The same with the process' default reading of suffixes where the caller states none. A CStringU is read in
/// the active code page, whose conversion may turn a foreign character into an ASCII one.
[[nodiscard]] VAPP_EXPORT CStringU ParseEngineeringWithSettings(const CStringU& text, double* value,
                                                                boost::logic::tribool siSuffix);
[[nodiscard]] VAPP_EXPORT CStringU ParseEngineeringWithSettings(const char* text, double* value,
                                                                boost::logic::tribool siSuffix);

}  // namespace vapp
