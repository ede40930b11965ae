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

struct TNamedCodePage {
    unsigned codePage;
    const char* name;
};

// Those that a locale can have and whose name isn't made of their number.
constexpr TNamedCodePage cnNamedCodePages[] = {
    {cnUtf8CodePage, "utf-8"}, {874, "tis-620"},  {932, "shift_jis"}, {936, "gbk"},      {950, "big5"},
    {20866, "koi8-r"},         {21866, "koi8-u"}, {51932, "euc-jp"},  {51949, "euc-kr"}, {54936, "gb18030"},
};
// The parts of ISO 8859 follow this one.
constexpr unsigned cnBeforeIso8859 = 28590;
constexpr unsigned cnIso8859Parts = 16;

QString NarrowType() {
    return QStringLiteral("text/plain;charset=") + gCharacterSetOf(gGetSystemCodePage());
}

// Without an application object there is no clipboard, and asking for it would end the process.
QClipboard* DesktopClipboard() {
    return qGuiApp != nullptr ? QGuiApplication::clipboard() : nullptr;
}

}  // namespace

QString gCharacterSetOf(unsigned codePage) {
    for (const TNamedCodePage& named : cnNamedCodePages) {
        if (named.codePage == codePage) return QString::fromLatin1(named.name);
    }
    if (codePage > cnBeforeIso8859 && codePage <= cnBeforeIso8859 + cnIso8859Parts) {
        return QStringLiteral("iso-8859-%1").arg(codePage - cnBeforeIso8859);
    }
    return (codePage / 10 == 125 ? QStringLiteral("windows-%1") : QStringLiteral("cp%1")).arg(codePage);
}

// Whether the desktop took it is asked by reading it back: not every platform of Qt tells who owns its
// clipboard.
bool QtClipboard::SetText(std::u16string_view wide, std::optional<std::string_view> narrow) {
    QClipboard* const clipboard = DesktopClipboard();
    if (clipboard == nullptr) return false;
    const QByteArray unicodeForm = QStringView(wide).toUtf8();
    const QByteArray narrowForm =
        narrow ? QByteArray(narrow->data(), static_cast<qsizetype>(narrow->size())) : unicodeForm;
    const QString narrowType = narrow ? NarrowType() : QString(csUnicodeType);
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
