/// @file
/// Rows of both lists as they are painted on a screen of whatever ratio this program runs at. It runs at
/// several: CTest has an entry for each with QT_SCALE_FACTOR set. What a row should look like is painted here
/// straight upon a device of the same ratio; a list that painted at one and scaled up, or rounded otherwise,
/// would differ.
#include <gtest/gtest.h>

#include <QFontMetricsF>
#include <QPixmap>

#include "tests/qt/QtPixels.h"
#include "tests/qt/QtTestReport.h"
#include "toolkit/qt/QtIcons.h"
#include "toolkit/qt/QtListView.h"
#include "vapp/toolkit/CListCtrl.h"
#include "vapp/toolkit/qt/QtTheme.h"

namespace {

constexpr int cnCellMargin = 4;
constexpr int cnIconWidth = 22;
// Letters that reach as high and as deep as any.
constexpr const char* csTallText = "\xC3\x85gjpqy|";

// A list that answers for its rows as the list of libraries does.
class MarkedList : public CListCtrl {
public:
    ListItemLook DrawItem(int index) override {
        ListItemLook look = CListCtrl::DrawItem(index);
        look.icons[0] = 366;
        look.icons[1] = index == 1 ? 367 : 0;
        look.textIndent = GetRowHeight() + 2;
        return look;
    }
};

// Comparing is in device pixels; all else is in units of the widgets.
class Scaled {
public:
    explicit Scaled(const QWidget& widget) : m_ratio(widget.devicePixelRatioF()) {}

    [[nodiscard]] qreal Ratio() const { return m_ratio; }
    // The pixels that lie wholly in the area.
    [[nodiscard]] QRect Inner(const QRectF& area) const {
        const QPoint from(qCeil(area.left() * m_ratio), qCeil(area.top() * m_ratio));
        const QPoint to(qFloor(area.right() * m_ratio) - 1, qFloor(area.bottom() * m_ratio) - 1);
        return {from, to};
    }
    static QImage Grab(QWidget& widget) {
        return widget.grab().toImage().convertToFormat(QImage::Format_RGB32);
    }
    // The picture of a widget that paints so.
    static QImage Wanted(const QWidget& widget, const QColor& back,
                         const std::function<void(QPainter&)>& paint) {
        QPixmap picture((QSizeF(widget.size()) * widget.devicePixelRatioF()).toSize());
        picture.setDevicePixelRatio(widget.devicePixelRatioF());
        picture.fill(back);
        QPainter painter(&picture);
        paint(painter);
        painter.end();
        return picture.toImage().convertToFormat(QImage::Format_RGB32);
    }
    // Where something other than the background is.
    static QRect Painted(const QImage& image, const QRect& area, const QColor& back) {
        QRect all;
        for (int y = area.top(); y <= area.bottom(); ++y) {
            for (int x = area.left(); x <= area.right(); ++x) {
                if (image.pixelColor(x, y) != back) all |= QRect(x, y, 1, 1);
            }
        }
        return all;
    }

private:
    qreal m_ratio;
};

class ScaleScenarioTest : public ShownReport {
protected:
    ScaleScenarioTest() {
        gApplyTheme(false);
        QApplication::processEvents();
    }

    [[nodiscard]] QWidget& Viewport() const { return *View()->viewport(); }
    [[nodiscard]] QColor Base() const { return Viewport().palette().color(QPalette::Base); }
    [[nodiscard]] QColor Ink() const {
        const auto group = View()->hasFocus() ? QPalette::Active : QPalette::Inactive;
        return View()->palette().color(group, QPalette::Text);
    }
    // The inside of a cell: neither its grid lines nor anything of its neighbours.
    [[nodiscard]] QRectF Cell(int row, int left, int width) const {
        const int height = report.GetRowHeight();
        return QRectF(left, row * height, width, height).adjusted(0, 0.01, -1, -1);
    }
};

}  // namespace

TEST_F(ScaleScenarioTest, AGrabbedWindowHasTheSizeOfTheScreensPixels) {
    const qreal ratio = Viewport().devicePixelRatioF();
    if (qEnvironmentVariableIsSet("QT_SCALE_FACTOR")) {
        EXPECT_DOUBLE_EQ(ratio, qEnvironmentVariable("QT_SCALE_FACTOR").toDouble());
    }
    for (QWidget* widget : {gWidgetOf(shown.frame), gWidgetOf(report), &Viewport()}) {
        const QPixmap picture = widget->grab();
        EXPECT_EQ(picture.devicePixelRatio(), ratio);
        EXPECT_LE(std::abs(picture.width() - widget->width() * ratio), 1) << ratio;
        EXPECT_LE(std::abs(picture.height() - widget->height() * ratio), 1) << ratio;
    }
}

TEST_F(ScaleScenarioTest, TextOfACellIsDrawnForTheScreenAndNotScaled) {
    Populate(3);
    const Scaled scaled(Viewport());
    const QImage picture = Scaled::Grab(Viewport());
    const QImage wanted = Scaled::Wanted(Viewport(), Base(), [&](QPainter& painter) {
        painter.setFont(View()->font());
        painter.setPen(Ink());
        for (int row = 0; row < 3; ++row) {
            painter.drawText(QRect(140 + cnCellMargin, row * report.GetRowHeight(), 60 - 2 * cnCellMargin,
                                   report.GetRowHeight()),
                             Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, "item 1");
        }
    });
    for (int row = 0; row < 3; ++row) {
        const QRect area = scaled.Inner(Cell(row, 140, 60));
        EXPECT_GT(Scaled::Painted(picture, area, Base()).width(), 20 * scaled.Ratio()) << "row " << row;
        EXPECT_EQ(picture.copy(area), wanted.copy(area)) << "row " << row << " at " << scaled.Ratio();
    }
}

TEST_F(ScaleScenarioTest, NoTextOfACellIsCut) {
    report.decoration = [](FakeReport::Cell cell, CXTPReportRecordItemMetrics& metrics) {
        metrics.text = cell.second == 1 ? "a text far too long for its column" : csTallText;
    };
    Populate(3);
    const Scaled scaled(Viewport());
    const QImage picture = Scaled::Grab(Viewport());
    for (int row = 0; row < 3; ++row) {
        for (const auto& [left, width] : {std::pair(0, 140), {140, 60}, {200, 60}}) {
            const QRectF cell = Cell(row, left, width);
            const QRect area = scaled.Inner(cell);
            const QRect text = Scaled::Painted(picture, area, Base());
            EXPECT_FALSE(text.isEmpty());
            EXPECT_GT(text.top(), area.top()) << "row " << row << ", column at " << left;
            EXPECT_LT(text.bottom(), area.bottom()) << "row " << row << ", column at " << left;
            EXPECT_GE(text.left(), area.left() + 3 * scaled.Ratio() - 1) << "row " << row;
            EXPECT_LE(text.right(), area.right() - 2 * scaled.Ratio()) << "row " << row;
        }
    }
}

TEST_F(ScaleScenarioTest, TheIconAndTheTextBesideItKeepTheirPlaces) {
    report.decoration = [](FakeReport::Cell cell, CXTPReportRecordItemMetrics& metrics) {
        if (cell.second == 0) metrics.icon = cell.first == 1 ? 16 : 3;
    };
    Populate(3);
    const Scaled scaled(Viewport());
    const QImage picture = Scaled::Grab(Viewport());
    const QImage wanted = Scaled::Wanted(Viewport(), Base(), [&](QPainter& painter) {
        for (int row = 0; row < 3; ++row) {
            vapp_qt::gDrawStripIcon(
                painter,
                QRectF(cnCellMargin, row * report.GetRowHeight() + 2, cnIconWidth, report.GetRowHeight() - 4),
                row == 1 ? 16 : 3, Ink());
        }
    });
    const int textLeft = cnCellMargin + cnIconWidth + cnCellMargin;
    for (int row = 0; row < 3; ++row) {
        const QRect icon = scaled.Inner(Cell(row, 0, textLeft - 1));
        EXPECT_GT(Scaled::Painted(picture, icon, Base()).width(), 12 * scaled.Ratio()) << "row " << row;
        EXPECT_EQ(picture.copy(icon), wanted.copy(icon)) << "row " << row << " at " << scaled.Ratio();
        const QRect text =
            Scaled::Painted(picture, scaled.Inner(Cell(row, textLeft - 2, 140 - textLeft + 2)), Base());
        EXPECT_GE(text.left(), (textLeft - 1) * scaled.Ratio()) << "row " << row;
        EXPECT_LE(text.left(), (textLeft + 2) * scaled.Ratio()) << "row " << row;
    }
}

TEST_F(ScaleScenarioTest, BetweenSelectedRowsNothingShinesThrough) {
    Populate(4);
    report.ClickedByUser(0, {});
    report.ClickedByUser(3, {.shift = true});
    report.SetGridStyle(false, 0);
    report.SetGridStyle(true, 0);
    ASSERT_EQ(report.GetSelectedRows().GetCount(), 4);
    const Scaled scaled(Viewport());
    const QImage picture = Scaled::Grab(Viewport());
    const QRect beside =
        scaled.Inner(QRectF(265, 0, 10, 4 * report.GetRowHeight()).adjusted(0, 1.01, 0, -1.01));
    const auto group = View()->hasFocus() ? QPalette::Active : QPalette::Inactive;
    const QColor highlight = View()->palette().color(group, QPalette::Highlight);
    EXPECT_EQ(gPixelsOf(picture, beside, highlight), beside.width() * beside.height());
}

TEST_F(ScaleScenarioTest, TheFrameOfTheFocusHasFourEdgesOfOneWidth) {
    Populate(3);
    report.SetGridStyle(false, 0);
    report.SetGridStyle(true, 0);
    report.SetFocusedRow(CXTPReportRow(0));
    report.SetFocus();
    ASSERT_TRUE(View()->hasFocus());
    const Scaled scaled(Viewport());
    const QImage picture = Scaled::Grab(Viewport());
    const QColor line = View()->palette().color(QPalette::Active, QPalette::Highlight);
    const QRect row = scaled.Inner(QRectF(0, 0, Viewport().width(), report.GetRowHeight()));
    const int thick = qCeil(scaled.Ratio());
    const QRect across(row.left() + row.width() / 4, row.top(), row.width() / 2, thick);
    const QRect down(row.left(), row.top() + row.height() / 4, thick, row.height() / 2);
    // A third of an edge is dots, at larger scales more.
    const int wide = qFloor(across.width() * scaled.Ratio() * 0.3);
    const int high = qFloor(down.height() * scaled.Ratio() * 0.3);
    EXPECT_GE(gPixelsOf(picture, across, line), wide);
    EXPECT_GE(gPixelsOf(picture, across.translated(0, row.height() - thick), line), wide);
    EXPECT_GE(gPixelsOf(picture, down, line), high);
    EXPECT_GE(gPixelsOf(picture, down.translated(row.width() - thick, 0), line), high);
    const QRect inside = row.adjusted(thick, thick, -thick, -thick);
    EXPECT_EQ(gPixelsOf(picture, inside, line), 0);
    EXPECT_EQ(gPixelsOf(picture, row.translated(0, row.height() + 1), line), 0);
}

TEST_F(ScaleScenarioTest, ALibrarysMarksAndNameKeepTheirPlaces) {
    MarkedList list;
    ASSERT_TRUE(list.Create(&shown.form, 9, {0, 0, 200, 120}));
    for (int row = 0; row < 3; ++row)
        list.InsertItem(row, CStringU(csTallText));
    QApplication::processEvents();
    auto* view = gWidgetAs<vapp_qt::QtListView>(list);
    QWidget& viewport = *view->viewport();
    const Scaled scaled(viewport);
    const int height = list.GetRowHeight();
    const int indent = height + 2;
    const QImage picture = Scaled::Grab(viewport);
    const QImage wanted = Scaled::Wanted(viewport, Base(), [&](QPainter& painter) {
        painter.setFont(view->font());
        painter.setPen(Ink());
        for (int row = 0; row < 3; ++row) {
            const QRectF icon(1, row * height + 1, height - 2, height - 2);
            vapp_qt::gDrawResource(painter, icon, 366, Ink());
            if (row == 1) vapp_qt::gDrawResource(painter, icon, 367, Ink());
            painter.drawText(QRect(indent, row * height, viewport.width() - indent, height),
                             Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
                             QString::fromUtf8(csTallText));
        }
    });
    for (int row = 0; row < 3; ++row) {
        const QRect area = scaled.Inner(QRectF(0, row * height + 0.01, viewport.width(), height - 0.02));
        EXPECT_EQ(picture.copy(area), wanted.copy(area)) << "row " << row << " at " << scaled.Ratio();
        const QRect text =
            Scaled::Painted(picture, scaled.Inner(QRectF(indent, row * height, 150, height)), Base());
        EXPECT_GT(text.top(), area.top()) << "row " << row;
        EXPECT_LT(text.bottom(), area.bottom()) << "row " << row;
        const QRect icon = Scaled::Painted(
            picture, scaled.Inner(QRectF(0, row * height + 0.01, indent - 1, height - 0.02)), Base());
        EXPECT_LE(std::abs(icon.left() - scaled.Ratio()), scaled.Ratio() + 1) << "row " << row;
        EXPECT_GT(icon.height(), (height - 5) * scaled.Ratio()) << "row " << row;
        EXPECT_LE(icon.height(), (height - 2) * scaled.Ratio() + 1) << "row " << row;
    }
}

TEST_F(ScaleScenarioTest, TheHeaderEndsWhereTheRowsBegin) {
    Populate(3);
    const qreal ratio = Viewport().devicePixelRatioF();
    auto* header = gWidgetOf(report)->findChild<QWidget*>("header");
    ASSERT_NE(header, nullptr);
    EXPECT_EQ(header->geometry().bottom() + 1, Viewport().geometry().top());
    const QImage picture = Scaled::Grab(*header);
    const QColor first = picture.pixelColor(0, picture.height() / 2);
    const QRect text =
        Scaled::Painted(picture,
                        QRect(QPoint(qCeil(2 * ratio), qCeil(2 * ratio)),
                              QPoint(qFloor(40 * ratio), qFloor((header->height() - 3) * ratio))),
                        first);
    EXPECT_GT(text.width(), 10 * ratio) << "the caption";
}

// Once a style took minutes, at three, for the picture of a section that was as wide as this.
TEST_F(ScaleScenarioTest, AHeaderOfAnyWidthIsPaintedAtOnceAndLooksTheSame) {
    report.GetColumns().GetAt(2)->SetWidth(2000);
    Populate(3);
    auto* header = gWidgetOf(report)->findChild<QWidget*>("header");
    ASSERT_NE(header, nullptr);
    const QImage wide = Scaled::Grab(*header);
    report.GetColumns().GetAt(2)->SetWidth(0x7FFFFFFF);
    QApplication::processEvents();
    EXPECT_EQ(Scaled::Grab(*header), wide);
    report.SetScrollX(0x7FFFFFFF);
    QApplication::processEvents();
    EXPECT_NE(Scaled::Grab(*header), wide) << "its caption is out of sight";
}
