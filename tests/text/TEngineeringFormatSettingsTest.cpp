// The stored defaults of number reading and writing, and who wins: the caller's choice or they.

#include "vapp/text/TEngineeringFormatSettings.h"

#include <gtest/gtest.h>

#include <type_traits>

namespace {

using boost::logic::indeterminate;
using boost::logic::tribool;

constexpr TeUnitScale cnScales[] = {TeUnitScale::Si, TeUnitScale::Spice, TeUnitScale::HSpice,
                                    TeUnitScale::Scientific, TeUnitScale::Engineering};
const TeUnitScale cnNoScales[] = {TeUnitScale::Undefined, static_cast<TeUnitScale>(5),
                                  static_cast<TeUnitScale>(2147483647)};

TEST(TEngineeringFormatSettings, TheNotationsKeepTheirValues) {
    for (int value = 0; value < 5; ++value) {
        EXPECT_EQ(static_cast<int>(cnScales[value]), value);
    }
    static_assert(std::is_same_v<std::underlying_type_t<TeUnitScale>, int>);
}

TEST(TEngineeringFormatSettings, AHostThatSaysNothingReadsAndWritesSi) {
    const TEngineeringFormatSettings settings;
    EXPECT_TRUE(settings.GetValidEngineeringFormatUseSiSuffixInsteadOfSpice(indeterminate));
    EXPECT_EQ(settings.GetDefaultEngineeringFormatUnitScale(), TeUnitScale::Si);
    EXPECT_TRUE(settings.GetValidEngineeringFormatRemoveTrailingZeroes(indeterminate));
    EXPECT_TRUE(settings.GetValidEngineeringFormatRemoveZeroExponents(indeterminate));
    EXPECT_EQ(settings.GetDefaultEngineeringFormatDigits(), 4U);
}

TEST(TEngineeringFormatSettings, AStatedChoiceWinsAndAnUndecidedOneTakesTheDefault) {
    TEngineeringFormatSettings settings;
    for (const bool stored : {false, true}) {
        settings.SetDefaultEngineeringFormatUseSiSuffixInsteadOfSpice(stored);
        settings.SetDefaultEngineeringFormatRemoveTrailingZeroes(stored);
        settings.SetDefaultEngineeringFormatRemoveZeroExponents(stored);
        for (const tribool choice : {tribool(false), tribool(true), tribool(indeterminate)}) {
            const bool wanted = indeterminate(choice) ? stored : static_cast<bool>(choice);
            EXPECT_EQ(settings.GetValidEngineeringFormatUseSiSuffixInsteadOfSpice(choice), wanted);
            EXPECT_EQ(settings.GetValidEngineeringFormatRemoveTrailingZeroes(choice), wanted);
            EXPECT_EQ(settings.GetValidEngineeringFormatRemoveZeroExponents(choice), wanted);
        }
    }
}

TEST(TEngineeringFormatSettings, EachSettingIsOneOfItsOwn) {
    TEngineeringFormatSettings settings;
    settings.SetDefaultEngineeringFormatRemoveTrailingZeroes(false);
    EXPECT_TRUE(settings.GetValidEngineeringFormatUseSiSuffixInsteadOfSpice(indeterminate));
    EXPECT_TRUE(settings.GetValidEngineeringFormatRemoveZeroExponents(indeterminate));
    settings.SetDefaultEngineeringFormatRemoveTrailingZeroes(true);
    settings.SetDefaultEngineeringFormatRemoveZeroExponents(false);
    EXPECT_TRUE(settings.GetValidEngineeringFormatUseSiSuffixInsteadOfSpice(indeterminate));
    EXPECT_TRUE(settings.GetValidEngineeringFormatRemoveTrailingZeroes(indeterminate));
    settings.SetDefaultEngineeringFormatUnitScale(TeUnitScale::Spice);
    EXPECT_TRUE(settings.GetValidEngineeringFormatUseSiSuffixInsteadOfSpice(indeterminate));
}

TEST(TEngineeringFormatSettings, AValueThatIsNoNotationStatesNoChoice) {
    TEngineeringFormatSettings settings;
    for (const TeUnitScale stored : cnScales) {
        settings.SetDefaultEngineeringFormatUnitScale(stored);
        for (const TeUnitScale choice : cnScales) {
            EXPECT_EQ(settings.GetValidEngineeringFormatUnitScale(choice), choice);
        }
        for (const TeUnitScale choice : cnNoScales) {
            EXPECT_EQ(settings.GetValidEngineeringFormatUnitScale(choice), stored);
        }
    }
}

TEST(TEngineeringFormatSettings, AValueThatIsNoNotationIsNotStored) {
    TEngineeringFormatSettings settings;
    settings.SetDefaultEngineeringFormatUnitScale(TeUnitScale::HSpice);
    for (const TeUnitScale scale : cnNoScales) {
        settings.SetDefaultEngineeringFormatUnitScale(scale);
        EXPECT_EQ(settings.GetDefaultEngineeringFormatUnitScale(), TeUnitScale::HSpice);
    }
}

TEST(TEngineeringFormatSettings, DigitsStayWithinWhatASettingsFieldHolds) {
    TEngineeringFormatSettings settings;
    for (unsigned digits = 1; digits <= 18; ++digits) {
        settings.SetDefaultEngineeringFormatDigits(digits);
        EXPECT_EQ(settings.GetDefaultEngineeringFormatDigits(), digits);
    }
    settings.SetDefaultEngineeringFormatDigits(0);
    EXPECT_EQ(settings.GetDefaultEngineeringFormatDigits(), 1U) << "0 would mean the default itself";
    settings.SetDefaultEngineeringFormatDigits(4000000000U);
    EXPECT_EQ(settings.GetDefaultEngineeringFormatDigits(), 18U);
}

TEST(TEngineeringFormatSettings, TheProcessHasOneObject) {
    EXPECT_EQ(&gGetEngineeringFormatSettings(), &gGetEngineeringFormatSettings());
}

}  // namespace
