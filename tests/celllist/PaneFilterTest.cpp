#include <gtest/gtest.h>

#include "tests/celllist/CellListFixture.h"
#include "tests/toolkit/RecordingPeers.h"
#include "vapp/text/ActiveCodePage.h"

namespace {

using namespace vapp_library_browser;
using TLines = std::vector<std::string>;

class PaneFilterTest : public CellListFixture {
protected:
    void SetUp() override { ShowCells({{"l1", "abc", "v"}, {"l1", "xyz", "v"}}); }

    [[nodiscard]] CButton& Button() {
        return dynamic_cast<CButton&>(*Cells().GetDlgItem(TCellListView::cnFilterButton));
    }
    [[nodiscard]] CString Setting() {
        return m_app.GetProfileString("LibraryNavigator", "CellFilterHistory", "missing");
    }
    void TypeLetters(const std::string& word) {
        std::string text(Cells().GetFilterText());
        for (const char letter : word)
            Type((text += letter).c_str());
    }
};

TEST_F(PaneFilterTest, LettersOnlyMarkTheListAndOneRefreshFollows) {
    TypeLetters("abc");
    EXPECT_EQ(m_host.Lines(), TLines()) << "nothing is asked while letters come";
    EXPECT_TRUE(Cells().NeedsPopulate());
    m_browser.Populate();
    m_browser.Populate();
    EXPECT_EQ(m_host.LinesStarting("database cells").size(), 2u);
    EXPECT_EQ(Rows(), TLines{"l1 abc v"});
}

TEST_F(PaneFilterTest, EachLetterIsStored) {
    Type("a");
    EXPECT_EQ(Setting(), "a\n");
    TypeLetters("bc");
    EXPECT_EQ(Setting(), "abc\n");
    Type("xyz");
    EXPECT_EQ(Setting(), "xyz\nabc\n");
    Type("");
    EXPECT_EQ(Setting(), "xyz\nabc\n");
    EXPECT_EQ(Cells().GetCellFilterHistory(), Setting());
}

TEST_F(PaneFilterTest, TheSettingIsReplacedWithoutTouchingTheHistory) {
    Type("abc");
    CString other("one\n");
    Cells().SetCellFilterHistory(other);
    EXPECT_EQ(Setting(), "one\n");
    Type("x");
    EXPECT_EQ(Setting(), "x\nabc\n");
}

TEST_F(PaneFilterTest, AFilteredListSaysHowManyOfHowMany) {
    Type("abc");
    m_browser.Populate();
    EXPECT_EQ(Status(), "1 of 2 cells");
    Type("nothing has this");
    m_browser.Populate();
    EXPECT_EQ(Status(), "0 of 2 cells");
    EXPECT_EQ(NoItems(), "All 2 cells are filtered out");
}

TEST_F(PaneFilterTest, TheButtonClearsWhileThereIsText) {
    RecordingPeers peers;
    bool shown = false;
    peers.pick = [&shown](const CMenu& /*menu*/) {
        shown = true;
        return 101u;
    };
    EXPECT_EQ(Button().GetAccessibleName(), "Recent filters");
    Type("abc");
    EXPECT_EQ(Button().GetImageResource(), 564u);
    EXPECT_EQ(Button().GetAccessibleName(), "Clear filter");
    m_browser.Populate();
    Button().Click();
    EXPECT_EQ(Cells().GetFilterText(), "");
    EXPECT_EQ(Button().GetImageResource(), 562u);
    EXPECT_TRUE(Cells().NeedsPopulate());
    EXPECT_FALSE(shown);
}

TEST_F(PaneFilterTest, TheButtonOffersTheHistoryWhileThereIsNone) {
    RecordingPeers peers;
    TLines offered;
    std::vector<UINT> ids;
    peers.pick = [&](const CMenu& menu) {
        for (int position = 0; position < menu.GetItemCount(); ++position) {
            offered.emplace_back(menu.GetItem(position)->text.Payload());
            ids.push_back(menu.GetItem(position)->id);
        }
        return 102u;
    };
    Type("abc");
    Type("x&z");
    Type("");
    Button().Click();
    EXPECT_EQ(offered, (TLines{"x&&z", "abc"})) << "a sign of the text is no key of the menu";
    EXPECT_EQ(ids, (std::vector<UINT>{101, 102}));
    EXPECT_EQ(Cells().GetFilterText(), "abc");
    EXPECT_EQ(Button().GetImageResource(), 564u);
    EXPECT_EQ(Setting(), "abc\nx&z\n") << "what was picked is the newest now";
    const CRect button = Button().GetWindowRect();
    EXPECT_EQ(peers.menuPoint, CPoint(button.left, button.bottom));
    EXPECT_EQ(peers.menuAlign, TMenuAlign::Right);
}

TEST_F(PaneFilterTest, APickOfAWordOneLetterShorterTakesTheNewestsPlace) {
    RecordingPeers peers;
    peers.pick = [](const CMenu& /*menu*/) { return 102u; };
    Type("ab");
    Type("zz");
    Type("abc");
    Type("");
    peers.pick = [](const CMenu& /*menu*/) { return 103u; };
    Button().Click();
    EXPECT_EQ(Cells().GetFilterText(), "ab");
    EXPECT_EQ(Setting(), "ab\nzz\n");
}

TEST_F(PaneFilterTest, WithoutTextAndHistoryTheButtonJustRunsTheHandlerOfChanges) {
    RecordingPeers peers;
    bool shown = false;
    peers.pick = [&shown](const CMenu& /*menu*/) {
        shown = true;
        return 0u;
    };
    EXPECT_FALSE(Cells().NeedsPopulate());
    Button().Click();
    EXPECT_FALSE(shown);
    EXPECT_EQ(Cells().GetFilterText(), "");
    EXPECT_TRUE(Cells().NeedsPopulate());
    EXPECT_EQ(Setting(), "");
}

TEST_F(PaneFilterTest, AMenuWithoutAPickLeavesTheTextEmpty) {
    Type("abc");
    Type("");
    Cells().SetNeedsPopulate(false);
    Button().Click();
    EXPECT_EQ(Cells().GetFilterText(), "") << "with nobody to show the menu";
    EXPECT_TRUE(Cells().NeedsPopulate());
    RecordingPeers peers;
    for (const UINT answer : {0u, 100u, 102u, 121u, 122u, 0xFFFFFFFFu}) {
        peers.pick = [answer](const CMenu& /*menu*/) { return answer; };
        Button().Click();
        EXPECT_EQ(Cells().GetFilterText(), "") << answer;
    }
}

TEST_F(PaneFilterTest, SurvivesTheEndOfTheWindowWhileTheMenuIsOpen) {
    RecordingPeers peers;
    Type("abc");
    Type("");
    int shown = 0;
    peers.pick = [&](const CMenu& /*menu*/) {
        ++shown;
        m_browser.DestroyWindow();
        m_host.ClearLines();
        return 101u;
    };
    Button().Click();
    EXPECT_EQ(shown, 1);
    EXPECT_EQ(m_host.Lines(), TLines());
    EXPECT_EQ(m_app.GetProfileString("LibraryNavigator", "CellFilterHistory"), "abc\n");
}

TEST_F(PaneFilterTest, APaneThatIsMadeAgainBeginsWithAnEmptyEditAndItsImage) {
    TCellListView pane;
    for (int time = 0; time < 2; ++time) {
        ASSERT_TRUE(pane.Create(&m_frame, 0));
        const auto& button = dynamic_cast<CButton&>(*pane.GetDlgItem(TCellListView::cnFilterButton));
        EXPECT_TRUE(pane.GetFilterText().IsEmpty());
        EXPECT_EQ(button.GetImageResource(), 562u);
        dynamic_cast<CEdit&>(*pane.GetDlgItem(TCellListView::cnFilterEdit)).EditedByUser("abc");
        EXPECT_EQ(button.GetImageResource(), 564u);
        pane.DestroyWindow();
    }
}

TEST_F(PaneFilterTest, OffersTheHistoryOfTheLastRun) {
    m_app.WriteProfileString("LibraryNavigator", "CellFilterHistory", "one\ntwo\n\nthree\n");
    TCellListView pane;
    ASSERT_TRUE(pane.Create(&m_frame, 0));
    pane.OnInitialUpdate();
    RecordingPeers peers;
    TLines offered;
    peers.pick = [&offered](const CMenu& menu) {
        for (int position = 0; position < menu.GetItemCount(); ++position)
            offered.emplace_back(menu.GetItem(position)->text.Payload());
        return 0u;
    };
    dynamic_cast<CButton&>(*pane.GetDlgItem(TCellListView::cnFilterButton)).Click();
    EXPECT_EQ(offered, (TLines{"one", "two"}));
}

TEST_F(PaneFilterTest, TheEditIsNativeAndTheSettingIsUtf8) {
    gSetActiveCodePage(1252);
    Type("gr\xFC");
    EXPECT_EQ(Setting(), "gr\xC3\xBC\n");
    Type("");
    RecordingPeers peers;
    peers.pick = [](const CMenu& /*menu*/) { return 101u; };
    Button().Click();
    EXPECT_EQ(Cells().GetFilterText(), "gr\xFC");
    gSetActiveCodePage(0);
}

TEST_F(PaneFilterTest, EscapeEmptiesTheEditAndThenGoesBackToTheRows) {
    Cells().FocusFilter();
    EXPECT_EQ(CWnd::GetFocus(), &FilterEdit());
    Type("abc");
    m_browser.Populate();
    EXPECT_TRUE(FilterEdit().KeyByPeer(TKey::Escape, {}));
    EXPECT_EQ(Cells().GetFilterText(), "");
    EXPECT_TRUE(Cells().NeedsPopulate());
    EXPECT_EQ(CWnd::GetFocus(), &FilterEdit());
    EXPECT_TRUE(FilterEdit().KeyByPeer(TKey::Escape, {}));
    EXPECT_EQ(CWnd::GetFocus(), &Report());
}

TEST_F(PaneFilterTest, DownGoesOnToTheRows) {
    Cells().FocusFilter();
    EXPECT_TRUE(FilterEdit().KeyByPeer(TKey::Down, {}));
    EXPECT_EQ(CWnd::GetFocus(), &Report());
    EXPECT_EQ(SelectedCells(), TLines{"l1 abc v"}) << "the first row, so that the next key counts from there";
    SelectRow(1);
    Report().SetFocusedRow(CXTPReportRow(1));
    Cells().FocusFilter();
    EXPECT_TRUE(FilterEdit().KeyByPeer(TKey::Down, {}));
    EXPECT_EQ(SelectedCells(), TLines{"l1 xyz v"}) << "a selection that is there stays";
    Type("nothing has this");
    m_browser.Populate();
    EXPECT_TRUE(FilterEdit().KeyByPeer(TKey::Down, {}));
    EXPECT_EQ(SelectedCells(), TLines());
}

TEST_F(PaneFilterTest, FindGoesToTheEditFromAnywhere) {
    Report().SetFocus();
    EXPECT_TRUE(Report().KeyByPeer(TKey::Find, {}));
    EXPECT_EQ(CWnd::GetFocus(), &FilterEdit());
    Libraries().SetFocus();
    EXPECT_TRUE(Libraries().KeyByPeer(TKey::Find, {}));
    EXPECT_EQ(CWnd::GetFocus(), &FilterEdit());
    EXPECT_FALSE(Report().KeyByPeer(TKey::Return, {}));
    EXPECT_FALSE(FilterEdit().KeyByPeer(TKey::Up, {}));
}

TEST_F(PaneFilterTest, ADoubleClickOnNothingEmptiesTheEdit) {
    const int belowHeader = Report().GetHeaderHeight();
    const int row = Report().GetRowHeight();
    const auto doubleClick = [this](CPoint point) {
        Type("b");
        Report().DoubleClickedByUser(point);
        return Cells().GetFilterText();
    };
    EXPECT_EQ(doubleClick({10, belowHeader + 1}), "b") << "on a row";
    EXPECT_EQ(doubleClick({10, 2}), "b") << "on a header";
    EXPECT_EQ(doubleClick({10, belowHeader + 9 * row}), "") << "below the rows";
    EXPECT_EQ(doubleClick({Report().GetClientRect().right - 1, 2}), "") << "beside the headers";
}

TEST_F(PaneFilterTest, NoTabIsNarrowerThanThreeWideLetters) {
    const auto& tabs = dynamic_cast<CTabCtrl&>(*Cells().GetDlgItem(TCellListView::cnTabs));
    EXPECT_EQ(tabs.GetMinWidthText(), "WWW");
    EXPECT_EQ(tabs.GetItemCount(), 3);
    EXPECT_EQ(tabs.GetItemText(0) + tabs.GetItemText(1) + tabs.GetItemText(2), "");
}

}  // namespace
