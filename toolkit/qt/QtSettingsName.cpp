/// @file
/// One part of a name at a time.
#include "toolkit/qt/QtSettingsName.h"

#include <QByteArray>
#include <string_view>

namespace vapp_qt {

namespace {

QByteArray BytesOf(std::string_view text) {
    return {text.data(), static_cast<qsizetype>(text.size())};
}

bool IsUtf8(const QByteArray& bytes) {
    // Not true of a leading byte order mark, which Qt takes away: it is written by its bytes then.
    return QString::fromUtf8(bytes).toUtf8() == bytes;
}

// What divides names in one of the formats, marks a number here, or breaks a line.
bool IsDivision(char byte) {
    const auto value = static_cast<unsigned char>(byte);
    return byte == '/' || byte == '\\' || byte == '%' || value < 0x20 || value == 0x7F;
}

bool IsBeyondAscii(char byte) {
    return static_cast<unsigned char>(byte) >= 0x80;
}

// INI files have a section of this name, in any case of its letters, for values outside of all sections.
bool IsReserved(const QByteArray& part) {
    return part.compare("general", Qt::CaseInsensitive) == 0;
}

// A part that is not UTF-8 has all its other bytes written by number, and so equals no part that is.
QString EncodePart(std::string_view part) {
    // A single percent sign is what no part becomes: its own becomes "%25".
    if (part.empty()) return QStringLiteral("%");
    const QByteArray bytes = BytesOf(part);
    const bool isText = IsUtf8(bytes);
    QByteArray encoded;
    for (const char byte : bytes) {
        const bool isFirstOfReserved = encoded.isEmpty() && IsReserved(bytes);
        if (isFirstOfReserved || IsDivision(byte) || (IsBeyondAscii(byte) && !isText)) {
            encoded += '%' + QByteArray(1, byte).toHex().toUpper();
        } else {
            encoded += byte;
        }
    }
    return QString::fromUtf8(encoded);
}

}  // namespace

QString gSettingsName(const CString& section, const CString& key) {
    QString name;
    std::string_view rest = section.View();
    for (std::size_t end = rest.find('\\'); end != std::string_view::npos; end = rest.find('\\')) {
        name += EncodePart(rest.substr(0, end)) + QLatin1Char('/');
        rest.remove_prefix(end + 1);
    }
    return name + EncodePart(rest) + QLatin1Char('/') + EncodePart(key.View());
}

}  // namespace vapp_qt
