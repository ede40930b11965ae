/// @file
/// The button. One that shows an image only has its name as a tool tip.
#include "toolkit/qt/QtButtonPeer.h"

#include <QToolButton>

#include "toolkit/qt/QtIcons.h"
#include "toolkit/qt/QtText.h"
#include "vapp/toolkit/CButton.h"

namespace vapp_qt {

QtButtonPeer::QtButtonPeer(CButton& button)
    : QtPeer(button, new QToolButton(gClientWidgetAbove(button))), m_button(button) {
    QObject::connect(static_cast<QToolButton*>(Widget()), &QToolButton::clicked, this, [this] {
        const QtBusyScope busy;
        m_button.Click();
    });
}

void QtButtonPeer::Changed(UINT changes) {
    QtPeer::Changed(changes);
    auto* button = static_cast<QToolButton*>(Widget());
    if (button == nullptr || (changes & (cnChangeText | cnChangeLook)) == 0) return;
    const UINT image = m_button.GetImageResource();
    button->setText(gToQString(m_button.GetWindowText()));
    button->setIcon(image != 0 ? gResourceIcon(image) : QIcon());
    button->setToolButtonStyle(image != 0 ? Qt::ToolButtonIconOnly : Qt::ToolButtonTextOnly);
    button->setToolTip(image != 0 ? button->accessibleName() : QString());
}

}  // namespace vapp_qt
