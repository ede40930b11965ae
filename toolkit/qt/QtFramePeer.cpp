/// @file
/// The frame and its client area, and the user's closing of it.
#include "toolkit/qt/QtFramePeer.h"

#include <QEvent>
#include <QMainWindow>

#include "toolkit/qt/QtText.h"
#include "vapp/toolkit/CFrameWnd.h"

namespace vapp_qt {

namespace {

QWidget* MakeMainWindow() {
    auto* window = new QMainWindow;
    window->setCentralWidget(new QWidget(window));
    return window;
}

}  // namespace

QtFramePeer::QtFramePeer(CFrameWnd& frame)
    : QtPeer(frame, MakeMainWindow()), m_client(static_cast<QMainWindow*>(Widget())->centralWidget()) {
    m_client->installEventFilter(this);
}

void QtFramePeer::Changed(UINT changes) {
    QtPeer::Changed(changes);
    if (Widget() != nullptr && (changes & cnChangeText) != 0) {
        Widget()->setWindowTitle(gToQString(Window().GetWindowText()));
    }
}

bool QtFramePeer::eventFilter(QObject* watched, QEvent* event) {
    const QtBusyScope busy;
    const QPointer<QtFramePeer> alive(this);
    QtPeer::eventFilter(watched, event);
    // Bars that came before the first showing take their part of the client area with it.
    const bool isShown = alive && watched == Widget() && event->type() == QEvent::Show;
    if (alive && (isShown || (watched == m_client && event->type() == QEvent::Resize))) ReportRect();
    // Closed by the user, or shown and hidden by the host; a window that is only minimised stays visible.
    if (alive && watched == Widget() && !event->spontaneous()) {
        if (event->type() == QEvent::Show) Window().ShowWindow(true);
        if (event->type() == QEvent::Hide) Window().ShowWindow(false);
    }
    return false;
}

void QtFramePeer::ApplyRect() {
    const QRect wanted = gGeometryOf(Window());
    // The frame's corner leaves the choice to the desktop, which knows its own bars and other windows.
    // Once it is on a screen, the corner is that of the client area, inside of title and bars.
    if (WasShown()) {
        Widget()->move(Widget()->pos() + wanted.topLeft() - m_client->mapToGlobal(QPoint()));
    } else if (wanted.topLeft() != QPoint()) {
        Widget()->move(wanted.topLeft());
    }
    const QSize bars = WasShown() ? Widget()->size() - m_client->size() : QSize(0, 0);
    Widget()->resize(wanted.size() + bars);
}

void QtFramePeer::ReportRect() {
    if (!m_client || !WasShown() || Widget()->isMinimized()) return;
    const QPoint corner = m_client->mapToGlobal(QPoint());
    const QSize size = m_client->size();
    Window().MovedByPeer({corner.x(), corner.y(), corner.x() + size.width(), corner.y() + size.height()});
}

void QtFramePeer::ApplyVisible() {
    const bool visible = Window().IsWindowVisible();
    if (Widget()->isVisible() != visible) Widget()->setVisible(visible);
}

bool QtFramePeer::WasShown() const {
    return Widget()->isVisible() && m_client && m_client->isVisible();
}

}  // namespace vapp_qt
