#include "vapp/celllist/TCellNamesReportCtrl.h"

#include "tests/celllist/CellListFixture.h"
#include "tests/toolkit/RecordingPeers.h"

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

// Notes how many columns are frozen at the moment that it hears of a change of the columns.
class FreezeReadingPeer : public Peer {
public:
    FreezeReadingPeer(const CXTPReportControl& report, std::vector<int>& counts)
        : m_report(report), m_counts(counts) {}
    void Changed(UINT changes) override {
        if ((changes & cnChangeColumns) != 0) m_counts.push_back(m_report.GetFreezeColumnsCount());
    }
    void Invalidate(bool /*erase*/) override {}
    void UpdateNow() override {}
    [[nodiscard]] void* NativeHandle() const override { return &m_counts; }

private:
    const CXTPReportControl& m_report;
    std::vector<int>& m_counts;
};

class FreezeReadingPeers : public RecordingPeers {
public:
    std::unique_ptr<Peer> CreateReport(CXTPReportControl& report) override {
        return std::make_unique<FreezeReadingPeer>(report, m_counts);
    }
    std::vector<int> m_counts;
};

class TReportHeaderTest : public CellListFixture {
protected:
    FreezeReadingPeers m_peers;
};

TEST_F(TReportHeaderTest, TellsTheReportBeforeItTellsThePeer) {
    {
        TCellListView pane;
        pane.Create(&m_frame, 0);
        pane.OnInitialUpdate();
        TReport& report = pane.GetReport();
        ASSERT_EQ(report.GetFreezeColumnsCount(), 1);
        m_peers.m_counts.clear();
        report.GetColumns().ChangeColumnOrder(0, report.GetColumns().GetAt(2));
    }
    ASSERT_FALSE(m_peers.m_counts.empty());
    for (const int count : m_peers.m_counts)
        EXPECT_EQ(count, 2);
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

TEST_F(TCellNamesReportCtrlTest, ComparesItsCellsWithWhatIsTypedAsTheirTextsWould) {
    for (const char* typed : {"b", "B", "bb", "a", "\xC3\xA9", "\xC3\x89", " "}) {
        const CStringU text(typed, TextEncoding::Utf8Auto);
        for (int row = -1; row < 6; ++row) {
            const bool isMatch = row >= 0 && row < static_cast<int>(Report().GetCellViewCount()) &&
                                 Report().GetTypeAheadText(row).StartsWithNoCase(text);
            EXPECT_EQ(Report().IsTypeAheadMatch(row, text), isMatch) << typed << " in row " << row;
        }
    }
}

}  // namespace
