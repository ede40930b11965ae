#include "vapp/celllist/TCellNamesReportCtrl.h"

#include "tests/celllist/CellListFixture.h"

namespace {

using namespace vapp_library_browser;

class TCellNamesReportCtrlTest : public CellListFixture {
protected:
    void SetUp() override { ShowCells({{"l1", "a", "v"}, {"l1", "b", "v"}}); }
};

TEST_F(TCellNamesReportCtrlTest, IsSetUpForItsPane) {
    EXPECT_FALSE(Report().GetReportHeader().GetAutoColumnSizing());
    EXPECT_EQ(Report().GetImageListResource(), 104u);
    EXPECT_EQ(Report().GetImageWidth(), 22);
    EXPECT_EQ(Report().GetImageMaskColor(), 0xFFFF00u);
    EXPECT_FALSE(Report().IsFullColumnScrolling());
    EXPECT_EQ(Report().GetFreezeColumnsCount(), 1);
    EXPECT_EQ(Report().GetGridStyle(false), 0);
    EXPECT_EQ(Report().GetGridStyle(true), 1);
    EXPECT_NE(dynamic_cast<TReport::TColCellName*>(Report().GetColumns().GetAt(0)), nullptr);
    EXPECT_NE(dynamic_cast<TReport::TReportHeader*>(&Report().GetReportHeader()), nullptr);
}

TEST_F(TCellNamesReportCtrlTest, GivesEmptyCellsBeyondItsRows) {
    EXPECT_EQ(Report().GetCell(1).cell, "b");
    EXPECT_TRUE(Report().GetCell(2).cell.IsEmpty());
    EXPECT_TRUE(Report().GetCell(-1).cell.IsEmpty());
    EXPECT_TRUE(Report().GetCell(static_cast<const CXTPReportRow*>(nullptr)).cell.IsEmpty());
    const CXTPReportRow beyond(7);
    EXPECT_TRUE(Report().GetCell(&beyond).cell.IsEmpty());
}

TEST_F(TCellNamesReportCtrlTest, HitsRowsAndHeaders) {
    const int top = Report().GetHeaderHeight();
    CRect area;
    EXPECT_EQ(Report().HitTest({10, top + Report().GetRowHeight() + 1}, &area).cell, "b");
    EXPECT_EQ(area.top, top + Report().GetRowHeight());
    EXPECT_TRUE(Report().HitTest({10, top + 5 * Report().GetRowHeight()}).cell.IsEmpty());
    EXPECT_EQ(Report().HeaderHitTest({60, 2}), &Column("View"));
    EXPECT_EQ(Report().HeaderHitTest({10, top + 1}), nullptr);
}

TEST_F(TCellNamesReportCtrlTest, KeepsTheColumnOfCellsInPlace) {
    Report().GetColumns().ChangeColumnOrder(0, &Column("View"));
    EXPECT_EQ(Report().GetFreezeColumnsCount(), 2);
    Column("View").SetVisible(false);
    EXPECT_EQ(Report().GetFreezeColumnsCount(), 1);
    const unsigned invalidated = Report().GetInvalidateCount();
    Column("Library").SetWidth(80);
    EXPECT_EQ(Report().GetInvalidateCount(), invalidated);
    Column("Cell").SetVisible(false);
    EXPECT_EQ(Report().GetFreezeColumnsCount(), 0);
    EXPECT_GT(Report().GetInvalidateCount(), invalidated);
}

TEST_F(TCellNamesReportCtrlTest, ReadsTheViewsToLeaveOutFromItsSetting) {
    EXPECT_EQ(
        Cells().GetExcludeViews(),
        "ads; ARVance_MS; ams; auCdl; auLvs; orvo; orvoD; hspiceD; hspiceS; ivpcell; spectre; symbol_xform");
    m_app.WriteProfileString("LibraryNavigator", "ExcludeViewNames", "one; two");
    const TCellListView pane;
    EXPECT_EQ(pane.GetExcludeViews(), "one; two");
}

TEST_F(TCellNamesReportCtrlTest, OffersCellsForTypeAhead) {
    EXPECT_EQ(Report().GetTypeAheadText(1), "b");
    EXPECT_TRUE(Report().GetTypeAheadText(5).IsEmpty());
}

}  // namespace
