/// @file
/// Two formats at once: plain text has one type with a character set in its name and one without, and readers
/// that know the first prefer it.
#include "toolkit/qt/QtClipboard.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>
#include <memory>

namespace vapp_qt {

namespace {

constexpr char csUnicodeType[] = "text/plain;charset=utf-8";
constexpr char csNarrowType[] = "text/plain";

// Without an application object there is no clipboard, and asking for it would end the process.
QClipboard* DesktopClipboard() {
    return qGuiApp != nullptr ? QGuiApplication::clipboard() : nullptr;
}

}  // namespace

// Whether the desktop took it is asked by reading it back: not every platform of Qt tells who owns its
// clipboard.
bool QtClipboard::SetText(std::u16string_view wide, std::string_view narrow) {
    QClipboard* const clipboard = DesktopClipboard();
    if (clipboard == nullptr) return false;
    const QByteArray unicodeForm = QStringView(wide).toUtf8();
    const QByteArray narrowForm(narrow.data(), static_cast<qsizetype>(narrow.size()));
    auto data = std::make_unique<QMimeData>();
    data->setData(csUnicodeType, unicodeForm);
    data->setData(csNarrowType, narrowForm);
    clipboard->setMimeData(data.release());  // the clipboard takes it over
    const QMimeData* const taken = clipboard->mimeData();
    return taken != nullptr && taken->data(csUnicodeType) == unicodeForm &&
           taken->data(csNarrowType) == narrowForm;
}

std::u16string QtClipboard::GetText() const {
    const QClipboard* const clipboard = DesktopClipboard();
    return clipboard != nullptr ? clipboard->text().toStdU16String() : std::u16string();
}

}  // namespace vapp_qt
