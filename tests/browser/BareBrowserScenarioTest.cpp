/// @file
/// A whole navigator in a process that lacks what it asks for settings and theme: no application at all, or
/// one without a main window.
#include <gtest/gtest.h>

#include <optional>

#include "tests/browser/RecordingHost.h"
#include "vapp/browser/TLibraryBrowser.h"
#include "vapp/browser/TLibraryView.h"
#include "vapp/toolkit/CFrameWnd.h"
#include "vapp/toolkit/CWinAppEx.h"

using namespace vapp_library_browser;

class BareBrowser : public testing::TestWithParam<bool> {
protected:
    BareBrowser() {
        if (GetParam()) m_app.emplace("tool");
        m_host.Answer("database all_libs", "{top {other /other} {main /main}}");
        m_host.AnswerStart("database cells -lcv -library top -count", "1");
        m_host.AnswerStart("database cells -lcv -library top -filter", "{main inv layout}");
        m_host.AnswerStart("database top_level", "main");
        m_host.AnswerStart("librarynavigator preview set", "");
        m_frame.CreateFrame("frame", {0, 0, 400, 940});
    }
    ~BareBrowser() override { m_frame.DestroyWindow(); }

    RecordingHost m_host;
    std::optional<CWinAppEx> m_app;
    CFrameWnd m_frame;
    TLibraryBrowser m_browser;
};

TEST_P(BareBrowser, WorksFromItsStartToItsEnd) {
    ASSERT_EQ(gGetMainWnd(), nullptr);
    EXPECT_FALSE(m_browser.GetExcludeViewNames().IsEmpty()) << "the default";
    ASSERT_TRUE(m_browser.Initialize(&m_frame, m_host.GetInterp(), nullptr));
    EXPECT_EQ(m_browser.GetRowHeight(1), 500);
    EXPECT_TRUE(m_browser.GetAlphabeticalLibraryNames());
    m_browser.Populate();
    EXPECT_EQ(m_browser.GetCellViewCount(), 1u);

    TLibraryListCtrl& list = m_browser.GetLibraryView()->GetLibraryListCtrl();
    ASSERT_EQ(list.GetItemCount(), 2);
    EXPECT_EQ(list.GetBkColor(), 0xFFFFFFu);
    EXPECT_EQ(list.DrawItem(0).text, CStringU("main"));
    EXPECT_EQ(list.DrawItem(1).textColor, 0xFF0000u);

    m_browser.GetLibraryView()->SetAlphabetical(false);
    m_browser.RequestLibraryViewDelayedPopulate();
    m_browser.Populate();
    EXPECT_EQ(list.GetItemText(0), CStringU("other"));
    m_browser.GetCellListView()->GetReport().ClickedByUser(0, {});
    m_browser.GetCellListView()->OnCbnCloseupFilterCombo();
    EXPECT_EQ(m_browser.GetFocusedCell(), TLibCellView("main", "inv", "layout"));
    m_browser.SerializeSetup(true);
    m_browser.DestroyWindow();
    EXPECT_EQ(m_browser.GetLibraryView(), nullptr);
}

INSTANTIATE_TEST_SUITE_P(WithAndWithoutAnApplication, BareBrowser, testing::Bool());
