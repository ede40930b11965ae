/// @file
/// What the style draws itself can be seen in both themes and at more than one scale.
#include "toolkit/qt/QtThemeStyle.h"

#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QMenu>
#include <QStyleOption>
#include <cstdlib>
#include <utility>

#include "tests/qt/QtPixels.h"
#include "tests/qt/QtTestFrame.h"
#include "vapp/toolkit/qt/QtTheme.h"

namespace {

/// Dark or not, and the ratio.
class QtThemeStyleTest : public testing::TestWithParam<std::pair<bool, qreal>> {
protected:
    void SetUp() override {
        gApplyTheme(GetParam().first);
        m_greyed = m_menu.addAction("WWWW");
        m_greyed->setEnabled(false);
        m_separator = m_menu.addSeparator();
        m_checked = m_menu.addAction("checked");
        m_checked->setCheckable(true);
        m_checked->setChecked(true);
        m_menu.resize(m_menu.sizeHint());
    }
    void TearDown() override { gApplyTheme(false); }

    [[nodiscard]] qreal Ratio() const { return GetParam().second; }
    [[nodiscard]] QImage Paint() { return gPictureOf(m_menu, Ratio()); }
    // The area in device pixels.
    [[nodiscard]] QRect OnDevice(const QRect& area) const {
        return QRectF(QPointF(area.topLeft()) * Ratio(), QSizeF(area.size()) * Ratio()).toRect();
    }
    static int Distance(const QColor& first, const QColor& second) {
        return std::abs(qGray(first.rgb()) - qGray(second.rgb()));
    }

    QMenu m_menu;
    QAction* m_greyed = nullptr;
    QAction* m_separator = nullptr;
    QAction* m_checked = nullptr;
};

}  // namespace

TEST_P(QtThemeStyleTest, AMenuHasABorderAllAround) {
    const QImage picture = Paint();
    const QColor inside = picture.pixelColor(OnDevice({3, m_menu.height() / 4, 1, 1}).topLeft());
    const QColor window = m_menu.palette().color(QPalette::Window);
    const int right = picture.width() - 1;
    const int bottom = picture.height() - 1;
    for (const QPoint& at :
         {QPoint(0, 0), QPoint(right / 2, 0), QPoint(right, 0), QPoint(right, bottom / 4),
          QPoint(right, bottom), QPoint(right / 2, bottom), QPoint(0, bottom), QPoint(0, bottom / 4)}) {
        EXPECT_GT(Distance(picture.pixelColor(at), inside), 60) << at.x() << "," << at.y();
        EXPECT_GT(Distance(picture.pixelColor(at), window), 45) << at.x() << "," << at.y();
    }
}

TEST_P(QtThemeStyleTest, TheLineBetweenItemsCanBeSeen) {
    const QImage picture = Paint();
    const QRect area = m_menu.actionGeometry(m_separator);
    const QRect column = OnDevice({area.center().x(), area.top(), 1, area.height()});
    int strongest = 0;
    for (int y = column.top(); y <= column.bottom(); ++y)
        strongest = std::max(strongest, Distance(picture.pixelColor(column.left(), y),
                                                 picture.pixelColor(column.left(), column.top())));
    EXPECT_GT(strongest, 30);
}

TEST_P(QtThemeStyleTest, GreyedTextHasNoShadow) {
    const QImage picture = Paint();
    const QRect area = OnDevice(m_menu.actionGeometry(m_greyed).adjusted(4, 2, -4, -2));
    const int back = qGray(picture.pixel(area.topLeft()));
    const int text = qGray(m_menu.palette().color(QPalette::Disabled, QPalette::Text).rgb());
    int farthest = back;
    for (int y = area.top(); y <= area.bottom(); ++y) {
        for (int x = area.left(); x <= area.right(); ++x) {
            const int light = qGray(picture.pixel(x, y));
            EXPECT_TRUE(std::min(back, text) - 1 <= light && light <= std::max(back, text) + 1)
                << "neither text nor background nor between, at " << x << "," << y << ": " << light;
            if (std::abs(light - back) > std::abs(farthest - back)) farthest = light;
        }
    }
    EXPECT_GT(std::abs(farthest - back), 40) << "the text itself can be seen";
    EXPECT_EQ(QApplication::style()->styleHint(QStyle::SH_EtchDisabledText), 0);
}

TEST_P(QtThemeStyleTest, TheBoxOfACheckMarkHasABorder) {
    QStyleOptionButton box;
    box.palette = QApplication::palette();
    box.rect = QRect(4, 4, 14, 14);
    box.state = QStyle::State_Enabled | QStyle::State_Off;
    const QColor base = box.palette.color(QPalette::Base);
    QImage picture(QSize(22, 22) * Ratio(), QImage::Format_RGB32);
    picture.setDevicePixelRatio(Ratio());
    picture.fill(base);
    {
        QPainter painter(&picture);
        QApplication::style()->drawPrimitive(QStyle::PE_IndicatorCheckBox, &box, &painter);
    }
    const QRect area = OnDevice(box.rect);
    for (const QPoint& at : {QPoint(area.left(), area.center().y()), QPoint(area.right(), area.center().y()),
                             QPoint(area.center().x(), area.top()), QPoint(area.center().x(), area.bottom())})
        EXPECT_GT(Distance(picture.pixelColor(at), base), 60) << at.x() << "," << at.y();
}

TEST_P(QtThemeStyleTest, PicturesAreDrawnAtTheRatioAndThoseOfTitlesInTheTextsColour) {
    const QColor ink = QApplication::palette().color(QPalette::ButtonText);
    for (const auto picture : {QStyle::SP_TitleBarNormalButton, QStyle::SP_TitleBarCloseButton}) {
        const QImage image = QApplication::style()
                                 ->standardIcon(picture)
                                 .pixmap(QSize(16, 16), Ratio())
                                 .toImage()
                                 .convertToFormat(QImage::Format_ARGB32);
        EXPECT_EQ(image.size(), QSize(16, 16) * Ratio());
        EXPECT_GT(gPixelsOf(image, image.rect(), ink), 8) << picture;
        EXPECT_GT(gPaintedPixels(image), 20) << picture;
    }
    for (const auto picture : {QStyle::SP_MessageBoxInformation, QStyle::SP_MessageBoxQuestion,
                               QStyle::SP_MessageBoxWarning, QStyle::SP_MessageBoxCritical}) {
        const QImage image =
            QApplication::style()->standardIcon(picture).pixmap(QSize(32, 32), Ratio()).toImage();
        EXPECT_EQ(image.size(), QSize(32, 32) * Ratio());
        EXPECT_GT(gPaintedPixels(image), 400 * Ratio() * Ratio()) << picture;
    }
    EXPECT_FALSE(QApplication::style()->standardIcon(QStyle::SP_DirIcon).isNull())
        << "others are as they were";
}

INSTANTIATE_TEST_SUITE_P(ThemesAndScales, QtThemeStyleTest,
                         testing::Values(std::pair(false, 1.0), std::pair(false, 2.0), std::pair(true, 1.0),
                                         std::pair(true, 1.5), std::pair(true, 2.0)));
