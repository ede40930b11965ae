/// @file
/// The report's peer: names, the orders in which report, widget and parents end, redraw switched off.
#include "toolkit/qt/QtReportPeer.h"

#include "tests/qt/QtTestReport.h"

class QtReportPeerTest : public ShownReport {};

TEST_F(QtReportPeerTest, NamesAndKeyboardAreThoseOfTheControl) {
    report.SetAccessibleName("Cells");
    EXPECT_EQ(View()->accessibleName(), "Cells");
    EXPECT_EQ(View()->objectName(), "control7");
    report.SetFocus();
    EXPECT_TRUE(View()->hasFocus());
    EXPECT_NE(View()->focusPolicy() & Qt::TabFocus, 0);
}

TEST_F(QtReportPeerTest, AReportBuiltBeforeItsWindowIsShownWhole) {
    FakeReport early;
    early.AddNamedColumn("Cell", 90);
    early.SetRows(7);
    early.ClickedByUser(3, {});
    early.Create(&shown.form, 9, {0, 0, 200, 100});
    QApplication::processEvents();
    auto* view = gWidgetAs<vapp_qt::QtReportView>(early);
    EXPECT_EQ(view->model()->rowCount(), 7);
    EXPECT_EQ(view->model()->columnCount(), 1);
    EXPECT_TRUE(view->selectionModel()->isRowSelected(3));
}

TEST_F(QtReportPeerTest, WithoutRedrawNothingIsTold) {
    Populate(5);
    report.SetRedraw(false);
    report.SetRows(9);
    EXPECT_EQ(View()->model()->rowCount(), 5);
    report.SetRedraw(true);
    EXPECT_EQ(View()->model()->rowCount(), 9);
}

TEST_F(QtReportPeerTest, TheReportOutlivesItsWidget) {
    Populate(50);
    report.ClickedByUser(3, {});
    delete gWidgetOf(report);
    report.SetRows(70);
    report.ClickedByUser(60, {.shift = true, .control = false});
    report.SetTopRow(30);
    report.GetColumns().GetAt(0)->SetWidth(99);
    report.Invalidate();
    report.UpdateWindow();
    EXPECT_EQ(report.GetSelectedRows().GetCount(), 58);
}

TEST_F(QtReportPeerTest, TheWidgetGoesWithItsReport) {
    auto other = std::make_unique<FakeReport>();
    other->Create(&shown.form, 8, {0, 0, 50, 50});
    other->SetRows(500);
    const QPointer<QWidget> widget = gWidgetOf(*other);
    other.reset();
    EXPECT_TRUE(widget.isNull());
    // What was put off for it finds nobody.
    QApplication::processEvents();
}

TEST_F(QtReportPeerTest, TheFrameEndsFirst) {
    Populate(50);
    shown.frame.DestroyWindow();
    EXPECT_FALSE(report.IsWindow());
    report.SetRows(3);
    QApplication::processEvents();
    EXPECT_EQ(report.GetRows().GetCount(), 3);
}

TEST_F(QtReportPeerTest, AWindowCanBeMadeAgain) {
    Populate(50);
    report.DestroyWindow();
    report.Create(&shown.form, 7, {0, 0, 200, 150});
    EXPECT_EQ(View()->model()->rowCount(), 50);
    Paint();
    EXPECT_EQ(report.MostAsked(), 1);
}
