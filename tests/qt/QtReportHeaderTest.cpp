/// @file
/// What the user does to the header: the control hears of it, and decides.
#include "toolkit/qt/QtReportHeader.h"

#include <QTest>

#include "tests/qt/QtTestReport.h"

class QtReportHeaderTest : public ShownReport {
protected:
    QtReportHeaderTest() { Populate(5); }
    [[nodiscard]] QWidget& Header() const { return *View()->Header(); }
    [[nodiscard]] CXTPReportColumn& Column(int position) { return *report.GetColumns().GetAt(position); }
    [[nodiscard]] static QPoint X(int x) { return {x, 10}; }
    [[nodiscard]] std::string Captions() {
        std::string captions;
        for (int position = 0; position < report.GetColumns().GetCount(); ++position)
            captions += std::string(Column(position).GetCaption()) + " ";
        return captions;
    }
};

TEST_F(QtReportHeaderTest, StandsAboveTheRowsAsWideAsThey) {
    EXPECT_EQ(Header().height(), report.GetHeaderHeight());
    EXPECT_EQ(Header().width(), View()->viewport()->width());
    EXPECT_EQ(Header().mapTo(View(), QPoint(0, 0)), QPoint(0, 0));
}

TEST_F(QtReportHeaderTest, ClicksSortAndTurnAround) {
    QTest::mouseClick(&Header(), Qt::LeftButton, {}, X(50));
    EXPECT_EQ(report.GetColumns().GetSortOrder().GetAt(0), &Column(0));
    EXPECT_TRUE(Column(0).IsSortedIncreasing());
    QTest::mouseClick(&Header(), Qt::LeftButton, {}, X(50));
    EXPECT_FALSE(Column(0).IsSortedIncreasing());
    EXPECT_EQ(shown.form.Count(cnReportSortOrderChanged), 2);
}

TEST_F(QtReportHeaderTest, ControlAddsToTheOrder) {
    QTest::mouseClick(&Header(), Qt::LeftButton, {}, X(50));
    QTest::mouseClick(&Header(), Qt::LeftButton, Qt::ControlModifier, X(170));
    EXPECT_EQ(report.GetColumns().GetSortOrder().GetCount(), 2);
    QTest::mouseClick(&Header(), Qt::LeftButton, {}, X(170));
    EXPECT_EQ(report.GetColumns().GetSortOrder().GetCount(), 1);
}

TEST_F(QtReportHeaderTest, ASortedColumnShowsAnArrow) {
    const QImage before = gPictureOf(Header());
    QTest::mouseClick(&Header(), Qt::LeftButton, {}, X(50));
    const QImage up = gPictureOf(Header());
    EXPECT_NE(up, before);
    QTest::mouseClick(&Header(), Qt::LeftButton, {}, X(50));
    EXPECT_NE(gPictureOf(Header()), up);
}

TEST_F(QtReportHeaderTest, FrozenCaptionsCoverThoseThatMovedUnderThem) {
    report.AddNamedColumn("Wide", 300);
    QTest::mouseClick(&Header(), Qt::LeftButton, {}, X(50));
    const QRect frozen(0, 0, 139, Header().height());
    const QImage before = gPictureOf(Header()).copy(frozen);
    for (const int scrollX : {20, 45, 61, 100}) {
        report.SetScrollX(scrollX);
        ASSERT_EQ(report.GetScrollX(), scrollX);
        EXPECT_EQ(gPictureOf(Header()).copy(frozen), before) << scrollX;
    }
}

TEST_F(QtReportHeaderTest, DraggingAnEdgeResizesItsColumn) {
    gDrag(Header(), X(139), X(169));
    EXPECT_EQ(Column(0).GetWidth(), 170);
    EXPECT_EQ(report.GetColumns().GetSortOrder().GetCount(), 0) << "no click";
    gDrag(Header(), X(170 + 60), X(170 + 20));
    EXPECT_EQ(Column(1).GetWidth(), 20);
    gDrag(Header(), X(170 + 20), X(0));
    EXPECT_EQ(Column(1).GetWidth(), CXTPReportColumn::cnMinShownWidth) << "never out of reach";
}

TEST_F(QtReportHeaderTest, DraggingACaptionMovesItsColumn) {
    gDrag(Header(), X(50), X(190));
    EXPECT_EQ(Captions(), "View Cell Library ");
    gDrag(Header(), X(230), X(10));
    EXPECT_EQ(Captions(), "Library View Cell ");
    gDrag(Header(), X(20), X(28));
    EXPECT_EQ(Captions(), "Library View Cell ") << "not far enough for a drag";
}

TEST_F(QtReportHeaderTest, HiddenColumnsKeepTheirPlacesAmongTheOthers) {
    Column(1).SetVisible(false);
    gDrag(Header(), X(50), X(190));
    EXPECT_EQ(Captions(), "View Library Cell ");
}

TEST_F(QtReportHeaderTest, ADoubleClickOnAnEdgeFitsTheShownTexts) {
    Column(0).SetWidth(30);
    QTest::mouseDClick(&Header(), Qt::LeftButton, {}, X(30));
    const int text = View()->fontMetrics().horizontalAdvance("cell00004");
    EXPECT_GE(Column(0).GetWidth(), text);
    EXPECT_LE(Column(0).GetWidth(), text + 60);
    EXPECT_LE(report.asked.size(), 5U) << "no more than the rows of the page";
}

TEST_F(QtReportHeaderTest, ColoursOfTheControlWin) {
    report.GetPaintManager().SetCustomColor(TReportColor::HeaderBack, 0x2D2D2D);
    report.GetPaintManager().SetCustomColor(TReportColor::HeaderText, 0xFFFFFF);
    const QImage picture = gPictureOf(Header());
    EXPECT_LT(picture.pixelColor(100, picture.height() / 2).lightness(), 110);
    EXPECT_LT(picture.pixelColor(295, picture.height() / 2).lightness(), 110) << "behind the last column too";
}

TEST_F(QtReportHeaderTest, ASortThatEndsTheWindowIsNoHarm) {
    shown.form.answer = [this](const Notification& told) {
        if (told.code == cnReportSortOrderChanged) report.DestroyWindow();
    };
    QTest::mouseClick(&Header(), Qt::LeftButton, {}, X(50));
    EXPECT_FALSE(report.IsWindow());
}
