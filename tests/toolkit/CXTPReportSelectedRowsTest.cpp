/// @file
/// The selection of a report as its logic changes it.
#include "vapp/toolkit/CXTPReportSelectedRows.h"

#include "tests/toolkit/TestReport.h"

using CXTPReportSelectedRowsTest = TestReport;

TEST_F(CXTPReportSelectedRowsTest, WalkGivesTheRowsInOrder) {
    CXTPReportSelectedRows& rows = report.GetSelectedRows();
    EXPECT_EQ(rows.GetFirstSelectedRowPosition(), -1);
    rows.AddBlock(7, 8);
    rows.AddBlock(3, 3);
    std::vector<int> walked;
    CXTPReportSelectedRowPosition position = rows.GetFirstSelectedRowPosition();
    while (position >= 0)
        walked.push_back(rows.GetNextSelectedRow(position)->GetIndex());
    EXPECT_EQ(walked, (std::vector<int>{3, 7, 8}));
    EXPECT_EQ(rows.GetNextSelectedRow(position), std::nullopt);
    position = 50;
    EXPECT_EQ(rows.GetNextSelectedRow(position), std::nullopt) << "nothing is selected from there on";
    EXPECT_EQ(position, -1);
}

TEST_F(CXTPReportSelectedRowsTest, ChangesAreToldAndOthersAreNot) {
    CXTPReportSelectedRows& rows = report.GetSelectedRows();
    rows.Clear();
    EXPECT_TRUE(parent.heard.empty());
    rows.AddBlock(0, 9);
    rows.AddBlock(2, 3);
    EXPECT_EQ(parent.Count(cnReportSelectionChanged), 1);
    rows.Select(CXTPReportRow(5));
    rows.Select(CXTPReportRow(5));
    EXPECT_EQ(parent.Count(cnReportSelectionChanged), 2);
    EXPECT_EQ(rows.GetCount(), 1);
    EXPECT_TRUE(rows.Contains(CXTPReportRow(5)));
    EXPECT_EQ(report.GetCursor().GetAnchor(), 5);
    rows.Clear();
    EXPECT_EQ(parent.Count(cnReportSelectionChanged), 3);
    EXPECT_EQ(Told().changes, std::vector<UINT>(3, cnChangeSelection));
}

TEST_F(CXTPReportSelectedRowsTest, BlocksAreCutToTheRows) {
    CXTPReportSelectedRows& rows = report.GetSelectedRows();
    rows.AddBlock(-5, 1);
    rows.AddBlock(98, 2147483647);
    rows.AddBlock(100, 200);
    rows.AddBlock(5, 4);
    EXPECT_EQ(rows.GetSelection().GetRanges(), (std::vector<RowSelection::Range>{{0, 1}, {98, 99}}));
    rows.Select(CXTPReportRow(100));
    rows.Select(CXTPReportRow(-1));
    EXPECT_EQ(rows.GetCount(), 4);
}
