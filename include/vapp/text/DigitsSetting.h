/// @file
/// The settings fields that hold a count of digits: what the user typed becomes a count that can be used.
///
///     text = space* [sign] digit+       anything else in front or behind makes it no number
///
/// In the active code page all of it is ASCII: under 1252 full-width digits are digits, under UTF-8 they are
/// not. How it differs from strtol: no other base, no rest behind the number, no overflow.
///
/// The texts come from dialogs and from settings files, so that nothing is refused: a number out of range is
/// clamped, and what is no number gives the default.
#pragma once

#include "vapp/Export.h"
#include "vapp/text/CStringU.h"

namespace vapp {

/// The least and the greatest count of significant digits.
[[nodiscard]] constexpr unsigned GetMinDigits() noexcept {
    return 1;
}
[[nodiscard]] constexpr unsigned GetMaxDigits() noexcept {
    return 18;
}

/// A count of significant digits, 1 to 18; 4 for what is no number.
[[nodiscard]] VAPP_EXPORT unsigned ParseDigitsSetting(const CStringU& text);

/// A count of digits behind the point, 0 to 17; 6 for what is no number.
[[nodiscard]] VAPP_EXPORT unsigned ParseDecimalsSetting(const CStringU& text);

}  // namespace vapp
