/// No layer is invisible in either theme.

#include "host/LayerColours.h"

#include <gtest/gtest.h>

#include <cmath>

namespace navigator {
namespace {

double Luminance(const QColor& colour) {
    const auto linear = [](double part) {
        return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) +
           0.0722 * linear(colour.blueF());
}

double Contrast(const QColor& one, const QColor& other) {
    const double high = std::max(Luminance(one), Luminance(other));
    const double low = std::min(Luminance(one), Luminance(other));
    return (high + 0.05) / (low + 0.05);
}

TEST(LayerColours, EveryLayerStandsOutFromItsBackground) {
    constexpr int grid = 2;
    for (const bool isDark : {false, true}) {
        for (int layer = -3; layer < 60; ++layer) {
            const double least = layer == grid ? 2 : 4.5;
            EXPECT_GE(Contrast(gLayerColour(layer, isDark), gDrawingBackground(isDark)), least)
                << layer << (isDark ? " dark" : " light");
        }
        EXPECT_GE(Contrast(gMissingColour(isDark), gDrawingBackground(isDark)), 4.5) << isDark;
    }
}

}  // namespace
}  // namespace navigator
