/// @file
/// The splitter: making panes, sharing the height, and the end.
#include "vapp/toolkit/CSplitterWnd.h"

#include <gtest/gtest.h>

#include <string>

#include "tests/toolkit/RecordingPeers.h"
#include "vapp/toolkit/CDocument.h"
#include "vapp/toolkit/CFrameWnd.h"

namespace {

std::vector<std::string> s_log;

class Pane : public CView {
public:
    ~Pane() override {
        DestroyWindow();
        s_log.push_back("gone");
    }
    void OnInitialUpdate() override { s_log.push_back("initial " + std::to_string(GetRect().Height())); }

protected:
    void OnCreate() override { s_log.push_back("create"); }
    void OnDestroy() override { s_log.push_back("destroy"); }
};

CRuntimeClass PaneClass() {
    return gRuntimeClass<Pane>("Pane");
}

class CSplitterWndTest : public testing::Test {
protected:
    CSplitterWndTest() {
        s_log.clear();
        frame.CreateFrame("frame", {0, 0, 300, 600});
    }
    void MakeThreeRows() {
        ASSERT_TRUE(splitter.CreateStatic(&frame, 3, 1, 5));
        ASSERT_TRUE(splitter.CreateView(0, 0, PaneClass(), {0, 100}));
        ASSERT_TRUE(splitter.CreateView(1, 0, PaneClass(), {0, 200}));
        ASSERT_TRUE(splitter.CreateView(2, 0, PaneClass(), {0, 50}));
    }
    [[nodiscard]] CRect PaneRect(int row) const { return splitter.GetPane(row, 0)->GetRect(); }

    CFrameWnd frame;
    CSplitterWnd splitter;
};

}  // namespace

TEST_F(CSplitterWndTest, FillsItsParentAndRefusesASecondTime) {
    EXPECT_EQ(splitter.GetRowCount(), 0);
    ASSERT_TRUE(splitter.CreateStatic(&frame, 3, 1, 5));
    EXPECT_EQ(splitter.GetRect(), CRect(0, 0, 300, 600));
    EXPECT_EQ(splitter.GetRowCount(), 3);
    EXPECT_FALSE(splitter.CreateStatic(&frame, 2, 1, 6));
    EXPECT_EQ(splitter.GetRowCount(), 3);
}

TEST_F(CSplitterWndTest, RefusesNumbersOutOfRangeAndAParentThatIsNoWindow) {
    CWnd none;
    EXPECT_FALSE(splitter.CreateStatic(&frame, 0, 1, 5));
    EXPECT_FALSE(splitter.CreateStatic(&frame, 1, -1, 5));
    EXPECT_FALSE(splitter.CreateStatic(&frame, 1 << 20, 1 << 20, 5));
    EXPECT_FALSE(splitter.CreateStatic(&none, 1, 1, 5));
    EXPECT_EQ(splitter.GetRowCount(), 0);
    EXPECT_TRUE(splitter.CreateStatic(&frame, 1, 1, 5));
}

TEST_F(CSplitterWndTest, InitialUpdateComesWhenThePaneStandsInItsPlace) {
    ASSERT_TRUE(splitter.CreateStatic(&frame, 2, 1, 5));
    ASSERT_TRUE(splitter.CreateView(0, 0, PaneClass(), {0, 120}));
    EXPECT_EQ(s_log, (std::vector<std::string>{"create", "initial 120"}));
}

TEST_F(CSplitterWndTest, CellTakesOnePane) {
    ASSERT_TRUE(splitter.CreateStatic(&frame, 2, 1, 5));
    EXPECT_FALSE(splitter.CreateView(2, 0, PaneClass(), {}));
    EXPECT_FALSE(splitter.CreateView(0, 1, PaneClass(), {}));
    EXPECT_FALSE(splitter.CreateView(0, 0, CRuntimeClass(), {}));
    EXPECT_EQ(splitter.GetPane(0, 0), nullptr);
    EXPECT_TRUE(splitter.CreateView(0, 0, PaneClass(), {}));
    EXPECT_FALSE(splitter.CreateView(0, 0, PaneClass(), {}));
    EXPECT_EQ(splitter.GetPane(0, 0)->GetParent(), &splitter);
    EXPECT_EQ(splitter.GetPane(-1, 0), nullptr);
}

TEST_F(CSplitterWndTest, LastRowTakesWhatIsLeft) {
    MakeThreeRows();
    EXPECT_EQ(PaneRect(0), CRect(0, 0, 300, 100));
    EXPECT_EQ(PaneRect(1), CRect(0, 106, 300, 306));
    EXPECT_EQ(PaneRect(2), CRect(0, 312, 300, 600));
    EXPECT_EQ(splitter.GetRowHeight(2), 50) << "what was asked for is kept";
}

TEST_F(CSplitterWndTest, RowsShrinkToNothingAndComeBack) {
    MakeThreeRows();
    frame.MovedByPeer({0, 0, 300, 150});
    EXPECT_EQ(PaneRect(0).Height(), 100);
    EXPECT_EQ(PaneRect(1), CRect(0, 106, 300, 150));
    EXPECT_EQ(PaneRect(2).Height(), 0);
    frame.MovedByPeer({0, 0, 0, 0});
    for (int row = 0; row < 3; ++row)
        EXPECT_EQ(PaneRect(row).Height(), 0);
    frame.MovedByPeer({0, 0, 300, 600});
    EXPECT_EQ(PaneRect(1).Height(), 200);
    EXPECT_EQ(PaneRect(2).Height(), 288);
}

TEST_F(CSplitterWndTest, DraggedBarMovesThePanesBelow) {
    RecordingPeers peers;
    MakeThreeRows();
    peers.ForgetAll();
    splitter.SetRowHeight(0, 40);
    EXPECT_EQ(PaneRect(1), CRect(0, 46, 300, 246));
    EXPECT_EQ(peers.Of(splitter).Count(cnChangeItems), 1);
    splitter.SetRowHeight(0, 40);
    EXPECT_EQ(peers.Of(splitter).Count(cnChangeItems), 1);
    splitter.SetRowHeight(1, -5);
    EXPECT_EQ(splitter.GetRowHeight(1), 0);
    splitter.SetRowHeight(9, 5);
    EXPECT_EQ(splitter.GetRowHeight(9), 0);
    splitter.SetRowHeight(0, 2147483647);
    EXPECT_EQ(PaneRect(0).Height(), 600);
    EXPECT_EQ(PaneRect(2).Height(), 0);
}

TEST_F(CSplitterWndTest, ColumnsShareTheWidth) {
    ASSERT_TRUE(splitter.CreateStatic(&frame, 1, 3, 5));
    for (int column = 0; column < 3; ++column)
        ASSERT_TRUE(splitter.CreateView(0, column, PaneClass(), {}));
    frame.MovedByPeer({0, 0, 100, 50});
    EXPECT_EQ(splitter.GetPane(0, 0)->GetRect(), CRect(0, 0, 33, 50));
    EXPECT_EQ(splitter.GetPane(0, 2)->GetRect(), CRect(66, 0, 100, 50));
}

TEST_F(CSplitterWndTest, PanesGoWithTheWindowWhichCanBeMadeAgain) {
    RecordingPeers peers;
    MakeThreeRows();
    s_log.clear();
    frame.DestroyWindow();
    EXPECT_EQ(s_log, (std::vector<std::string>{"destroy", "destroy", "destroy", "gone", "gone", "gone"}));
    EXPECT_EQ(splitter.GetRowCount(), 0);
    EXPECT_EQ(splitter.GetPane(0, 0), nullptr);
    ASSERT_TRUE(frame.CreateFrame("again", {0, 0, 10, 10}));
    EXPECT_TRUE(splitter.CreateStatic(&frame, 1, 1, 5));
}

namespace {

// A splitter whose panes may be at work when the window ends.
class KeepingSplitter : public CSplitterWnd {
public:
    ~KeepingSplitter() override { DestroyWindow(); }
    using CSplitterWnd::FreeEndedPanes;
    bool mayFree = false;

protected:
    [[nodiscard]] bool MayFreePanes() const override { return mayFree; }
};

}  // namespace

TEST_F(CSplitterWndTest, PanesThatMayBeAtWorkOutliveTheWindow) {
    const std::vector<std::string> ends(2, "destroy");
    CDocument document;
    {
        KeepingSplitter keeping;
        ASSERT_TRUE(keeping.CreateStatic(&frame, 3, 1, 5));
        for (const int row : {0, 2})
            ASSERT_TRUE(keeping.CreateView(row, 0, PaneClass(), {0, 10}));
        CView* pane = keeping.GetPane(0, 0);
        document.AddView(pane);
        s_log.clear();
        keeping.DestroyWindow();
        EXPECT_EQ(s_log, ends);
        EXPECT_FALSE(pane->IsWindow());
        EXPECT_EQ(keeping.GetRowCount(), 0);
        EXPECT_TRUE(document.GetViews().empty()) << "nobody tells it of changes any more";
        keeping.FreeEndedPanes();
        EXPECT_EQ(s_log.size(), 4u);
        ASSERT_TRUE(keeping.CreateStatic(&frame, 1, 1, 5));
        ASSERT_TRUE(keeping.CreateView(0, 0, PaneClass(), {0, 10}));
        keeping.DestroyWindow();
        s_log.clear();
    }
    EXPECT_EQ(s_log, std::vector<std::string>{"gone"});
}
