/// @file
/// The common part of the peers.
#include "toolkit/qt/QtPeer.h"

#include <QApplication>
#include <QEvent>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QThread>
#include <algorithm>
#include <utility>
#include <vector>

#include "toolkit/qt/QtText.h"

namespace vapp_qt {

namespace {

int s_paintingDepth = 0;
int s_tellingDepth = 0;
// Widgets without a control, which wait for the end of the event.
std::vector<QPointer<QWidget>> s_ended;

QtPeer* PeerOf(const CWnd& window) {
    return dynamic_cast<QtPeer*>(window.GetPeer());
}

// A popup (a menu, the list of a combo box) borrows the keyboard and gives it back; to the logic it never
// left.
bool IsBorrowed(const QFocusEvent& event) {
    return event.reason() == Qt::PopupFocusReason || event.reason() == Qt::MenuBarFocusReason;
}

}  // namespace

QtPeer::QtPeer(CWnd& window, QWidget* widget) : m_window(window) {
    if (widget != nullptr) SetWidget(widget);
}

void QtPeer::SetWidget(QWidget* widget) {
    m_widget = widget;
    widget->installEventFilter(this);
}

QtPeer::~QtPeer() {
    if (!m_widget) return;
    m_widget->removeEventFilter(this);
    // Without its application object Qt can't end a widget in order; the process is about to end anyway.
    if (QCoreApplication::instance() == nullptr) return;
    if (QtBusyScope::IsActive()) {
        // The event may be waiting in a loop of its own, for a menu or a drag: there `deleteLater` would end
        // the widget under its feet.
        m_widget->hide();
        s_ended.push_back(m_widget);
    } else if (QThread::currentThread()->loopLevel() > 0) {
        m_widget->hide();
        m_widget->deleteLater();
    } else {
        delete m_widget.data();
    }
}

void QtPeer::Changed(UINT changes) {
    if (!m_widget) return;
    if ((changes & cnChangeRect) != 0) ApplyRect();
    if ((changes & cnChangeText) != 0) ApplyNames();
    if ((changes & cnChangeEnabled) != 0) m_widget->setEnabled(m_window.IsWindowEnabled());
    if ((changes & cnChangeVisible) != 0) ApplyVisible();
    if ((changes & cnChangeFocus) != 0) m_widget->setFocus(Qt::OtherFocusReason);
}

void QtPeer::Invalidate(bool /*erase*/) {
    if (m_widget) m_widget->update();
}

void QtPeer::UpdateNow() {
    if (m_widget) PaintNow(*m_widget);
}

void QtPeer::PaintNow(QWidget& widget) {
    if (QtBusyScope::IsPainting()) {
        widget.update();
    } else {
        widget.repaint();
    }
}

void* QtPeer::NativeHandle() const {
    return m_widget;
}

// The control's answer may be its end, and the end of this object: nothing follows the calls.
bool QtPeer::eventFilter(QObject* watched, QEvent* event) {
    if (watched != m_widget) return false;
    const QtBusyScope busy;
    switch (event->type()) {
        case QEvent::Resize:
        case QEvent::Move:
            ReportRect();
            break;
        case QEvent::KeyPress:
            return static_cast<QKeyEvent*>(event)->matches(QKeySequence::Find) &&
                   m_window.KeyByPeer(TKey::Find, {.control = true});
        case QEvent::FocusIn:
            m_window.FocusedByPeer(true);
            break;
        case QEvent::FocusOut:
            if (!IsBorrowed(static_cast<const QFocusEvent&>(*event))) m_window.FocusedByPeer(false);
            break;
        default:
            break;
    }
    return false;
}

void QtPeer::ApplyRect() {
    m_widget->setGeometry(gGeometryOf(m_window));
    if (const CWnd* parent = m_window.GetParent()) {
        if (QtPeer* above = PeerOf(*parent)) above->ChildPlaced();
    }
}

void QtPeer::ReportRect() {
    // What Qt made of the control's rectangle is no news; it may have cut a hopeless one down.
    const QRect present = m_widget->geometry();
    const QRect wanted = gGeometryOf(m_window);
    if (present == wanted) return;
    const CRect rect = m_window.GetRect();
    const QPoint offset = wanted.topLeft() - QPoint(rect.left, rect.top);
    const QPoint corner = present.topLeft() - offset;
    m_window.MovedByPeer(
        {corner.x(), corner.y(), corner.x() + present.width(), corner.y() + present.height()});
}

void QtPeer::ApplyVisible() {
    // A control whose parent has lost its widget must not come up as a window of its own.
    const bool isStray = m_widget->isWindow() && m_window.GetParent() != nullptr;
    m_widget->setVisible(m_window.IsWindowVisible() && !isStray);
}

void QtPeer::ApplyNames() {
    const CString& name = m_window.GetAccessibleName();
    m_widget->setAccessibleName(gToQString(name.IsEmpty() ? m_window.GetWindowText() : name));
    m_widget->setObjectName(QStringLiteral("control%1").arg(m_window.GetDlgCtrlID()));
}

QWidget* gClientWidgetAbove(const CWnd& window) {
    for (const CWnd* above = window.GetParent(); above != nullptr; above = above->GetParent()) {
        if (const QtPeer* peer = PeerOf(*above)) return peer->ClientWidget();
    }
    return nullptr;
}

QRect gGeometryOf(const CWnd& window) {
    const CRect& rect = window.GetRect();
    QPoint corner(rect.left, rect.top);
    // Windows between that have no widget only shift what is in them.
    for (const CWnd* above = window.GetParent(); above != nullptr && PeerOf(*above) == nullptr;
         above = above->GetParent())
        corner += QPoint(above->GetRect().left, above->GetRect().top);
    return {corner, QSize(std::clamp(rect.Width(), 0, QWIDGETSIZE_MAX),
                          std::clamp(rect.Height(), 0, QWIDGETSIZE_MAX))};
}

QtBusyScope::QtBusyScope(TKind kind) : m_kind(kind) {
    ++(kind == TKind::Painting ? s_paintingDepth : s_tellingDepth);
}

QtBusyScope::~QtBusyScope() {
    --(m_kind == TKind::Painting ? s_paintingDepth : s_tellingDepth);
    if (IsActive()) return;
    for (const QPointer<QWidget>& widget : std::exchange(s_ended, {})) {
        if (widget) widget->deleteLater();
    }
}

bool QtBusyScope::IsPainting() {
    return s_paintingDepth > 0;
}

bool QtBusyScope::IsActive() {
    return s_paintingDepth > 0 || s_tellingDepth > 0;
}

}  // namespace vapp_qt
