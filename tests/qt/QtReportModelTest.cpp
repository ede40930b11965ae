/// @file
/// The report's model keeps Qt's rules for models, and keeps no cell.
#include "toolkit/qt/QtReportModel.h"

#include <QAbstractItemModelTester>
#include <QFont>
#include <QSignalSpy>

#include "tests/qt/QtTestReport.h"
#include "vapp/toolkit/XTPPaintManager.h"

using vapp_qt::QtReportModel;

class QtReportModelTest : public ShownReport {
protected:
    [[nodiscard]] QVariant Data(int row, int column, int role = Qt::DisplayRole) const {
        return View()->model()->data(View()->model()->index(row, column), role);
    }
};

TEST_F(QtReportModelTest, KeepsTheRulesOfModels) {
    const QAbstractItemModelTester tester(View()->model(),
                                          QAbstractItemModelTester::FailureReportingMode::Fatal);
    Populate(50);
    EXPECT_EQ(View()->model()->rowCount(), 50);
    report.GetColumns().GetAt(1)->SetVisible(false);
    report.GetColumns().ChangeColumnOrder(2, report.GetColumns().GetAt(0));
    report.GetColumns().GetAt(0)->SetWidth(33);
    Populate(3);
    Populate(0);
    Populate(1000000);
    EXPECT_EQ(View()->model()->rowCount(), 1000000);
    EXPECT_EQ(View()->model()->columnCount(), 2);
}

TEST_F(QtReportModelTest, EachQuestionGoesToTheReport) {
    Populate(10);
    EXPECT_EQ(Data(3, 0).toString(), "cell00003");
    EXPECT_EQ(Data(3, 0).toString(), "cell00003");
    EXPECT_EQ((report.asked[{3, 0}]), 2);
    EXPECT_EQ(Data(3, 2).toString(), "item 2");
    EXPECT_FALSE(Data(3, 0, Qt::EditRole).isValid());
    EXPECT_FALSE(Data(3, 0, Qt::SizeHintRole).isValid());
    EXPECT_EQ((report.asked[{3, 0}]), 2) << "roles without an answer cost no question";
}

TEST_F(QtReportModelTest, LooksAreThoseOfTheMoment) {
    Populate(10);
    EXPECT_FALSE(Data(0, 0, Qt::ForegroundRole).isValid());
    EXPECT_FALSE(Data(0, 0, Qt::BackgroundRole).isValid());
    EXPECT_FALSE(Data(0, 0, Qt::FontRole).isValid());
    report.decoration = [](FakeReport::Cell, CXTPReportRecordItemMetrics& metrics) {
        metrics.foreground = 0x0000DF;
        metrics.background = 0xE6E6FF;
        metrics.icon = 7;
        metrics.font = &XTPPaintManager::GetRegularBoldFont();
    };
    EXPECT_EQ(Data(0, 0, Qt::ForegroundRole).value<QBrush>().color(), QColor(0xDF, 0, 0)) << "red is low";
    EXPECT_EQ(Data(0, 0, Qt::BackgroundRole).value<QBrush>().color(), QColor(0xFF, 0xE6, 0xE6));
    EXPECT_TRUE(Data(0, 0, Qt::FontRole).value<QFont>().bold());
    EXPECT_EQ(Data(0, 0, Qt::AccessibleTextRole).toString(), "cell00000, V-Cell, locked");
}

TEST_F(QtReportModelTest, ColumnsAreTheVisibleOnesInTheirOrder) {
    Populate(2);
    const QAbstractItemModel& model = *View()->model();
    const auto caption = [&model](int column) {
        return model.headerData(column, Qt::Horizontal, Qt::DisplayRole).toString();
    };
    report.GetColumns().GetAt(1)->SetVisible(false);
    report.GetColumns().ChangeColumnOrder(0, report.GetColumns().GetAt(2));
    ASSERT_EQ(model.columnCount(), 2);
    EXPECT_EQ(caption(0), "Library");
    EXPECT_EQ(caption(1), "Cell");
    EXPECT_EQ(caption(2), "");
    EXPECT_EQ(Data(1, 1).toString(), "cell00001");
    EXPECT_EQ(model.headerData(1, Qt::Vertical, Qt::DisplayRole).toInt(), 2);
}

TEST_F(QtReportModelTest, AnotherOrderOrWidthIsNoReset) {
    Populate(5);
    const QSignalSpy resets(View()->model(), &QAbstractItemModel::modelReset);
    report.GetColumns().ChangeColumnOrder(0, report.GetColumns().GetAt(2));
    report.GetColumns().GetAt(0)->SetWidth(99);
    EXPECT_EQ(resets.count(), 0);
    report.GetColumns().GetAt(0)->SetVisible(false);
    EXPECT_EQ(resets.count(), 1);
}

TEST_F(QtReportModelTest, RowsThatWentBetweenTwoPopulationsAnswerNothing) {
    Populate(10);
    report.SetVirtualMode(std::make_unique<CXTPReportRecord>(), 2);
    EXPECT_EQ(View()->model()->rowCount(), 10) << "until Populate tells";
    EXPECT_FALSE(Data(7, 0).isValid());
    report.Populate();
    EXPECT_EQ(View()->model()->rowCount(), 2);
}

TEST(QtReportModel, IsEmptyWithoutItsReport) {
    CXTPReportControl report;
    report.AddColumn(std::make_unique<CXTPReportColumn>(0, "Cell", "Cell", 50));
    report.SetVirtualMode(std::make_unique<CXTPReportRecord>(), 4);
    QtReportModel model(report);
    const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::Fatal);
    EXPECT_EQ(model.rowCount(), 4);
    model.Detach();
    EXPECT_EQ(model.rowCount(), 0);
    EXPECT_EQ(model.columnCount(), 0);
    EXPECT_EQ(model.ColumnAt(0), nullptr);
}
