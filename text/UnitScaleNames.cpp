/// The words of the notations: keywords for files, names for people.

#include <array>
#include <cstddef>

#include "vapp/text/FormatEngineering.h"

namespace vapp {

namespace {

struct TScaleWords {
    const char* m_keyword;
    const char* m_name;
};

/// In the order of TeUnitScale; the last row is that of all other values.
constexpr std::array<TScaleWords, 6> ScaleWordTable = {{
    {"si", "SI"},
    {"spice", "Spice"},
    {"hspice", "HSpice"},
    {"scientific", "Scientific"},
    {"engineering", "Engineering"},
    {"undefined", "Undefined"},
}};

const TScaleWords& FindWords(TeUnitScale scale) noexcept {
    if (scale < TeUnitScale::Si || scale > TeUnitScale::Engineering) return ScaleWordTable.back();
    return ScaleWordTable[static_cast<std::size_t>(scale)];
}

}  // namespace

CStringU UnitScaleKeyword(TeUnitScale scale) {
    return FindWords(scale).m_keyword;
}

CStringU UnitScaleName(TeUnitScale scale) {
    return FindWords(scale).m_name;
}

}  // namespace vapp
