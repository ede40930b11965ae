/// @file
/// FormatEngineering: numbers as chip designers read them, *1.5k*, *10MEG*, *2.2e-012*.
///
/// The counterpart of vapp/text/ParseEngineering.h. The grammar of what is written:
///
///     text     = [pad] [sign] left [point right] [suffix] [spaces]
///     pad      = no, one or two spaces, so that the points of a column stand in line; with `align` only
///     sign     = "-", or with `align` a space for a number that isn't negative
///     left     = one to three digits; one in scientific notation
///     right    = digits
///     suffix   = unit letter | "e" exponent | "e-" exponent
///     exponent = three digits, leading zeros included
///     spaces   = up to the width of the column, the count of digits and 9; with `align` only
///
/// The digits are exact: those of the double's own value, correctly rounded, halves to the even digit, for
/// any count of digits. No locale is asked, and both systems give the same bytes. Nothing here fails.
///
/// The surprises:
///  - Decimals are rounded twice. With `significantDigits` false the value is first rounded to `digits` + 3
///    significant digits, and what is too many of them is rounded off again, halves away from zero: 1.234996
///    with 2 decimals is "1.24". Stored texts were made this way, and one made again must be the same.
///  - Where trailing zeroes stay, the point stays too, even with nothing behind it: 100 with 3 significant
///    digits is "100.".
///  - In scientific notation with `significantDigits` false the count of digits behind the point varies with
///    the exponent: it is that of a number written in engineering notation, whose digits it shares.
///  - A zero keeps as many digits as were asked for, below the three that other numbers have at least.
///  - Minus zero is written as zero. NaN is "nan", infinity "inf" and "-inf", without point and suffix, in
///    every notation; with `align` they have the sign's place in front, no pad, and the width of the column.
///    ParseEngineering reads none of the three.
///  - A double has at most 767 significant digits, and zeroes behind them. So a count of significant digits
///    (with decimals: of decimals and three more) above 800 is taken for 800: the text of a number never
///    grows with a `digits` that came in wrong.
///
/// What is written and not read back as the same number, beside what rounding took: see docs/numbers.md.
#pragma once

#include <boost/logic/tribool.hpp>

#include "vapp/Export.h"
#include "vapp/text/CStringU.h"
#include "vapp/text/EngineeringFormatOption.h"
#include "vapp/text/TeUnitScale.h"

namespace vapp {

/// The engineering text of a value; ASCII.
///
/// `digits` is the count of significant digits, at least 3 of them are written; with `significantDigits`
/// false it is the count of digits behind the point. 0 stands for the settings' default. `align` pads in
/// front, so that points stand in line, and behind, up to the width of the column. The last three state a
/// choice or leave it to gGetEngineeringFormatSettings(): `removeTrailingZeroes` writes "1.5k" for "1.50k";
/// `unitScale` is the notation, where any value outside of 0 to 4 leaves it; in notations with exponents
/// `removeZeroExponents` writes "1" for "1e000".
[[nodiscard]] VAPP_EXPORT CStringU FormatEngineering(double value, unsigned digits, bool significantDigits,
                                                     bool align, boost::logic::tribool removeTrailingZeroes,
                                                     TeUnitScale unitScale,
                                                     boost::logic::tribool removeZeroExponents);

/// FormatEngineering with its arguments told by options, a later one overriding an earlier one. Without
/// options: significant digits, no alignment, all else as the settings say.
[[nodiscard]] VAPP_EXPORT CStringU FormatEngineeringOptions(
    double value, unsigned digits, EngineeringFormatOption option1 = EngineeringFormatOption::None,
    EngineeringFormatOption option2 = EngineeringFormatOption::None,
    EngineeringFormatOption option3 = EngineeringFormatOption::None,
    EngineeringFormatOption option4 = EngineeringFormatOption::None,
    EngineeringFormatOption option5 = EngineeringFormatOption::None);
/// The same with the settings' count of digits.
[[nodiscard]] VAPP_EXPORT CStringU
FormatEngineeringOptions(double value, EngineeringFormatOption option1 = EngineeringFormatOption::None,
                         EngineeringFormatOption option2 = EngineeringFormatOption::None,
                         EngineeringFormatOption option3 = EngineeringFormatOption::None,
                         EngineeringFormatOption option4 = EngineeringFormatOption::None);

/// All that a double holds: 18 significant digits, SI letters, no trailing zeroes.
[[nodiscard]] VAPP_EXPORT CStringU FormatEngineeringFull(double value);

/// The shortest engineering text of `a`, from 3 up to 29 significant digits, which is not also the text of
/// `b`. Where no such count tells them apart (equal values; two NaNs), `a` with 17 digits, its trailing
/// zeroes as the settings say.
[[nodiscard]] VAPP_EXPORT CStringU FormatDistinct(double a, double b, TeUnitScale unitScale);

/// The plain text of a value with 18 significant digits, in the form of the Windows C runtime's general
/// conversion (`_gcvt_s`) on both systems:
///  - decimals for 0 and from 0.1 up to what 18 digits hold ("0.100000000000000006", "-314150.",
///    "123456789012345680"), otherwise a power of ten of at least three digits and always with a sign
///    ("1.25e+021", "1.e+020");
///  - trailing zeroes behind the point are taken off, and the point stays: "0.", "1.", "1.5". Only a number
///    whose integer digits are 18 has no point.
/// Minus zero is "0.", NaN "nan", infinity "inf" and "-inf".
[[nodiscard]] VAPP_EXPORT CStringU FormatGeneral(double value);

/// The unit letter for a power of ten, which is first cut down to a multiple of 3: "k" for 3, 4 and 5. Empty
/// where the notation has none and writes an exponent. The letter of 0 is a space, so that columns line up.
[[nodiscard]] VAPP_EXPORT CStringU UnitSuffix(int exponent, TeUnitScale scale);

/// A notation's word for files, "si", "spice", "hspice", "scientific", "engineering"; else "undefined".
[[nodiscard]] VAPP_EXPORT CStringU UnitScaleKeyword(TeUnitScale scale);
/// A notation's name for people: "SI", "Spice", "HSpice", "Scientific", "Engineering"; else "Undefined".
[[nodiscard]] VAPP_EXPORT CStringU UnitScaleName(TeUnitScale scale);

}  // namespace vapp
