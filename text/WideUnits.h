/// @file
/// The border between `wchar_t` and the 16-bit units of the text model.
///
/// Where `wchar_t` has 16 bits the two are the same. Where it has 32, a value above 0xFFFF comes in as a
/// surrogate pair, one beyond Unicode as "?" (as any hopeless lead byte does); on the way out each unit
/// simply becomes one `wchar_t`, so that a pair stays two of them.
#pragma once

#include <cstddef>
#include <string>

#include "text/Codec.h"

namespace vapp_text {

/// Appends the unit, or the pair of units, of one `wchar_t`.
inline void AppendUnits(wchar_t character, std::u16string& units) {
    const auto value = static_cast<char32_t>(character);
    if (sizeof(wchar_t) == sizeof(char16_t) || value <= 0xFFFFU) {
        units += static_cast<char16_t>(value);
    } else if (value <= 0x10FFFFU) {
        units += static_cast<char16_t>(0xD800U + ((value - 0x10000U) >> 10U));
        units += static_cast<char16_t>(0xDC00U + ((value - 0x10000U) & 0x3FFU));
    } else {
        units += cnBadLeadChar;
    }
}

/// The units of wide text up to its NUL or, with a `count` of 0 and more, at most that many `wchar_t`. A null
/// pointer gives none.
[[nodiscard]] inline std::u16string ToUnits(const wchar_t* text, int count = -1) {
    std::u16string units;
    if (text == nullptr) return units;
    for (std::size_t i = 0; (count < 0 || i < static_cast<std::size_t>(count)) && text[i] != L'\0'; ++i) {
        AppendUnits(text[i], units);
    }
    return units;
}

}  // namespace vapp_text
