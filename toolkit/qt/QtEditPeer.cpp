/// @file
/// The edit: what the user types goes to the control, and comes back as the control took it.
#include "toolkit/qt/QtEditPeer.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QSignalBlocker>
#include <algorithm>

#include "toolkit/qt/QtText.h"
#include "vapp/toolkit/CEdit.h"

namespace vapp_qt {

QtEditPeer::QtEditPeer(CEdit& edit) : QtPeer(edit, new QLineEdit(gClientWidgetAbove(edit))), m_edit(edit) {
    // Not only what is typed: a screen reader or an input method sets the text as a whole.
    QObject::connect(static_cast<QLineEdit*>(Widget()), &QLineEdit::textChanged, this,
                     [this](const QString& text) {
                         const QtBusyScope busy;
                         const QPointer<QtEditPeer> alive(this);
                         m_edit.EditedByUser(gToControlText(text));
                         // Where the control could not take a character, the field shows what it took.
                         if (alive) ApplyText();
                     });
}

void QtEditPeer::Changed(UINT changes) {
    QtPeer::Changed(changes);
    if (Widget() == nullptr) return;
    if ((changes & cnChangeText) != 0) ApplyText();
    // Who is sent here to type wants to replace what is there.
    if ((changes & cnChangeFocus) != 0) static_cast<QLineEdit*>(Widget())->selectAll();
    if ((changes & cnChangeLook) != 0) {
        static_cast<QLineEdit*>(Widget())->setPlaceholderText(gToQString(m_edit.GetCueText()));
    }
}

// A line of text has no use of its own for these two keys.
bool QtEditPeer::eventFilter(QObject* watched, QEvent* event) {
    if (watched == Widget() && event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        const QtBusyScope busy;
        if (key == Qt::Key_Down && m_edit.KeyByPeer(TKey::Down, {})) return true;
        if (key == Qt::Key_Escape && m_edit.KeyByPeer(TKey::Escape, {})) return true;
    }
    return QtPeer::eventFilter(watched, event);
}

void QtEditPeer::ApplyText() {
    auto* line = static_cast<QLineEdit*>(Widget());
    const QString text = gToQString(m_edit.GetWindowText());
    if (line == nullptr || line->text() == text) return;
    const QSignalBlocker quiet(line);
    const int cursor = line->cursorPosition();
    line->setText(text);
    line->setCursorPosition(std::min(cursor, static_cast<int>(text.size())));
}

}  // namespace vapp_qt
