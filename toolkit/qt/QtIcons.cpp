/// @file
/// Each picture is drawn on a field of 16 by 16 units, which is then laid over the wanted rectangle.
#include "toolkit/qt/QtIcons.h"

#include <QApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPainterPath>
#include <QPalette>
#include <algorithm>

namespace vapp_qt {

namespace {

constexpr double cnField = 16;

const QColor cnGold(0xE0, 0xA0, 0x20);
const QColor cnCopper(0xC8, 0x74, 0x3A);
const QColor cnGreen(0x3F, 0xA0, 0x55);
const QColor cnBlue(0x3C, 0x82, 0xD6);
const QColor cnViolet(0x96, 0x5F, 0xC4);
const QColor cnRed(0xD6, 0x3B, 0x3B);

using Drawing = void (*)(QPainter& painter, const QColor& ink);

void SetPen(QPainter& painter, const QColor& color, double width = 1.2) {
    painter.setPen(QPen(color, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
}

void DrawPadlock(QPainter& painter, const QColor& ink) {
    QPainterPath shackle;
    shackle.moveTo(5, 7.5);
    shackle.lineTo(5, 5);
    shackle.arcTo(QRectF(5, 2, 6, 6), 180, -180);
    shackle.lineTo(11, 7.5);
    SetPen(painter, ink, 1.6);
    painter.setBrush(Qt::NoBrush);
    painter.drawPath(shackle);
    SetPen(painter, ink, 1);
    painter.setBrush(cnGold);
    painter.drawRoundedRect(QRectF(3, 7.5, 10, 6.5), 1.2, 1.2);
}

// A wafer with its flat, and a grid of dies.
void DrawFab(QPainter& painter, const QColor& ink) {
    SetPen(painter, ink);
    painter.setBrush(cnBlue);
    painter.drawChord(QRectF(1.5, 1.5, 13, 13), -60 * 16, 300 * 16);
    SetPen(painter, Qt::white, 0.9);
    for (const double at : {5.0, 8.0, 11.0}) {
        painter.drawLine(QPointF(at, 3.5), QPointF(at, 12));
        painter.drawLine(QPointF(3, at), QPointF(13, at));
    }
}

void DrawVCell(QPainter& painter, const QColor& ink) {
    SetPen(painter, ink);
    painter.setBrush(cnGreen);
    painter.drawRoundedRect(QRectF(1.5, 1.5, 13, 13), 2, 2);
    SetPen(painter, Qt::white, 1.8);
    painter.drawPolyline(QPolygonF({QPointF(4.5, 4.5), QPointF(8, 11.5), QPointF(11.5, 4.5)}));
}

void DrawVia(QPainter& painter, const QColor& ink, const QColor& metal) {
    SetPen(painter, ink);
    painter.setBrush(metal);
    painter.drawRect(QRectF(1.5, 1.5, 13, 13));
    painter.setBrush(Qt::white);
    SetPen(painter, ink, 0.9);
    for (const double left : {4.0, 9.0}) {
        for (const double top : {4.0, 9.0})
            painter.drawRect(QRectF(left, top, 3, 3));
    }
}

void DrawStandardVia(QPainter& painter, const QColor& ink) {
    DrawVia(painter, ink, cnCopper);
}

void DrawGuardRing(QPainter& painter, const QColor& ink) {
    QPainterPath ring;
    ring.setFillRule(Qt::OddEvenFill);
    ring.addRect(QRectF(1.5, 1.5, 13, 13));
    ring.addRect(QRectF(5, 5, 6, 6));
    SetPen(painter, ink);
    painter.setBrush(cnViolet);
    painter.drawPath(ring);
}

void DrawCustomVia(QPainter& painter, const QColor& ink) {
    SetPen(painter, ink);
    painter.setBrush(cnCopper);
    painter.drawPolygon(QPolygonF({QPointF(8, 1), QPointF(15, 8), QPointF(8, 15), QPointF(1, 8)}));
    SetPen(painter, ink, 0.9);
    painter.setBrush(Qt::white);
    painter.drawEllipse(QRectF(5.5, 5.5, 5, 5));
}

void DrawUnresolved(QPainter& painter, const QColor& /*ink*/) {
    painter.setPen(Qt::NoPen);
    painter.setBrush(cnRed);
    painter.drawPolygon(QPolygonF({QPointF(8, 1), QPointF(15.5, 14.5), QPointF(0.5, 14.5)}));
    SetPen(painter, Qt::white, 1.8);
    painter.drawLine(QPointF(8, 6), QPointF(8, 9.5));
    painter.drawPoint(QPointF(8, 12.3));
}

void DrawListToOpen(QPainter& painter, const QColor& ink) {
    SetPen(painter, ink, 1.6);
    painter.setBrush(Qt::NoBrush);
    painter.drawPolyline(QPolygonF({QPointF(3.5, 6), QPointF(8, 10.5), QPointF(12.5, 6)}));
}

void DrawCross(QPainter& painter, const QColor& ink) {
    SetPen(painter, ink, 1.6);
    painter.drawLine(QPointF(4, 4), QPointF(12, 12));
    painter.drawLine(QPointF(12, 4), QPointF(4, 12));
}

struct StripEntry {
    int icon;
    Drawing draw;
    const char* name;
};
constexpr StripEntry cnStrip[] = {{3, DrawFab, "fab"},
                                  {6, DrawVCell, "V-Cell"},
                                  {13, DrawStandardVia, "standard via"},
                                  {16, DrawGuardRing, "guard ring"},
                                  {19, DrawCustomVia, "custom via"}};
constexpr int cnLockedIcon = 1;

struct ResourceEntry {
    UINT resource;
    Drawing draw;
};
constexpr ResourceEntry cnResources[] = {
    {366, DrawUnresolved}, {367, DrawPadlock}, {562, DrawListToOpen}, {564, DrawCross}};

// Runs a drawing in the largest square in the middle of the area.
void DrawInto(QPainter& painter, const QRectF& area, const QColor& ink, Drawing draw) {
    const double side = std::min(area.width(), area.height());
    if (side <= 0) return;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(area.center() - QPointF(side / 2, side / 2));
    painter.scale(side / cnField, side / cnField);
    draw(painter, ink);
    painter.restore();
}

class ResourceIconEngine : public QIconEngine {
public:
    explicit ResourceIconEngine(UINT resource) : m_resource(resource) {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State /*state*/) override {
        const QPalette palette = QApplication::palette();
        const auto group = mode == QIcon::Disabled ? QPalette::Disabled : QPalette::Active;
        gDrawResource(*painter, rect, m_resource, palette.color(group, QPalette::ButtonText));
    }
    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        QPixmap picture(size);
        picture.fill(Qt::transparent);
        QPainter painter(&picture);
        paint(&painter, picture.rect(), mode, state);
        return picture;
    }
    [[nodiscard]] QIconEngine* clone() const override { return new ResourceIconEngine(m_resource); }

private:
    UINT m_resource;
};

}  // namespace

void gDrawStripIcon(QPainter& painter, const QRectF& area, int icon, const QColor& ink) {
    if (icon == cnLockedIcon) DrawInto(painter, area, ink, DrawPadlock);
    for (const StripEntry& entry : cnStrip) {
        if (icon != entry.icon && icon != entry.icon + 1) continue;
        DrawInto(painter, area, ink, entry.draw);
        if (icon == entry.icon) continue;
        // The lock stands in a corner, so that the kind of the cell can still be seen.
        const double side = std::min(area.width(), area.height());
        const QRectF square(area.center() - QPointF(side / 2, side / 2), QSizeF(side, side));
        DrawInto(painter, square.adjusted(side * 0.42, side * 0.42, side * 0.1, side * 0.1), ink,
                 DrawPadlock);
    }
}

void gDrawResource(QPainter& painter, const QRectF& area, UINT resource, const QColor& ink) {
    for (const ResourceEntry& entry : cnResources) {
        if (entry.resource == resource) DrawInto(painter, area, ink, entry.draw);
    }
}

QString gStripIconName(int icon) {
    if (icon == cnLockedIcon) return QStringLiteral("locked");
    for (const StripEntry& entry : cnStrip) {
        if (icon == entry.icon) return QString::fromLatin1(entry.name);
        if (icon == entry.icon + 1) return QString::fromLatin1(entry.name) + QLatin1String(", locked");
    }
    return {};
}

QString gLibraryMarkName(UINT resource) {
    if (resource == 366) return QStringLiteral("unresolved");
    if (resource == 367) return QStringLiteral("not editable");
    return {};
}

QIcon gResourceIcon(UINT resource) {
    return QIcon(new ResourceIconEngine(resource));
}

}  // namespace vapp_qt
