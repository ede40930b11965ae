/// @file
/// The edit of several lines: as the one of a single line, what the user types goes to the control, and comes
/// back as the control took it. The widget reports a change also where the program makes it.
#include "toolkit/qt/QtTextPeer.h"

#include <QPlainTextEdit>
#include <QSignalBlocker>
#include <QTextCursor>
#include <QTextOption>
#include <algorithm>

#include "toolkit/qt/QtText.h"
#include "vapp/toolkit/CEdit.h"

namespace vapp_qt {

QtTextPeer::QtTextPeer(CEdit& edit)
    : QtPeer(edit, new QPlainTextEdit(gClientWidgetAbove(edit))), m_edit(edit) {
    auto* field = static_cast<QPlainTextEdit*>(Widget());
    // In a dialog Tab goes on to the next control.
    field->setTabChangesFocus(true);
    // Lines break at the field's edge, names that are longer than a line too.
    field->setWordWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    field->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    QObject::connect(field, &QPlainTextEdit::textChanged, this, [this, field] {
        const QtBusyScope busy;
        const QPointer<QtTextPeer> alive(this);
        m_edit.EditedByUser(gToControlText(field->toPlainText()));
        if (alive) ApplyText();
    });
}

void QtTextPeer::Changed(UINT changes) {
    QtPeer::Changed(changes);
    if (Widget() == nullptr) return;
    if ((changes & cnChangeText) != 0) ApplyText();
    if ((changes & cnChangeLook) != 0) {
        static_cast<QPlainTextEdit*>(Widget())->setPlaceholderText(gToQString(m_edit.GetCueText()));
    }
}

void QtTextPeer::ApplyText() {
    auto* field = static_cast<QPlainTextEdit*>(Widget());
    const QString text = gToQString(m_edit.GetWindowText());
    if (field == nullptr || field->toPlainText() == text) return;
    const QSignalBlocker quiet(field);
    const int place = field->textCursor().position();
    field->setPlainText(text);
    QTextCursor cursor = field->textCursor();
    cursor.setPosition(std::min(place, static_cast<int>(field->toPlainText().size())));
    field->setTextCursor(cursor);
}

}  // namespace vapp_qt
