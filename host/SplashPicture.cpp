/// Drawn, so that it is as sharp as the screen, whatever the scale.

#include "host/SplashPicture.h"

#include <QFont>
#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>
#include <algorithm>
#include <cmath>

namespace navigator {

namespace {

constexpr double cnLargestScale = 8;

void PaintGround(QPainter& painter, const QRectF& area) {
    QLinearGradient ground(area.topLeft(), area.bottomRight());
    ground.setColorAt(0, QColor(0x12, 0x2B, 0x45));
    ground.setColorAt(1, QColor(0x1D, 0x55, 0x7A));
    painter.fillRect(area, ground);
    painter.setPen(QPen(QColor(255, 255, 255, 22), 1));
    constexpr int cnGrid = 20;
    for (int x = cnGrid; x < cnSplashWidth; x += cnGrid)
        painter.drawLine(QPointF(x, 0), QPointF(x, cnSplashHeight));
    for (int y = cnGrid; y < cnSplashHeight; y += cnGrid)
        painter.drawLine(QPointF(0, y), QPointF(cnSplashWidth, y));
}

/// An inverter with its two pins, as it stands in the preview of the sample.
void PaintSymbol(QPainter& painter) {
    painter.setPen(QPen(QColor(0x7F, 0xD8, 0xA4), 4, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    QPainterPath gate;
    gate.moveTo(360, 60);
    gate.lineTo(360, 160);
    gate.lineTo(440, 110);
    gate.closeSubpath();
    painter.drawPath(gate);
    painter.drawEllipse(QPointF(449, 110), 9, 9);
    painter.drawLine(QPointF(320, 110), QPointF(360, 110));
    painter.drawLine(QPointF(458, 110), QPointF(490, 110));
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0xF2, 0x8B, 0x50));
    painter.drawRect(QRectF(312, 104, 12, 12));
    painter.drawRect(QRectF(486, 104, 12, 12));
}

void PaintName(QPainter& painter) {
    QFont font(painter.font());
    font.setPixelSize(42);
    font.setWeight(QFont::DemiBold);
    painter.setFont(font);
    painter.setPen(Qt::white);
    painter.drawText(QRectF(38, 138, 300, 50), Qt::AlignLeft | Qt::AlignVCenter, QStringLiteral("Library"));
    font.setWeight(QFont::Light);
    painter.setFont(font);
    painter.drawText(QRectF(38, 184, 400, 50), Qt::AlignLeft | Qt::AlignVCenter, QStringLiteral("Navigator"));
}

}  // namespace

QImage gPaintSplash(double scale) {
    const double ratio = std::clamp(std::isfinite(scale) ? scale : 1.0, 1.0, cnLargestScale);
    QImage picture(static_cast<int>(std::lround(cnSplashWidth * ratio)),
                   static_cast<int>(std::lround(cnSplashHeight * ratio)), QImage::Format_RGB32);
    picture.setDevicePixelRatio(ratio);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    PaintGround(painter, QRectF(0, 0, cnSplashWidth, cnSplashHeight));
    PaintSymbol(painter);
    PaintName(painter);
    return picture;
}

}  // namespace navigator
