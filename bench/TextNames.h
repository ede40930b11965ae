/// @file
/// The names that the text benches compare: like those of cell libraries, many of them and with long common
/// prefixes, in ASCII and with other scripts in them; the same for every peer.
#pragma once

#include <string>
#include <utility>
#include <vector>

namespace bench_names {

/// Which characters the names have.
enum class Script { Ascii, NonAscii };
/// Which names meet in a compare.
enum class Meeting {
    Neighbours,  ///< two that follow one another in a sorted list: most of a sort's later compares
    Random,      ///< any two: most differ in the first characters
    OtherCase,   ///< a name and itself with the case turned around: equal, so that all of it is read
};

/// Pairs of names as UTF-8, always the same ones.
[[nodiscard]] std::vector<std::pair<std::string, std::string>> Pairs(Script script, Meeting meeting);

}  // namespace bench_names
