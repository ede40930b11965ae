/// @file
/// EngineeringFormatOption: what a number's text is to look like, as codes that stand in option lists.
#pragma once

namespace vapp {

/// One wish of an option list. The codes stand in files of hosts, so they stay as they are; any other code is
/// no option and changes nothing.
enum class EngineeringFormatOption : int {
    None = -1,     ///< no option: fills a place
    Decimals = 0,  ///< `digits` count the digits behind the point, not the significant ones
    Align = 1,     ///< for columns: see FormatEngineering
    RemoveTrailingZeroes = 2,
    KeepTrailingZeroes = 3,
    RemoveZeroExponents = 4,
    KeepZeroExponents = 5,
    Si = 6,  ///< the notations of TeUnitScale, in its order
    Spice = 7,
    HSpice = 8,
    Scientific = 9,
    Engineering = 10
};

}  // namespace vapp
