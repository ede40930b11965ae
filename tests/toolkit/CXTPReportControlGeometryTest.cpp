/// @file
/// Scrolling, pages and hit tests of a report.
#include "tests/toolkit/TestReport.h"

using CXTPReportControlGeometryTest = TestReport;

TEST_F(CXTPReportControlGeometryTest, TopRowIsKeptWithinTheLastFullPage) {
    EXPECT_EQ(report.GetCountPerPage(), 10);
    report.SetTopRow(1000);
    EXPECT_EQ(report.GetTopRowIndex(), 90);
    report.SetTopRow(-4);
    EXPECT_EQ(report.GetTopRowIndex(), 0);
    report.SetTopRow(42);
    report.SetTopRow(42);
    EXPECT_EQ(Told().Count(cnChangeScroll), 3);
    report.SetVirtualMode(std::make_unique<CXTPReportRecord>(), 20);
    EXPECT_EQ(report.GetTopRowIndex(), 10);
    report.SetVirtualMode(nullptr, 3);
    EXPECT_EQ(report.GetTopRowIndex(), 0);
}

TEST_F(CXTPReportControlGeometryTest, EnsureVisibleScrollsAsLittleAsItCan) {
    report.EnsureVisible(5);
    EXPECT_EQ(report.GetTopRowIndex(), 0);
    report.EnsureVisible(10);
    EXPECT_EQ(report.GetTopRowIndex(), 1);
    report.EnsureVisible(0);
    EXPECT_EQ(report.GetTopRowIndex(), 0);
    report.EnsureVisible(100);
    report.EnsureVisible(-1);
    EXPECT_EQ(report.GetTopRowIndex(), 0);
}

TEST_F(CXTPReportControlGeometryTest, RowsAreHitBelowTheHeader) {
    report.SetTopRow(30);
    CRect area;
    EXPECT_EQ(report.HitTestRow({10, 23}, &area), std::nullopt);
    EXPECT_EQ(area, CRect());
    EXPECT_EQ(report.HitTestRow({10, 24}, &area), CXTPReportRow(30));
    EXPECT_EQ(area, CRect(0, 24, 200, 44));
    EXPECT_EQ(report.HitTestRow({199, 223}, &area), CXTPReportRow(39));
    EXPECT_EQ(area, CRect(0, 204, 200, 224));
    EXPECT_EQ(report.HitTestRow({10, 224}), std::nullopt);
    EXPECT_EQ(report.HitTestRow({200, 50}), std::nullopt);
    EXPECT_EQ(report.HitTestRow({-1, 50}), std::nullopt);
}

TEST_F(CXTPReportControlGeometryTest, BelowTheLastRowIsNothing) {
    report.SetVirtualMode(std::make_unique<CXTPReportRecord>(), 2);
    EXPECT_EQ(report.HitTestRow({10, 63}), CXTPReportRow(1));
    EXPECT_EQ(report.HitTestRow({10, 64}), std::nullopt);
}

TEST_F(CXTPReportControlGeometryTest, SidewaysScrollEndsWithTheColumns) {
    report.SetScrollX(1000);
    EXPECT_EQ(report.GetScrollX(), 40) << "240 pixels of columns in 200 of window";
    view->SetVisible(false);
    EXPECT_EQ(report.GetScrollX(), 0) << "all columns fit now";
    report.SetScrollX(-5);
    EXPECT_EQ(report.GetScrollX(), 0);
}

TEST_F(CXTPReportControlGeometryTest, LargerWindowScrollsBack) {
    report.SetTopRow(90);
    report.SetScrollX(40);
    peers.ForgetAll();
    report.MoveWindow({0, 0, 220, 424});
    EXPECT_EQ(report.GetTopRowIndex(), 80);
    EXPECT_EQ(report.GetScrollX(), 20);
    EXPECT_EQ(Told().changes, (std::vector<UINT>{cnChangeRect, cnChangeScroll}));
}

TEST_F(CXTPReportControlGeometryTest, MetricsAreNeverZeroRows) {
    report.SetRowMetrics(0, -7);
    EXPECT_EQ(report.GetRowHeight(), 1);
    EXPECT_EQ(report.GetHeaderHeight(), 0);
    report.MoveWindow({});
    EXPECT_EQ(report.GetCountPerPage(), 1);
    EXPECT_EQ(report.HitTestRow({0, 0}), std::nullopt);
}

TEST_F(CXTPReportControlGeometryTest, ScrollingByTheUserIsToldOnce) {
    report.ScrolledByUser(12, 30);
    EXPECT_EQ(report.GetTopRowIndex(), 12);
    EXPECT_EQ(report.GetScrollX(), 30);
    EXPECT_EQ(Told().changes, std::vector<UINT>{cnChangeScroll});
    report.ScrolledByUser(12, 30);
    EXPECT_EQ(Told().changes.size(), 1u);
    EXPECT_TRUE(parent.heard.empty());
}
