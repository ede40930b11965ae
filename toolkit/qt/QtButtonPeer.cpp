/// @file
/// The button. One that shows an image only has its name as a tool tip. One in a dialog is of the kind that
/// the keyboard presses, and that for IDOK is what Enter presses from anywhere in the dialog.
#include "toolkit/qt/QtButtonPeer.h"

#include <QPushButton>
#include <QToolButton>

#include "toolkit/qt/QtIcons.h"
#include "toolkit/qt/QtText.h"
#include "vapp/toolkit/CButton.h"
#include "vapp/toolkit/CDialog.h"

namespace vapp_qt {

namespace {

QAbstractButton* MakeButton(const CButton& button) {
    QWidget* parent = gClientWidgetAbove(button);
    if (dynamic_cast<const CDialog*>(button.GetParent()) == nullptr) return new QToolButton(parent);
    auto* push = new QPushButton(parent);
    const bool isDefault = button.GetDlgCtrlID() == static_cast<UINT>(IDOK);
    push->setDefault(isDefault);
    push->setAutoDefault(isDefault);
    return push;
}

}  // namespace

QtButtonPeer::QtButtonPeer(CButton& button) : QtPeer(button, MakeButton(button)), m_button(button) {
    QObject::connect(static_cast<QAbstractButton*>(Widget()), &QAbstractButton::clicked, this, [this] {
        const QtBusyScope busy;
        m_button.Click();
    });
}

void QtButtonPeer::Changed(UINT changes) {
    QtPeer::Changed(changes);
    auto* button = static_cast<QAbstractButton*>(Widget());
    if (button == nullptr || (changes & (cnChangeText | cnChangeLook)) == 0) return;
    const UINT image = m_button.GetImageResource();
    button->setText(gToQString(m_button.GetWindowText()));
    button->setIcon(image != 0 ? gResourceIcon(image) : QIcon());
    if (auto* tool = qobject_cast<QToolButton*>(button)) {
        tool->setToolButtonStyle(image != 0 ? Qt::ToolButtonIconOnly : Qt::ToolButtonTextOnly);
    }
    button->setToolTip(image != 0 ? button->accessibleName() : QString());
}

}  // namespace vapp_qt
