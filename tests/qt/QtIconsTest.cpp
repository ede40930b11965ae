/// @file
/// The strip of row icons, the marks of libraries and the pictures of buttons: each number its own picture,
/// sharp at every scale, others none.
#include "toolkit/qt/QtIcons.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QBuffer>
#include <QImage>
#include <QPainter>
#include <QSet>
#include <QSvgGenerator>

#include "celllist/FilterImages.h"
#include "tests/qt/QtPixels.h"
#include "vapp/browser/TLibraryListCtrl.h"
#include "vapp/toolkit/qt/QtTheme.h"

using namespace vapp_qt;

namespace {

constexpr int cnStripIcons[] = {1, 3, 4, 6, 7, 13, 14, 16, 17, 19, 20};
constexpr UINT cnPictures[] = {
    vapp_library_browser::cnIconUnresolvedLibrary, vapp_library_browser::cnIconReadOnlyLibrary,
    vapp_library_browser::cnFilterImageEmpty, vapp_library_browser::cnFilterImageFilled};
constexpr qreal cnRatios[] = {1, 1.25, 1.5, 2, 3};

// The icon in a cell of the strip's own size, with room around it.
constexpr QSize cnIconField(30, 24);
constexpr QRectF cnIconArea(4, 4, 22, 16);

QImage StripIcon(int icon, qreal ratio = 1, const QColor& ink = Qt::black, const QRectF& area = cnIconArea) {
    return gPainted(cnIconField, ratio, [&](QPainter& painter) { gDrawStripIcon(painter, area, icon, ink); });
}

QImage Picture(UINT resource, qreal ratio = 1, const QColor& ink = Qt::black) {
    return gPainted({24, 24}, ratio,
                    [&](QPainter& painter) { gDrawResource(painter, QRectF(4, 4, 16, 16), resource, ink); });
}

// Whether anything is painted outside of the area, which is in units of the image's ratio.
bool HasPixelsOutside(const QImage& image, const QRectF& area) {
    const qreal ratio = image.devicePixelRatio();
    const QRect inside = QRectF(area.topLeft() * ratio, area.size() * ratio).toAlignedRect();
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (gIsPainted(image, x, y) && !inside.contains(x, y)) return true;
        }
    }
    return false;
}

}  // namespace

TEST(QtIcons, EachNumberOfTheStripHasAPictureAndANameOfItsOwn) {
    std::vector<QImage> pictures;
    QSet<QString> names;
    for (const int icon : cnStripIcons) {
        const QImage picture = StripIcon(icon);
        EXPECT_GT(gPaintedPixels(picture), 40) << icon;
        for (const QImage& other : pictures)
            EXPECT_NE(picture, other) << icon;
        pictures.push_back(picture);
        names.insert(gStripIconName(icon));
    }
    EXPECT_EQ(names.size(), 11);
    EXPECT_FALSE(names.contains(QString()));
    EXPECT_EQ(gStripIconName(14), "standard via, locked");
}

TEST(QtIcons, OtherNumbersDrawNothing) {
    for (const int icon : {-1, 0, 2, 5, 8, 12, 15, 18, 21, 1000, 0x7FFFFFFF, -0x7FFFFFFF}) {
        EXPECT_EQ(gPaintedPixels(StripIcon(icon)), 0) << icon;
        EXPECT_EQ(gStripIconName(icon), "") << icon;
    }
    EXPECT_EQ(gPaintedPixels(Picture(0)), 0);
    EXPECT_EQ(gPaintedPixels(Picture(365)), 0);
    EXPECT_EQ(gLibraryMarkName(0), "");
}

TEST(QtIcons, EveryScaleShowsThemWholeAndDrawsNothingBesides) {
    for (const qreal ratio : cnRatios) {
        for (const int icon : cnStripIcons) {
            const QImage picture = StripIcon(icon, ratio);
            EXPECT_GT(gPaintedPixels(picture), 40 * ratio * ratio) << icon << " at " << ratio;
            EXPECT_FALSE(HasPixelsOutside(picture, cnIconArea)) << icon << " at " << ratio;
        }
        for (const UINT resource : cnPictures) {
            const QImage picture = Picture(resource, ratio);
            EXPECT_GT(gPaintedPixels(picture), 20 * ratio * ratio) << resource << " at " << ratio;
            EXPECT_FALSE(HasPixelsOutside(picture, QRectF(4, 4, 16, 16))) << resource << " at " << ratio;
        }
    }
}

TEST(QtIcons, LargerOnesAreDrawnAnewAndNotBlownUp) {
    for (const qreal ratio : {1.25, 1.5, 2.0, 3.0}) {
        for (const int icon : cnStripIcons)
            EXPECT_NE(StripIcon(icon, ratio), gBlownUp(StripIcon(icon), ratio)) << icon << " at " << ratio;
        for (const UINT resource : cnPictures)
            EXPECT_NE(Picture(resource, ratio), gBlownUp(Picture(resource), ratio))
                << resource << " at " << ratio;
    }
}

// The outline of the ring is a square of lines of one unit. At whole scales they fill pixels, and at one and
// a half one of their two rows; a picture that is scaled has none of the pure colour.
TEST(QtIcons, LinesFillWholePixels) {
    for (const auto& [ratio, purest] :
         {std::pair(1.0, 14 * 4 - 4), {1.5, 80}, {2.0, 28 * 8 - 16}, {3.0, 42 * 12 - 36}}) {
        const QImage ring = StripIcon(16, ratio);
        EXPECT_GE(gPixelsOf(ring, ring.rect(), Qt::black), purest) << ratio;
    }
    const QImage coarse = StripIcon(16);
    const QImage blown = gBlownUp(coarse, 1.5);
    EXPECT_LT(gPixelsOf(blown, blown.rect(), Qt::black), 80);
}

TEST(QtIcons, AnIconBetweenTwoPixelsIsMovedNotBlurred) {
    const QImage there = StripIcon(16);
    EXPECT_EQ(StripIcon(16, 1, Qt::black, cnIconArea.translated(0.4, -0.4)), there);
    // At one and a half every second widget begins in the middle of a pixel.
    const QImage even = StripIcon(16, 1.5);
    const QImage odd = StripIcon(16, 1.5, Qt::black, cnIconArea.translated(1, 0));
    EXPECT_EQ(gPixelsOf(odd, odd.rect(), Qt::black), gPixelsOf(even, even.rect(), Qt::black));
    const QImage moved = gPainted(cnIconField, 1.5, [](QPainter& painter) {
        painter.translate(1, 0);
        gDrawStripIcon(painter, cnIconArea, 16, Qt::black);
        painter.setPen(Qt::black);
        painter.fillRect(QRectF(0, 0, 1, 1), Qt::red);
    });
    EXPECT_EQ(gPixelsOf(moved, moved.rect(), Qt::black), gPixelsOf(even, even.rect(), Qt::black));
    EXPECT_EQ(moved.pixelColor(2, 0), QColor(Qt::red)) << "what is painted afterwards stands where it should";
}

TEST(QtIcons, DarkAndLightDiffer) {
    for (const int icon : cnStripIcons) {
        const QImage light = StripIcon(icon, 2, Qt::black);
        const QImage dark = StripIcon(icon, 2, Qt::white);
        EXPECT_NE(light, dark) << icon;
        EXPECT_EQ(gPixelsOf(dark, dark.rect(), Qt::black), 0) << icon;
        EXPECT_GT(gPixelsOf(light, light.rect(), Qt::black), 20) << icon;
    }
    for (const UINT resource :
         {vapp_library_browser::cnIconReadOnlyLibrary, vapp_library_browser::cnFilterImageEmpty,
          vapp_library_browser::cnFilterImageFilled})
        EXPECT_NE(Picture(resource, 2, Qt::black), Picture(resource, 2, Qt::white)) << resource;
}

TEST(QtIcons, ButtonsFollowTheThemeAndGreyTheirPicture) {
    const QPalette before = QApplication::palette();
    for (const UINT resource :
         {vapp_library_browser::cnFilterImageEmpty, vapp_library_browser::cnFilterImageFilled}) {
        const QIcon icon = gResourceIcon(resource);
        QPalette palette = before;
        palette.setColor(QPalette::ButtonText, Qt::black);
        QApplication::setPalette(palette);
        const QImage light = icon.pixmap(QSize(16, 16), 2, QIcon::Normal).toImage();
        const QImage greyed = icon.pixmap(QSize(16, 16), 2, QIcon::Disabled).toImage();
        palette.setColor(QPalette::ButtonText, Qt::white);
        QApplication::setPalette(palette);
        const QImage dark = icon.pixmap(QSize(16, 16), 2, QIcon::Normal).toImage();
        EXPECT_GT(gPixelsOf(light, light.rect(), Qt::black), 20) << resource;
        EXPECT_GT(gPixelsOf(dark, dark.rect(), Qt::white), 20) << resource;
        EXPECT_EQ(gPixelsOf(greyed, greyed.rect(), Qt::black), 0) << resource;
        EXPECT_EQ(gPaintedPixels(greyed), gPaintedPixels(light)) << resource;
    }
    QApplication::setPalette(before);
}

TEST(QtIcons, BothMarksOfALibraryCanBeSeenTogether) {
    const UINT unresolved = vapp_library_browser::cnIconUnresolvedLibrary;
    const UINT locked = vapp_library_browser::cnIconReadOnlyLibrary;
    const QImage both = gPainted({24, 24}, 1, [&](QPainter& painter) {
        gDrawResource(painter, QRectF(4, 4, 16, 16), unresolved, Qt::black);
        gDrawResource(painter, QRectF(4, 4, 16, 16), locked, Qt::black);
    });
    EXPECT_NE(both, Picture(unresolved));
    EXPECT_NE(both, Picture(locked)) << "the first one looks out";
    EXPECT_NE(gLibraryMarkName(unresolved), gLibraryMarkName(locked));
}

TEST(QtIcons, TheyFitIntoRoomOfAnyShape) {
    for (const QRectF& area : {QRectF(1, 1, 28, 5), QRectF(10, 0, 3, 24), QRectF(0, 0, 30, 24)}) {
        for (const qreal ratio : cnRatios) {
            const QImage picture = StripIcon(7, ratio, Qt::black, area);
            EXPECT_GT(gPaintedPixels(picture), 0);
            EXPECT_FALSE(HasPixelsOutside(picture, area)) << area.width() << "x" << area.height();
        }
    }
}

TEST(QtIcons, ATurnedPainterAndOneWithoutPixelsDrawThemToo) {
    const QImage turned = gPainted({30, 30}, 1, [](QPainter& painter) {
        painter.translate(15, 15);
        painter.rotate(30);
        gDrawStripIcon(painter, QRectF(-11, -8, 22, 16), 6, Qt::black);
    });
    EXPECT_GT(gPaintedPixels(turned), 100);
    QByteArray text;
    QBuffer buffer(&text);
    QSvgGenerator drawing;
    drawing.setOutputDevice(&buffer);
    drawing.setSize(QSize(30, 30));
    QPainter painter(&drawing);
    gDrawStripIcon(painter, cnIconArea, 6, Qt::black);
    painter.end();
    EXPECT_TRUE(text.contains("<image"));
}

TEST(QtIcons, NoRoomIsNoHarm) {
    const QImage image = gPainted({4, 4}, 1, [](QPainter& painter) {
        gDrawStripIcon(painter, QRectF(0, 0, 0, 10), 3, Qt::black);
        gDrawStripIcon(painter, QRectF(0, 0, -5, -5), 4, Qt::black);
        gDrawResource(painter, QRectF(), 366, Qt::black);
        painter.scale(0, 1);
        gDrawStripIcon(painter, QRectF(0, 0, 4, 4), 4, Qt::black);
    });
    EXPECT_EQ(gPaintedPixels(image), 0);
    const QImage huge = gPainted({4, 4}, 1, [](QPainter& painter) {
        gDrawStripIcon(painter, QRectF(-1e9, -1e9, 2e9, 2e9), 6, Qt::black);
    });
    EXPECT_EQ(huge.size(), QSize(4, 4));
}
