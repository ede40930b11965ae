/// @file
/// The dialog and its waiting.
///
/// Qt's own end of a dialog (Escape, the close button) is only a wish here: the control decides, as its code
/// for cancelling has to run first.
#include "toolkit/qt/QtDialogPeer.h"

#include <QDialog>
#include <QEvent>
#include <QEventLoop>
#include <QPushButton>

#include "toolkit/qt/QtText.h"
#include "vapp/toolkit/CDialog.h"

namespace vapp_qt {

namespace {

class DialogWidget : public QDialog {
public:
    DialogWidget(QWidget* owner, CDialog& dialog) : QDialog(owner), m_dialog(dialog) {}

    // Also called by Escape and by the window's close button.
    void reject() override {
        const QtBusyScope busy;
        m_dialog.ClosedByPeer();
    }

private:
    CDialog& m_dialog;
};

// The frame's window, and not its client area, is what the dialog stands in front of.
QWidget* OwnerWidget(const CDialog& dialog) {
    CWnd* owner = dialog.GetOwner();
    if (owner == nullptr) return nullptr;
    const auto* peer = dynamic_cast<const QtPeer*>(owner->GetTopLevelParent()->GetPeer());
    return peer != nullptr ? peer->Widget() : nullptr;
}

}  // namespace

QtDialogPeer::QtDialogPeer(CDialog& dialog)
    : QtPeer(dialog, new DialogWidget(OwnerWidget(dialog), dialog)), m_dialog(dialog) {
    auto* widget = static_cast<QDialog*>(Widget());
    widget->setModal(true);
    widget->setMinimumSize(dialog.GetTemplate().size.cx, dialog.GetTemplate().size.cy);
}

QtDialogPeer::~QtDialogPeer() {
    EndWaiting();
}

void QtDialogPeer::Changed(UINT changes) {
    QtPeer::Changed(changes);
    if (Widget() != nullptr && (changes & cnChangeText) != 0) {
        Widget()->setWindowTitle(gToQString(m_dialog.GetWindowText()));
    }
}

void QtDialogPeer::Wait() {
    if (Widget() == nullptr || !Widget()->isVisible()) return;
    QEventLoop loop;
    // A host, or Qt, may delete the widget without telling the control.
    QObject::connect(Widget(), &QObject::destroyed, &loop, &QEventLoop::quit);
    m_loop = &loop;
    const QPointer<QtDialogPeer> alive(this);
    loop.exec();
    if (alive) m_loop = nullptr;
}

void QtDialogPeer::EndWaiting() {
    if (m_loop != nullptr) m_loop->quit();
}

bool QtDialogPeer::eventFilter(QObject* watched, QEvent* event) {
    const QPointer<QtDialogPeer> alive(this);
    QtPeer::eventFilter(watched, event);
    if (alive && watched == Widget() && event->type() == QEvent::Hide && !event->spontaneous()) EndWaiting();
    return false;
}

void QtDialogPeer::ApplyRect() {
    // Its place is Qt's choice: over the middle of its owner.
    Widget()->resize(gGeometryOf(m_dialog).size());
}

}  // namespace vapp_qt
