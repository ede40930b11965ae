/// @file
/// Pictures at a device pixel ratio, and what tests count in their pixels.
#pragma once

#include <QColor>
#include <QImage>
#include <QPainter>
#include <QRect>
#include <functional>

/// Whether a pixel shows something.
[[nodiscard]] inline bool gIsPainted(const QImage& image, int x, int y) {
    return qAlpha(image.pixel(x, y)) > 0;
}

[[nodiscard]] inline int gPaintedPixels(const QImage& image) {
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            count += gIsPainted(image, x, y) ? 1 : 0;
    }
    return count;
}

/// Number of pixels of a colour in an area, which is in device pixels.
[[nodiscard]] inline int gPixelsOf(const QImage& image, const QRect& area, const QColor& color) {
    int count = 0;
    for (int y = area.top(); y <= area.bottom(); ++y) {
        for (int x = area.left(); x <= area.right(); ++x)
            count += image.pixelColor(x, y) == color ? 1 : 0;
    }
    return count;
}

/// What is painted upon nothing, on a device of that size and ratio.
[[nodiscard]] inline QImage gPainted(QSize size, qreal ratio, const std::function<void(QPainter&)>& paint) {
    QImage image(size * ratio, QImage::Format_ARGB32);
    image.setDevicePixelRatio(ratio);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    paint(painter);
    return image;
}

/// The same picture of device pixels, each made as many as the ratio says.
[[nodiscard]] inline QImage gBlownUp(const QImage& coarse, qreal ratio) {
    QImage image = coarse.scaled(coarse.size() * ratio, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
                       .convertToFormat(QImage::Format_ARGB32);
    image.setDevicePixelRatio(ratio);
    return image;
}
