// Number texts by tables: notations, unit letters, options, the settings behind them, and values that are no
// numbers. Against big decimals: FormatEngineeringModelTest.cpp.

#include "vapp/text/FormatEngineering.h"

#include <gtest/gtest.h>

#include <climits>
#include <clocale>
#include <cmath>
#include <limits>
#include <string>

#include "tests/text/LocaleGuard.h"
#include "vapp/text/TEngineeringFormatSettings.h"

namespace {

using boost::logic::indeterminate;
using vapp::EngineeringFormatOption;
using vapp::FormatDistinct;
using vapp::FormatEngineering;
using vapp::FormatEngineeringFull;
using vapp::FormatEngineeringOptions;
using vapp::UnitSuffix;

constexpr double cnInfinity = std::numeric_limits<double>::infinity();
constexpr double cnNaN = std::numeric_limits<double>::quiet_NaN();
constexpr bool cnSignificant = true;
constexpr bool cnDecimals = false;

TeUnitScale Scale(int number) {
    return static_cast<TeUnitScale>(number);
}

CStringU WithOption(double value, int code) {
    return FormatEngineeringOptions(value, 4, static_cast<EngineeringFormatOption>(code));
}

// Significant digits, not aligned, zeroes removed.
CStringU Short(double value, unsigned digits, TeUnitScale scale) {
    return FormatEngineering(value, digits, cnSignificant, false, true, scale, true);
}

CStringU Long(double value, unsigned digits, bool significant, TeUnitScale scale = TeUnitScale::Si) {
    return FormatEngineering(value, digits, significant, false, false, scale, false);
}

CStringU Aligned(double value, unsigned digits, bool strip, TeUnitScale scale = TeUnitScale::Si) {
    return FormatEngineering(value, digits, cnSignificant, true, strip, scale, true);
}

// Puts the process' settings back as they are for a process that says nothing.
class FormatEngineeringText : public testing::Test {
protected:
    void TearDown() override {
        TEngineeringFormatSettings& settings = gGetEngineeringFormatSettings();
        settings.SetDefaultEngineeringFormatUnitScale(TeUnitScale::Si);
        settings.SetDefaultEngineeringFormatDigits(4);
        settings.SetDefaultEngineeringFormatRemoveTrailingZeroes(true);
        settings.SetDefaultEngineeringFormatRemoveZeroExponents(true);
    }
};

TEST_F(FormatEngineeringText, WritesUnitLetters) {
    EXPECT_EQ(Short(1500, 3, TeUnitScale::Si), "1.5k");
    EXPECT_EQ(Long(1500, 3, cnDecimals), "1.500k");
    EXPECT_EQ(Short(1e6, 3, TeUnitScale::Si), "1M");
    EXPECT_EQ(Short(1e6, 3, TeUnitScale::Spice), "1X");
    EXPECT_EQ(Short(1e6, 3, TeUnitScale::HSpice), "1MEG");
    EXPECT_EQ(Short(-2.2e-12, 4, TeUnitScale::Si), "-2.2p");
    EXPECT_EQ(Short(470, 3, TeUnitScale::Si), "470");
}

TEST_F(FormatEngineeringText, WritesAnExponentWhereThereIsNoLetter) {
    EXPECT_EQ(Short(1e-27, 3, TeUnitScale::Si), "1e-027");
    EXPECT_EQ(Short(1e15, 3, TeUnitScale::Spice), "1e015");
    EXPECT_EQ(Short(1e27, 3, TeUnitScale::Si), "1e027");
    EXPECT_EQ(Short(-1.7976931348623157e308, 3, TeUnitScale::Si), "-180e306");
    EXPECT_EQ(Short(5e-324, 3, TeUnitScale::Si), "4.94e-324");
}

TEST_F(FormatEngineeringText, WritesExponentsInScientificAndEngineeringNotation) {
    EXPECT_EQ(Short(1500, 3, TeUnitScale::Scientific), "1.5e003");
    EXPECT_EQ(Short(1500, 3, TeUnitScale::Engineering), "1.5e003");
    EXPECT_EQ(Short(15000, 3, TeUnitScale::Scientific), "1.5e004");
    EXPECT_EQ(Short(15000, 3, TeUnitScale::Engineering), "15e003");
    EXPECT_EQ(Short(-1.5e-5, 3, TeUnitScale::Scientific), "-1.5e-005");
    EXPECT_EQ(Short(-1.5e-5, 3, TeUnitScale::Engineering), "-15e-006");
}

TEST_F(FormatEngineeringText, KeepsOrRemovesAZeroExponent) {
    EXPECT_EQ(FormatEngineering(1, 3, true, false, true, TeUnitScale::Engineering, true), "1");
    EXPECT_EQ(FormatEngineering(1, 3, true, false, true, TeUnitScale::Engineering, false), "1e000");
    EXPECT_EQ(FormatEngineering(10, 3, true, false, true, TeUnitScale::Engineering, false), "10e000");
    EXPECT_EQ(FormatEngineering(10, 3, true, false, true, TeUnitScale::Scientific, true), "1e001");
    EXPECT_EQ(FormatEngineering(1, 3, true, false, true, TeUnitScale::Scientific, true), "1");
    EXPECT_EQ(FormatEngineering(1, 3, true, false, true, TeUnitScale::Si, false), "1")
        << "a letter is no exponent";
}

TEST_F(FormatEngineeringText, CarriesIntoANewDigit) {
    EXPECT_EQ(Long(9.999, 2, cnDecimals), "10.00");
    EXPECT_EQ(Long(99.999, 2, cnDecimals), "100.00");
    EXPECT_EQ(Long(999.999, 2, cnDecimals), "1.00k")
        << "the first rounding carries before the digits are counted";
    EXPECT_EQ(Long(9999.9, 2, cnDecimals), "10.00k");
    EXPECT_EQ(Long(-9.999e-7, 2, cnDecimals), "-999.90n");
    EXPECT_EQ(Short(999.9, 3, TeUnitScale::Si), "1k");
    EXPECT_EQ(Short(9.9996e-13, 4, TeUnitScale::Si), "1p");
}

TEST_F(FormatEngineeringText, RoundsDecimalsTwice) {
    // 1.234996 is 1.2350 with five digits, and that is 1.24; rounded at once it would be 1.23.
    EXPECT_EQ(Long(1.234996, 2, cnDecimals), "1.24");
    EXPECT_EQ(Long(12.34496, 1, cnDecimals), "12.3") << "12.34 first";
    EXPECT_EQ(Long(12.3496, 1, cnDecimals), "12.4") << "12.35 first";
    EXPECT_EQ(Long(0.5, 1, cnDecimals), "500.0m");
}

TEST_F(FormatEngineeringText, RoundsTiesToEvenOnceAndAwayFromZeroTwice) {
    EXPECT_EQ(Short(1.0625, 4, TeUnitScale::Si), "1.062");
    EXPECT_EQ(Short(1.1875, 4, TeUnitScale::Si), "1.188");
    EXPECT_EQ(Short(2.5, 3, TeUnitScale::Si), "2.5");
    EXPECT_EQ(Long(1.0625, 3, cnDecimals), "1.063") << "the second rounding, of a digit 5";
    EXPECT_EQ(Long(-1.0625, 3, cnDecimals), "-1.063");
}

TEST_F(FormatEngineeringText, WritesZeroWithTheDigitsAskedFor) {
    EXPECT_EQ(Short(0.0, 3, TeUnitScale::Si), "0");
    EXPECT_EQ(Short(-0.0, 3, TeUnitScale::Si), "0");
    EXPECT_EQ(Long(0.0, 1, cnSignificant), "0.");
    EXPECT_EQ(Long(0.0, 2, cnSignificant), "0.0");
    EXPECT_EQ(Long(0.0, 3, cnSignificant), "0.00");
    EXPECT_EQ(Long(0.0, 3, cnDecimals), "0.000");
    EXPECT_EQ(Long(-0.0, 3, cnDecimals), "0.000");
    EXPECT_EQ(Long(0.0, 3, cnSignificant, TeUnitScale::Scientific), "0.00e000");
    EXPECT_EQ(Aligned(0.0, 3, true), "   0.       ");
    EXPECT_EQ(Aligned(-0.0, 3, true), "   0.       ");
}

TEST_F(FormatEngineeringText, WritesZeroWithTheSettingsDigits) {
    EXPECT_EQ(Long(0.0, 0, cnSignificant), "0.000");
    EXPECT_EQ(Long(0.0, 0, cnDecimals), "0.0000");
    gGetEngineeringFormatSettings().SetDefaultEngineeringFormatDigits(1);
    EXPECT_EQ(Long(0.0, 0, cnSignificant), "0.");
    EXPECT_EQ(Long(0.0, 0, cnDecimals), "0.0");
    EXPECT_EQ(Short(0.0, 0, TeUnitScale::Si), "0");
}

TEST_F(FormatEngineeringText, WritesAtLeastThreeSignificantDigits) {
    EXPECT_EQ(Long(123456, 1, cnSignificant), "123.k");
    EXPECT_EQ(Long(1.23456, 2, cnSignificant), "1.23");
    EXPECT_EQ(Long(1.23456, 1, cnDecimals), "1.2") << "decimals have no such limit";
}

TEST_F(FormatEngineeringText, KeepsThePointWithTheZeroes) {
    EXPECT_EQ(Long(100, 3, cnSignificant), "100.");
    EXPECT_EQ(Long(100e3, 3, cnSignificant), "100.k");
    EXPECT_EQ(Short(100, 3, TeUnitScale::Si), "100");
    EXPECT_EQ(Short(100, 5, TeUnitScale::Si), "100");
    EXPECT_EQ(Short(1e20, 3, TeUnitScale::Si), "100E") << "only zeroes behind the point are removed";
}

TEST_F(FormatEngineeringText, AlignsColumns) {
    EXPECT_EQ(Aligned(1, 3, true), "   1.       ");
    EXPECT_EQ(Aligned(1.5, 3, false), "   1.50     ");
    EXPECT_EQ(Aligned(-15, 3, false), " -15.0      ");
    EXPECT_EQ(Aligned(-150, 3, false), "-150.       ");
    EXPECT_EQ(Aligned(150e-6, 3, false), " 150.u      ");
    EXPECT_EQ(Aligned(1e6, 3, false, TeUnitScale::HSpice), "   1.00MEG  ");
    EXPECT_EQ(Aligned(1e-300, 3, false), "   1.00e-300");
    EXPECT_EQ(Aligned(-123e-300, 3, false), "-123.e-300  ");
    EXPECT_EQ(Aligned(12345, 3, false, TeUnitScale::Scientific), "   1.23e004 ");
    EXPECT_EQ(FormatEngineering(1.5, 3, cnDecimals, true, false, TeUnitScale::Si, true), "   1.500       ");
}

TEST_F(FormatEngineeringText, ShowsEngineeringDecimalsInScientificNotation) {
    EXPECT_EQ(Long(1.23456, 2, cnDecimals, TeUnitScale::Scientific), "1.23e000");
    EXPECT_EQ(Long(12.3456, 2, cnDecimals, TeUnitScale::Scientific), "1.235e001");
    EXPECT_EQ(Long(123.456, 2, cnDecimals, TeUnitScale::Scientific), "1.2346e002");
    EXPECT_EQ(Long(1234.56, 2, cnDecimals, TeUnitScale::Scientific), "1.23e003");
    EXPECT_EQ(Long(9.999, 2, cnDecimals, TeUnitScale::Scientific), "1.000e001") << "carried into a new digit";
}

TEST_F(FormatEngineeringText, WritesWordsForWhatIsNoNumber) {
    for (const TeUnitScale scale : {TeUnitScale::Si, TeUnitScale::HSpice, TeUnitScale::Scientific}) {
        for (const unsigned digits : {1U, 4U, 18U}) {
            for (const bool significant : {cnSignificant, cnDecimals}) {
                EXPECT_EQ(Long(cnNaN, digits, significant, scale), "nan");
                EXPECT_EQ(Long(-cnNaN, digits, significant, scale), "nan");
                EXPECT_EQ(Long(cnInfinity, digits, significant, scale), "inf");
                EXPECT_EQ(Long(-cnInfinity, digits, significant, scale), "-inf");
            }
        }
    }
    EXPECT_EQ(Aligned(cnNaN, 3, true), " nan        ");
    EXPECT_EQ(Aligned(cnInfinity, 3, false), " inf        ");
    EXPECT_EQ(Aligned(-cnInfinity, 3, false), "-inf        ");
    EXPECT_EQ(FormatEngineeringFull(-cnInfinity), "-inf");
}

TEST_F(FormatEngineeringText, WritesAnyCountOfDigitsWithinBounds) {
    EXPECT_EQ(Long(0.1, 60, cnSignificant), "100.000000000000005551115123125782702118158340454101562500000m");
    const std::string longest(Long(5e-324, 800, cnSignificant).Payload());
    EXPECT_EQ(longest.size(), 801 + std::string("e-324").size());
    for (const unsigned digits : {797U, 798U, 800U, 801U, 4'000'000'000U, UINT_MAX - 2, UINT_MAX}) {
        EXPECT_EQ(Long(5e-324, digits, cnDecimals).GetByteLength(), 1 + 797 + 1 + 5) << digits;
        EXPECT_EQ(Long(0.0, digits, cnDecimals).GetByteLength(), 2 + static_cast<int>(std::min(digits, 799U)))
            << digits;
    }
    for (const unsigned digits : {800U, 801U, 4'000'000'000U, UINT_MAX}) {
        EXPECT_EQ(std::string(Long(5e-324, digits, cnSignificant).Payload()), longest) << digits;
        EXPECT_EQ(Aligned(1, digits, true).GetByteLength(), 809) << digits;
        EXPECT_EQ(Aligned(-cnInfinity, digits, true).GetByteLength(), 809) << digits;
        EXPECT_EQ(Short(0.0, digits, TeUnitScale::Si), "0") << digits;
    }
}

TEST_F(FormatEngineeringText, AsksTheSettingsWhereNoChoiceIsStated) {
    const auto ask = [](double value, unsigned digits, TeUnitScale scale) {
        return FormatEngineering(value, digits, cnSignificant, false, indeterminate, scale, indeterminate);
    };
    EXPECT_EQ(ask(1234567, 0, TeUnitScale::Undefined), "1.235M");
    EXPECT_EQ(ask(1, 0, TeUnitScale::Engineering), "1");
    TEngineeringFormatSettings& settings = gGetEngineeringFormatSettings();
    settings.SetDefaultEngineeringFormatDigits(6);
    settings.SetDefaultEngineeringFormatUnitScale(TeUnitScale::HSpice);
    settings.SetDefaultEngineeringFormatRemoveTrailingZeroes(false);
    settings.SetDefaultEngineeringFormatRemoveZeroExponents(false);
    EXPECT_EQ(ask(1234567, 0, Scale(5)), "1.23457MEG");
    EXPECT_EQ(ask(1.5, 3, Scale(-7)), "1.50");
    EXPECT_EQ(ask(1, 3, TeUnitScale::Engineering), "1.00e000");
    EXPECT_EQ(ask(1e6, 3, TeUnitScale::Si), "1.00M") << "a choice wins";
}

TEST_F(FormatEngineeringText, TakesEveryOutsideScaleForNoChoice) {
    for (const int scale : {INT_MIN, -1, 5, 6, 1000, INT_MAX}) {
        EXPECT_EQ(Short(1e6, 3, Scale(scale)), "1M") << scale;
        EXPECT_EQ(FormatDistinct(1e6, 2e6, Scale(scale)), "1M") << scale;
    }
}

// --- Options -----------------------------------------------------------------------------------------

TEST_F(FormatEngineeringText, AppliesEachOption) {
    using Option = EngineeringFormatOption;
    struct TRow {
        Option option;
        const char* ofSmall;  // of 1.5, digits 4
        const char* ofBig;    // of 12e6, digits 4
    };
    TEngineeringFormatSettings& settings = gGetEngineeringFormatSettings();
    settings.SetDefaultEngineeringFormatRemoveTrailingZeroes(false);
    const TRow rows[] = {
        {Option::None, "1.500", "12.00M"},
        {Option::Decimals, "1.5000", "12.0000M"},
        {Option::Align, "   1.500     ", "  12.00M     "},
        {Option::RemoveTrailingZeroes, "1.5", "12M"},
        {Option::KeepTrailingZeroes, "1.500", "12.00M"},
        {Option::RemoveZeroExponents, "1.500", "12.00M"},
        {Option::KeepZeroExponents, "1.500", "12.00M"},
        {Option::Si, "1.500", "12.00M"},
        {Option::Spice, "1.500", "12.00X"},
        {Option::HSpice, "1.500", "12.00MEG"},
        {Option::Scientific, "1.500", "1.200e007"},
        {Option::Engineering, "1.500", "12.00e006"},
        {static_cast<Option>(11), "1.500", "12.00M"},
        {static_cast<Option>(-2), "1.500", "12.00M"},
        {static_cast<Option>(INT_MAX), "1.500", "12.00M"},
        {static_cast<Option>(INT_MIN), "1.500", "12.00M"},
    };
    for (const TRow& row : rows) {
        EXPECT_EQ(FormatEngineeringOptions(1.5, 4, row.option), row.ofSmall) << static_cast<int>(row.option);
        EXPECT_EQ(FormatEngineeringOptions(12e6, 4, row.option), row.ofBig) << static_cast<int>(row.option);
        EXPECT_EQ(FormatEngineeringOptions(12e6, row.option), row.ofBig) << "four digits are the default";
    }
}

// Files of hosts hold the codes as numbers.
TEST_F(FormatEngineeringText, KnowsOptionsByTheirNumbers) {
    TEngineeringFormatSettings& settings = gGetEngineeringFormatSettings();
    settings.SetDefaultEngineeringFormatRemoveTrailingZeroes(false);
    EXPECT_EQ(WithOption(12e6, 0), "12.0000M");
    EXPECT_EQ(WithOption(12e6, 1), "  12.00M     ");
    EXPECT_EQ(WithOption(12e6, 2), "12M");
    settings.SetDefaultEngineeringFormatRemoveTrailingZeroes(true);
    EXPECT_EQ(WithOption(12e6, 3), "12.00M");
    settings.SetDefaultEngineeringFormatUnitScale(TeUnitScale::Engineering);
    settings.SetDefaultEngineeringFormatRemoveZeroExponents(false);
    EXPECT_EQ(WithOption(1, 4), "1");
    settings.SetDefaultEngineeringFormatRemoveZeroExponents(true);
    EXPECT_EQ(WithOption(1, 5), "1e000");
    EXPECT_EQ(WithOption(12e6, 6), "12M");
    EXPECT_EQ(WithOption(12e6, 7), "12X");
    EXPECT_EQ(WithOption(12e6, 8), "12MEG");
    EXPECT_EQ(WithOption(12e6, 9), "1.2e007");
    settings.SetDefaultEngineeringFormatUnitScale(TeUnitScale::Si);
    EXPECT_EQ(WithOption(12e6, 10), "12e006");
    EXPECT_EQ(WithOption(12e6, 11), "12M");
    EXPECT_EQ(WithOption(12e6, -1), "12M");
}

TEST_F(FormatEngineeringText, LetsALaterOptionOverrideAnEarlierOne) {
    using Option = EngineeringFormatOption;
    EXPECT_EQ(FormatEngineeringOptions(1, 3, Option::Spice, Option::Scientific, Option::KeepZeroExponents),
              "1e000");
    EXPECT_EQ(FormatEngineeringOptions(1, 3, Option::KeepZeroExponents, Option::Scientific,
                                       Option::RemoveZeroExponents),
              "1");
    EXPECT_EQ(FormatEngineeringOptions(1e6, 3, Option::Scientific, Option::Spice, Option::Si, Option::HSpice,
                                       Option::KeepTrailingZeroes),
              "1.00MEG");
    EXPECT_EQ(FormatEngineeringOptions(1e6, Option::RemoveTrailingZeroes, Option::Decimals,
                                       Option::KeepTrailingZeroes, Option::Spice),
              "1.0000X");
    EXPECT_EQ(FormatEngineeringOptions(1e6, 2, Option::Align, Option::Decimals, Option::KeepTrailingZeroes,
                                       Option::None, Option::Engineering),
              "   1.00e006   ");
}

TEST_F(FormatEngineeringText, StartsOptionsFromTheSettings) {
    TEngineeringFormatSettings& settings = gGetEngineeringFormatSettings();
    settings.SetDefaultEngineeringFormatUnitScale(TeUnitScale::Spice);
    settings.SetDefaultEngineeringFormatDigits(3);
    settings.SetDefaultEngineeringFormatRemoveZeroExponents(false);
    EXPECT_EQ(FormatEngineeringOptions(1234567), "1.23X");
    EXPECT_EQ(FormatEngineeringOptions(1, 0, EngineeringFormatOption::Engineering), "1e000");
}

// --- Fixed forms -------------------------------------------------------------------------------------

TEST_F(FormatEngineeringText, WritesAllThatADoubleHolds) {
    EXPECT_EQ(FormatEngineeringFull(0.1), "100.000000000000006m");
    EXPECT_EQ(FormatEngineeringFull(1500), "1.5k");
    EXPECT_EQ(FormatEngineeringFull(1e30), "1.00000000000000002e030");
    gGetEngineeringFormatSettings().SetDefaultEngineeringFormatUnitScale(TeUnitScale::HSpice);
    EXPECT_EQ(FormatEngineeringFull(1e6), "1M") << "SI whatever the settings say";
}

TEST_F(FormatEngineeringText, WritesJustEnoughToTellTwoValuesApart) {
    EXPECT_EQ(FormatDistinct(1, 2, TeUnitScale::Si), "1");
    EXPECT_EQ(FormatDistinct(1.2341, 1.2342, TeUnitScale::Si), "1.2341");
    EXPECT_EQ(FormatDistinct(1.2342, 1.2341, TeUnitScale::Si), "1.2342");
    EXPECT_EQ(FormatDistinct(1.0001, 1, TeUnitScale::Si), "1.0001");
    EXPECT_EQ(FormatDistinct(1, 1.0001, TeUnitScale::Si), "1");
    EXPECT_EQ(FormatDistinct(-1, 1, TeUnitScale::Scientific), "-1");
    EXPECT_EQ(FormatDistinct(1e6, 1.001e6, TeUnitScale::HSpice), "1MEG");
    EXPECT_EQ(FormatDistinct(0.1, std::nextafter(0.1, 1), TeUnitScale::Si), "100.00000000000001m");
    EXPECT_EQ(FormatDistinct(std::nextafter(0.1, 1), 0.1, TeUnitScale::Si), "100.00000000000002m");
    EXPECT_EQ(FormatDistinct(5e-324, 0, TeUnitScale::Si), "4.94e-324");
}

TEST_F(FormatEngineeringText, WritesEqualValuesWithSeventeenDigits) {
    EXPECT_EQ(FormatDistinct(0.1, 0.1, TeUnitScale::Si), "100.00000000000001m");
    EXPECT_EQ(FormatDistinct(0.0, -0.0, TeUnitScale::Si), "0");
    gGetEngineeringFormatSettings().SetDefaultEngineeringFormatRemoveTrailingZeroes(false);
    EXPECT_EQ(FormatDistinct(1.5, 1.5, TeUnitScale::Scientific), "1.5000000000000000");
    EXPECT_EQ(FormatDistinct(1.5, 1.25, TeUnitScale::Si), "1.5") << "what tells apart has no trailing zeroes";
}

TEST_F(FormatEngineeringText, EndsWhereNothingTellsApart) {
    EXPECT_EQ(FormatDistinct(cnNaN, cnNaN, TeUnitScale::Si), "nan");
    EXPECT_EQ(FormatDistinct(cnNaN, 1, TeUnitScale::Si), "nan");
    EXPECT_EQ(FormatDistinct(1, cnNaN, TeUnitScale::Si), "1");
    EXPECT_EQ(FormatDistinct(cnInfinity, cnInfinity, TeUnitScale::Si), "inf");
    EXPECT_EQ(FormatDistinct(cnInfinity, -cnInfinity, TeUnitScale::Si), "inf");
}

// --- Unit letters ------------------------------------------------------------------------------------

TEST_F(FormatEngineeringText, HasALetterForEachPowerOfAThousand) {
    struct TRow {
        int exponent;
        const char* letters[3];
    };
    constexpr TRow rows[] = {
        {-27, {"", "", ""}},    {-24, {"y", "", ""}},   {-21, {"z", "", ""}},  {-18, {"a", "a", "a"}},
        {-15, {"f", "f", "f"}}, {-12, {"p", "p", "p"}}, {-9, {"n", "n", "n"}}, {-6, {"u", "u", "u"}},
        {-3, {"m", "m", "m"}},  {0, {" ", " ", " "}},   {3, {"k", "k", "k"}},  {6, {"M", "X", "MEG"}},
        {9, {"G", "G", "G"}},   {12, {"T", "T", "T"}},  {15, {"P", "", ""}},   {18, {"E", "", ""}},
        {21, {"Z", "", ""}},    {24, {"Y", "", ""}},    {27, {"", "", ""}},
    };
    for (const TRow& row : rows) {
        for (int above = 0; above < 3; ++above) {
            const int exponent = row.exponent + above;
            for (int scale = 0; scale < 3; ++scale)
                EXPECT_EQ(UnitSuffix(exponent, Scale(scale)), row.letters[scale]) << exponent << ' ' << scale;
            for (const int scale : {-1, 3, 4, 5, INT_MAX, INT_MIN})
                EXPECT_EQ(UnitSuffix(exponent, Scale(scale)), "") << exponent << ' ' << scale;
        }
    }
    EXPECT_EQ(UnitSuffix(INT_MIN, TeUnitScale::Si), "");
    EXPECT_EQ(UnitSuffix(INT_MAX, TeUnitScale::Si), "");
}

void ExpectTextsOfThePlainLocale() {
    EXPECT_EQ(Long(1234.5e6, 6, cnSignificant, TeUnitScale::HSpice), "1.23450G");
    EXPECT_EQ(vapp::FormatGeneral(1.5), "1.5");
    EXPECT_EQ(Short(1e6, 3, TeUnitScale::HSpice), "1MEG");
    EXPECT_EQ(FormatDistinct(1.25, 1.5, TeUnitScale::Si), "1.25");
}

TEST_F(FormatEngineeringText, ThePlainLocaleIsThePlainLocale) {
    ExpectTextsOfThePlainLocale();
}

TEST_F(FormatEngineeringText, ALocaleWithACommaChangesNothing) {
    const text_test::TLocaleGuard guard(text_test::cnCommaLocales);
    if (!guard.IsSet()) GTEST_SKIP() << "no locale with a decimal comma is installed";
    ASSERT_STREQ(std::localeconv()->decimal_point, ",");
    ExpectTextsOfThePlainLocale();
}

TEST_F(FormatEngineeringText, TurkishChangesNothing) {
    const text_test::TLocaleGuard guard(text_test::cnTurkishLocales);
    if (!guard.IsSet()) GTEST_SKIP() << "no Turkish locale is installed";
    ExpectTextsOfThePlainLocale();
}

}  // namespace
