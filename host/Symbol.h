#pragma once
/// The open text format of schematic-editor symbols and schematics, read into plain values. One record a
/// line, named by its first letter; texts and property blocks stand in braces and may run over lines:
///
///     v {..} G {..} K {..} V {..} S {..} E {..}       property blocks
///     L layer x1 y1 x2 y2 {..}                        line
///     B layer x1 y1 x2 y2 {..}                        box; on layer 5 a pin
///     P layer count x1 y1 x2 y2 ... {..}              polygon
///     A layer x y radius start sweep {..}             arc, degrees, counter-clockwise
///     T {text} x y rotation flip hsize vsize {..}     text
///     N x1 y1 x2 y2 {..}                              wire
///     C {reference} x y rotation flip {..}            instance of a symbol
///     [ ... ]                                         the symbol of the instance before, embedded
///
/// In braces a backslash makes the next character plain, and braces nest. The y axis points down. A rotation
/// counts quarter turns clockwise, after the flip (x to -x).
/// The reader is tolerant: a line that it does not understand is counted and skipped. It draws nothing and
/// opens no other file.

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace navigator {

/// Layer whose boxes are pins.
inline constexpr int cnPinLayer = 5;

struct SymbolLine {
    int layer;
    double x1, y1, x2, y2;
    std::string properties;
};

/// A box has a line's fields: two opposite corners.
using SymbolBox = SymbolLine;

struct SymbolPoint {
    double x, y;
};

struct SymbolPolygon {
    int layer;
    std::vector<SymbolPoint> points;
    std::string properties;
};

struct SymbolArc {
    int layer;
    double x, y, radius, start, sweep;
    std::string properties;
};

struct SymbolText {
    std::string text;
    double x, y;
    int rotation;
    bool flip;
    double hsize, vsize;
    std::string properties;
};

struct SymbolWire {
    double x1, y1, x2, y2;
    std::string properties;
};

struct Symbol;

struct SymbolInstance {
    std::string reference;
    double x, y;
    int rotation;
    bool flip;
    std::string properties;
    std::shared_ptr<Symbol> embedded;  ///< The symbol that the file itself brings; null as a rule.
};

/// What one file says.
struct Symbol {
    std::string globalProperties;  ///< Block G; in older files the properties of the symbol.
    std::string symbolProperties;  ///< Block K.
    std::vector<SymbolLine> lines;
    std::vector<SymbolBox> boxes;
    std::vector<SymbolPolygon> polygons;
    std::vector<SymbolArc> arcs;
    std::vector<SymbolText> texts;
    std::vector<SymbolWire> wires;
    std::vector<SymbolInstance> instances;
    std::size_t skippedLines = 0;  ///< Lines that are not empty and could not be read.

    /// A property of the symbol itself: of block K, or else of block G. Empty if neither has it.
    [[nodiscard]] std::string Property(std::string_view name) const;
};

/// Reads a whole file. Never fails; see Symbol::skippedLines. Coordinates are finite and below 1e9.
Symbol gParseSymbol(std::string_view text);

/// Reads the property blocks at the head of a file and stops at the first record that draws.
/// `isComplete` tells whether such a record was reached: if not, the head was cut off or is all there is.
Symbol gParseSymbolHead(std::string_view text, bool& isComplete);

}  // namespace navigator
