#include <gtest/gtest.h>

#include "tests/browser/AnsweringWindow.h"
#include "tests/celllist/CellListFixture.h"
#include "tests/toolkit/RecordingPeers.h"

namespace {

using namespace vapp_library_browser;

constexpr UINT cnNoMessage = 0;

class PaneTabMenuTest : public CellListFixture {
protected:
    void SetUp() override {
        ShowCells({{"l1", "a", "sym"}});
        m_browser.SerializeSetup(false);
        m_host.ClearLines();
        m_window.answer = [this](UINT message, WPARAM wParam, LPARAM lParam) -> LRESULT {
            if (message == WM_LN_BUILDTABMENU) {
                m_builtFor.push_back(static_cast<int>(wParam));
                if (m_fill) m_fill();
            }
            if (message == WM_LN_TABMENUPICK) m_picks.emplace_back(wParam, lParam);
            return 0;
        };
        m_peers.pick = [this](const CMenu& menu) {
            ++m_shown;
            m_items.clear();
            for (int position = 0; position < menu.GetItemCount(); ++position) {
                const CMenu::TItem& item = *menu.GetItem(position);
                m_items.push_back(std::to_string(item.id) + " " + item.text.Payload() +
                                  (item.isChecked ? " *" : ""));
            }
            if (m_whileOpen) m_whileOpen();
            return m_pick;
        };
        m_fill = [this] {
            m_browser.AddCellTabsMenuItem("Rename", false);
            m_browser.AddCellTabsMenuSeparator();
            m_browser.AddCellTabsMenuItem("Locked", true);
        };
    }
    [[nodiscard]] CTabCtrl& Tabs() {
        return dynamic_cast<CTabCtrl&>(*Cells().GetDlgItem(TCellListView::cnTabs));
    }
    void RightClickTab(int tab) { Tabs().ContextClickedByUser(tab, {11, 12}); }
    [[nodiscard]] std::size_t Populations() { return m_host.LinesStarting(csCount).size(); }

    RecordingPeers m_peers;
    AnsweringWindow m_window{m_app};
    std::function<void()> m_fill;
    std::function<void()> m_whileOpen;
    std::vector<int> m_builtFor;
    std::vector<std::pair<WPARAM, LPARAM>> m_picks;
    std::vector<std::string> m_items;
    UINT m_pick = cnNoMessage;
    int m_shown = 0;
};

TEST_F(PaneTabMenuTest, IsFilledByTheHostAndTellsThePickedItemWithItsNewMark) {
    m_pick = 101;
    RightClickTab(1);
    EXPECT_EQ(m_builtFor, std::vector<int>{1});
    EXPECT_EQ(m_items, (std::vector<std::string>{"101 Rename", "0 ", "103 Locked *"}))
        << "a separator counts as an item";
    EXPECT_EQ(m_peers.menuPoint, CPoint(11, 12));
    m_pick = 103;
    RightClickTab(2);
    using TPick = std::pair<WPARAM, LPARAM>;
    EXPECT_EQ(m_picks, (std::vector<TPick>{{1 | 1 << 16, 0}, {2, 2}}));
}

TEST_F(PaneTabMenuTest, ShowsTheTabWhateverWasPicked) {
    Cells().SetNeedsPopulate(true);
    RightClickTab(2);
    EXPECT_EQ(m_picks.size(), 0u);
    EXPECT_EQ(Tabs().GetCurSel(), 2);
    EXPECT_EQ(Report().GetActiveSetup(), "Setup3");
    EXPECT_EQ(Populations(), 2u) << "by the switch, and once more";
    EXPECT_FALSE(Cells().NeedsPopulate());
    m_host.ClearLines();
    m_fill = nullptr;
    RightClickTab(2);
    EXPECT_EQ(Populations(), 1u) << "also with an empty menu on the tab that shows";
}

TEST_F(PaneTabMenuTest, NoTabHasNoMenu) {
    RightClickTab(-1);
    RightClickTab(3);
    EXPECT_TRUE(m_builtFor.empty());
    EXPECT_EQ(m_host.Lines(), std::vector<std::string>());
}

TEST_F(PaneTabMenuTest, ItemsAreTakenOnlyWhileTheHostIsAsked) {
    m_fill = nullptr;
    m_browser.AddCellTabsMenuItem("early", false);
    m_browser.AddCellTabsMenuSeparator();
    m_whileOpen = [this] { m_browser.AddCellTabsMenuItem("late", false); };
    m_fill = [this] {
        RightClickTab(0);  // one menu at a time
        m_browser.AddCellTabsMenuItem("in time", false);
    };
    RightClickTab(1);
    EXPECT_EQ(m_items, std::vector<std::string>{"101 in time"});
    EXPECT_EQ(m_builtFor, std::vector<int>{1});
}

TEST_F(PaneTabMenuTest, SurvivesTheEndOfTheWindowAtEveryStep) {
    m_pick = 101;
    for (const UINT message : {WM_LN_BUILDTABMENU, cnNoMessage, WM_LN_TABMENUPICK}) {
        SCOPED_TRACE(message);
        AnsweringWindow window(m_app);
        window.answer = [&](UINT asked, WPARAM, LPARAM) -> LRESULT {
            if (asked == WM_LN_BUILDTABMENU) m_fill();
            if (asked == message) m_browser.DestroyWindow();
            return 0;
        };
        m_whileOpen = [&] {
            if (message == cnNoMessage) m_browser.DestroyWindow();
        };
        m_shown = 0;
        m_host.ClearLines();
        RightClickTab(1);
        ASSERT_FALSE(m_browser.IsWindow());
        EXPECT_EQ(m_shown, message == WM_LN_BUILDTABMENU ? 0 : 1);
        EXPECT_EQ(Populations(), 0u) << "no list is left to be filled";
        ShowCells({{"l1", "a", "sym"}});
    }
}

}  // namespace
