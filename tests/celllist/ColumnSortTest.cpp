#include "celllist/ColumnSort.h"

#include <algorithm>
#include <cstdlib>
#include <random>

#include "tests/celllist/CellListFixture.h"

namespace {

using namespace vapp_library_browser;

// A host's column whose order is a function of the test.
class JudgedColumn : public TCellNamesReportCtrl::TColumn {
public:
    explicit JudgedColumn(TCellNamesReportCtrl& report) : TColumn(report, 9, "Judged") {}
    [[nodiscard]] CStringU GetCellText(const TLibCellView& cell) override {
        ++m_asked;
        return cell.cell;
    }
    [[nodiscard]] int CompareCells(const TLibCellView& left, const TLibCellView& right) override {
        return m_judge ? m_judge(left, right) : TColumn::CompareCells(left, right);
    }
    std::function<int(const TLibCellView&, const TLibCellView&)> m_judge;
    int m_asked = 0;
};

class ColumnSortTest : public CellListFixture {
protected:
    void SetUp() override { ShowCells({{"l1", "a", "v"}}); }
    static std::vector<TLibCellView> Sized(const std::vector<const char*>& names) {
        std::vector<TLibCellView> cells;
        for (const char* name : names)
            cells.emplace_back("l", name, "v");
        return cells;
    }
    using TNumbers = std::vector<std::uint32_t>;
};

int ByNumber(const TLibCellView& left, const TLibCellView& right) {
    return std::atoi(left.cell.Payload()) - std::atoi(right.cell.Payload());
}

TEST_F(ColumnSortTest, OrdersByWhatTheColumnSaysInBothDirections) {
    JudgedColumn column(Report());
    column.m_judge = &ByNumber;
    const auto cells = Sized({"3", "-1", "20", "-10"});
    EXPECT_EQ(SortByColumn(column, true, cells), (TNumbers{3, 1, 0, 2}));
    EXPECT_EQ(SortByColumn(column, false, cells), (TNumbers{2, 0, 1, 3}));
    EXPECT_EQ(column.m_asked, 0);
}

TEST_F(ColumnSortTest, KeepsTheOrderOfCellsWithoutADifference) {
    JudgedColumn column(Report());
    column.m_judge = [](const TLibCellView&, const TLibCellView&) { return 0; };
    EXPECT_EQ(SortByColumn(column, false, Sized({"c", "a", "b"})), (TNumbers{0, 1, 2}));
    EXPECT_TRUE(SortByColumn(column, true, {}).empty());
}

TEST_F(ColumnSortTest, AsksForEachTextOnceWhereTheColumnComparesTexts) {
    JudgedColumn column(Report());
    std::vector<TLibCellView> cells;
    for (int at = 0; at < 500; ++at)
        cells.emplace_back("l", ("c" + std::to_string(at * 7 % 500)).c_str(), "v");
    const TNumbers order = SortByColumn(column, true, cells);
    EXPECT_EQ(column.m_asked, 500);
    for (std::size_t at = 0; at < order.size(); ++at)
        EXPECT_EQ(cells[order[at]].cell, ("c" + std::to_string(at)).c_str());
    EXPECT_LT(column.CompareCells(cells[0], cells[1]), 0);
    EXPECT_EQ(column.m_asked, 502) << "behind the sort nothing is remembered";
}

TEST_F(ColumnSortTest, AColumnMayTurnTheOrderOfItsTextsAround) {
    JudgedColumn column(Report());
    column.m_judge = [&column](const TLibCellView& left, const TLibCellView& right) {
        return -column.TColumn::CompareCells(left, right);
    };
    EXPECT_EQ(SortByColumn(column, true, Sized({"a2", "a10", "a1"})), (TNumbers{1, 0, 2}));
    EXPECT_EQ(column.m_asked, 3);
}

TEST_F(ColumnSortTest, EndsWithEachCellOnceWhateverTheColumnSays) {
    JudgedColumn column(Report());
    std::mt19937 random(7);
    column.m_judge = [&random](const TLibCellView&, const TLibCellView&) {
        return static_cast<int>(random() % 3) - 1;
    };
    std::vector<TLibCellView> cells(1000);
    TNumbers order = SortByColumn(column, true, cells);
    std::sort(order.begin(), order.end());
    ASSERT_EQ(order.size(), 1000u);
    for (std::uint32_t at = 0; at < 1000; ++at)
        EXPECT_EQ(order[at], at);
}

}  // namespace
