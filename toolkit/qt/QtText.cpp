/// @file
/// Conversions; pure ASCII, nearly all that there is, is widened without decoding.
#include "toolkit/qt/QtText.h"

namespace vapp_qt {

QString gToQString(const CStringU& text) {
    const std::string_view payload = text.PayloadView();
    if (!text.HasNonAscii()) {
        return QString::fromLatin1(payload.data(), static_cast<qsizetype>(payload.size()));
    }
    return QString::fromStdU16String(text.ToWide());
}

QString gToQString(const CString& text) {
    return gToQString(CStringU(text));
}

CStringU gToText(const QString& text) {
    return CStringU(std::u16string_view(reinterpret_cast<const char16_t*>(text.utf16()),
                                        static_cast<std::size_t>(text.size())));
}

CString gToControlText(const QString& text) {
    return gToText(text).ToAnsi();
}

QString gWithoutMnemonics(QString text) {
    return text.replace(QLatin1Char('&'), QLatin1String("&&"));
}

}  // namespace vapp_qt
