/// @file
/// The unit letters of the notations, in one table: what a power of a thousand is called.
///
/// For writing only. The letters that are read are more, and not the same: see vapp/text/ParseEngineering.h.
#pragma once

#include "vapp/text/TeUnitScale.h"

namespace vapp_text {

inline constexpr int cnFirstUnitExponent = -24;
inline constexpr int cnBehindUnitExponents = 27;  // 26 is still "Y", tens of it

/// A suffix's letters in a block of fixed size, which can be copied whole.
struct TUnitSuffix {
    char m_letters[4] = {};
    int m_length = 0;

    constexpr TUnitSuffix(const char* letters) noexcept {  // the table's rows are plain literals
        while (letters[m_length] != '\0') {
            m_letters[m_length] = letters[m_length];
            ++m_length;
        }
    }
};

/// One row for each multiple of 3; its suffixes for Si, Spice and HSpice. Empty: an exponent is written. The
/// space of exponent 0 is a suffix as the others are.
inline constexpr TUnitSuffix UnitSuffixTable[][3] = {
    {"y", "", ""},      // -24
    {"z", "", ""},      // -21
    {"a", "a", "a"},    // -18
    {"f", "f", "f"},    // -15
    {"p", "p", "p"},    // -12
    {"n", "n", "n"},    // -9
    {"u", "u", "u"},    // -6
    {"m", "m", "m"},    // -3
    {" ", " ", " "},    // 0
    {"k", "k", "k"},    // 3
    {"M", "X", "MEG"},  // 6
    {"G", "G", "G"},    // 9
    {"T", "T", "T"},    // 12
    {"P", "", ""},      // 15
    {"E", "", ""},      // 18
    {"Z", "", ""},      // 21
    {"Y", "", ""},      // 24
};
inline constexpr TUnitSuffix NoUnitSuffix = "";

/// The suffix of any exponent; empty where there is none.
[[nodiscard]] constexpr const TUnitSuffix& FindUnitSuffix(int exponent, TeUnitScale scale) noexcept {
    if (scale < TeUnitScale::Si || scale > TeUnitScale::HSpice) return NoUnitSuffix;
    if (exponent < cnFirstUnitExponent || exponent >= cnBehindUnitExponents) return NoUnitSuffix;
    return UnitSuffixTable[(exponent - cnFirstUnitExponent) / 3][static_cast<int>(scale)];
}

}  // namespace vapp_text
