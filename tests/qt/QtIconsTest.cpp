/// @file
/// The strip of row icons and the marks of libraries: each number its own picture, others none.
#include "toolkit/qt/QtIcons.h"

#include <gtest/gtest.h>

#include <QImage>
#include <QPainter>
#include <QSet>

using namespace vapp_qt;

namespace {

QImage StripIcon(int icon, int side = 16, const QColor& ink = Qt::black) {
    QImage image(side, side, QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    gDrawStripIcon(painter, QRectF(0, 0, side, side), icon, ink);
    return image;
}

QImage Resource(UINT resource) {
    QImage image(16, 16, QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    gDrawResource(painter, QRectF(0, 0, 16, 16), resource, Qt::black);
    return image;
}

int Painted(const QImage& image) {
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            count += qAlpha(image.pixel(x, y)) > 0 ? 1 : 0;
    }
    return count;
}

constexpr int cnStripIcons[] = {1, 3, 4, 6, 7, 13, 14, 16, 17, 19, 20};

}  // namespace

TEST(QtIcons, EachNumberOfTheStripHasAPictureAndANameOfItsOwn) {
    std::vector<QImage> pictures;
    QSet<QString> names;
    for (const int icon : cnStripIcons) {
        const QImage picture = StripIcon(icon);
        EXPECT_GT(Painted(picture), 40) << icon;
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
    for (const int icon : {-1, 0, 2, 5, 8, 12, 15, 18, 21, 1000, 0x7FFFFFFF}) {
        EXPECT_EQ(Painted(StripIcon(icon)), 0) << icon;
        EXPECT_EQ(gStripIconName(icon), "") << icon;
    }
    EXPECT_EQ(Painted(Resource(0)), 0);
    EXPECT_EQ(Painted(Resource(365)), 0);
    EXPECT_EQ(gLibraryMarkName(0), "");
}

TEST(QtIcons, LargerOnesAreDrawnAnewAndNotBlownUp) {
    for (const int icon : cnStripIcons) {
        const QImage blown = StripIcon(icon, 16).scaled(64, 64, Qt::KeepAspectRatio, Qt::FastTransformation);
        EXPECT_NE(StripIcon(icon, 64), blown) << icon;
    }
}

TEST(QtIcons, BothMarksOfALibraryCanBeSeenTogether) {
    QImage both = Resource(366);
    const QImage unresolved = both;
    {
        QPainter painter(&both);
        gDrawResource(painter, QRectF(0, 0, 16, 16), 367, Qt::black);
    }
    EXPECT_NE(both, unresolved);
    EXPECT_NE(both, Resource(367)) << "the first one looks out";
    EXPECT_NE(gLibraryMarkName(366), gLibraryMarkName(367));
}

TEST(QtIcons, NoRoomIsNoHarm) {
    QImage image(4, 4, QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    gDrawStripIcon(painter, QRectF(0, 0, 0, 10), 3, Qt::black);
    gDrawStripIcon(painter, QRectF(0, 0, -5, -5), 4, Qt::black);
    gDrawResource(painter, QRectF(), 366, Qt::black);
    EXPECT_EQ(Painted(image), 0);
}
