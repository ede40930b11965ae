/// @file
/// Formatting and narrow comparison of CStringU: the two places where plain narrow text meets it.

#include "text/Codec.h"
#include "vapp/text/CStringU.h"

CStringU CStringU::FormattedRaw(const char* format, ...) {
    CString text;
    va_list arguments;
    va_start(arguments, format);
    text.FormatV(format, arguments);
    va_end(arguments);
    return {text.GetString(), TextEncoding::Utf8Auto};
}

CStringU CStringU::FormattedV(const CStringU& format, va_list arguments) {
    CString text;
    text.FormatV(format.Payload(), arguments);
    return {text.GetString(), TextEncoding::Utf8Auto};
}

// Compares while the other text is ASCII; only a high byte makes a text of it, by the plain narrow rule.
bool CStringU::EqualsNarrow(const char* text) const {
    const std::string_view narrow = CString::ViewOf(text);
    for (const char byte : narrow) {
        if (!vapp_text::IsAsciiByte(byte)) return *this == CStringU(text);
    }
    return PayloadView() == narrow;
}
