/// The fields of digit counts.

#include "vapp/text/DigitsSetting.h"

#include <algorithm>

#include "text/AsciiNumber.h"

namespace vapp {

namespace {

using vapp_text::DigitOf;
using vapp_text::SkipSign;
using vapp_text::SkipSpaces;

/// The number that the whole text is, clamped; the default where it is none.
unsigned ParseField(const CStringU& text, unsigned none, unsigned least, unsigned greatest) {
    // In the active code page, as the dialogs and the files that hold such texts are.
    const CString narrow = text.ToAnsi();
    const char* walk = narrow.GetString();
    SkipSpaces(walk);
    const bool negative = SkipSign(walk);
    if (DigitOf(*walk) > 9) return none;
    unsigned value = 0;
    for (; DigitOf(*walk) <= 9; ++walk)
        value = std::min(value * 10 + DigitOf(*walk), greatest);
    if (*walk != '\0') return none;
    return negative ? least : std::max(value, least);
}

}  // namespace

unsigned ParseDigitsSetting(const CStringU& text) {
    return ParseField(text, 4, GetMinDigits(), GetMaxDigits());
}

unsigned ParseDecimalsSetting(const CStringU& text) {
    return ParseField(text, 6, 0, 17);
}

}  // namespace vapp
