/// From a list of strokes to pixels. Everything is painted in device pixels and the picture is given its
/// ratio at the end, so that lines that run along the axes can be put exactly on pixels: that is what makes
/// them sharp at any scale.

#include "host/SymbolPainter.h"

#include <QFontDatabase>
#include <QFontMetricsF>
#include <QPainter>
#include <algorithm>
#include <cmath>

#include "host/LayerColours.h"

namespace navigator {

namespace {

constexpr double cnLargestDrawing = 16384;
constexpr double cnMargin = 8;           // Logical pixels, on each side.
constexpr double cnLargestZoom = 4;      // Logical pixels a unit: a small symbol is not blown up beyond that.
constexpr double cnSmallestText = 5;     // Device pixels: below, letters are no letters any more.
constexpr double cnThinnestExtent = 20;  // Units: a drawing of a single line has some room around it.
constexpr std::size_t cnTextFileShown = 16384;

QImage MakeBackground(const PictureRequest& request) {
    const double width = std::round(request.width * request.scale);
    const double height = std::round(request.height * request.scale);
    if (!(width >= 1 && height >= 1 && width <= cnLargestDrawing && height <= cnLargestDrawing)) return {};
    QImage image(static_cast<int>(width), static_cast<int>(height), QImage::Format_ARGB32_Premultiplied);
    image.fill(gDrawingBackground(request.isDark));
    return image;
}

/// How the drawing's units become device pixels.
struct Fit {
    double zoom = 1;
    QPointF offset;

    [[nodiscard]] QPointF Map(const QPointF& point) const { return point * zoom + offset; }
};

QRectF AtLeast(QRectF bounds, double extent) {
    const double growX = std::max(0.0, extent - bounds.width()) / 2;
    const double growY = std::max(0.0, extent - bounds.height()) / 2;
    return bounds.adjusted(-growX, -growY, growX, growY);
}

Fit FitInto(const QRectF& drawing, const QSizeF& picture, double scale) {
    const QRectF bounds = AtLeast(drawing, cnThinnestExtent);
    const double margin = std::min(cnMargin * scale, std::min(picture.width(), picture.height()) / 8);
    Fit fit;
    fit.zoom = std::min({(picture.width() - 2 * margin) / bounds.width(),
                         (picture.height() - 2 * margin) / bounds.height(), cnLargestZoom * scale});
    fit.offset = QPointF(picture.width() / 2, picture.height() / 2) - bounds.center() * fit.zoom;
    return fit;
}

class DrawingPainter {
public:
    DrawingPainter(QImage& image, const Fit& fit, const PictureRequest& request)
        : m_painter(&image), m_fit(fit), m_request(request) {
        m_painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
        m_lineWidth =
            std::max(1.0, std::round(std::clamp(fit.zoom / request.scale * 0.7, 1.0, 2.0) * request.scale));
    }

    void Paint(const DisplayList& list) {
        for (const Stroke& stroke : list.strokes) {
            if (stroke.isFilled && stroke.kind == StrokeKind::Line) PaintStroke(stroke);
        }
        for (const Stroke& stroke : list.strokes) {
            if (!stroke.isFilled || stroke.kind != StrokeKind::Line) PaintStroke(stroke);
        }
        for (const PlacedText& text : list.texts)
            PaintText(text);
    }

private:
    [[nodiscard]] QColor ColourOf(const Stroke& stroke) const {
        if (stroke.kind == StrokeKind::Missing) return gMissingColour(m_request.isDark);
        return gLayerColour(stroke.layer, m_request.isDark);
    }

    void PaintStroke(const Stroke& stroke) {
        const QColor colour = ColourOf(stroke);
        const double width = stroke.kind == StrokeKind::Bus ? m_lineWidth * 3 : m_lineWidth;
        QPen pen(colour, width, stroke.isDashed ? Qt::DashLine : Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
        m_painter.setPen(pen);
        m_painter.setBrush(BrushOf(stroke, colour));
        QPolygonF points;
        points.reserve(stroke.points.size());
        for (const QPointF& point : stroke.points)
            points << (stroke.isCurve ? m_fit.Map(point) : Snap(m_fit.Map(point), width));
        if (stroke.isClosed || stroke.isFilled) {
            m_painter.drawPolygon(points);
        } else {
            m_painter.drawPolyline(points);
        }
    }

    static QBrush BrushOf(const Stroke& stroke, QColor colour) {
        if (!stroke.isFilled || stroke.kind == StrokeKind::Missing) return Qt::NoBrush;
        if (stroke.isTinted) colour.setAlpha(48);
        return colour;
    }

    /// A line of odd width is sharp when it runs through the middle of pixels, one of even width between
    /// them.
    static QPointF Snap(const QPointF& point, double width) {
        if (static_cast<long>(width) % 2 == 0) return {std::round(point.x()), std::round(point.y())};
        return {std::floor(point.x()) + 0.5, std::floor(point.y()) + 0.5};
    }

    void PaintText(const PlacedText& text) {
        const double size = std::min(text.emHeight * m_fit.zoom, cnLargestDrawing);
        if (size < cnSmallestText) return;
        QFont font;
        font.setPixelSize(std::max(1, static_cast<int>(size)));
        font.setBold(text.isBold);
        m_painter.save();
        m_painter.setPen(gLayerColour(text.layer, m_request.isDark));
        const QRectF box(m_fit.Map(text.box.topLeft()), m_fit.Map(text.box.bottomRight()));
        m_painter.translate(box.center());
        QSizeF room = box.size();
        if (text.isVertical) {
            m_painter.rotate(-90);
            room.transpose();
        }
        if (std::abs(text.stretch - 1) > 0.05) {
            const double stretch = std::clamp(text.stretch, 0.1, 10.0);
            m_painter.scale(stretch, 1);
            room.setWidth(room.width() / stretch);
        }
        m_painter.setFont(font);
        // Rounding to whole font sizes may ask for a bit more room than was measured.
        const int flags =
            Qt::TextDontClip | Qt::AlignVCenter | (text.isRightBound ? Qt::AlignRight : Qt::AlignLeft);
        m_painter.drawText(QRectF(QPointF(-room.width() / 2, -room.height() / 2), room), flags, text.text);
        m_painter.restore();
    }

    QPainter m_painter;
    Fit m_fit;
    PictureRequest m_request;
    double m_lineWidth = 1;
};

QImage PaintTextFile(const std::filesystem::path& file, const PictureRequest& request) {
    QImage image = MakeBackground(request);
    const std::optional<std::string> bytes = gReadFile(file, cnTextFileShown);
    if (image.isNull() || !bytes) return image;
    QPainter painter(&image);
    painter.setRenderHint(QPainter::TextAntialiasing);
    QFont font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    font.setPixelSize(std::max(1, static_cast<int>(11 * request.scale)));
    painter.setFont(font);
    painter.setPen(gLayerColour(3, request.isDark));
    const double margin = cnMargin * request.scale;
    const QString text =
        QString::fromStdString(gSanitisedUtf8(*bytes)).remove(QChar(0)).replace('\t', "    ");
    painter.drawText(QRectF(image.rect()).adjusted(margin, margin, -margin, -margin),
                     Qt::AlignLeft | Qt::AlignTop, text);
    return image;
}

QImage WithRatio(QImage image, double scale) {
    if (!image.isNull()) image.setDevicePixelRatio(scale);
    return image;
}

}  // namespace

FoundSymbol DesignSymbolSource::Resolve(const std::string& library, const std::string& reference) {
    const Library* const from = m_design.FindLibrary(library);
    if (from == nullptr) return {};
    const CellViewRef found = m_store.Resolve(m_design, *from, reference);
    if (!found) return {};
    return {m_store.Load(found), found.library->name, found.file->cell};
}

QImage gPaintDrawing(const DisplayList& list, const PictureRequest& request) {
    QImage image = MakeBackground(request);
    const QRectF bounds = list.Bounds();
    if (!image.isNull() && !(list.strokes.empty() && list.texts.empty())) {
        DrawingPainter(image, FitInto(bounds, image.size(), request.scale), request).Paint(list);
    }
    return WithRatio(std::move(image), request.scale);
}

QImage gPaintView(DesignStore& store, const CellViewRef& view, const PictureRequest& request) {
    if (view && view.file->format == ViewFormat::Text && !view.file->isFolder)
        return WithRatio(PaintTextFile(store.Paths(view).front(), request), request.scale);
    const std::shared_ptr<const Symbol> symbol = store.Load(view);
    if (symbol == nullptr) return WithRatio(MakeBackground(request), request.scale);
    DesignSymbolSource source(store, *view.design);
    return gPaintDrawing(gListDrawing(*symbol, view.library->name, view.file->cell, source), request);
}

}  // namespace navigator
