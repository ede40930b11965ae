/// @file
/// The header: hit tests, sorting by clicks, and the one way of all changes of columns.
#include "vapp/toolkit/CXTPReportHeader.h"

#include "tests/toolkit/TestReport.h"

namespace {

class LoggingHeader : public CXTPReportHeader {
public:
    LoggingHeader(CXTPReportControl& control, std::vector<std::pair<int, CXTPReportColumn*>>& log)
        : CXTPReportHeader(control), m_log(log) {}
    void OnColumnsChanged(int change, CXTPReportColumn* column) override {
        m_log.emplace_back(change, column);
        CXTPReportHeader::OnColumnsChanged(change, column);
    }

private:
    std::vector<std::pair<int, CXTPReportColumn*>>& m_log;
};

}  // namespace

using CXTPReportHeaderTest = TestReport;

TEST_F(CXTPReportHeaderTest, HitTestFindsVisibleColumnsInTheHeaderOnly) {
    const CXTPReportHeader& header = report.GetReportHeader();
    EXPECT_EQ(header.HitTest({0, 0}), cell);
    EXPECT_EQ(header.HitTest({99, 23}), cell);
    EXPECT_EQ(header.HitTest({100, 5}), view);
    EXPECT_EQ(header.HitTest({199, 5}), library);
    EXPECT_EQ(header.HitTest({100, 24}), nullptr);
    EXPECT_EQ(header.HitTest({-1, 5}), nullptr);
    EXPECT_EQ(header.HitTest({200, 5}), nullptr) << "outside of the client area";
    view->SetVisible(false);
    EXPECT_EQ(header.HitTest({100, 5}), library);
    EXPECT_EQ(header.HitTest({160, 5}), nullptr) << "behind the last column";
}

TEST_F(CXTPReportHeaderTest, HitTestFollowsTheSidewaysScroll) {
    const CXTPReportHeader& header = report.GetReportHeader();
    report.SetScrollX(30);
    EXPECT_EQ(header.HitTest({69, 5}), cell);
    EXPECT_EQ(header.HitTest({70, 5}), view);
    EXPECT_EQ(header.HitTest({150, 5}), library);
}

TEST_F(CXTPReportHeaderTest, FrozenColumnsDoNotScroll) {
    const CXTPReportHeader& header = report.GetReportHeader();
    report.SetFreezeColumnsCount(1);
    report.SetScrollX(30);
    EXPECT_EQ(header.HitTest({99, 5}), cell);
    EXPECT_EQ(header.HitTest({100, 5}), view);
    EXPECT_EQ(header.HitTest({149, 5}), view) << "30 of its 80 pixels are behind the frozen column";
    EXPECT_EQ(header.HitTest({150, 5}), library);
    cell->SetVisible(false);
    report.MoveWindow({0, 0, 100, 224});
    report.SetScrollX(30);
    EXPECT_EQ(header.HitTest({79, 5}), view) << "the count is of visible columns";
    EXPECT_EQ(header.HitTest({80, 5}), library);
}

TEST_F(CXTPReportHeaderTest, HugeWidthsDoNotOverflow) {
    cell->SetWidth(2147483647);
    view->SetWidth(2147483647);
    report.SetScrollX(2147483647);
    EXPECT_EQ(report.GetScrollX(), 2147483647);
    EXPECT_EQ(report.GetReportHeader().HitTest({5, 5}), view);
}

TEST_F(CXTPReportHeaderTest, ClickSortsAndFurtherClicksTurnAround) {
    CXTPReportHeader& header = report.GetReportHeader();
    const CXTPReportColumnOrder& order = report.GetColumns().GetSortOrder();
    header.ClickedByUser(view, false);
    EXPECT_EQ(order.GetAt(0), view);
    EXPECT_TRUE(view->IsSortedIncreasing());
    header.ClickedByUser(view, false);
    EXPECT_FALSE(view->IsSortedIncreasing());
    header.ClickedByUser(cell, false);
    EXPECT_EQ(order.GetCount(), 1);
    EXPECT_EQ(order.GetAt(0), cell);
    header.ClickedByUser(view, false);
    EXPECT_TRUE(view->IsSortedIncreasing()) << "increasing again, after another column";
    EXPECT_EQ(parent.Count(cnReportSortOrderChanged), 4);
    EXPECT_EQ(Told().changes, std::vector<UINT>(4, cnChangeSort));
}

TEST_F(CXTPReportHeaderTest, ControlClickAddsBehindAndTurnsInPlace) {
    CXTPReportHeader& header = report.GetReportHeader();
    const CXTPReportColumnOrder& order = report.GetColumns().GetSortOrder();
    header.ClickedByUser(view, false);
    header.ClickedByUser(cell, true);
    header.ClickedByUser(view, true);
    EXPECT_EQ(order.GetCount(), 2);
    EXPECT_EQ(order.GetAt(0), view);
    EXPECT_FALSE(view->IsSortedIncreasing());
    EXPECT_TRUE(cell->IsSortedIncreasing());
}

TEST_F(CXTPReportHeaderTest, ColumnThatIsNotSortableOrNotHereDoesNothing) {
    CXTPReportHeader& header = report.GetReportHeader();
    CXTPReportColumn foreign(9, "x", "x", 10);
    header.ClickedByUser(AddColumn(3, "fixed", 10, false), false);
    header.ClickedByUser(&foreign, false);
    header.ClickedByUser(nullptr, false);
    header.ResizedByUser(&foreign, 77);
    header.ResizedByUser(nullptr, 77);
    header.MovedByUser(&foreign, 0);
    EXPECT_EQ(foreign.GetWidth(), 10);
    EXPECT_EQ(report.GetColumns().GetSortOrder().GetCount(), 0);
    EXPECT_TRUE(parent.heard.empty());
}

TEST_F(CXTPReportHeaderTest, AllChangesOfColumnsGoThroughTheHeader) {
    std::vector<std::pair<int, CXTPReportColumn*>> log;
    report.SetReportHeader(std::make_unique<LoggingHeader>(report, log));
    report.SetReportHeader(nullptr);
    peers.ForgetAll();
    CXTPReportHeader& header = report.GetReportHeader();
    CXTPReportColumn* added = AddColumn(3, "more", 10);
    header.MovedByUser(added, 0);
    header.ResizedByUser(added, 44);
    added->SetVisible(false);
    added->SetWidth(45);
    using enum TColumnsChange;
    const std::vector<std::pair<int, CXTPReportColumn*>> expected{
        {static_cast<int>(Added), added}, {static_cast<int>(Order), added},
        {static_cast<int>(Width), added}, {static_cast<int>(Visibility), added},
        {static_cast<int>(Width), added},
    };
    EXPECT_EQ(log, expected);
    EXPECT_EQ(Told().changes, std::vector<UINT>(5, cnChangeColumns));
}
