/// @file
/// The sort order of a report.
#include "vapp/toolkit/CXTPReportColumnOrder.h"

#include "tests/toolkit/TestReport.h"

using CXTPReportColumnOrderTest = TestReport;

TEST_F(CXTPReportColumnOrderTest, ColumnsStandInTheOrderOfTheirAddition) {
    CXTPReportColumnOrder& order = report.GetColumns().GetSortOrder();
    order.Add(view, true);
    order.Add(cell, false);
    EXPECT_EQ(order.GetCount(), 2);
    EXPECT_EQ(order.GetAt(0), view);
    EXPECT_EQ(order.IndexOf(cell), 1);
    EXPECT_FALSE(cell->IsSortedIncreasing());
    EXPECT_EQ(order.GetAt(2), nullptr);
    EXPECT_EQ(order.GetAt(-1), nullptr);
    EXPECT_EQ(Told().All(), cnChangeSort);
}

TEST_F(CXTPReportColumnOrderTest, ColumnThatIsThereOnlyChangesItsDirection) {
    CXTPReportColumnOrder& order = report.GetColumns().GetSortOrder();
    order.Add(view, true);
    order.Add(cell, true);
    order.Add(view, false);
    EXPECT_EQ(order.GetCount(), 2);
    EXPECT_EQ(order.IndexOf(view), 0);
    EXPECT_FALSE(view->IsSortedIncreasing());
}

TEST_F(CXTPReportColumnOrderTest, ForeignColumnAndNullAreLeftAlone) {
    CXTPReportColumnOrder& order = report.GetColumns().GetSortOrder();
    CXTPReportColumn foreign(9, "x", "x", 10);
    order.Add(&foreign, false);
    order.Add(nullptr, false);
    EXPECT_EQ(order.GetCount(), 0);
    EXPECT_TRUE(foreign.IsSortedIncreasing());
    EXPECT_TRUE(Told().changes.empty());
}

TEST_F(CXTPReportColumnOrderTest, DirectionOutlivesTheOrder) {
    CXTPReportColumnOrder& order = report.GetColumns().GetSortOrder();
    order.Add(view, false);
    order.Clear();
    EXPECT_EQ(order.GetCount(), 0);
    EXPECT_FALSE(view->IsSortedIncreasing());
    peers.ForgetAll();
    order.Clear();
    EXPECT_TRUE(Told().changes.empty());
}
