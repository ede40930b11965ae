/// @file
/// Both forms at once, each under a type that names its character set.
///
/// The surprise: the type without a name has UTF-8 too. On X11 Qt makes of its bytes what most programs ask
/// for, and takes them for UTF-8 whatever the locale; Latin-1, for those that ask for that, Qt makes itself.
#include "toolkit/qt/QtClipboard.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>
#include <QString>
#include <memory>

#include "vapp/text/ActiveCodePage.h"

namespace vapp_qt {

namespace {

constexpr char csUnicodeType[] = "text/plain;charset=utf-8";
constexpr char csUnnamedType[] = "text/plain";

// NATIVE: what the narrow form is in.
QString NarrowType(unsigned codePage) {
    const QString type = QStringLiteral("text/plain;charset=");
    if (codePage == cnUtf8CodePage) return csUnicodeType;
    if (codePage > 28590 && codePage <= 28590 + 16) {
        return type + QStringLiteral("iso-8859-%1").arg(codePage - 28590);
    }
    if (codePage / 10 == 125) return type + QStringLiteral("windows-%1").arg(codePage);
    return type + QStringLiteral("cp%1").arg(codePage);
}

// Without an application object there is no clipboard, and asking for it would end the process.
QClipboard* DesktopClipboard() {
    return qGuiApp != nullptr ? QGuiApplication::clipboard() : nullptr;
}

}  // namespace

// Whether the desktop took it is asked by reading it back: not every platform of Qt tells who owns its
// clipboard.
bool QtClipboard::SetText(std::u16string_view wide, std::optional<std::string_view> narrow) {
    QClipboard* const clipboard = DesktopClipboard();
    if (clipboard == nullptr) return false;
    const QByteArray unicodeForm = QStringView(wide).toUtf8();
    const QByteArray narrowForm =
        narrow ? QByteArray(narrow->data(), static_cast<qsizetype>(narrow->size())) : unicodeForm;
    const QString narrowType = narrow ? NarrowType(gGetSystemCodePage()) : QString(csUnicodeType);
    auto data = std::make_unique<QMimeData>();
    data->setData(narrowType, narrowForm);
    data->setData(csUnicodeType, unicodeForm);
    data->setData(csUnnamedType, unicodeForm);
    clipboard->setMimeData(data.release());  // the clipboard takes it over
    const QMimeData* const taken = clipboard->mimeData();
    return taken != nullptr && taken->data(csUnicodeType) == unicodeForm &&
           (narrowType == csUnicodeType || taken->data(narrowType) == narrowForm);
}

std::u16string QtClipboard::GetText() const {
    const QClipboard* const clipboard = DesktopClipboard();
    return clipboard != nullptr ? clipboard->text().toStdU16String() : std::u16string();
}

}  // namespace vapp_qt
