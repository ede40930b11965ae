/// @file
/// Contrast is measured by the luminance formula of the web's accessibility guidelines; 3 is their lower
/// bound for large text, and enough to tell "unreadable" from "as designed".
#include "toolkit/qt/QtColor.h"

#include <algorithm>
#include <cmath>

namespace vapp_qt {

namespace {

constexpr double cnLeastContrast = 3.0;
/// What a colour that just fails the bound is given: with that it is as legible as on the background it was
/// made for.
constexpr double cnMendedContrast = 5.0;

double Luminance(const QColor& color) {
    const auto linear = [](double part) {
        return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

double Contrast(const QColor& one, const QColor& other) {
    const double light = std::max(Luminance(one), Luminance(other));
    const double dark = std::min(Luminance(one), Luminance(other));
    return (light + 0.05) / (dark + 0.05);
}

}  // namespace

QColor gToQColor(COLORREF color, const QColor& fallback) {
    if (color == cnNoColor) return fallback;
    return {static_cast<int>(color & 0xFFU), static_cast<int>((color >> 8U) & 0xFFU),
            static_cast<int>((color >> 16U) & 0xFFU)};
}

QColor gReadableOn(const QColor& background, const QColor& preferred) {
    if (Contrast(background, preferred) >= cnLeastContrast) return preferred;
    return Contrast(background, Qt::black) >= Contrast(background, Qt::white) ? Qt::black : Qt::white;
}

QColor gTintedOn(const QColor& background, const QColor& wanted, const QColor& readable) {
    for (const int percent : {100, 80, 60, 40, 20}) {
        const QColor tint = gMixed(wanted, readable, percent);
        if (Contrast(background, tint) >= cnLeastContrast) return tint;
    }
    return readable;
}

QColor gLegibleOn(const QColor& background, const QColor& color) {
    const double contrast = Contrast(background, color);
    if (contrast >= cnLeastContrast) return color;
    const double wanted = std::max(cnLeastContrast, cnMendedContrast * contrast / cnLeastContrast);
    const bool isDark = Contrast(background, Qt::white) >= Contrast(background, Qt::black);
    const QColor end = isDark ? Qt::white : Qt::black;
    // The most of the colour that is legible: on the way to the end the contrast passes the bound once.
    int least = 0;
    int most = 100;
    while (most - least > 1) {
        const int middle = (least + most) / 2;
        (Contrast(background, gMixed(color, end, middle)) >= wanted ? least : most) = middle;
    }
    return gMixed(color, end, least);
}

QColor gMixed(const QColor& first, const QColor& second, int percent) {
    const auto mix = [percent](int one, int other) {
        return (one * percent + other * (100 - percent)) / 100;
    };
    return {mix(first.red(), second.red()), mix(first.green(), second.green()),
            mix(first.blue(), second.blue())};
}

QFont gToQFont(QFont base, const CFont& variation) {
    if (variation.bold) base.setBold(true);
    if (variation.italic) base.setItalic(true);
    return base;
}

}  // namespace vapp_qt
