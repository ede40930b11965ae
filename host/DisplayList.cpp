/// Turns records into strokes and texts. The sizes of texts follow libraries that exist: a text of size 1 is
/// 50 units high from line to line, and at a turn it stays readable, only the corner that its place names
/// changes.

#include "host/DisplayList.h"

#include <QFont>
#include <QFontMetricsF>
#include <algorithm>
#include <cmath>
#include <map>
#include <numbers>

#include "host/PropertyText.h"
#include "host/TextSubstitution.h"

namespace navigator {

namespace {

constexpr int cnTextLayer = 3;
constexpr int cnWireLayer = 1;
constexpr int cnSymbolLayer = 4;
constexpr double cnEmHeight = 39;      // Of a text of size 1; its lines are then about 50 high.
constexpr double cnMeasuredSize = 64;  // Font size at which texts are measured.
constexpr double cnLargestTextSize = 1000;
constexpr double cnCircleSegments = 96;
constexpr double cnJunctionRadius = 3;
constexpr std::size_t cnMostWiresForJunctions = 3000;
constexpr qsizetype cnLongestText = 2000;

/// Grows by points as well as by rectangles; a line upright or level has no area and counts all the same.
class Extent {
public:
    void Add(const QPointF& point) {
        if (m_isEmpty) {
            m_low = m_high = point;
            m_isEmpty = false;
        }
        m_low = {std::min(m_low.x(), point.x()), std::min(m_low.y(), point.y())};
        m_high = {std::max(m_high.x(), point.x()), std::max(m_high.y(), point.y())};
    }
    [[nodiscard]] QRectF Rect() const { return m_isEmpty ? QRectF() : QRectF(m_low, m_high); }

private:
    bool m_isEmpty = true;
    QPointF m_low;
    QPointF m_high;
};

/// What surrounds the records that are being listed.
struct Surroundings {
    QTransform transform;
    std::string library;
    std::string cell;
    std::string instanceProperties;
    std::string templateProperties;
    int depth = 0;
};

class Lister {
public:
    Lister(SymbolSource& source, std::string drawing) : m_source(source), m_drawing(std::move(drawing)) {}

    void List(const Symbol& symbol, const Surroundings& around) {
        m_inProgress.push_back(&symbol);
        for (const SymbolBox& box : symbol.boxes)
            AddBox(box, around);
        for (const SymbolPolygon& polygon : symbol.polygons)
            AddPolygon(polygon, around);
        for (const SymbolLine& line : symbol.lines)
            AddLine(line, around);
        for (const SymbolArc& arc : symbol.arcs)
            AddArc(arc, around);
        for (const SymbolWire& wire : symbol.wires)
            AddWire(wire, around);
        AddJunctions(symbol.wires, around);
        for (const SymbolInstance& instance : symbol.instances)
            AddInstance(instance, around);
        for (const SymbolText& text : symbol.texts)
            AddText(text, around);
        m_inProgress.pop_back();
    }

    DisplayList TakeList() { return std::move(m_list); }

private:
    bool HasRoom() {
        if (m_list.strokes.size() + m_list.texts.size() < cnMostItems) return true;
        m_list.isCut = true;
        return false;
    }

    /// A stroke through some points of the record; null when the list is full.
    Stroke* AddStroke(const QPolygonF& points, int layer, const std::string& properties,
                      const Surroundings& around) {
        if (!HasRoom()) return nullptr;
        Stroke stroke;
        stroke.points = around.transform.map(points);
        stroke.layer = layer;
        stroke.isDashed = !gProperty(properties, "dash").value_or("").empty();
        m_list.strokes.push_back(std::move(stroke));
        return &m_list.strokes.back();
    }

    void AddLine(const SymbolLine& line, const Surroundings& around) {
        AddStroke({{line.x1, line.y1}, {line.x2, line.y2}}, line.layer, line.properties, around);
    }

    void AddBox(const SymbolBox& box, const Surroundings& around) {
        const QPolygonF corners{{box.x1, box.y1}, {box.x2, box.y1}, {box.x2, box.y2}, {box.x1, box.y2}};
        Stroke* const stroke = AddStroke(corners, box.layer, box.properties, around);
        if (stroke == nullptr) return;
        stroke->isClosed = true;
        stroke->isFilled = gProperty(box.properties, "fill").value_or("true") != "false";
        stroke->isTinted = box.layer != cnPinLayer;
        if (box.layer == cnPinLayer) stroke->kind = StrokeKind::Pin;
    }

    void AddPolygon(const SymbolPolygon& polygon, const Surroundings& around) {
        QPolygonF points;
        for (const SymbolPoint& point : polygon.points)
            points << QPointF(point.x, point.y);
        Stroke* const stroke = AddStroke(points, polygon.layer, polygon.properties, around);
        if (stroke != nullptr) stroke->isFilled = gFlagProperty(polygon.properties, "fill");
    }

    void AddArc(const SymbolArc& arc, const Surroundings& around) {
        const double sweep = std::clamp(arc.sweep, -360.0, 360.0);
        const int segments =
            std::max(4, static_cast<int>(std::ceil(std::abs(sweep) / 360 * cnCircleSegments)));
        QPolygonF points;
        for (int segment = 0; segment <= segments; ++segment) {
            const double angle = (arc.start + sweep * segment / segments) * std::numbers::pi / 180;
            points << QPointF(arc.x + arc.radius * std::cos(angle), arc.y - arc.radius * std::sin(angle));
        }
        Stroke* const stroke = AddStroke(points, arc.layer, arc.properties, around);
        if (stroke == nullptr) return;
        stroke->isCurve = true;
        stroke->isClosed = std::abs(sweep) == 360;
        stroke->isFilled = gFlagProperty(arc.properties, "fill");
    }

    void AddWire(const SymbolWire& wire, const Surroundings& around) {
        Stroke* const stroke =
            AddStroke({{wire.x1, wire.y1}, {wire.x2, wire.y2}}, cnWireLayer, wire.properties, around);
        if (stroke == nullptr) return;
        const std::string bus = gProperty(wire.properties, "bus").value_or("");
        stroke->kind = bus.empty() || bus == "false" || bus == "0" ? StrokeKind::Wire : StrokeKind::Bus;
    }

    /// A dot wherever wires meet in more than two directions.
    void AddJunctions(const std::vector<SymbolWire>& wires, const Surroundings& around) {
        if (wires.size() > cnMostWiresForJunctions) return;
        std::map<std::pair<double, double>, int> ends;
        for (const SymbolWire& wire : wires) {
            ++ends[{wire.x1, wire.y1}];
            ++ends[{wire.x2, wire.y2}];
        }
        for (const auto& [place, count] : ends) {
            int directions = count;
            for (const SymbolWire& wire : wires) {
                if (directions < 3 && CrossesInside(wire, place)) directions += 2;
            }
            if (directions < 3) continue;
            SymbolArc dot{cnWireLayer, place.first, place.second, cnJunctionRadius, 0, 360, "fill=true"};
            AddArc(dot, around);
            if (!m_list.strokes.empty()) m_list.strokes.back().kind = StrokeKind::Junction;
        }
    }

    static bool CrossesInside(const SymbolWire& wire, const std::pair<double, double>& place) {
        const auto [x, y] = place;
        const bool isUpright = wire.x1 == wire.x2 && x == wire.x1;
        const bool isLevel = wire.y1 == wire.y2 && y == wire.y1;
        return (isUpright && y > std::min(wire.y1, wire.y2) && y < std::max(wire.y1, wire.y2)) ||
               (isLevel && x > std::min(wire.x1, wire.x2) && x < std::max(wire.x1, wire.x2));
    }

    void AddInstance(const SymbolInstance& instance, const Surroundings& around) {
        if (!HasRoom()) return;
        FoundSymbol found{instance.embedded, around.library, instance.reference};
        if (found.symbol == nullptr) found = m_source.Resolve(around.library, instance.reference);
        Surroundings inside;
        inside.transform =
            gPlacement(instance.x, instance.y, instance.rotation, instance.flip) * around.transform;
        const bool isOpen = found.symbol != nullptr && std::find(m_inProgress.begin(), m_inProgress.end(),
                                                                 found.symbol.get()) != m_inProgress.end();
        if (found.symbol == nullptr || isOpen || around.depth >= cnDeepestInstance) {
            m_list.isCut = m_list.isCut || found.symbol != nullptr;
            AddMissing(instance, inside);
            return;
        }
        inside.library = found.library;
        inside.cell = found.cell;
        inside.instanceProperties = instance.properties;
        inside.templateProperties = found.symbol->Property("template");
        inside.depth = around.depth + 1;
        List(*found.symbol, inside);
    }

    /// A dashed box with the name that could not be found.
    void AddMissing(const SymbolInstance& instance, const Surroundings& inside) {
        Stroke* const stroke =
            AddStroke({{-30, -20}, {30, -20}, {30, 20}, {-30, 20}}, cnSymbolLayer, "dash=4", inside);
        if (stroke == nullptr) return;
        stroke->isClosed = true;
        stroke->kind = StrokeKind::Missing;
        SymbolText name{instance.reference, 0, 24, 0, false, 0.25, 0.25, "hcenter=true"};
        PlaceText(name, QString::fromStdString(instance.reference), inside);
    }

    void AddText(const SymbolText& text, const Surroundings& around) {
        if (!HasRoom() || gFlagProperty(text.properties, "hide")) return;
        const TextValues values{around.instanceProperties, around.templateProperties, around.cell, m_drawing};
        const QString words = QString::fromStdString(gSubstituteText(text.text, values)).left(cnLongestText);
        if (!words.trimmed().isEmpty()) PlaceText(text, words, around);
    }

    void PlaceText(const SymbolText& text, const QString& words, const Surroundings& around) {
        const double hsize = std::clamp(std::abs(text.hsize), 0.001, cnLargestTextSize);
        const double vsize = std::clamp(std::abs(text.vsize), 0.001, cnLargestTextSize);
        PlacedText placed;
        placed.text = words;
        placed.emHeight = cnEmHeight * vsize;
        placed.stretch = hsize / vsize;
        placed.layer = LayerOf(text);
        placed.isBold = gProperty(text.properties, "weight").value_or("") == "bold";
        const QSizeF size = Measure(placed);
        const double left = gFlagProperty(text.properties, "hcenter") ? -size.width() / 2 : 0;
        const double top = gFlagProperty(text.properties, "vcenter") ? -size.height() / 2 : 0;
        const QTransform total = gPlacement(text.x, text.y, text.rotation, text.flip) * around.transform;
        placed.box = total.mapRect(QRectF(QPointF(left, top), size));
        placed.isVertical = std::abs(total.m12()) > std::abs(total.m11());
        placed.isRightBound = placed.isVertical ? total.m12() > 0 : total.m11() < 0;
        m_list.texts.push_back(std::move(placed));
    }

    static int LayerOf(const SymbolText& text) {
        const std::optional<std::string> layer = gProperty(text.properties, "layer");
        return layer ? std::clamp(std::atoi(layer->c_str()), 0, 1000) : cnTextLayer;
    }

    QSizeF Measure(const PlacedText& placed) {
        m_font.setPixelSize(static_cast<int>(cnMeasuredSize));
        m_font.setBold(placed.isBold);
        const QFontMetricsF metrics(m_font);
        const double factor = placed.emHeight / cnMeasuredSize;
        double width = 0;
        const QStringList lines = placed.text.split('\n');
        for (const QString& line : lines)
            width = std::max(width, metrics.horizontalAdvance(line));
        return {width * factor * placed.stretch,
                metrics.lineSpacing() * static_cast<double>(lines.size()) * factor};
    }

    SymbolSource& m_source;
    std::string m_drawing;
    DisplayList m_list;
    std::vector<const Symbol*> m_inProgress;
    QFont m_font;
};

}  // namespace

QRectF DisplayList::Bounds() const {
    Extent extent;
    for (const Stroke& stroke : strokes) {
        for (const QPointF& point : stroke.points)
            extent.Add(point);
    }
    for (const PlacedText& text : texts) {
        extent.Add(text.box.topLeft());
        extent.Add(text.box.bottomRight());
    }
    return extent.Rect();
}

DisplayList gListDrawing(const Symbol& drawing, const std::string& library, const std::string& cell,
                         SymbolSource& source) {
    Lister lister(source, cell);
    Surroundings around;
    around.library = library;
    around.cell = cell;
    around.templateProperties = drawing.Property("template");
    lister.List(drawing, around);
    return lister.TakeList();
}

QTransform gPlacement(double x, double y, int rotation, bool flip) {
    constexpr double cosines[4] = {1, 0, -1, 0};
    constexpr double sines[4] = {0, 1, 0, -1};
    const double cosine = cosines[rotation & 3];
    const double sine = sines[rotation & 3];
    const double side = flip ? -1 : 1;
    return {side * cosine, side * sine, -sine, cosine, x, y};
}

}  // namespace navigator
