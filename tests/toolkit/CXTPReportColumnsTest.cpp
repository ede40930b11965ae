/// @file
/// The columns of a report, and single columns.
#include "vapp/toolkit/CXTPReportColumns.h"

#include "tests/toolkit/TestReport.h"

using CXTPReportColumnsTest = TestReport;

TEST_F(CXTPReportColumnsTest, ColumnsAreFoundByPositionIdentityAndVisiblePlace) {
    CXTPReportColumns& columns = report.GetColumns();
    EXPECT_EQ(columns.GetCount(), 3);
    EXPECT_EQ(columns.GetAt(1), view);
    EXPECT_EQ(columns.GetAt(3), nullptr);
    EXPECT_EQ(columns.IndexOf(library), 2);
    EXPECT_EQ(columns.IndexOf(nullptr), -1);
    EXPECT_EQ(columns.Find(2), library);
    EXPECT_EQ(columns.Find(7), nullptr);
    view->SetVisible(false);
    EXPECT_EQ(columns.GetVisibleColumnsCount(), 2);
    EXPECT_EQ(columns.GetVisibleIndex(library), 1);
    EXPECT_EQ(columns.GetVisibleIndex(view), -1);
    EXPECT_EQ(columns.GetVisibleIndex(nullptr), -1);
    EXPECT_EQ(columns.GetVisibleAt(1), library);
    EXPECT_EQ(columns.GetVisibleAt(2), nullptr);
    EXPECT_EQ(columns.GetVisibleAt(-1), nullptr);
    EXPECT_EQ(cell->GetControl(), &report);
    EXPECT_EQ(columns.Add(nullptr), nullptr);
}

TEST_F(CXTPReportColumnsTest, MovedColumnPushesTheOthersAside) {
    CXTPReportColumns& columns = report.GetColumns();
    EXPECT_EQ(columns.ChangeColumnOrder(0, library), 0);
    EXPECT_EQ(columns.GetAt(0), library);
    EXPECT_EQ(columns.GetAt(1), cell);
    EXPECT_EQ(columns.ChangeColumnOrder(99, library), 2);
    EXPECT_EQ(columns.GetAt(0), cell);
    EXPECT_EQ(columns.ChangeColumnOrder(-3, view), 0);
    EXPECT_EQ(columns.ChangeColumnOrder(1, nullptr), -1);
    EXPECT_EQ(Told().Count(cnChangeColumns), 3);
    EXPECT_EQ(columns.ChangeColumnOrder(0, view), 0);
    EXPECT_EQ(Told().Count(cnChangeColumns), 3) << "it stands there already";
}

TEST_F(CXTPReportColumnsTest, WidthIsKeptAsItStandsButShownWithinReach) {
    cell->SetWidth(-40);
    EXPECT_EQ(cell->GetWidth(), -40);
    EXPECT_EQ(cell->GetShownWidth(), CXTPReportColumn::cnMinShownWidth);
    cell->SetWidth(50);
    cell->SetWidth(50);
    EXPECT_EQ(cell->GetShownWidth(), 50);
    EXPECT_EQ(Told().Count(cnChangeColumns), 2);
}

TEST_F(CXTPReportColumnsTest, ColumnOutsideAReportJustKeepsItsState) {
    CXTPReportColumn column(4, "Caption", "name", 30, false, 6, false, false);
    column.SetVisible(true);
    column.SetWidth(31);
    EXPECT_TRUE(column.IsVisible());
    EXPECT_EQ(column.GetWidth(), 31);
    EXPECT_EQ(column.GetItemIndex(), 4);
    EXPECT_EQ(column.GetCaption(), "Caption");
    EXPECT_EQ(column.GetInternalName(), "name");
    EXPECT_EQ(column.GetIconID(), 6);
    EXPECT_FALSE(column.IsSortable());
    EXPECT_FALSE(column.IsAutoSize());
    EXPECT_TRUE(column.IsSortedIncreasing());
    EXPECT_EQ(column.GetControl(), nullptr);
}

TEST_F(CXTPReportColumnsTest, SortColumnReplacesTheOrderAndTellsOnceAndNotTheParent) {
    CXTPReportColumns& columns = report.GetColumns();
    columns.SetSortColumn(cell, true);
    columns.GetSortOrder().Add(view, true);
    peers.ForgetAll();
    columns.SetSortColumn(library, false);
    EXPECT_EQ(columns.GetSortOrder().GetCount(), 1);
    EXPECT_EQ(columns.GetSortOrder().GetAt(0), library);
    EXPECT_EQ(Told().changes, std::vector<UINT>{cnChangeSort});
    columns.SetSortColumn(nullptr, true);
    EXPECT_EQ(columns.GetSortOrder().GetCount(), 0);
    EXPECT_TRUE(parent.heard.empty());
}
