/// FormatGeneral: a number without units, in the form of the Windows C runtime, made here so that both
/// systems give it, whatever runtime they have. The form is that of the runtime's documented examples; see
/// docs/numbers.md for them.

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <cstring>

#include "text/DecimalDigits.h"
#include "vapp/text/FormatEngineering.h"

namespace vapp {

namespace {

using vapp_text::cnDecimalDigitsRoom;
using vapp_text::WriteDecimalDigits;

constexpr int cnDigits = 18;

char* RemoveZeroes(char* end) noexcept {
    while (end[-1] == '0')
        --end;
    return end;
}

/// "1.25", "0.125", "100." and, with as many digits before the point as there are, "123456789012345680".
char* WriteDecimals(const char* digits, int beforePoint, char* end) noexcept {
    if (beforePoint == 0) *end++ = '0';
    end = std::copy_n(digits, beforePoint, end);
    if (beforePoint == cnDigits) return end;
    *end++ = '.';
    return RemoveZeroes(std::copy_n(digits + beforePoint, cnDigits - beforePoint, end));
}

/// "1.25e+021", "1.e+020", "1.25e-003".
char* WritePower(const char* digits, int exponent, char* end) noexcept {
    *end++ = digits[0];
    *end++ = '.';
    end = RemoveZeroes(std::copy_n(digits + 1, cnDigits - 1, end));
    *end++ = 'e';
    *end++ = exponent < 0 ? '-' : '+';
    const int magnitude = std::abs(exponent);
    *end++ = static_cast<char>('0' + magnitude / 100);
    *end++ = static_cast<char>('0' + magnitude / 10 % 10);
    *end++ = static_cast<char>('0' + magnitude % 10);
    return end;
}

}  // namespace

CStringU FormatGeneral(double value) {
    if (std::isnan(value)) return "nan";
    if (std::isinf(value)) return value < 0.0 ? "-inf" : "inf";
    if (value == 0.0) return "0.";
    char digits[cnDigits + cnDecimalDigitsRoom];
    const int beforePoint = WriteDecimalDigits(value, cnDigits, digits);
    char text[cnDigits + 16];
    char* begin = text;
    if (value < 0.0) *begin++ = '-';
    char* const end = beforePoint >= 0 && beforePoint <= cnDigits
                          ? WriteDecimals(digits + 1, beforePoint, begin)
                          : WritePower(digits + 1, beforePoint - 1, begin);
    return {text, TextEncoding::Raw, static_cast<int>(end - text)};
}

}  // namespace vapp
