/// @file
/// A box of Qt's with the words of ours: its texts are plain texts, whatever signs are in them.
#include "toolkit/qt/QtMessageBox.h"

#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <memory>

#include "toolkit/qt/QtText.h"
#include "vapp/toolkit/qt/QtPeerFactory.h"

namespace vapp_qt {

namespace {

constexpr char csAnswer[] = "answer";

QMessageBox::Icon IconOf(UINT style) {
    constexpr UINT cnIconBits = 0xF0;
    switch (style & cnIconBits) {
        case MB_ICONERROR:
            return QMessageBox::Critical;
        case MB_ICONQUESTION:
            return QMessageBox::Question;
        case MB_ICONWARNING:
            return QMessageBox::Warning;
        case MB_ICONINFORMATION:
            return QMessageBox::Information;
        default:
            return QMessageBox::NoIcon;
    }
}

QMessageBox::ButtonRole RoleOf(int answer) {
    switch (answer) {
        case IDYES:
            return QMessageBox::YesRole;
        case IDNO:
            return QMessageBox::NoRole;
        case IDCANCEL:
            return QMessageBox::RejectRole;
        default:
            return QMessageBox::AcceptRole;
    }
}

void AddButtons(QMessageBox& shown, const TMessageBox& box) {
    for (const TMessageBox::TButton& button : box.GetButtons()) {
        QPushButton* added = shown.addButton(gToQString(button.text), RoleOf(button.answer));
        added->setProperty(csAnswer, button.answer);
        added->setObjectName(QStringLiteral("answer%1").arg(button.answer));
        if (shown.defaultButton() == nullptr) shown.setDefaultButton(added);
        if (button.answer == box.GetCloseAnswer()) shown.setEscapeButton(added);
    }
}

}  // namespace

int gShowMessageBox(const TMessageBox& box) {
    QWidget* owner = box.GetOwner() != nullptr ? gWidgetOf(*box.GetOwner()) : nullptr;
    // The owner's widget may end while the user thinks, and takes the box with it.
    const QPointer<QMessageBox> shown = new QMessageBox(owner);
    // Nobody could answer what stands behind the splash.
    if (owner == nullptr) shown->setWindowFlag(Qt::WindowStaysOnTopHint);
    shown->setObjectName(QStringLiteral("messageBox"));
    shown->setTextFormat(Qt::PlainText);
    shown->setWindowTitle(gToQString(box.GetTitle()));
    shown->setText(gToQString(box.GetText()));
    shown->setIcon(IconOf(box.GetStyle()));
    AddButtons(*shown, box);
    shown->exec();
    if (!shown) return box.GetCloseAnswer();
    const QAbstractButton* clicked = shown->clickedButton();
    const int answer = clicked != nullptr ? clicked->property(csAnswer).toInt() : box.GetCloseAnswer();
    delete shown.data();
    return answer;
}

}  // namespace vapp_qt
