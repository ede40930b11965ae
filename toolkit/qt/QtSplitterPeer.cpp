/// @file
/// The bars of a splitter. They can be reached and moved by keyboard too.
#include "toolkit/qt/QtSplitterPeer.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QStyle>
#include <QStyleOption>
#include <algorithm>

#include "vapp/toolkit/CSplitterWnd.h"
#include "vapp/toolkit/CView.h"

namespace vapp_qt {

namespace {

constexpr int cnKeyStep = 10;

}  // namespace

QtSplitterBar::QtSplitterBar(CSplitterWnd& splitter, int row, QWidget* parent)
    : QWidget(parent), m_splitter(&splitter), m_row(row) {
    setCursor(Qt::SplitVCursor);
    setFocusPolicy(Qt::TabFocus);
    setObjectName(QStringLiteral("bar%1").arg(row));
    setAccessibleName(tr("Height of pane %1").arg(row + 1));
}

void QtSplitterBar::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    QStyleOption option;
    option.initFrom(this);
    option.rect = rect();
    // A bar between panes that lie under one another is "vertical" to the style: without the horizontal mark.
    option.state &= ~QStyle::State_Horizontal;
    style()->drawControl(QStyle::CE_Splitter, &option, &painter, this);
    if (hasFocus()) painter.fillRect(rect().adjusted(0, 2, 0, -2), palette().highlight());
}

void QtSplitterBar::mousePressEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton) m_grabbedAt = event->position().toPoint().y();
}

void QtSplitterBar::mouseMoveEvent(QMouseEvent* event) {
    if (event->buttons().testFlag(Qt::LeftButton)) Drag(y() + event->position().toPoint().y() - m_grabbedAt);
}

void QtSplitterBar::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Up) {
        Drag(y() - cnKeyStep);
    } else if (event->key() == Qt::Key_Down) {
        Drag(y() + cnKeyStep);
    } else {
        QWidget::keyPressEvent(event);
    }
}

void QtSplitterBar::Drag(int top) {
    const CView* pane = m_splitter != nullptr ? m_splitter->GetPane(m_row, 0) : nullptr;
    if (pane == nullptr) return;
    const QtBusyScope busy;
    // Never so far that the bar itself leaves the window and can't be caught again.
    const int lowest = m_splitter->GetClientRect().bottom - CSplitterWnd::cnBarHeight;
    m_splitter->SetRowHeight(m_row, std::min(top, lowest) - pane->GetRect().top);
}

QtSplitterPeer::QtSplitterPeer(CSplitterWnd& splitter)
    : QtPeer(splitter, new QWidget(gClientWidgetAbove(splitter))), m_splitter(splitter) {}

QtSplitterPeer::~QtSplitterPeer() {
    for (const QPointer<QtSplitterBar>& bar : m_bars) {
        if (bar) bar->Detach();
    }
}

void QtSplitterPeer::Changed(UINT changes) {
    QtPeer::Changed(changes);
    if ((changes & cnChangeItems) != 0) MakeBars();
    if ((changes & (cnChangeItems | cnChangeRect)) != 0) PlaceBars();
}

void QtSplitterPeer::ChildPlaced() {
    PlaceBars();
}

// The keyboard goes from widget to widget in the order in which they were made. So a bar comes when the pane
// above it is whole: the first thing in a new window that the keyboard gets to is a control, and not a bar.
void QtSplitterPeer::MakeBars() {
    if (Widget() == nullptr) return;
    const int barCount = m_splitter.GetRowCount() - 1;
    for (int row = static_cast<int>(m_bars.size()); row < barCount; ++row) {
        if (m_splitter.GetPane(row, 0) == nullptr) return;
        m_bars.emplace_back(new QtSplitterBar(m_splitter, row, Widget()));
    }
}

void QtSplitterPeer::PlaceBars() {
    if (Widget() == nullptr) return;
    for (std::size_t index = 0; index < m_bars.size(); ++index) {
        QtSplitterBar* const bar = m_bars[index];
        if (bar == nullptr) continue;
        const CView* pane = m_splitter.GetPane(static_cast<int>(index), 0);
        bar->setVisible(pane != nullptr);
        if (pane == nullptr) continue;
        bar->setGeometry(0, pane->GetRect().bottom, std::max(m_splitter.GetClientRect().right, 0),
                         CSplitterWnd::cnBarHeight);
    }
}

}  // namespace vapp_qt
