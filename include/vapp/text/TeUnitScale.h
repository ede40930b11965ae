/// @file
/// TeUnitScale: the notations that a number can be written in. For what reads numbers there are only two
/// readings, SI and SPICE; see CStringU::ToDoubleEngineering.
///
/// The values stand in settings files and option lists of hosts, so they stay as they are. Values outside of
/// the list can come in from there; they are legal, and state no choice.
#pragma once

/// How FormatEngineering writes a number's magnitude.
enum class TeUnitScale : int {
    Undefined = -1,  ///< no choice, as every other value outside of 0 to 4
    Si = 0,          ///< SI letters, from y to Y; mega is "M"
    Spice = 1,       ///< SPICE letters, from a to T; mega is "X"
    HSpice = 2,      ///< SPICE letters; mega is "MEG"
    Scientific = 3,  ///< one integer digit and always an exponent
    Engineering = 4  ///< always an exponent, a multiple of 3
};
