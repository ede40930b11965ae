/// @file
/// The header's painting and its mouse. Sections are drawn by the style, with the control's colours put into
/// the palette, so that they look like those of other lists.
#include "toolkit/qt/QtReportHeader.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QStyle>
#include <QStyleOptionHeader>
#include <algorithm>
#include <cstdlib>

#include "toolkit/qt/QtColor.h"
#include "toolkit/qt/QtPeer.h"
#include "toolkit/qt/QtText.h"
#include "vapp/toolkit/CXTPReportControl.h"

namespace vapp_qt {

namespace {

constexpr int cnEdgeReach = 4;
constexpr int cnVerticalPadding = 4;
// More than an arrow and the margins around it take.
constexpr int cnOutOfSight = 100;
constexpr int cnLongestTitle = 10000;

QStyleOptionHeader::SectionPosition PositionOf(const QtColumnPlace& place) {
    return place.visibleIndex == 0 ? QStyleOptionHeader::Beginning : QStyleOptionHeader::Middle;
}

}  // namespace

QtReportHeader::QtReportHeader(CXTPReportControl& report, QWidget* parent)
    : QWidget(parent), m_report(&report) {
    setMouseTracking(true);
    setObjectName(QStringLiteral("header"));
}

int QtReportHeader::WantedHeight() const {
    return fontMetrics().height() + 2 * cnVerticalPadding;
}

// --- Painting ------------------------------------------------------------------------------------------

void QtReportHeader::paintEvent(QPaintEvent* /*event*/) {
    if (m_report == nullptr) return;
    ApplyColors();
    QPainter painter(this);
    const std::vector<QtColumnPlace> places = gColumnPlaces(*m_report);
    // From right to left: styles give a section a clip of its own, and leave it behind. So only the frozen
    // ones, painted last, cover what has moved under them.
    for (auto place = places.rbegin(); place != places.rend(); ++place)
        PaintSection(painter, *place);
    painter.setClipping(false);
    PaintEmptySection(painter, places.empty() ? 0 : places.back().Right());
    if (m_drag == TDrag::Moving) PaintDropMark(painter);
}

// Made anew only when something in it is another: styles keep the pictures that they draw of a section by the
// palette's identity, and with a new one for each painting would fill their whole cache with the same
// picture.
void QtReportHeader::ApplyColors() {
    const CXTPReportPaintManager& looks = m_report->GetPaintManager();
    const COLORREF back = looks.GetColor(TReportColor::HeaderBack);
    const COLORREF text = looks.GetColor(TReportColor::HeaderText);
    if (m_colorsOf.palette == palette().cacheKey() && m_colorsOf.back == back && m_colorsOf.text == text)
        return;
    m_colorsOf = {palette().cacheKey(), back, text};
    m_colors = palette();
    const QColor surface = gToQColor(back, m_colors.color(QPalette::Button));
    const QColor ink = gReadableOn(surface, gToQColor(text, m_colors.color(QPalette::ButtonText)));
    if (back != cnNoColor) {
        // Lines between the sections and the light edge of a button have to follow the background.
        m_colors.setColor(QPalette::Window, surface);
        m_colors.setColor(QPalette::Button, surface);
        m_colors.setColor(QPalette::Light, gMixed(ink, surface, 12));
        m_colors.setColor(QPalette::Dark, gMixed(ink, surface, 25));
    }
    for (const QPalette::ColorRole role : {QPalette::ButtonText, QPalette::WindowText, QPalette::Text})
        m_colors.setColor(role, ink);
}

// Styles draw a section as one picture of its size, in pixels of the screen. One of a column as wide as a
// user or a kept setting may make it takes them minutes: what lies far out of sight is left out, and with it
// neither text nor arrow is moved.
QRect QtReportHeader::PaintedPart(const QtColumnPlace& place, const QString& text) const {
    const int textWidth = std::min(fontMetrics().horizontalAdvance(text), cnLongestTitle);
    const int left = std::max(place.left, -(textWidth + cnOutOfSight));
    const int right = std::min(place.Right(), width() + cnOutOfSight);
    return {left, 0, std::max(right - left, 0), height()};
}

void QtReportHeader::PaintSection(QPainter& painter, const QtColumnPlace& place) const {
    QStyleOptionHeader option;
    option.initFrom(this);
    option.palette = m_colors;
    option.orientation = Qt::Horizontal;
    option.section = place.visibleIndex;
    option.position = PositionOf(place);
    option.textAlignment = Qt::AlignLeft | Qt::AlignVCenter;
    option.state |= QStyle::State_Horizontal | QStyle::State_Raised;
    option.state.setFlag(QStyle::State_MouseOver, false);
    const bool pressed = m_drag == TDrag::Pressed && m_column == place.column;
    option.state.setFlag(QStyle::State_Sunken, pressed);
    const bool sorted = m_report->GetColumns().GetSortOrder().IndexOf(place.column) >= 0;
    // To the styles the arrow that points down stands for rising order.
    if (sorted) {
        option.sortIndicator =
            place.column->IsSortedIncreasing() ? QStyleOptionHeader::SortDown : QStyleOptionHeader::SortUp;
    }
    const int margin = style()->pixelMetric(QStyle::PM_HeaderMargin, nullptr, this);
    const int arrow = sorted ? style()->pixelMetric(QStyle::PM_HeaderMarkSize, nullptr, this) + margin : 0;
    option.text = fontMetrics().elidedText(gToQString(place.column->GetCaption()), Qt::ElideRight,
                                           place.width - 2 * margin - arrow);
    option.rect = PaintedPart(place, option.text);
    style()->drawControl(QStyle::CE_Header, &option, &painter, this);
}

void QtReportHeader::PaintEmptySection(QPainter& painter, int left) const {
    if (left >= width()) return;
    QStyleOptionHeader option;
    option.initFrom(this);
    option.palette = m_colors;
    option.rect = QRect(left, 0, width() - left, height());
    option.orientation = Qt::Horizontal;
    option.position = QStyleOptionHeader::End;
    option.state |= QStyle::State_Horizontal | QStyle::State_Raised;
    option.state.setFlag(QStyle::State_MouseOver, false);
    style()->drawControl(QStyle::CE_HeaderEmptyArea, &option, &painter, this);
    style()->drawControl(QStyle::CE_HeaderSection, &option, &painter, this);
}

void QtReportHeader::PaintDropMark(QPainter& painter) const {
    const CXTPReportColumn* target = DropTarget(m_mouseX);
    if (target == nullptr) return;
    const QtColumnPlace to = gPlaceOfColumn(*m_report, target);
    const bool toTheRight = to.visibleIndex > gPlaceOfColumn(*m_report, m_column).visibleIndex;
    const int x = toTheRight ? to.Right() - 2 : to.shownLeft;
    painter.fillRect(QRect(x, 0, 3, height()), palette().highlight());
}

// --- Mouse ---------------------------------------------------------------------------------------------

CXTPReportColumn* QtReportHeader::ColumnAt(int x) const {
    if (m_report == nullptr) return nullptr;
    for (const QtColumnPlace& place : gColumnPlaces(*m_report)) {
        if (x >= place.shownLeft && x < place.Right()) return place.column;
    }
    return nullptr;
}

CXTPReportColumn* QtReportHeader::EdgeAt(int x) const {
    if (m_report == nullptr) return nullptr;
    CXTPReportColumn* found = nullptr;
    int nearest = cnEdgeReach + 1;
    for (const QtColumnPlace& place : gColumnPlaces(*m_report)) {
        const int distance = std::abs(place.Right() - x);
        if (distance >= nearest) continue;
        nearest = distance;
        found = place.column;
    }
    return found;
}

CXTPReportColumn* QtReportHeader::DropTarget(int x) const {
    if (m_report == nullptr || m_column == nullptr) return nullptr;
    const int own = gPlaceOfColumn(*m_report, m_column).visibleIndex;
    const std::vector<QtColumnPlace> places = gColumnPlaces(*m_report);
    CXTPReportColumn* target = nullptr;
    // To the left: the first column whose middle is passed; to the right: the last one.
    for (const QtColumnPlace& place : places) {
        const int middle = place.shownLeft + place.ShownWidth() / 2;
        if (place.visibleIndex < own && x < middle) return place.column;
        if (place.visibleIndex > own && x > middle) target = place.column;
    }
    return target;
}

void QtReportHeader::mousePressEvent(QMouseEvent* event) {
    if (m_report == nullptr || event->button() != Qt::LeftButton) return;
    m_pressedAt = event->position().toPoint().x();
    m_mouseX = m_pressedAt;
    if (CXTPReportColumn* edge = EdgeAt(m_pressedAt)) {
        m_drag = TDrag::Resizing;
        m_column = edge;
        m_widthThen = edge->GetShownWidth();
    } else if (CXTPReportColumn* column = ColumnAt(m_pressedAt)) {
        m_drag = TDrag::Pressed;
        m_column = column;
    }
    update();
}

void QtReportHeader::mouseMoveEvent(QMouseEvent* event) {
    if (m_report == nullptr) return;
    const QtBusyScope busy;
    m_mouseX = event->position().toPoint().x();
    const int moved = m_mouseX - m_pressedAt;
    if (m_drag == TDrag::Pressed && std::abs(moved) >= QApplication::startDragDistance()) {
        m_drag = TDrag::Moving;
    }
    if (m_drag == TDrag::Resizing) {
        const int width = std::max(m_widthThen + moved, CXTPReportColumn::cnMinShownWidth);
        m_report->GetReportHeader().ResizedByUser(m_column, width);
    } else if (m_drag == TDrag::Moving) {
        update();
    } else if (m_drag == TDrag::None) {
        setCursor(EdgeAt(m_mouseX) != nullptr ? Qt::SplitHCursor : Qt::ArrowCursor);
    }
}

void QtReportHeader::mouseReleaseEvent(QMouseEvent* event) {
    if (m_report == nullptr || event->button() != Qt::LeftButton) return;
    const QtBusyScope busy;
    const int x = event->position().toPoint().x();
    const TDrag drag = m_drag;
    CXTPReportColumn* const column = m_column;
    CXTPReportColumn* const target = drag == TDrag::Moving ? DropTarget(x) : nullptr;
    EndDrag();
    if (drag == TDrag::Pressed && ColumnAt(x) == column) {
        m_report->GetReportHeader().ClickedByUser(column, event->modifiers().testFlag(Qt::ControlModifier));
    } else if (target != nullptr) {
        m_report->GetReportHeader().MovedByUser(column, m_report->GetColumns().IndexOf(target));
    }
}

void QtReportHeader::mouseDoubleClickEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) return;
    if (CXTPReportColumn* edge = EdgeAt(event->position().toPoint().x())) {
        EndDrag();
        emit FitWanted(edge);
    } else {
        mousePressEvent(event);
        if (m_report == nullptr || ColumnAt(event->position().toPoint().x()) != nullptr) return;
        const QtBusyScope busy;
        m_report->DoubleClickedByUser(ClientPoint(event->position().toPoint()));
    }
}

void QtReportHeader::contextMenuEvent(QContextMenuEvent* event) {
    event->accept();
    if (m_report == nullptr) return;
    EndDrag();
    const QtBusyScope busy;
    m_report->ContextMenuByPeer(m_report->ClientToScreen(ClientPoint(event->pos())));
}

CPoint QtReportHeader::ClientPoint(const QPoint& point) const {
    const QPoint client = mapToParent(point);
    return {client.x(), client.y()};
}

void QtReportHeader::leaveEvent(QEvent* /*event*/) {
    if (m_drag == TDrag::None) unsetCursor();
}

void QtReportHeader::EndDrag() {
    m_drag = TDrag::None;
    m_column = nullptr;
    update();
}

}  // namespace vapp_qt
