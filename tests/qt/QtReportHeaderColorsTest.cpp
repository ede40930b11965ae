/// @file
/// The identity of the header's palette: styles keep the pictures of sections by it.
#include <gtest/gtest.h>

#include <QProxyStyle>
#include <QStyleOption>
#include <set>

#include "tests/qt/QtTestReport.h"

namespace {

/// Notes the palettes that header sections are drawn with.
class RecordingStyle : public QProxyStyle {
public:
    RecordingStyle() : QProxyStyle(QStringLiteral("Fusion")) {}

    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override {
        if (element == CE_HeaderSection) palettes.insert(option->palette.cacheKey());
        QProxyStyle::drawControl(element, option, painter, widget);
    }

    mutable std::set<qint64> palettes;
};

}  // namespace

class QtReportHeaderColorsTest : public ShownReport {
protected:
    QtReportHeaderColorsTest() { View()->Header()->setStyle(&m_style); }
    ~QtReportHeaderColorsTest() override { View()->Header()->setStyle(nullptr); }

    std::size_t PalettesOfTwoPaintings() {
        m_style.palettes.clear();
        Paint();
        Paint();
        return m_style.palettes.size();
    }

    RecordingStyle m_style;
};

TEST_F(QtReportHeaderColorsTest, PaintingAgainBringsNoNewPalette) {
    Populate(5);
    EXPECT_EQ(PalettesOfTwoPaintings(), 1U);
    const qint64 standard = *m_style.palettes.begin();

    report.GetPaintManager().SetCustomColor(TReportColor::HeaderBack, 0x2D2D2D);
    EXPECT_EQ(PalettesOfTwoPaintings(), 1U);
    EXPECT_NE(*m_style.palettes.begin(), standard) << "but other colours are another palette";

    QPalette other = View()->palette();
    other.setColor(QPalette::Window, Qt::red);
    View()->setPalette(other);
    QApplication::processEvents();
    EXPECT_EQ(PalettesOfTwoPaintings(), 1U);
}
