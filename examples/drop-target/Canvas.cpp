/// @file
/// The events of a drag, and the pictures of what was dropped.
///
/// The six fields are there only in this process and only until the drop is answered: what is needed later is
/// copied out of them.
#include "examples/drop-target/Canvas.h"

#include <QDragEnterEvent>
#include <QDragLeaveEvent>
#include <QMimeData>
#include <QPainter>
#include <any>
#include <optional>

#include "vapp/celllist/CLibCellViewOleDataSource.h"
#include "vapp/toolkit/qt/QtDraggedData.h"

using vapp_library_browser::CLibCellViewOleData;
using vapp_library_browser::CLibCellViewOleDataSource;

namespace {

constexpr int cnGrid = 20;
constexpr QSize cnBox(6 * cnGrid, 3 * cnGrid);

std::optional<CLibCellViewOleData> CellIn(const QMimeData* data) {
    if (data == nullptr) return std::nullopt;
    const std::any found = gDraggedData(*data, CLibCellViewOleDataSource::ClipboardFormatLibCellView);
    const auto* cell = std::any_cast<CLibCellViewOleData>(&found);
    return cell != nullptr ? std::optional(*cell) : std::nullopt;
}

QPoint OnGrid(const QPointF& point) {
    return {qRound(point.x() / cnGrid) * cnGrid, qRound(point.y() / cnGrid) * cnGrid};
}

QRect BoxAt(const QPoint& place) {
    return {place, cnBox};
}

QString TextOf(const CStringU& text) {
    return QString::fromUtf8(text.Payload());
}

}  // namespace

Canvas::Canvas(QWidget* parent) : QWidget(parent) {
    setAcceptDrops(true);
    setAccessibleName(QStringLiteral("Canvas"));
    setObjectName(QStringLiteral("canvas"));
}

QSize Canvas::sizeHint() const {
    return {24 * cnGrid, 24 * cnGrid};
}

void Canvas::dragEnterEvent(QDragEnterEvent* event) {
    if (!CellIn(event->mimeData())) return;
    event->acceptProposedAction();
    MarkPlace(OnGrid(event->position()));
}

void Canvas::dragMoveEvent(QDragMoveEvent* event) {
    event->acceptProposedAction();
    MarkPlace(OnGrid(event->position()));
}

void Canvas::dragLeaveEvent(QDragLeaveEvent* /*event*/) {
    m_isMarked = false;
    update();
}

void Canvas::dropEvent(QDropEvent* event) {
    m_isMarked = false;
    update();
    // Asked again: the navigator may have ended in the middle of the drag.
    const std::optional<CLibCellViewOleData> cell = CellIn(event->mimeData());
    if (!cell) {
        event->ignore();
        return;
    }
    event->acceptProposedAction();
    Place(OnGrid(event->position()), *cell);
}

void Canvas::Place(const QPoint& at, const CLibCellViewOleData& cell) {
    m_placed.push_back({at, cell});
    update();
    if (onPlaced) onPlaced(m_placed.back());
}

void Canvas::MarkPlace(const QPoint& place) {
    m_isMarked = true;
    m_place = place;
    update();
}

void Canvas::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.fillRect(rect(), palette().base());
    painter.setPen(palette().color(QPalette::Mid));
    for (int x = cnGrid; x < width(); x += cnGrid) {
        for (int y = cnGrid; y < height(); y += cnGrid)
            painter.drawPoint(x, y);
    }
    for (const Placed& placed : m_placed) {
        const QRect box = BoxAt(placed.at);
        painter.setPen(palette().color(QPalette::Text));
        painter.setBrush(palette().alternateBase());
        painter.drawRect(box);
        painter.drawText(box.adjusted(4, 4, -4, -4), Qt::AlignCenter | Qt::TextWordWrap,
                         TextOf(placed.cell.cell) + QLatin1Char('\n') + TextOf(placed.cell.view));
    }
    if (!m_isMarked) return;
    painter.setPen(QPen(palette().color(QPalette::Highlight), 2, Qt::DashLine));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(BoxAt(m_place));
}
