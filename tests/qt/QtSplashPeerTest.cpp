/// @file
/// The splash on a screen: picture, version, time and place.
#include "toolkit/qt/QtSplashPeer.h"

#include <QImage>
#include <QScreen>
#include <QTest>
#include <QTimer>

#include "tests/qt/ModalAnswer.h"
#include "tests/qt/QtTestFrame.h"
#include "vapp/toolkit/Resources.h"
#include "vapp/toolkit/TMessageBox.h"
#include "vapp/toolkit/TSplashScreen.h"
#include "vapp/toolkit/qt/QtBitmap.h"

namespace {

constexpr UINT cnPicture = 3;
constexpr QRgb cnBlue = 0xFF0000FF;
constexpr COLORREF cnRed = 0x0000FF;
constexpr COLORREF cnBlueKey = 0xFF0000;
constexpr int cnNever = 0;

class QtSplash : public testing::Test {
protected:
    QtSplash() {
        QImage image(200, 100, QImage::Format_RGB32);
        image.fill(QColor::fromRgb(cnBlue));
        // A white stripe at the bottom.
        for (int x = 0; x < 200; ++x)
            image.setPixel(x, 99, 0xFFFFFFFF);
        bitmap = QtBitmap(image);
        gSetBitmapResource(cnPicture, bitmap.Get());
        splash.LoadPicture(cnPicture, cnNoColor);
        splash.SetVersionString("2019.2");
        splash.SetVersionColor(cnRed);
    }
    ~QtSplash() override { gSetBitmapResource(cnPicture, nullptr); }

    // The splash as it is painted, transparent where it is.
    [[nodiscard]] QImage Picture() const {
        QImage image(Widget()->size(), QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        Widget()->render(&image, {}, {}, QWidget::DrawChildren);
        return image.convertToFormat(QImage::Format_ARGB32);
    }
    /// The rectangle of the pixels that are more red than the picture is anywhere.
    [[nodiscard]] QRect RedPixels() const {
        const QImage image = Picture();
        QRect red;
        for (int y = 0; y < image.height() - 1; ++y)
            for (int x = 0; x < image.width(); ++x)
                if (qRed(image.pixel(x, y)) > 64) red |= QRect(x, y, 1, 1);
        return red;
    }
    [[nodiscard]] QWidget* Widget() const { return gWidgetOf(splash); }

    QtBitmap bitmap;
    TSplashScreen splash;
};

}  // namespace

TEST_F(QtSplash, IsAWindowOfThePicturesSizeWhereItIsWanted) {
    ASSERT_TRUE(splash.Show(cnNever, CPoint{30, 40}));
    ASSERT_NE(Widget(), nullptr);
    EXPECT_TRUE(Widget()->isVisible());
    EXPECT_TRUE(Widget()->isWindow());
    EXPECT_EQ(Widget()->geometry(), QRect(30, 40, 200, 100));
    EXPECT_EQ(splash.GetRect(), CRect(30, 40, 230, 140));
    EXPECT_NE(QApplication::focusWidget(), Widget());
}

TEST_F(QtSplash, WithoutAPlaceItStandsInTheMiddleOfTheScreen) {
    ASSERT_TRUE(splash.Show(cnNever));
    const QRect screen = QGuiApplication::primaryScreen()->geometry();
    const QPoint off = Widget()->geometry().center() - screen.center();
    EXPECT_LE(off.manhattanLength(), 2);
}

TEST_F(QtSplash, ShowsTheVersionAtItsPlaceInItsColour) {
    splash.SetVersionXLocation(50);
    splash.SetVersionYLocation(20);
    ASSERT_TRUE(splash.Show(cnNever, CPoint{0, 0}));
    EXPECT_EQ(Picture().pixel(10, 10), cnBlue) << "the picture";
    EXPECT_EQ(Picture().pixel(10, 99), 0xFFFFFFFF);
    const QRect red = RedPixels();
    ASSERT_FALSE(red.isEmpty());
    EXPECT_GE(red.left(), 50);
    EXPECT_LE(red.left(), 56);
    EXPECT_GE(red.top(), 20);
    EXPECT_LE(red.bottom(), 20 + Widget()->fontMetrics().height());
    splash.SetVersionXLocation(100);
    EXPECT_GE(RedPixels().left(), 100) << "moved while it is shown";
    splash.SetVersionString("");
    EXPECT_TRUE(RedPixels().isEmpty());
}

TEST_F(QtSplash, AVersionFarOutsideShowsNothing) {
    splash.SetVersionXLocation(0xFFFFFFFFu);
    splash.SetVersionYLocation(0x80000000u);
    ASSERT_TRUE(splash.Show(cnNever, CPoint{0, 0}));
    EXPECT_TRUE(RedPixels().isEmpty());
}

TEST_F(QtSplash, PixelsOfTheKeyAreTransparent) {
    splash.SetVersionString("");
    splash.LoadPicture(cnPicture, cnBlueKey);
    ASSERT_TRUE(splash.Show(cnNever, CPoint{0, 0}));
    EXPECT_EQ(qAlpha(Picture().pixel(10, 10)), 0);
    EXPECT_EQ(Picture().pixel(10, 99), 0xFFFFFFFF);
}

TEST_F(QtSplash, AsksForPatience) {
    splash.SetVersionString("");
    ASSERT_TRUE(splash.Show(cnNever, CPoint{0, 0}));
    EXPECT_TRUE(RedPixels().isEmpty());
    splash.ShowStartupWaitMessage();
    const QRect red = RedPixels();
    EXPECT_GE(red.top(), 50) << "in the lower half";
    splash.HideStartupWaitMessage();
    EXPECT_TRUE(RedPixels().isEmpty());
}

TEST_F(QtSplash, GoesWhenItsTimeIsOver) {
    ASSERT_TRUE(splash.Show(1, CPoint{0, 0}));
    EXPECT_TRUE(QTest::qWaitFor([&] { return !splash.IsShown(); }));
    EXPECT_EQ(Widget(), nullptr);
}

TEST_F(QtSplash, WithoutATimeItStaysUntilItIsHidden) {
    for (const int timeOut : {0, -1}) {
        ASSERT_TRUE(splash.Show(timeOut, CPoint{0, 0}));
        QApplication::processEvents();
        EXPECT_TRUE(splash.IsShown());
        splash.Hide(0);
        EXPECT_FALSE(splash.IsShown());
    }
}

TEST_F(QtSplash, ClosedByTheDesktopItHasEnded) {
    for (const int timeOut : {cnNever, 600000}) {
        ASSERT_TRUE(splash.Show(timeOut, CPoint{0, 0}));
        EXPECT_TRUE(Widget()->close());
        EXPECT_FALSE(splash.IsShown());
        EXPECT_FALSE(splash.IsWindow());
        QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    ASSERT_TRUE(splash.Show(cnNever, CPoint{0, 0})) << "and can come again";
}

TEST_F(QtSplash, EndedByWhatWaitedWhileItIsShownItHasEnded) {
    for (const int timeOut : {cnNever, 600000}) {
        bool isEnded = false;
        QTimer::singleShot(0, [&] {
            isEnded = splash.IsShown();
            splash.Hide(0);
        });
        EXPECT_TRUE(splash.Show(timeOut, CPoint{0, 0}));
        EXPECT_TRUE(isEnded) << "what waits is handled when it is shown";
        EXPECT_FALSE(splash.IsShown());
        EXPECT_EQ(Widget(), nullptr);
        QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
}

// A warning of the start has no owner, and both stand in the middle of the screen.
TEST_F(QtSplash, ABoxWithoutAnOwnerComesUpInFrontOfIt) {
    ASSERT_TRUE(splash.Show(cnNever));
    const ModalAnswer user([this](QMessageBox& box) {
        EXPECT_TRUE(splash.IsShown());
        EXPECT_TRUE(Widget()->windowFlags().testFlag(Qt::WindowStaysOnTopHint));
        EXPECT_TRUE(box.windowFlags().testFlag(Qt::WindowStaysOnTopHint)) << "or nobody could answer it";
        box.accept();
    });
    static_cast<void>(TMessageBox(nullptr, "Error", "text", MB_ICONERROR).DoModal());
    EXPECT_TRUE(splash.IsShown());
}

TEST_F(QtSplash, ItsTimeRunsWhileABoxIsUp) {
    ASSERT_TRUE(splash.Show(1, CPoint{0, 0}));
    const ModalAnswer user([this](QMessageBox& box) {
        EXPECT_TRUE(QTest::qWaitFor([this] { return !splash.IsShown(); }));
        EXPECT_TRUE(box.isVisible());
        box.accept();
    });
    static_cast<void>(TMessageBox(nullptr, "Error", "text", MB_ICONERROR).DoModal());
    EXPECT_FALSE(splash.IsShown());
}

TEST_F(QtSplash, ComesAgainWithANewTime) {
    ASSERT_TRUE(splash.Show(600000, CPoint{0, 0}));
    ASSERT_TRUE(splash.Show(1, CPoint{5, 5}));
    EXPECT_TRUE(QTest::qWaitFor([&] { return !splash.IsShown(); }));
}

TEST_F(QtSplash, APictureThatIsGoneShowsNothingButTheVersion) {
    bitmap = QtBitmap();
    ASSERT_TRUE(splash.Show(cnNever, CPoint{0, 0}));
    EXPECT_EQ(Widget()->size(), QSize(1, 1));
}

TEST_F(QtSplash, AScreenOfTwiceThePixelsHasASharpOneOfTheSameSize) {
    QImage image(200, 100, QImage::Format_RGB32);
    image.setDevicePixelRatio(2);
    image.fill(Qt::white);
    bitmap = QtBitmap(image);
    gSetBitmapResource(cnPicture, bitmap.Get());
    splash.LoadPicture(cnPicture, cnNoColor);
    ASSERT_TRUE(splash.Show(cnNever, CPoint{0, 0}));
    EXPECT_EQ(Widget()->size(), QSize(100, 50));
}
