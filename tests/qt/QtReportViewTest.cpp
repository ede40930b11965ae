/// @file
/// What the report's view asks for and paints, looked at in the pixels where that matters.
#include "toolkit/qt/QtReportView.h"

#include <QScrollBar>
#include <QTest>

#include "tests/qt/QtTestReport.h"
#include "toolkit/qt/QtColor.h"

class QtReportViewTest : public ShownReport {
protected:
    /// A pixel of a row's background, right of the columns unless told.
    [[nodiscard]] QColor BackOf(const QImage& picture, int row, int x = 275) const {
        const QPoint at = At(row, x);
        return picture.pixelColor(at.x(), at.y() + report.GetHeaderHeight());
    }
    /// Number of pixels of a colour in a rectangle of the widget.
    static int CountOf(const QImage& picture, const QRect& area, const QColor& color) {
        int count = 0;
        for (int y = area.top(); y <= area.bottom(); ++y) {
            for (int x = area.left(); x <= area.right(); ++x)
                count += picture.pixelColor(x, y) == color ? 1 : 0;
        }
        return count;
    }
    [[nodiscard]] QColor Palette(QPalette::ColorRole role) const {
        const auto group = View()->hasFocus() ? QPalette::Active : QPalette::Inactive;
        return View()->palette().color(group, role);
    }
};

TEST_F(QtReportViewTest, AsksOnlyForShownCellsAndEachOnce) {
    Populate(1000);
    report.SetTopRow(500);
    report.asked.clear();
    Paint();
    EXPECT_EQ(report.MostAsked(), 1);
    const int height = View()->viewport()->height();
    const int shownRows = (height + report.GetRowHeight() - 1) / report.GetRowHeight();
    EXPECT_EQ(report.asked.size(), static_cast<std::size_t>(shownRows) * 3);
    EXPECT_EQ(report.asked.begin()->first.first, 500);
    EXPECT_EQ(report.asked.rbegin()->first.first, 500 + shownRows - 1);
}

TEST_F(QtReportViewTest, HiddenColumnsAndThoseOutOfSightCostNoQuestion) {
    for (int item = 3; item < 10; ++item)
        report.AddNamedColumn("More", 80);
    report.GetColumns().GetAt(1)->SetVisible(false);
    Populate(3);
    Paint();
    EXPECT_EQ(report.asked.count({0, 1}), 0U);
    EXPECT_EQ(report.asked.count({0, 9}), 0U);
    EXPECT_EQ(report.asked.count({0, 3}), 1U);
    report.SetScrollX(100000);
    report.asked.clear();
    Paint();
    EXPECT_EQ(report.asked.count({0, 9}), 1U);
    EXPECT_EQ(report.asked.count({0, 0}), 1U) << "frozen";
    EXPECT_EQ(report.asked.count({0, 2}), 0U) << "behind the frozen one";
}

TEST_F(QtReportViewTest, AMillionRowsAreOpenWithoutAQuestion) {
    report.onAsked = [](int, int) { ADD_FAILURE() << "nothing was painted yet"; };
    report.SetRows(1000000);
    report.onAsked = nullptr;
    EXPECT_EQ(View()->verticalScrollBar()->maximum(), 1000000 - report.GetCountPerPage());
    Paint();
    const std::size_t once = report.asked.size();
    report.asked.clear();
    report.SetTopRow(999999);
    Paint();
    EXPECT_LE(report.asked.size(), once) << "the end costs no more than the beginning";
    EXPECT_EQ(report.asked.rbegin()->first.first, 999999);
}

TEST_F(QtReportViewTest, FrozenColumnsStayAndCoverTheOthers) {
    for (int item = 3; item < 10; ++item)
        report.AddNamedColumn("More", 80);
    report.decoration = [](FakeReport::Cell cell, CXTPReportRecordItemMetrics& metrics) {
        metrics.text = CString();
        metrics.background = cell.second == 0 ? 0x0000FF : 0x00FF00;
    };
    report.SetGridStyle(true, 0);
    Populate(3);
    report.SetScrollX(30);
    const QImage picture = Paint();
    EXPECT_EQ(BackOf(picture, 0, 5), QColor(Qt::red));
    EXPECT_EQ(BackOf(picture, 0, 137), QColor(Qt::red));
    EXPECT_EQ(BackOf(picture, 0, 141), QColor(Qt::green));
    EXPECT_EQ(View()->indexAt(At(0, 139)).column(), 0);
    EXPECT_EQ(View()->indexAt(At(0, 141)).column(), 1);
    EXPECT_EQ(View()->indexAt(At(0, 141 + 30)).column(), 2) << "moved to the left by the scrolling";
    EXPECT_EQ(View()->visualRect(View()->model()->index(1, 0)).left(), 0);
}

TEST_F(QtReportViewTest, SelectedRowsShowTheHighlightOverTheWholeWidth) {
    Populate(5);
    report.ClickedByUser(2, {});
    const QImage picture = Paint();
    EXPECT_EQ(BackOf(picture, 2), Palette(QPalette::Highlight));
    EXPECT_EQ(BackOf(picture, 1), Palette(QPalette::Base));
}

TEST_F(QtReportViewTest, ColoursOfTheControlWinOverThePalette) {
    Populate(2);
    CXTPReportPaintManager& looks = report.GetPaintManager();
    looks.SetCustomColor(TReportColor::ControlBack, 0x2D2D2D);
    EXPECT_EQ(BackOf(Paint(), 0), QColor(0x2D, 0x2D, 0x2D));
    looks.SetCustomColor(TReportColor::FilteredList, 0xD0F0FF);
    EXPECT_EQ(BackOf(Paint(), 0), QColor(0xFF, 0xF0, 0xD0)) << "a filter that hides rows shows first";
    looks.SetCustomColor(TReportColor::FilteredList, cnNoColor);
    looks.SetCustomColor(TReportColor::ControlBack, cnNoColor);
    EXPECT_EQ(BackOf(Paint(), 0), Palette(QPalette::Base));
}

TEST_F(QtReportViewTest, ACellsBackgroundFillsItsCellAlone) {
    Populate(2);
    report.decoration = [](FakeReport::Cell cell, CXTPReportRecordItemMetrics& metrics) {
        if (cell == FakeReport::Cell(1, 1)) metrics.background = 0xE6E6FF;
    };
    const QImage picture = Paint();
    EXPECT_EQ(BackOf(picture, 1, 196), QColor(0xFF, 0xE6, 0xE6));
    EXPECT_EQ(BackOf(picture, 1, 130), Palette(QPalette::Base));
    EXPECT_EQ(BackOf(picture, 0, 196), Palette(QPalette::Base));
}

TEST_F(QtReportViewTest, TheForegroundColourIsThatOfTheText) {
    Populate(1);
    const QRect cell(0, report.GetHeaderHeight(), 140, report.GetRowHeight());
    EXPECT_EQ(CountOf(Paint(), cell, QColor(0xDF, 0, 0)), 0);
    report.decoration = [](FakeReport::Cell, CXTPReportRecordItemMetrics& metrics) {
        metrics.foreground = 0x0000DF;
    };
    EXPECT_GT(CountOf(Paint(), cell, QColor(0xDF, 0, 0)), 3);
}

// Red on the blue of a selection can't be read as it is: what is left of it is a tint.
TEST_F(QtReportViewTest, TheForegroundColourTintsTheTextOfASelectedRow) {
    Populate(1);
    report.ClickedByUser(0, {});
    QPalette colors = View()->palette();
    colors.setColor(QPalette::Highlight, QColor(0, 60, 120));
    colors.setColor(QPalette::HighlightedText, Qt::white);
    View()->setPalette(colors);
    const QRect cell(0, report.GetHeaderHeight(), 140, report.GetRowHeight());
    const QColor tint = vapp_qt::gTintedOn(Palette(QPalette::Highlight), QColor(0xDF, 0, 0),
                                           Palette(QPalette::HighlightedText));
    ASSERT_NE(tint, Palette(QPalette::HighlightedText));
    EXPECT_EQ(CountOf(Paint(), cell, tint), 0);
    report.decoration = [](FakeReport::Cell, CXTPReportRecordItemMetrics& metrics) {
        metrics.foreground = 0x0000DF;
    };
    EXPECT_GT(CountOf(Paint(), cell, tint), 3);
}

TEST_F(QtReportViewTest, AForegroundColourThatIsMadeForAnotherPaperIsPaintedLegibly) {
    Populate(1);
    report.decoration = [](FakeReport::Cell, CXTPReportRecordItemMetrics& metrics) {
        metrics.foreground = 0x0000DF;
        metrics.background = 0x2D2D2D;
    };
    const QRect cell(0, report.GetHeaderHeight(), 140, report.GetRowHeight());
    EXPECT_EQ(CountOf(Paint(), cell, QColor(0xDF, 0, 0)), 0);
    const QColor lighter = vapp_qt::gLegibleOn(QColor(0x2D, 0x2D, 0x2D), QColor(0xDF, 0, 0));
    EXPECT_GT(CountOf(Paint(), cell, lighter), 3);
}

TEST_F(QtReportViewTest, AnIconMovesTheTextToTheRight) {
    Populate(1);
    const QRect icon(4, report.GetHeaderHeight() + 2, 18, report.GetRowHeight() - 4);
    const QColor paper = Palette(QPalette::Base);
    report.decoration = [](FakeReport::Cell, CXTPReportRecordItemMetrics& metrics) {
        metrics.text = CString();
    };
    EXPECT_EQ(CountOf(Paint(), icon, paper), icon.width() * icon.height());
    report.decoration = [](FakeReport::Cell, CXTPReportRecordItemMetrics& metrics) {
        metrics.text = CString();
        metrics.icon = 3;
    };
    EXPECT_LT(CountOf(Paint(), icon, paper), icon.width() * icon.height() * 3 / 4);
}

TEST_F(QtReportViewTest, AnEmptyReportShowsItsTextAndAsksNothing) {
    Populate(0);
    const QRect middle(0, report.GetHeaderHeight() + 60, 300, 60);
    const QColor grey(0xA0, 0xA0, 0xA0);
    EXPECT_EQ(CountOf(Paint(), middle, grey), 0);
    report.GetPaintManager().SetCustomColor(TReportColor::ControlBack, 0x2D2D2D);
    report.GetPaintManager().SetCustomColor(TReportColor::GrayText, 0xA0A0A0);
    report.GetPaintManager().SetNoItemsText("No cells found");
    EXPECT_GT(CountOf(Paint(), middle, grey), 10);
    EXPECT_TRUE(report.asked.empty());
}

TEST_F(QtReportViewTest, TheFocusedRowIsMarkedWhileTheKeyboardIsHere) {
    Populate(5);
    report.SetFocusedRow(CXTPReportRow(1));
    const QRect row(0, report.GetHeaderHeight() + report.GetRowHeight(), 300, report.GetRowHeight());
    const QImage without = Paint().copy(row);
    report.SetFocus();
    ASSERT_TRUE(View()->hasFocus());
    EXPECT_NE(Paint().copy(row), without);
}

TEST_F(QtReportViewTest, BarsTakeTheirRoomFromTheClientArea) {
    Populate(3);
    EXPECT_EQ(report.GetClientRect(), CRect(0, 0, 300, 200)) << "none is needed";
    Populate(100);
    const int bar = View()->verticalScrollBar()->width();
    EXPECT_TRUE(View()->verticalScrollBar()->isVisible());
    EXPECT_EQ(report.GetClientRect(), CRect(0, 0, 300 - bar, 200));
    report.AddNamedColumn("Wide", 400);
    EXPECT_TRUE(View()->horizontalScrollBar()->isVisible());
    EXPECT_EQ(report.GetClientRect().bottom, 200 - View()->horizontalScrollBar()->height());
    EXPECT_EQ(View()->viewport()->width(), report.GetClientRect().right);
    EXPECT_EQ(View()->viewport()->height(), report.GetClientRect().bottom - report.GetHeaderHeight());
    Populate(0);
    report.GetColumns().GetAt(3)->SetVisible(false);
    EXPECT_EQ(report.GetClientRect(), CRect(0, 0, 300, 200));
}

TEST_F(QtReportViewTest, HeightsFollowTheFont) {
    Populate(5);
    const int before = report.GetRowHeight();
    EXPECT_GE(before, 20) << "icons need that much";
    QFont larger = View()->font();
    larger.setPointSize(larger.pointSize() * 3);
    View()->setFont(larger);
    EXPECT_GT(report.GetRowHeight(), before);
    EXPECT_GE(report.GetRowHeight(), QFontMetrics(larger).height());
}

TEST_F(QtReportViewTest, HopelessWidthsAreNoHarm) {
    report.GetColumns().GetAt(0)->SetWidth(0x7FFFFFFF);
    report.GetColumns().GetAt(1)->SetWidth(-5);
    report.GetColumns().GetAt(2)->SetWidth(0x7FFFFFFF);
    Populate(5);
    Paint();
    report.SetScrollX(0x7FFFFFFF);
    Paint();
    report.MoveWindow({0, 0, 0, 0});
    report.MoveWindow({10, 10, 5, 5});
    report.MoveWindow({0, 0, 1, 1});
    Paint();
    EXPECT_GE(report.GetScrollX(), 0);
}
