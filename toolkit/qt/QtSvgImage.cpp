/// @file
/// A file is read and understood anew for each image that isn't kept: that takes a fraction of a millisecond,
/// and happens once for each size and theme.
#include "toolkit/qt/QtSvgImage.h"

#include <QCache>
#include <QFile>
#include <QPainter>
#include <QSvgRenderer>
#include <algorithm>

// The resources are compiled into the library; a static one would leave them out if nothing named them. The
// macro must not stand in a namespace.
static void NameResources() {
    Q_INIT_RESOURCE(vapp_icons);
}

namespace vapp_qt {

namespace {

constexpr int cnLongestSide = 1024;
// All icons in both themes and at three scales are less than a quarter of it.
constexpr qsizetype cnKeptBytes = qsizetype{4} * 1024 * 1024;
constexpr double cnGreyedOpacity = 0.5;

QImage Greyed(const QImage& image) {
    QImage grey(image.size(), QImage::Format_ARGB32_Premultiplied);
    grey.fill(Qt::transparent);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QColor color = image.pixelColor(x, y);
            const int light = qGray(color.rgb());
            grey.setPixelColor(x, y, QColor(light, light, light, qRound(color.alpha() * cnGreyedOpacity)));
        }
    }
    return grey;
}

}  // namespace

QImage gDrawSvg(const QByteArray& text, const QtSvgWish& wish, QString& whyNot) {
    whyNot.clear();
    QByteArray colored = text;
    colored.replace("currentColor", QColor(wish.ink).name().toLatin1());
    QSvgRenderer renderer;
    if (!renderer.load(colored)) {
        whyNot = QStringLiteral("it is no drawing");
        return {};
    }
    const QRect all = renderer.viewBox();
    if (wish.part.isEmpty() || !all.contains(wish.part)) {
        whyNot = QStringLiteral("it has no part %1,%2 %3x%4")
                     .arg(wish.part.x())
                     .arg(wish.part.y())
                     .arg(wish.part.width())
                     .arg(wish.part.height());
        return {};
    }
    const QSize size = wish.pixels.boundedTo(QSize(cnLongestSide, cnLongestSide));
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    if (image.isNull()) {
        whyNot = QStringLiteral("there is no image of %1x%2").arg(size.width()).arg(size.height());
        return {};
    }
    image.fill(Qt::transparent);
    renderer.setViewBox(wish.part);
    QPainter painter(&image);
    renderer.render(&painter, QRectF(QPointF(0, 0), QSizeF(size)));
    painter.end();
    return wish.isGreyed ? Greyed(image) : image;
}

QImage gSvgImage(const QtSvgWish& wish) {
    static QCache<QtSvgWish, QImage> kept(cnKeptBytes);
    if (const QImage* image = kept.object(wish)) return *image;
    NameResources();
    QFile file(QStringLiteral(":/vapp/icons/%1.svg").arg(QLatin1String(wish.file)));
    QString whyNot;
    QImage image;
    if (file.open(QIODevice::ReadOnly)) {
        image = gDrawSvg(file.readAll(), wish, whyNot);
    } else {
        whyNot = file.errorString();
    }
    if (!whyNot.isEmpty()) qWarning("The picture %s can't be drawn: %s", wish.file, qPrintable(whyNot));
    // Kept if it is null as well: a warning for each painting would bury all others.
    kept.insert(wish, new QImage(image), std::max<qsizetype>(image.sizeInBytes(), 1));
    return image;
}

}  // namespace vapp_qt
