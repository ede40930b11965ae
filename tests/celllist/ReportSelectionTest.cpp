#include <set>

#include "tests/celllist/CellListFixture.h"

namespace {

using namespace vapp_library_browser;
using TLines = std::vector<std::string>;

class ReportSelectionTest : public CellListFixture {
protected:
    void SetUp() override {
        ShowCells(
            {{"l1", "a", "v"}, {"l1", "b", "lay"}, {"l1", "b", "sym"}, {"l2", "b", "sym"}, {"l2", "c", "v"}});
    }
    [[nodiscard]] std::vector<RowSelection::Range> Ranges() {
        return Report().GetSelectedRows().GetSelection().GetRanges();
    }
};

TEST_F(ReportSelectionTest, IsWalkedInRowOrder) {
    EXPECT_TRUE(Cells().GetSelectedCells().empty());
    EXPECT_FALSE(Cells().AreAnyCellsSelected());
    Report().GetSelectedRows().AddBlock(3, 4);
    Report().GetSelectedRows().AddBlock(0, 0);
    EXPECT_TRUE(Cells().AreAnyCellsSelected());
    EXPECT_EQ(SelectedCells(), (TLines{"l1 a v", "l2 b sym", "l2 c v"}));
    EXPECT_EQ(m_browser.GetSelectedCells().size(), 3u);
}

TEST_F(ReportSelectionTest, TakesAllRowsAsOneBlock) {
    Report().OnSelectAll();
    EXPECT_EQ(Ranges(), (std::vector<RowSelection::Range>{{0, 4}}));
    EXPECT_EQ(CWnd::GetFocus(), &Report());
    AnswerCells({});
    Repopulate();
    Report().OnSelectAll();
    EXPECT_FALSE(Cells().AreAnyCellsSelected());
}

TEST_F(ReportSelectionTest, GrowsByASetWithoutBeingClearedFirst) {
    SelectRow(4);
    Report().AddToCellListSelections({{"L1", "A", "V"}, {"l1", "b", "lay"}, {"x", "y", "z"}});
    EXPECT_EQ(Ranges(), (std::vector<RowSelection::Range>{{0, 1}, {4, 4}}));
    EXPECT_EQ(CWnd::GetFocus(), &Report());
}

TEST_F(ReportSelectionTest, IsLeftAloneByAnEmptySet) {
    SelectRow(2);
    Report().AddToCellListSelections({});
    EXPECT_EQ(Ranges(), (std::vector<RowSelection::Range>{{2, 2}}));
}

TEST_F(ReportSelectionTest, FindsTheFirstViewOfACellInDisplayOrder) {
    EXPECT_EQ(Report().Find("L1", "B"), 1u);
    Report().GetColumns().SetSortColumn(&Column("View"), false);
    Report().Populate();
    EXPECT_EQ(Report().GetCell(static_cast<std::uint64_t>(Report().Find("l1", "b"))).view, "sym");
    EXPECT_EQ(Report().Find("l1", "c"), TReport::cnNotFound);
}

TEST_F(ReportSelectionTest, HighlightsACell) {
    Report().OnSelectAll();
    Report().HighlightCellInList("l2", "B");
    EXPECT_EQ(Ranges(), (std::vector<RowSelection::Range>{{3, 3}}));
    EXPECT_EQ(Cells().GetFocusedCell().library, "l2");
    Report().HighlightCellInList("l2", "none");
    EXPECT_EQ(Ranges(), (std::vector<RowSelection::Range>{{3, 3}}));
}

TEST_F(ReportSelectionTest, BringsAHighlightedCellIntoView) {
    TTriples triples;
    for (int cell = 0; cell < 500; ++cell)
        triples.push_back({"l1", "c" + std::to_string(cell), "v"});
    AnswerCells(triples);
    Repopulate();
    Report().HighlightCellInList("l1", "c400");
    const int top = Report().GetTopRowIndex();
    EXPECT_GT(top, 0);
    EXPECT_LE(top, 400);
    EXPECT_GT(top + Report().GetCountPerPage(), 400);
}

TEST_F(ReportSelectionTest, WalksDisturbNeitherEachOtherNorTheSelection) {
    Report().GetSelectedRows().AddBlock(0, 1);
    Report().GetSelectedRows().AddBlock(3, 4);
    const TReport::TSelectedColl selected = Report().GetSelected();
    CXTPReportSelectedRowPosition position = Report().GetSelectedRows().GetFirstSelectedRowPosition();
    std::vector<int> rows;
    auto slow = selected.begin();
    while (const std::optional<CXTPReportRow> row = Report().GetSelectedRows().GetNextSelectedRow(position)) {
        rows.push_back(row->GetIndex());
        ASSERT_NE(slow, selected.end());
        EXPECT_EQ(*slow, Report().GetCell(row->GetIndex())) << "one walk inside of the other";
        TLines inner;
        for (const TLibCellView& cell : selected)
            inner.emplace_back(cell.Join(" ").Payload());
        EXPECT_EQ(inner, (TLines{"l1 a v", "l1 b lay", "l2 b sym", "l2 c v"}));
        EXPECT_EQ(*slow, *slow) << "looking is no step";
        auto before = slow++;
        EXPECT_EQ(*before, Report().GetCell(row->GetIndex()));
    }
    EXPECT_EQ(rows, (std::vector<int>{0, 1, 3, 4}));
    EXPECT_EQ(slow, selected.end());
    EXPECT_EQ(Ranges(), (std::vector<RowSelection::Range>{{0, 1}, {3, 4}}));
}

TEST_F(ReportSelectionTest, HasNothingOfRowsThatAreGone) {
    Report().OnSelectAll();
    m_host.AnswerStart(csCount, "x");
    m_host.AnswerStart(csList, "{");
    Report().Populate();
    EXPECT_GT(Report().GetRows().GetCount(), 0) << "they are blank";
    Report().OnSelectAll();
    EXPECT_GT(Report().GetSelectedRows().GetCount(), 0);
    EXPECT_TRUE(Report().GetSelected().empty());
    EXPECT_TRUE(m_browser.GetSelectedCells().empty());
    EXPECT_FALSE(m_browser.AreAnyCellsSelected()) << "there is nothing to do something with";
    AnswerCells({{"l1", "a", "v"}});
    Report().Populate();
    EXPECT_EQ(Report().GetCellViewCount(), 1u);
}

}  // namespace
