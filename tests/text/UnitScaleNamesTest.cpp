// The words of the notations.

#include <gtest/gtest.h>

#include <climits>

#include "vapp/text/FormatEngineering.h"

namespace {

TEST(UnitScaleNames, HaveAKeywordAndANameForEachNotation) {
    struct TRow {
        int scale;
        const char* keyword;
        const char* name;
    };
    constexpr TRow rows[] = {
        {0, "si", "SI"},
        {1, "spice", "Spice"},
        {2, "hspice", "HSpice"},
        {3, "scientific", "Scientific"},
        {4, "engineering", "Engineering"},
        {5, "undefined", "Undefined"},
        {-1, "undefined", "Undefined"},
        {INT_MAX, "undefined", "Undefined"},
        {INT_MIN, "undefined", "Undefined"},
    };
    for (const TRow& row : rows) {
        EXPECT_EQ(vapp::UnitScaleKeyword(static_cast<TeUnitScale>(row.scale)), row.keyword) << row.scale;
        EXPECT_EQ(vapp::UnitScaleName(static_cast<TeUnitScale>(row.scale)), row.name) << row.scale;
    }
}

}  // namespace
