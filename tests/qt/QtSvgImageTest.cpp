/// @file
/// Images of SVG files: in the wanted size and colours, kept, and with a reason where there is none.
#include "toolkit/qt/QtSvgImage.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/qt/QtPixels.h"

using namespace vapp_qt;

namespace {

// Collects what Qt warns of meanwhile.
class WarningsHeard {
public:
    WarningsHeard() {
        texts.clear();
        m_before = qInstallMessageHandler([](QtMsgType kind, const QMessageLogContext&, const QString& text) {
            if (kind != QtDebugMsg) texts.push_back(text.toStdString());
        });
    }
    ~WarningsHeard() { qInstallMessageHandler(m_before); }
    WarningsHeard(const WarningsHeard&) = delete;
    WarningsHeard& operator=(const WarningsHeard&) = delete;

    static inline std::vector<std::string> texts;

private:
    QtMessageHandler m_before;
};

constexpr QRgb cnBlackInk = 0xFF000000;
constexpr QRgb cnWhiteInk = 0xFFFFFFFF;
const QByteArray cnSquare =
    R"(<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 8 4"><rect x="0" y="0" width="4" height="4" fill="currentColor"/></svg>)";

QtSvgWish LockWish(int side, QRgb ink = cnBlackInk, bool isGreyed = false) {
    return {.file = "library-locked",
            .part = QRect(0, 0, 16, 16),
            .pixels = QSize(side, side),
            .ink = ink,
            .isGreyed = isGreyed};
}

QtSvgWish SquareWish(const QRect& part, QSize pixels) {
    return {.file = "square", .part = part, .pixels = pixels, .ink = 0xFF112233};
}

}  // namespace

TEST(QtSvgImage, EachFileOfTheLibraryIsDrawnWithoutAWarning) {
    const WarningsHeard warnings;
    for (const char* file : {"clear", "float", "library-locked", "library-unresolved", "message-error",
                             "message-information", "message-question", "message-warning", "open-list"}) {
        for (const int side : {1, 15, 16, 21, 32, 63}) {
            const QImage image = gSvgImage(
                {.file = file, .part = QRect(0, 0, 16, 16), .pixels = QSize(side, side), .ink = cnBlackInk});
            EXPECT_EQ(image.size(), QSize(side, side)) << file;
            EXPECT_GT(gPaintedPixels(image), side * side / 10) << file << " " << side;
        }
    }
    const QImage strip = gSvgImage(
        {.file = "strip", .part = QRect(0, 0, 462, 16), .pixels = QSize(462, 16), .ink = cnBlackInk});
    EXPECT_GT(gPaintedPixels(strip), 1000);
    EXPECT_EQ(WarningsHeard::texts, std::vector<std::string>());
}

TEST(QtSvgImage, LinesAreDrawnInTheInkAndFillsAreNot) {
    const QColor gold(0xE0, 0xA0, 0x20);
    const QRect all(0, 0, 64, 64);
    for (const QRgb ink : {cnBlackInk, cnWhiteInk, QRgb{0xFF3366CC}}) {
        const QImage image = gSvgImage(LockWish(64, ink));
        EXPECT_GT(gPixelsOf(image, all, QColor(ink)), 200) << ink;
        EXPECT_GT(gPixelsOf(image, all, gold), 200) << ink;
    }
    EXPECT_EQ(gPixelsOf(gSvgImage(LockWish(64, cnWhiteInk)), all, Qt::black), 0);
}

TEST(QtSvgImage, AGreyedOneHasNoColourAndIsFainter) {
    const QImage image = gSvgImage(LockWish(32));
    const QImage greyed = gSvgImage(LockWish(32, cnBlackInk, true));
    for (int y = 0; y < 32; ++y) {
        for (int x = 0; x < 32; ++x) {
            const QColor color = greyed.pixelColor(x, y);
            EXPECT_TRUE(color.red() == color.green() && color.green() == color.blue()) << x << "," << y;
            EXPECT_LE(color.alpha(), 128);
            EXPECT_GE(color.alpha(), image.pixelColor(x, y).alpha() / 2 - 1);
        }
    }
    EXPECT_GT(gPaintedPixels(greyed), 200);
}

TEST(QtSvgImage, OneThatWasDrawnIsNotDrawnAgain) {
    const QImage first = gSvgImage(LockWish(48));
    EXPECT_EQ(gSvgImage(LockWish(48)).cacheKey(), first.cacheKey());
    EXPECT_NE(gSvgImage(LockWish(47)).cacheKey(), first.cacheKey());
    EXPECT_NE(gSvgImage(LockWish(48, cnWhiteInk)), first);
    EXPECT_NE(gSvgImage(LockWish(48, cnBlackInk, true)), first);
    EXPECT_EQ(gSvgImage(LockWish(48)).cacheKey(), first.cacheKey());
}

TEST(QtSvgImage, ManyAndLargeOnesDoNotPileUp) {
    const QImage first = gSvgImage(LockWish(49));
    for (int side = 900; side < 904; ++side)
        EXPECT_EQ(gSvgImage(LockWish(side)).width(), side);
    const QImage again = gSvgImage(LockWish(49));
    EXPECT_NE(again.cacheKey(), first.cacheKey()) << "the oldest had to go";
    EXPECT_EQ(again, first);
    EXPECT_EQ(gSvgImage(LockWish(100000)).size(), QSize(1024, 1024));
}

TEST(QtSvgImage, OnlyTheWantedPartFillsTheImage) {
    QString whyNot;
    const QRect all(0, 0, 8, 8);
    const QImage left = gDrawSvg(cnSquare, SquareWish(QRect(0, 0, 4, 4), QSize(8, 8)), whyNot);
    EXPECT_EQ(gPixelsOf(left, all, QColor(0x11, 0x22, 0x33)), 64);
    const QImage right = gDrawSvg(cnSquare, SquareWish(QRect(4, 0, 4, 4), QSize(8, 8)), whyNot);
    EXPECT_EQ(gPaintedPixels(right), 0);
    EXPECT_EQ(whyNot, "");
    EXPECT_FALSE(right.isNull()) << "nothing is drawn there, and that is no failure";
}

TEST(QtSvgImage, WhatCannotBeDrawnHasAReason) {
    const struct {
        QByteArray text;
        QRect part;
        QSize pixels;
        const char* reason;
    } cases[] = {
        {"", QRect(0, 0, 4, 4), QSize(4, 4), "no drawing"},
        {"no drawing at all", QRect(0, 0, 4, 4), QSize(4, 4), "no drawing"},
        {cnSquare.left(60), QRect(0, 0, 4, 4), QSize(4, 4), "no drawing"},
        {cnSquare, QRect(6, 0, 4, 4), QSize(4, 4), "no part 6,0 4x4"},
        {cnSquare, QRect(), QSize(4, 4), "no part"},
        {cnSquare, QRect(0, 0, 4, 4), QSize(0, 4), "no image of 0x4"},
        {cnSquare, QRect(0, 0, 4, 4), QSize(-3, -4), "no image of -3x-4"},
    };
    const WarningsHeard warnings;
    for (const auto& entry : cases) {
        QString whyNot;
        EXPECT_TRUE(gDrawSvg(entry.text, SquareWish(entry.part, entry.pixels), whyNot).isNull());
        EXPECT_THAT(whyNot.toStdString(), testing::HasSubstr(entry.reason));
    }
}

TEST(QtSvgImage, AMissingFileIsToldOnceAndGivesNoImage) {
    const WarningsHeard warnings;
    const QtSvgWish wish{
        .file = "nowhere", .part = QRect(0, 0, 16, 16), .pixels = QSize(16, 16), .ink = cnBlackInk};
    EXPECT_TRUE(gSvgImage(wish).isNull());
    EXPECT_TRUE(gSvgImage(wish).isNull());
    EXPECT_THAT(WarningsHeard::texts,
                testing::ElementsAre(testing::HasSubstr("The picture nowhere can't be drawn")));
}
