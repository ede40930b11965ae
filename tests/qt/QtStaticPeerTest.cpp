/// @file
/// Texts and pictures, down to their pixels.
#include "toolkit/qt/QtStaticPeer.h"

#include "tests/qt/QtTestFrame.h"
#include "vapp/toolkit/CStatic.h"
#include "vapp/toolkit/qt/QtBitmap.h"

namespace {

QImage Filled(int width, int height, const QColor& color, qreal ratio = 1) {
    QImage image(width, height, QImage::Format_RGB32);
    image.fill(color);
    image.setDevicePixelRatio(ratio);
    return image;
}

// The smallest rectangle around all pixels of the colour.
QRect BoundsOf(const QImage& image, QRgb color) {
    QRect bounds;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixel(x, y) == color) bounds |= QRect(x, y, 1, 1);
        }
    }
    return bounds;
}

constexpr QRgb cnRedPixel = 0xFFFF0000;

class QtPicture : public testing::Test {
protected:
    void SetUp() override { ASSERT_TRUE(picture.Create(&shown.form, 3, {10, 10, 110, 90})); }

    ShownFrame shown;
    CStatic picture{CStatic::TKind::Picture};
};

}  // namespace

TEST_F(QtPicture, StandsInTheMiddlePixelForPixel) {
    const QtBitmap bitmap(Filled(40, 20, Qt::red));
    picture.SetImage(bitmap.Get());
    EXPECT_EQ(BoundsOf(gPictureOf(*gWidgetOf(picture)), cnRedPixel), QRect(30, 30, 40, 20));
}

TEST_F(QtPicture, PictureOfAFineScreenKeepsItsPixelsThere) {
    const QtBitmap bitmap(Filled(80, 40, Qt::red, 2));
    picture.SetImage(bitmap.Get());
    EXPECT_EQ(BoundsOf(gPictureOf(*gWidgetOf(picture), 2), cnRedPixel), QRect(60, 60, 80, 40));
    EXPECT_EQ(BoundsOf(gPictureOf(*gWidgetOf(picture), 1), cnRedPixel), QRect(30, 30, 40, 20));
}

TEST_F(QtPicture, TooLargeOneIsMadeSmallerWithinTheControl) {
    const QtBitmap bitmap(Filled(400, 100, Qt::red));
    picture.SetImage(bitmap.Get());
    const QImage painted = gPictureOf(*gWidgetOf(picture));
    EXPECT_EQ(painted.pixel(50, 40), cnRedPixel);
    EXPECT_NE(painted.pixel(50, 20), cnRedPixel) << "its shape is kept";
    EXPECT_NE(painted.pixel(50, 60), cnRedPixel);
}

TEST_F(QtPicture, OtherPicturesAndNoneReplaceIt) {
    const QtBitmap red(Filled(20, 20, Qt::red));
    const QtBitmap blue(Filled(20, 20, Qt::blue));
    picture.SetImage(red.Get());
    picture.SetImage(blue.Get());
    EXPECT_EQ(gPictureOf(*gWidgetOf(picture)).pixel(50, 40), 0xFF0000FFu);
    picture.SetImage(nullptr);
    EXPECT_EQ(gPictureOf(*gWidgetOf(picture)).pixel(50, 40),
              picture.GetPeer() == nullptr ? 0u : gWidgetOf(picture)->palette().base().color().rgb());
}

TEST_F(QtPicture, PictureThatIsGoneShowsNothing) {
    {
        const QtBitmap bitmap(Filled(20, 20, Qt::red));
        picture.SetImage(bitmap.Get());
    }
    EXPECT_TRUE(BoundsOf(gPictureOf(*gWidgetOf(picture)), cnRedPixel).isNull());
}

TEST_F(QtPicture, HasASunkenFrame) {
    const QtBitmap bitmap(Filled(100, 80, Qt::red));
    picture.SetImage(bitmap.Get());
    const QImage painted = gPictureOf(*gWidgetOf(picture));
    for (const QPoint edge : {QPoint(50, 0), QPoint(50, 79), QPoint(0, 40), QPoint(99, 40)})
        EXPECT_NE(painted.pixel(edge), cnRedPixel);
    EXPECT_EQ(painted.pixel(2, 2), cnRedPixel);
}

TEST(QtStaticText, IsPaintedAndChangesWithTheControl) {
    ShownFrame shown;
    CStatic text;
    ASSERT_TRUE(text.Create(&shown.form, 4, {10, 10, 210, 30}));
    const QImage none = gPictureOf(*gWidgetOf(text));
    text.SetWindowText("3 cells");
    const QImage three = gPictureOf(*gWidgetOf(text));
    EXPECT_NE(none, three);
    text.SetWindowText("4 cells");
    EXPECT_NE(gPictureOf(*gWidgetOf(text)), three);
    EXPECT_EQ(gWidgetOf(text)->accessibleName(), "4 cells");
    EXPECT_EQ(gWidgetOf(text)->focusPolicy(), Qt::NoFocus);
}

TEST(QtStaticText, LongTextEndsWithinAndShowsWholeAsToolTip) {
    ShownFrame shown;
    CStatic text;
    text.SetWindowText("<b>a very long caption</b> that cannot be shown in so little room");
    ASSERT_TRUE(text.Create(&shown.form, 4, {10, 10, 60, 30}));
    EXPECT_TRUE(gWidgetOf(text)->toolTip().contains("&lt;b&gt;a very long caption"));
}
