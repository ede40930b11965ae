/// @file
/// The "&" that marks the key of a menu item or button, taken out of its text.
///
/// A doubled "&&" is nothing special: its first half goes. Not for texts shown by a toolkit that doubles
/// them.
#pragma once

#include <string>
#include <string_view>

#include "vapp/text/CString.h"

namespace vapp_text {

/// The text without its first "&", if one stands before the last character.
[[nodiscard]] CString StripAccelerator(const CString& text);
[[nodiscard]] std::u16string StripAccelerator(std::u16string_view text);

}  // namespace vapp_text
