#pragma once
/// A drawing with its instances resolved: strokes and texts in the drawing's own coordinates, y downward,
/// ready to be fitted into a picture. The list is bounded in depth and in length, because a few small files
/// can describe a drawing of any size. Colours and pixels come later.

#include <QPolygonF>
#include <QRectF>
#include <QString>
#include <QTransform>
#include <string>
#include <vector>

#include "host/SymbolSource.h"

namespace navigator {

enum class StrokeKind { Line, Wire, Bus, Pin, Junction, Missing };

struct Stroke {
    QPolygonF points;
    int layer = 0;
    StrokeKind kind = StrokeKind::Line;
    bool isClosed = false;
    bool isFilled = false;
    bool isTinted = false;  ///< Filled so lightly that what lies behind shows: boxes that mark an area.
    bool isDashed = false;
    bool isCurve = false;  ///< Made from an arc: its points are not to be snapped to pixels.
};

struct PlacedText {
    QString text;
    QRectF box;                 ///< What the text covers.
    bool isVertical = false;    ///< Reads upward.
    bool isRightBound = false;  ///< Several lines end at the same side.
    int layer = 0;
    double emHeight = 0;  ///< Font size.
    double stretch = 1;   ///< Width of a letter in relation to the font's own.
    bool isBold = false;
};

struct DisplayList {
    std::vector<Stroke> strokes;
    std::vector<PlacedText> texts;
    /// Something was left out because of the limits.
    bool isCut = false;

    /// The rectangle around all; null if there is nothing.
    [[nodiscard]] QRectF Bounds() const;
};

inline constexpr int cnDeepestInstance = 8;
inline constexpr std::size_t cnMostItems = 200000;

/// Lists a drawing. `library` and `cell` say where it stands. Needs a QGuiApplication, which measures the
/// texts.
DisplayList gListDrawing(const Symbol& drawing, const std::string& library, const std::string& cell,
                         SymbolSource& source);

/// Flip, then quarter turns, then the way to the place.
QTransform gPlacement(double x, double y, int rotation, bool flip);

}  // namespace navigator
