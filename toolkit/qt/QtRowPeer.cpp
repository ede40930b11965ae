/// @file
/// Changes on their way to a view of rows, at once or after the painting.
#include "toolkit/qt/QtRowPeer.h"

#include <QTimer>
#include <utility>

#include "toolkit/qt/QtRowView.h"

namespace vapp_qt {

namespace {

/// Milliseconds between looks at a painting that doesn't end, as the host script in it shows a dialog.
constexpr int cnPatience = 50;

}  // namespace

QtRowPeer::QtRowPeer(CWnd& window) : QtPeer(window, nullptr) {}

QtRowPeer::~QtRowPeer() = default;

QtRowView* QtRowPeer::RowView() const {
    return static_cast<QtRowView*>(Widget());
}

void QtRowPeer::Changed(UINT changes) {
    QtPeer::Changed(changes);
    if (RowView() == nullptr) return;
    const bool waiting = m_pending != 0;
    m_pending |= changes;
    if (!QtBusyScope::IsPainting()) {
        TellView(std::exchange(m_pending, 0U));
    } else if (!waiting) {
        QTimer::singleShot(0, this, [this] { TellLater(); });
    }
}

void QtRowPeer::TellLater() {
    if (m_pending == 0 || RowView() == nullptr) return;
    if (QtBusyScope::IsPainting()) {
        // An event loop runs inside the painting.
        QTimer::singleShot(cnPatience, this, [this] { TellLater(); });
    } else {
        TellView(std::exchange(m_pending, 0U));
    }
}

void QtRowPeer::Invalidate(bool /*erase*/) {
    if (QtRowView* view = RowView()) view->viewport()->update();
}

void QtRowPeer::UpdateNow() {
    if (QtRowView* view = RowView()) PaintNow(*view->viewport());
}

}  // namespace vapp_qt
