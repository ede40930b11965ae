/// @file
/// The report: rows without records, selection and focus, gathering of changes, records that are replaced
/// while they are asked.
#include "vapp/toolkit/CXTPReportControl.h"

#include <functional>
#include <string>

#include "tests/toolkit/TestReport.h"

namespace {

using CXTPReportControlTest = TestReport;
constexpr UINT cnCursor = cnChangeSelection | cnChangeFocusItem;

// Says in `log` when it is asked and when it ends.
class LoggingRecord : public CXTPReportRecord {
public:
    LoggingRecord(std::string name, std::vector<std::string>& log, std::function<void()> onAsked = {})
        : m_name(std::move(name)), m_log(log), m_onAsked(std::move(onAsked)) {}
    ~LoggingRecord() override { m_log.push_back("end " + m_name); }
    void GetItemMetrics(const CXTPReportRecordItemDrawArgs& drawArgs,
                        CXTPReportRecordItemMetrics& metrics) override {
        m_log.push_back("asked " + m_name);
        if (m_onAsked) m_onAsked();
        m_log.push_back("answers " + m_name);
        metrics.text.Format("%d/%d", drawArgs.row, drawArgs.column->GetItemIndex());
    }

private:
    std::string m_name;
    std::vector<std::string>& m_log;
    std::function<void()> m_onAsked;
};

class NamedRows : public CXTPReportControl {
public:
    [[nodiscard]] CStringU GetTypeAheadText(int row) const override {
        return CStringU::Formatted(row % 2 == 0 ? "even%d" : "odd%d", row);
    }
};

}  // namespace

TEST_F(CXTPReportControlTest, WorksWholeWithoutPeerOrParent) {
    PeerFactory::Install(nullptr);
    CXTPReportControl headless;
    headless.SetVirtualMode(std::make_unique<CXTPReportRecord>(), 5);
    headless.Populate();
    headless.KeyPressedByUser(TKey::SelectAll, {});
    EXPECT_EQ(headless.GetSelectedRows().GetCount(), 5);
    headless.SetFocusedRow(CXTPReportRow(4));
    EXPECT_EQ(headless.GetFocusedRow(), CXTPReportRow(4));
    EXPECT_EQ(headless.GetPeer(), nullptr);
}

TEST_F(CXTPReportControlTest, RowsAreNumbers) {
    EXPECT_EQ(report.GetRows().GetCount(), 100);
    EXPECT_EQ(report.GetRows().GetAt(99), CXTPReportRow(99));
    EXPECT_EQ(report.GetRows().GetAt(100), std::nullopt);
    EXPECT_EQ(report.GetRows().GetAt(-1), std::nullopt);
    report.SetVirtualMode(nullptr, -9);
    EXPECT_EQ(report.GetRows().GetCount(), 0);
}

TEST_F(CXTPReportControlTest, PopulateTellsThePeerThatTheRowsAreOthers) {
    report.Populate();
    EXPECT_EQ(Told().changes,
              std::vector<UINT>{cnChangeItems | cnChangeSelection | cnChangeFocusItem | cnChangeScroll});
    EXPECT_TRUE(parent.heard.empty());
}

TEST_F(CXTPReportControlTest, FewerRowsDropWhatLiesBeyond) {
    report.GetSelectedRows().AddBlock(40, 60);
    report.SetFocusedRow(CXTPReportRow(60));
    parent.Forget();
    report.SetVirtualMode(std::make_unique<CXTPReportRecord>(), 50);
    EXPECT_EQ(report.GetSelectedRows().GetCount(), 10);
    EXPECT_EQ(report.GetFocusedRow(), std::nullopt);
    EXPECT_EQ(parent.Count(cnReportSelectionChanged), 1);
    report.SetVirtualMode(std::make_unique<CXTPReportRecord>(), 50);
    EXPECT_EQ(parent.Count(cnReportSelectionChanged), 1);
}

TEST_F(CXTPReportControlTest, FocusedRowScrollsIntoViewIfAsked) {
    report.SetFocusedRow(CXTPReportRow(50), false);
    EXPECT_EQ(report.GetTopRowIndex(), 0);
    report.SetFocusedRow(CXTPReportRow(50));
    EXPECT_EQ(report.GetTopRowIndex(), 41);
    EXPECT_EQ(parent.Count(cnReportSelectionChanged), 1) << "the second time only scrolled";
    EXPECT_EQ(report.GetSelectedRows().GetCount(), 0);
    report.SetFocusedRow(CXTPReportRow(100));
    report.SetFocusedRow(CXTPReportRow(-1));
    EXPECT_EQ(report.GetFocusedRow(), CXTPReportRow(50));
}

TEST_F(CXTPReportControlTest, OneUserOperationIsOneNotificationAndOneChange) {
    report.ClickedByUser(3, {});
    EXPECT_EQ(parent.Count(cnReportSelectionChanged), 1);
    EXPECT_EQ(Told().changes, std::vector<UINT>{cnCursor});
    report.ClickedByUser(3, {});
    EXPECT_EQ(parent.Count(cnReportSelectionChanged), 1) << "nothing changed";
    report.KeyPressedByUser(TKey::End, {.shift = true, .control = false});
    EXPECT_EQ(parent.Count(cnReportSelectionChanged), 2);
    EXPECT_EQ(Told().changes.back(), cnCursor | cnChangeScroll);
    EXPECT_EQ(report.GetSelectedRows().GetCount(), 97);
    EXPECT_EQ(report.GetTopRowIndex(), 90);
    report.ContextClickedByUser(0);
    EXPECT_EQ(parent.Count(cnReportSelectionChanged), 3);
    report.ClickedByUser(500, {});
    EXPECT_EQ(report.GetSelectedRows().GetCount(), 0) << "below the last row is the empty area";
}

TEST_F(CXTPReportControlTest, APressLeavesARowThatIsPartlyShownWhereItIs) {
    const int page = report.GetCountPerPage();
    const CRect rect = report.GetRect();
    const int half = report.GetHeaderHeight() + page * report.GetRowHeight() + report.GetRowHeight() / 2;
    report.MoveWindow({rect.left, rect.top, rect.right, rect.top + half});
    ASSERT_EQ(report.GetCountPerPage(), page);
    report.ClickedByUser(page, {});
    EXPECT_EQ(report.GetTopRowIndex(), 0);
    EXPECT_EQ(report.GetFocusedRow(), CXTPReportRow(page));
    report.ContextClickedByUser(page);
    report.ClickedByUser(0, {});
    report.ContextClickedByUser(page);
    EXPECT_EQ(report.GetTopRowIndex(), 0);
    report.ClickedByUser(0, {});
    report.KeyPressedByUser(TKey::PageDown, {});
    report.KeyPressedByUser(TKey::Down, {});
    EXPECT_EQ(report.GetTopRowIndex(), 1) << "a key shows the whole row";
    report.ClickedByUser(0, {});
    EXPECT_EQ(report.GetTopRowIndex(), 0) << "nothing of that row was shown";
    report.ClickedByUser(page + 1, {});
    EXPECT_EQ(report.GetTopRowIndex(), 2) << "nor of this one";
}

TEST_F(CXTPReportControlTest, SelectAllDoesNotScroll) {
    report.ClickedByUser(3, {});
    report.SetTopRow(50);
    report.KeyPressedByUser(TKey::SelectAll, {});
    EXPECT_EQ(report.GetTopRowIndex(), 50);
    EXPECT_EQ(report.GetSelectedRows().GetCount(), 100);
}

TEST_F(CXTPReportControlTest, UpdatesGatherAndTheLastEndTellsOnce) {
    report.BeginUpdate();
    report.BeginUpdate();
    report.ClickedByUser(3, {});
    report.SetTopRow(20);
    report.GetPaintManager().SetNoItemsText("none");
    cell->SetWidth(10);
    report.GetReportHeader().ClickedByUser(cell, false);
    report.EndUpdate();
    EXPECT_TRUE(Told().changes.empty());
    EXPECT_TRUE(parent.heard.empty());
    report.EndUpdate();
    EXPECT_EQ(Told().changes,
              std::vector<UINT>{cnCursor | cnChangeScroll | cnChangeLook | cnChangeColumns | cnChangeSort});
    EXPECT_EQ(parent.Count(cnReportSelectionChanged), 1);
    EXPECT_EQ(parent.Count(cnReportSortOrderChanged), 1);
    report.EndUpdate();
    report.EndUpdate();
    report.SetTopRow(0);
    EXPECT_EQ(Told().changes.size(), 2u) << "an end too many changes nothing";
}

TEST_F(CXTPReportControlTest, PeerIsToldBeforeTheParent) {
    UINT toldByThen = 0;
    parent.answer = [&](Notification&, LRESULT&) {
        toldByThen = Told().All();
        return false;
    };
    report.ClickedByUser(3, {});
    EXPECT_EQ(toldByThen, cnCursor);
}

TEST_F(CXTPReportControlTest, ParentMayChangeOrEndTheReportWhileItIsTold) {
    parent.answer = [&](Notification& notification, LRESULT&) {
        if (notification.code == cnReportSelectionChanged && parent.heard.size() == 1) {
            report.SetVirtualMode(std::make_unique<CXTPReportRecord>(), 1);
            report.Populate();
        }
        return false;
    };
    report.ClickedByUser(30, {});
    EXPECT_EQ(parent.Count(cnReportSelectionChanged), 2) << "the row that went took its selection along";
    EXPECT_EQ(report.GetSelectedRows().GetCount(), 0);
    parent.answer = [&](Notification&, LRESULT&) {
        report.DestroyWindow();
        return false;
    };
    report.BeginUpdate();
    report.ClickedByUser(0, {});
    report.GetReportHeader().ClickedByUser(cell, false);
    report.EndUpdate();
    EXPECT_FALSE(report.IsWindow());
    EXPECT_EQ(parent.Count(cnReportSortOrderChanged), 0) << "there was nobody left to tell it";
}

TEST_F(CXTPReportControlTest, TypingGoesToTheRow) {
    NamedRows rows;
    ASSERT_TRUE(rows.Create(&parent, 8, {0, 0, 100, 100}));
    rows.SetVirtualMode(nullptr, 100'000);
    rows.TypedByUser("o", 0);
    EXPECT_EQ(rows.GetFocusedRow(), CXTPReportRow(1));
    for (const char* piece : {"d", "d", "9", "9", "9", "9", "9"})
        rows.TypedByUser(piece, 100);
    EXPECT_EQ(rows.GetFocusedRow(), CXTPReportRow(99'999));
    EXPECT_EQ(rows.GetSelectedRows().GetCount(), 1);
    rows.TypedByUser("z", 5000);
    EXPECT_EQ(rows.GetFocusedRow(), CXTPReportRow(99'999));
    report.TypedByUser("x", 0);
    EXPECT_EQ(report.GetFocusedRow(), std::nullopt) << "a report without texts finds nothing";
}

TEST_F(CXTPReportControlTest, MeasuringAsksTheRecordOfARowThatIsThere) {
    std::vector<std::string> log;
    CXTPReportRecordItemMetrics metrics;
    report.SetVirtualMode(std::make_unique<LoggingRecord>("a", log), 10);
    EXPECT_TRUE(report.MeasureItem(9, *view, metrics));
    EXPECT_EQ(metrics.text, "9/1");
    EXPECT_FALSE(report.MeasureItem(10, *view, metrics));
    EXPECT_FALSE(report.MeasureItem(-1, *view, metrics));
    EXPECT_EQ(log, (std::vector<std::string>{"asked a", "answers a"}));
    report.SetVirtualMode(nullptr, 10);
    EXPECT_EQ(log.back(), "end a") << "nobody asks: the former record goes at once";
    EXPECT_FALSE(report.MeasureItem(0, *view, metrics));
    metrics.icon = 5;
    metrics.Reset();
    EXPECT_EQ(metrics.icon, -1);
}

TEST_F(CXTPReportControlTest, ReplacedRecordLivesUntilTheOutermostQuestionHasItsAnswer) {
    std::vector<std::string> log;
    CXTPReportRecordItemMetrics metrics;
    // While a is asked, b takes its place and is asked too; while b is asked, c takes its place.
    const auto replaceByC = [&] { report.SetVirtualMode(std::make_unique<LoggingRecord>("c", log), 5); };
    const auto replaceByB = [&] {
        report.SetVirtualMode(std::make_unique<LoggingRecord>("b", log, replaceByC), 10);
        report.Populate();
        CXTPReportRecordItemMetrics inner;
        EXPECT_TRUE(report.MeasureItem(1, *cell, inner));
        EXPECT_EQ(inner.text, "1/0");
    };
    report.SetVirtualMode(std::make_unique<LoggingRecord>("a", log, replaceByB), 10);
    EXPECT_TRUE(report.MeasureItem(7, *cell, metrics));
    EXPECT_EQ(metrics.text, "7/0");
    EXPECT_EQ(log,
              (std::vector<std::string>{"asked a", "asked b", "answers b", "answers a", "end a", "end b"}));
    EXPECT_TRUE(report.MeasureItem(0, *cell, metrics));
    EXPECT_EQ(log.back(), "answers c");
    report.SetVirtualMode(nullptr, 0);
    EXPECT_EQ(log.back(), "end c");
}

TEST_F(CXTPReportControlTest, RecordCountsItsItems) {
    CXTPReportRecord record;
    record.AddItem({});
    record.AddItem({});
    EXPECT_EQ(record.GetItemCount(), 2);
}

TEST_F(CXTPReportControlTest, SettingsAreKeptAndTold) {
    report.SetGridStyle(false, 0);
    report.SetGridStyle(true, 1);
    report.SetImageList(104, 22, 0xFFFF00);
    report.EnableDragDrop("format", 6);
    report.SetFreezeColumnsCount(1);
    report.SetFreezeColumnsCount(1);
    report.SetFullColumnScrolling(false);
    EXPECT_EQ(report.GetGridStyle(false), 0);
    EXPECT_EQ(report.GetGridStyle(true), 1);
    EXPECT_EQ(report.GetImageListResource(), 104u);
    EXPECT_EQ(report.GetImageWidth(), 22);
    EXPECT_EQ(report.GetImageMaskColor(), 0xFFFF00u);
    EXPECT_EQ(report.GetDragFormat(), "format");
    EXPECT_EQ(report.GetDragFlags(), 6u);
    EXPECT_EQ(report.GetFreezeColumnsCount(), 1);
    EXPECT_FALSE(report.IsFullColumnScrolling());
    EXPECT_EQ(Told().changes, (std::vector<UINT>{cnChangeLook, cnChangeLook, cnChangeLook, cnChangeColumns}));
    report.SetFreezeColumnsCount(-3);
    EXPECT_EQ(report.GetFreezeColumnsCount(), 0);
}

TEST_F(CXTPReportControlTest, RedrawOffHoldsThePeerBackButNotTheParent) {
    report.SetRedraw(false);
    report.ClickedByUser(3, {});
    EXPECT_TRUE(Told().changes.empty());
    EXPECT_EQ(parent.Count(cnReportSelectionChanged), 1);
    report.SetRedraw(true);
    EXPECT_EQ(Told().changes, std::vector<UINT>{cnCursor});
}
