/// @file
/// The common behaviour of the views of rows. The item view's own answers to mouse and keys are replaced
/// throughout: they would change its selection model, and so begin a second truth.
#include "toolkit/qt/QtRowView.h"

#include <QAccessible>
#include <QApplication>
#include <QContextMenuEvent>
#include <QDropEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>
#include <algorithm>
#include <chrono>
#include <utility>

#include "toolkit/qt/QtPeer.h"
#include "toolkit/qt/QtText.h"

namespace vapp_qt {

namespace {

constexpr int cnSidewaysStep = 20;

struct KeyEntry {
    int qt;
    TKey key;
};
constexpr KeyEntry cnKeys[] = {
    {Qt::Key_Up, TKey::Up},         {Qt::Key_Down, TKey::Down},     {Qt::Key_Left, TKey::Left},
    {Qt::Key_Right, TKey::Right},   {Qt::Key_PageUp, TKey::PageUp}, {Qt::Key_PageDown, TKey::PageDown},
    {Qt::Key_Home, TKey::Home},     {Qt::Key_End, TKey::End},       {Qt::Key_Space, TKey::Space},
    {Qt::Key_Escape, TKey::Escape}, {Qt::Key_Return, TKey::Return}, {Qt::Key_Enter, TKey::Return},
};

TModifiers ModifiersOf(Qt::KeyboardModifiers modifiers) {
    return {.shift = modifiers.testFlag(Qt::ShiftModifier),
            .control = modifiers.testFlag(Qt::ControlModifier)};
}

// Text, and not the letter of a shortcut. Control and Alt together are how some keyboards reach a third
// level.
bool IsTyping(const QKeyEvent& event) {
    const Qt::KeyboardModifiers held = event.modifiers();
    if (held.testFlag(Qt::MetaModifier)) return false;
    if (held.testFlag(Qt::ControlModifier) != held.testFlag(Qt::AltModifier)) return false;
    return !event.text().isEmpty() && event.text().front().isPrint();
}

std::int64_t Now() {
    const auto now = std::chrono::steady_clock::now().time_since_epoch();
    return std::chrono::duration_cast<std::chrono::milliseconds>(now).count();
}

}  // namespace

QtRowView::QtRowView(QtRowControl& control, QWidget* parent)
    : QAbstractItemView(parent), m_control(&control) {
    setFrameShape(QFrame::NoFrame);
    setAutoScroll(false);
    setEditTriggers(NoEditTriggers);
    setSelectionMode(ExtendedSelection);
    setSelectionBehavior(SelectRows);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    // So that what is refused here isn't offered to the windows around; see `dragEnterEvent`.
    viewport()->setAcceptDrops(true);
}

void QtRowView::Detach() {
    m_control = nullptr;
    viewport()->update();
}

// A pen's line lies around its path: along the edge, half of it would be cut off at scales other than one.
void QtRowView::PaintFocusFrame(QPainter& painter, const QRect& area, const QColor& line) {
    painter.setPen(QPen(line, 1, Qt::DotLine));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(QRectF(area).adjusted(0.5, 0.5, -0.5, -0.5));
}

// --- State of the control, on its way to Qt ------------------------------------------------------------

void QtRowView::ApplyGeometry() {
    viewport()->update();
    if (m_control == nullptr || m_applyingBars) return;
    m_applyingBars = true;
    const CSize window = m_control->WindowSize();
    const CSize bar = {verticalScrollBar()->sizeHint().width(), horizontalScrollBar()->sizeHint().height()};
    bool down = false;
    bool sideways = false;
    // Each bar takes room from the other's direction; twice is enough, as a bar that was needed stays needed.
    for (int round = 0; round < 2; ++round) {
        const int height = window.cy - m_control->HeaderHeight() - (sideways ? bar.cy : 0);
        down = m_control->RowCount() > std::max(height / m_control->RowHeight(), 1);
        sideways = m_control->ContentWidth() > window.cx - (down ? bar.cx : 0);
    }
    sideways = sideways && m_control->ContentWidth() > 0;
    m_control->Reserve({down ? bar.cx : 0, sideways ? bar.cy : 0});
    setVerticalScrollBarPolicy(down ? Qt::ScrollBarAlwaysOn : Qt::ScrollBarAlwaysOff);
    setHorizontalScrollBarPolicy(sideways ? Qt::ScrollBarAlwaysOn : Qt::ScrollBarAlwaysOff);
    const int page = m_control->PageRows();
    const int width = std::max(m_control->ClientSize().cx, 0);
    ApplyBar(*verticalScrollBar(), m_control->RowCount() - page, page, 1, m_control->TopRow());
    ApplyBar(*horizontalScrollBar(), sideways ? m_control->ContentWidth() - width : 0, width, cnSidewaysStep,
             m_control->ScrollX());
    m_applyingBars = false;
}

void QtRowView::ApplyBar(QScrollBar& bar, int last, int page, int step, int value) {
    bar.setRange(0, std::max(last, 0));
    bar.setPageStep(page);
    bar.setSingleStep(step);
    bar.setValue(value);
}

void QtRowView::ApplySelection() {
    viewport()->update();
    if (m_mirrorPending) return;
    // Once for many changes in a row: a refresh restores a selection row by row.
    m_mirrorPending = true;
    QMetaObject::invokeMethod(this, &QtRowView::MirrorSelection, Qt::QueuedConnection);
}

void QtRowView::MirrorSelection() {
    m_mirrorPending = false;
    if (m_control == nullptr || model() == nullptr || selectionModel() == nullptr) return;
    const int rows = model()->rowCount();
    const int columns = model()->columnCount();
    QItemSelection selection;
    const std::vector<RowSelection::Range>& ranges = m_control->Selection().GetRanges();
    const int lastShown = m_control->TopRow() + m_control->PageRows();
    for (const RowSelection::Range& range : ranges) {
        if (columns == 0 || range.first >= rows) break;
        const bool shown = range.last >= m_control->TopRow() && range.first <= lastShown;
        if (!shown && ranges.size() > cnMirroredRanges) continue;
        selection.append(QItemSelectionRange(model()->index(range.first, 0),
                                             model()->index(std::min(range.last, rows - 1), columns - 1)));
    }
    selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect);
    selectionModel()->setCurrentIndex(model()->index(m_control->FocusedRow(), 0),
                                      QItemSelectionModel::NoUpdate);
}

// --- Places --------------------------------------------------------------------------------------------

int QtRowView::RowAt(const QPoint& point) const {
    if (m_control == nullptr || !viewport()->rect().contains(point)) return -1;
    const int below = point.y() / m_control->RowHeight();
    return below < m_control->RowCount() - m_control->TopRow() ? m_control->TopRow() + below : -1;
}

QRect QtRowView::RowRect(int row) const {
    if (m_control == nullptr) return {};
    const qint64 top = (static_cast<qint64>(row) - m_control->TopRow()) * m_control->RowHeight();
    constexpr qint64 farAway = 1 << 24;
    return {0, static_cast<int>(std::clamp(top, -farAway, farAway)), viewport()->width(),
            m_control->RowHeight()};
}

QRect QtRowView::visualRect(const QModelIndex& index) const {
    if (!index.isValid()) return {};
    return RowRect(index.row()) & ColumnRect(index.column()).adjusted(0, -(1 << 25), 0, 1 << 25);
}

QModelIndex QtRowView::indexAt(const QPoint& point) const {
    const int row = RowAt(point);
    const int column = ColumnAt(point.x());
    return row >= 0 && column >= 0 && model() != nullptr ? model()->index(row, column) : QModelIndex();
}

void QtRowView::scrollTo(const QModelIndex& index, ScrollHint /*hint*/) {
    if (m_control != nullptr && index.isValid()) m_control->EnsureVisible(index.row());
}

int QtRowView::horizontalOffset() const {
    return m_control != nullptr ? m_control->ScrollX() : 0;
}

int QtRowView::verticalOffset() const {
    return 0;
}

bool QtRowView::isIndexHidden(const QModelIndex& /*index*/) const {
    return false;
}

QRegion QtRowView::visualRegionForSelection(const QItemSelection& /*selection*/) const {
    return viewport()->rect();
}

// --- What the item view would do by itself -------------------------------------------------------------

QModelIndex QtRowView::moveCursor(CursorAction /*action*/, Qt::KeyboardModifiers /*modifiers*/) {
    return {};
}

void QtRowView::setSelection(const QRect& /*rect*/, QItemSelectionModel::SelectionFlags /*command*/) {}

void QtRowView::selectAll() {
    if (m_control != nullptr) m_control->Key(TKey::SelectAll, {});
}

void QtRowView::keyboardSearch(const QString& search) {
    Type(search);
}

void QtRowView::currentChanged(const QModelIndex& current, const QModelIndex& /*previous*/) {
    if (!QAccessible::isActive() || !current.isValid() || !hasFocus()) return;
    QAccessibleEvent event(this, QAccessible::Focus);
    event.setChild(current.row() * model()->columnCount() + current.column());
    QAccessible::updateAccessibility(&event);
}

void QtRowView::selectionChanged(const QItemSelection& /*selected*/, const QItemSelection& /*deselected*/) {
    if (!QAccessible::isActive()) return;
    QAccessibleEvent event(this, QAccessible::SelectionWithin);
    QAccessible::updateAccessibility(&event);
}

// --- Events --------------------------------------------------------------------------------------------

bool QtRowView::viewportEvent(QEvent* event) {
    switch (event->type()) {
        // Nothing here changes under the pointer; the item view would paint rows anew, which asks the host.
        case QEvent::HoverEnter:
        case QEvent::HoverMove:
        case QEvent::HoverLeave:
            return QAbstractScrollArea::viewportEvent(event);
        default:
            return QAbstractItemView::viewportEvent(event);
    }
}

void QtRowView::changeEvent(QEvent* event) {
    QAbstractItemView::changeEvent(event);
    if (event->type() != QEvent::FontChange && event->type() != QEvent::StyleChange) return;
    if (m_control == nullptr) return;
    ApplyFont();
    ApplyGeometry();
}

void QtRowView::resizeEvent(QResizeEvent* event) {
    QAbstractItemView::resizeEvent(event);
    ApplyGeometry();
}

void QtRowView::scrollContentsBy(int /*dx*/, int /*dy*/) {
    if (m_control == nullptr || m_applyingBars) return;
    const QtBusyScope busy;
    m_control->Scroll(verticalScrollBar()->value(), horizontalScrollBar()->value());
    // The bars show what the control made of it, also where it stayed as it was.
    ApplyGeometry();
}

void QtRowView::mousePressEvent(QMouseEvent* event) {
    if (m_control == nullptr) return;
    const QtBusyScope busy;
    const int row = RowAt(event->position().toPoint());
    const bool canDrag = m_control->CanDrag();
    m_draggedTo = event->button() == Qt::LeftButton && !canDrag ? row : -1;
    m_pressedRow = canDrag ? row : -1;
    m_pressed = event->position().toPoint();
    m_pressedInRow = m_pressed - RowRect(row).topLeft();
    m_pressedButton = event->button();
    if (event->button() == Qt::LeftButton) m_control->Click(row, ModifiersOf(event->modifiers()));
    if (event->button() == Qt::RightButton) m_control->ContextClick(row);
}

void QtRowView::mouseMoveEvent(QMouseEvent* event) {
    event->accept();
    if (m_control == nullptr) return;
    if (m_draggedTo >= 0 && event->buttons().testFlag(Qt::LeftButton)) SelectAlong(*event);
    if (m_pressedRow >= 0 && event->buttons().testFlag(m_pressedButton)) DragOut(*event);
}

void QtRowView::ForgetPress() {
    m_pressedRow = -1;
}

// A row is dragged once the pointer has left it. What is dragged is what was pressed, wherever the pointer
// is.
void QtRowView::DragOut(const QMouseEvent& event) {
    const QPoint at = event.position().toPoint();
    const bool isFar = (at - m_pressed).manhattanLength() >= QApplication::startDragDistance();
    if (!isFar || RowRect(m_pressedRow).contains(at)) return;
    UINT flags = 0;
    if (m_pressedButton == Qt::LeftButton) flags = 1;
    if (m_pressedButton == Qt::RightButton) flags = 2;
    // The rows may have been scrolled since; of a row that is cut by an edge only a part is there.
    const QRect row = RowRect(std::exchange(m_pressedRow, -1));
    const QRect shown = row & viewport()->rect();
    if (flags == 0 || shown.isEmpty()) return;
    const QPoint pressed = row.topLeft() + m_pressedInRow;
    const QtBusyScope busy;
    m_control->BeginDrag(ClientPoint({pressed.x(), std::min(pressed.y(), shown.bottom())}), flags);
}

// Rows that are passed are selected, as shift and a click would; beyond an edge it scrolls row by row.
void QtRowView::SelectAlong(const QMouseEvent& event) {
    const int row = DragTarget(event.position().toPoint().y());
    if (row < 0 || row == m_draggedTo) return;
    m_draggedTo = row;
    const QtBusyScope busy;
    m_control->Click(row, {.shift = true, .control = event.modifiers().testFlag(Qt::ControlModifier)});
    if (m_control != nullptr) m_control->EnsureVisible(row);
}

int QtRowView::DragTarget(int y) const {
    const int below = y < 0 ? -1 : std::min(y / m_control->RowHeight(), m_control->PageRows());
    // Without rows there is none to drag to.
    return std::min(std::max(m_control->TopRow() + below, 0), m_control->RowCount() - 1);
}

void QtRowView::mouseReleaseEvent(QMouseEvent* event) {
    event->accept();
    m_draggedTo = -1;
    m_pressedRow = -1;
}

// Nothing can be dropped on rows. The drag is taken, so that Qt doesn't ask the parents, one of which may be
// a host's window that takes files, and refused at every place.
void QtRowView::dragEnterEvent(QDragEnterEvent* event) {
    event->setDropAction(Qt::IgnoreAction);
    event->accept();
}

void QtRowView::dragMoveEvent(QDragMoveEvent* event) {
    event->ignore();
}

void QtRowView::dropEvent(QDropEvent* event) {
    event->setDropAction(Qt::IgnoreAction);
    event->ignore();
}

void QtRowView::mouseDoubleClickEvent(QMouseEvent* event) {
    // To the rules of selection the second press is a press like any other.
    mousePressEvent(event);
    if (m_control == nullptr || event->button() != Qt::LeftButton) return;
    const QtBusyScope busy;
    m_control->DoubleClick(ClientPoint(event->position().toPoint()));
}

// By key, the menu stands at the focused row, where the user looks.
void QtRowView::contextMenuEvent(QContextMenuEvent* event) {
    event->accept();
    if (m_control == nullptr) return;
    const QtBusyScope busy;
    QPoint point = event->pos();
    if (event->reason() == QContextMenuEvent::Keyboard) {
        const QRect row = RowRect(std::max(m_control->FocusedRow(), m_control->TopRow()));
        point = {row.left() + 1, std::clamp(row.center().y(), 0, std::max(viewport()->height() - 1, 0))};
    }
    m_control->ContextMenu(ClientPoint(point));
}

CPoint QtRowView::ClientPoint(const QPoint& viewportPoint) const {
    const QPoint point = viewport()->mapTo(this, viewportPoint);
    return {point.x(), point.y()};
}

void QtRowView::keyPressEvent(QKeyEvent* event) {
    event->ignore();
    if (m_control == nullptr) return;
    const QtBusyScope busy;
    if (event->matches(QKeySequence::SelectAll)) {
        event->accept();
        m_control->Key(TKey::SelectAll, {});
        return;
    }
    // Names may have blanks in them: in the middle of one, a blank selects nothing.
    if (event->key() == Qt::Key_Space && IsTyping(*event) && m_control->IsTyping(Now())) {
        event->accept();
        Type(event->text());
        return;
    }
    const auto* entry = std::find_if(std::begin(cnKeys), std::end(cnKeys),
                                     [event](const KeyEntry& known) { return known.qt == event->key(); });
    if (entry != std::end(cnKeys)) {
        // These two are for dialogs around us as well.
        if (entry->key != TKey::Escape && entry->key != TKey::Return) event->accept();
        m_control->Key(entry->key, ModifiersOf(event->modifiers()));
        if (m_control == nullptr) return;
        if (entry->key == TKey::Left) horizontalScrollBar()->triggerAction(QScrollBar::SliderSingleStepSub);
        if (entry->key == TKey::Right) horizontalScrollBar()->triggerAction(QScrollBar::SliderSingleStepAdd);
    } else if (IsTyping(*event)) {
        event->accept();
        if (event->text() == QLatin1String("/") && m_control->Find()) return;
        if (m_control == nullptr) return;
        Type(event->text());
    }
}

void QtRowView::Type(const QString& text) {
    if (m_control == nullptr) return;
    m_control->Type(gToText(text), Now());
}

}  // namespace vapp_qt
