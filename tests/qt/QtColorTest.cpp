/// @file
/// Colours that meet a background they were not made for.
#include "toolkit/qt/QtColor.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>

namespace {

// The formula of the web's guidelines, anew.
double PartOf(int value) {
    const double part = value / 255.0;
    return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
}

double LightOf(const QColor& color) {
    return 0.2126 * PartOf(color.red()) + 0.7152 * PartOf(color.green()) + 0.0722 * PartOf(color.blue()) +
           0.05;
}

double ContrastOf(const QColor& one, const QColor& other) {
    const double ratio = LightOf(one) / LightOf(other);
    return ratio >= 1 ? ratio : 1 / ratio;
}

const QColor cnDarkPaper(45, 45, 45);
const QColor cnUnresolvedInk(0xDF, 0, 0);
const QColor cnHiddenUnresolvedInk(0xBF, 0, 0);
const QColor cnHiddenInk(0x80, 0x80, 0x80);

}  // namespace

TEST(QtColor, ColoursOfStatesStayAsTheyAreOnWhite) {
    for (const QColor& ink : {cnUnresolvedInk, cnHiddenUnresolvedInk, cnHiddenInk})
        EXPECT_EQ(vapp_qt::gLegibleOn(Qt::white, ink), ink);
}

TEST(QtColor, RedOnADarkPaperIsALighterRed) {
    const QColor ink = vapp_qt::gLegibleOn(cnDarkPaper, cnUnresolvedInk);
    EXPECT_GE(ContrastOf(cnDarkPaper, ink), 4.0);
    EXPECT_GT(ink.red(), ink.green() + 60) << "still red";
    EXPECT_EQ(ink.green(), ink.blue());
    EXPECT_EQ(vapp_qt::gLegibleOn(cnDarkPaper, cnHiddenInk), cnHiddenInk) << "grey can be read there too";
}

TEST(QtColor, TheWeakerOfTwoColoursStaysTheWeaker) {
    const QColor strong = vapp_qt::gLegibleOn(cnDarkPaper, cnUnresolvedInk);
    const QColor weak = vapp_qt::gLegibleOn(cnDarkPaper, cnHiddenUnresolvedInk);
    EXPECT_LT(ContrastOf(cnDarkPaper, weak), ContrastOf(cnDarkPaper, strong));
    EXPECT_GE(ContrastOf(cnDarkPaper, weak), 3.0);
}

TEST(QtColor, AnyColourIsLegibleOnAnyPaper) {
    const unsigned seed = std::random_device()();
    SCOPED_TRACE("seed " + std::to_string(seed));
    std::mt19937 random(seed);
    const auto color = [&random] {
        const auto part = [&random] { return static_cast<int>(random() % 256); };
        const int red = part();
        const int green = part();
        return QColor(red, green, part());
    };
    for (int round = 0; round < 3000; ++round) {
        const QColor paper = color();
        const QColor ink = random() % 10 == 0 ? paper : color();
        EXPECT_GE(ContrastOf(paper, vapp_qt::gLegibleOn(paper, ink)), 2.99)
            << paper.name().toStdString() << ' ' << ink.name().toStdString();
    }
}
