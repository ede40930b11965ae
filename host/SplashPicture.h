#pragma once
/// The picture of the start: the program's name beside a drawn symbol. It has a place left free for the
/// version, which the splash writes itself.

#include <QImage>

namespace navigator {

/// In logical pixels: the suite's size of splash pictures, by which a start places them.
inline constexpr int cnSplashWidth = 518;
inline constexpr int cnSplashHeight = 302;
/// Where the version's text begins, and its colour, red in the low byte.
inline constexpr unsigned cnSplashVersionX = 40;
inline constexpr unsigned cnSplashVersionY = 240;
inline constexpr unsigned long cnSplashVersionColor = 0xF0DCC8;

/// Paints it with so many device pixels for a logical one. Needs a QGuiApplication, for the letters.
[[nodiscard]] QImage gPaintSplash(double scale);

}  // namespace navigator
