/// The palette. Each colour stands out from its background by at least 4.5 to 1, the grid apart.

#include "host/LayerColours.h"

#include <array>

namespace navigator {

namespace {

struct LayerRow {
    QRgb light;
    QRgb dark;
};

constexpr std::array<LayerRow, 14> csLayers{{
    {0xFF6B6B6B, 0xFF9A9A9A},  // 0 background matters, shown as grey
    {0xFF1557B0, 0xFF6CB2FF},  // 1 wires
    {0xFF9AA0A6, 0xFF6F757B},  // 2 grid
    {0xFF2B2B2B, 0xFFE3E3E3},  // 3 texts
    {0xFF1E6B3A, 0xFF7FD79A},  // 4 symbols
    {0xFFB3261E, 0xFFFF8A80},  // 5 pins
    {0xFF6A3FA0, 0xFFC7A6FF},  // 6
    {0xFF8A5200, 0xFFFFC266},  // 7
    {0xFF006B75, 0xFF5FD3DE},  // 8
    {0xFF9C2A6B, 0xFFFF9AD0},  // 9
    {0xFF4F6B00, 0xFFC3E05A},  // 10
    {0xFF3A4FB5, 0xFFA5B4FF},  // 11
    {0xFF7A4A3A, 0xFFE0B09E},  // 12
    {0xFF445566, 0xFFB0C4D4},  // 13
}};
constexpr int cnFirstDecorative = 6;

}  // namespace

QColor gLayerColour(int layer, bool isDark) {
    constexpr int count = static_cast<int>(csLayers.size());
    if (layer < 0) layer = 0;
    if (layer >= count) layer = cnFirstDecorative + (layer - count) % (count - cnFirstDecorative);
    const LayerRow& row = csLayers[static_cast<std::size_t>(layer)];
    return QColor::fromRgb(isDark ? row.dark : row.light);
}

QColor gDrawingBackground(bool isDark) {
    return isDark ? QColor(0x2D, 0x2D, 0x2D) : QColor(0xFF, 0xFF, 0xFF);
}

QColor gMissingColour(bool isDark) {
    return isDark ? QColor(0xFF, 0x6E, 0x6E) : QColor(0xDF, 0x00, 0x00);
}

}  // namespace navigator
