/// @file
/// A picture is laid upon whole pixels of the device, whatever its ratio and wherever the widget lies: copied
/// to half a pixel, each of its lines would be two grey ones.
#include "toolkit/qt/QtIcons.h"

#include <QApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>
#include <QTransform>
#include <algorithm>
#include <cmath>

#include "toolkit/qt/QtSvgImage.h"

namespace vapp_qt {

namespace {

constexpr QSize cnStripCell(22, 16);
constexpr QSize cnPictureSize(16, 16);
// Far beyond what is drawn, and an int.
constexpr double cnLongestLength = 1e6;
constexpr double cnFuzz = 1e-6;

struct StripEntry {
    int icon;
    const char* name;
};
constexpr StripEntry cnStrip[] = {
    {3, "fab"}, {6, "V-Cell"}, {13, "standard via"}, {16, "guard ring"}, {19, "custom via"}};
constexpr int cnLockedIcon = 1;

struct ResourceEntry {
    UINT resource;
    const char* file;
};
constexpr ResourceEntry cnResources[] = {
    {366, "library-unresolved"}, {367, "library-locked"}, {562, "open-list"}, {564, "clear"}};

bool IsInStrip(int icon) {
    return icon == cnLockedIcon ||
           std::any_of(std::begin(cnStrip), std::end(cnStrip),
                       [icon](const auto& entry) { return icon == entry.icon || icon == entry.icon + 1; });
}

// Not rounded up: with the place rounded as well, the last pixel would lie outside of the area.
int WholePixels(double length) {
    return std::max(static_cast<int>(std::floor(std::min(length, cnLongestLength) + cnFuzz)), 1);
}

// Draws the part of the file as large as it fits into the middle of the area.
void DrawPart(QPainter& painter, const QRectF& area, QtSvgWish wish) {
    if (!(area.width() > 0 && area.height() > 0)) return;
    const QSizeF fitted = QSizeF(wish.part.size()).scaled(area.size(), Qt::KeepAspectRatio);
    const QRectF place(area.center() - QPointF(fitted.width() / 2, fitted.height() / 2), fitted);
    const QTransform toDevice = painter.deviceTransform();
    const QRectF onDevice = toDevice.mapRect(place);
    wish.pixels = QSize(WholePixels(onDevice.width()), WholePixels(onDevice.height()));
    const QImage image = gSvgImage(wish);
    if (image.isNull()) return;
    if (toDevice.type() > QTransform::TxScale || image.size() != wish.pixels) {
        painter.drawImage(place, image);
        return;
    }
    // One pixel of the image for one of the device.
    const QTransform before = painter.worldTransform();
    painter.setWorldTransform(QTransform::fromTranslate(qRound(onDevice.left()), qRound(onDevice.top())) *
                              toDevice.inverted() * before);
    painter.drawImage(QPointF(0, 0), image);
    painter.setWorldTransform(before);
}

// Null if there is none.
const char* FileOf(UINT resource) {
    const auto* entry = std::find_if(std::begin(cnResources), std::end(cnResources),
                                     [resource](const auto& each) { return each.resource == resource; });
    return entry == std::end(cnResources) ? nullptr : entry->file;
}

void DrawPicture(QPainter& painter, const QRectF& area, const char* file, const QColor& ink, bool isGreyed) {
    if (file == nullptr) return;
    DrawPart(painter, area,
             {.file = file,
              .part = QRect(QPoint(0, 0), cnPictureSize),
              .pixels = {},
              .ink = ink.rgb(),
              .isGreyed = isGreyed});
}

class PictureIconEngine : public QIconEngine {
public:
    explicit PictureIconEngine(const char* file) : m_file(file) {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State /*state*/) override {
        DrawPicture(*painter, rect, m_file, QApplication::palette().color(QPalette::ButtonText),
                    mode == QIcon::Disabled);
    }
    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        QPixmap picture(size);
        picture.fill(Qt::transparent);
        QPainter painter(&picture);
        paint(&painter, picture.rect(), mode, state);
        return picture;
    }
    [[nodiscard]] QIconEngine* clone() const override { return new PictureIconEngine(m_file); }

private:
    const char* m_file;
};

}  // namespace

void gDrawStripIcon(QPainter& painter, const QRectF& area, int icon, const QColor& ink) {
    if (!IsInStrip(icon)) return;
    DrawPart(painter, area,
             {.file = "strip",
              .part = QRect(QPoint(icon * cnStripCell.width(), 0), cnStripCell),
              .pixels = {},
              .ink = ink.rgb()});
}

void gDrawResource(QPainter& painter, const QRectF& area, UINT resource, const QColor& ink) {
    DrawPicture(painter, area, FileOf(resource), ink, false);
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
    return QIcon(new PictureIconEngine(FileOf(resource)));
}

QIcon gPictureIcon(const char* file) {
    return QIcon(new PictureIconEngine(file));
}

}  // namespace vapp_qt
