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

bool QtClipboard::SetText(std::u16string_view wide, std::string_view narrow) {
    QClipboard* const clipboard = DesktopClipboard();
    if (clipboard == nullptr) return false;
    auto data = std::make_unique<QMimeData>();
    data->setData(csUnicodeType, QStringView(wide).toUtf8());
    data->setData(csNarrowType, QByteArray(narrow.data(), static_cast<qsizetype>(narrow.size())));
    clipboard->setMimeData(data.release());  // the clipboard takes it over
    return clipboard->ownsClipboard();
}

std::u16string QtClipboard::GetText() const {
    const QClipboard* const clipboard = DesktopClipboard();
    return clipboard != nullptr ? clipboard->text().toStdU16String() : std::u16string();
}

}  // namespace vapp_qt
