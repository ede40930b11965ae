/// The picture of the start: its size at every scale, and the place for the version.

#include "host/SplashPicture.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace navigator {
namespace {

TEST(SplashPicture, HasItsSizeAtEveryScale) {
    for (const double scale : {1.0, 1.5, 2.0, 8.0}) {
        const QImage picture = gPaintSplash(scale);
        EXPECT_EQ(QSize(cnSplashWidth, cnSplashHeight), picture.deviceIndependentSize().toSize()) << scale;
        EXPECT_EQ(scale, picture.devicePixelRatio());
    }
}

TEST(SplashPicture, ScalesThatNoScreenHasAreBroughtIntoRange) {
    for (const double scale : {0.0, -3.0, std::numeric_limits<double>::quiet_NaN()})
        EXPECT_EQ(1.0, gPaintSplash(scale).devicePixelRatio());
    EXPECT_EQ(8.0, gPaintSplash(1e9).devicePixelRatio());
}

TEST(SplashPicture, WhereTheVersionStandsTheGroundIsDarkAndFree) {
    const QImage picture = gPaintSplash(1);
    const QColor ink(static_cast<int>(cnSplashVersionColor & 0xFF), (cnSplashVersionColor >> 8) & 0xFF,
                     (cnSplashVersionColor >> 16) & 0xFF);
    for (unsigned y = cnSplashVersionY; y < cnSplashVersionY + 18; ++y) {
        for (unsigned x = cnSplashVersionX; x < cnSplashVersionX + 140; ++x) {
            const QColor ground = picture.pixelColor(static_cast<int>(x), static_cast<int>(y));
            ASSERT_GT(ink.lightness() - ground.lightness(), 100) << x << ", " << y;
        }
    }
}

}  // namespace
}  // namespace navigator
