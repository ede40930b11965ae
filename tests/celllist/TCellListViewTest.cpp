#include "vapp/celllist/TCellListView.h"

#include <tcl.h>

#include "tests/browser/AnsweringWindow.h"
#include "tests/celllist/CellListFixture.h"
#include "tests/celllist/ListeningWindow.h"

namespace {

using namespace vapp_library_browser;
using TLines = std::vector<std::string>;

class TCellListViewTest : public CellListFixture {
protected:
    void SetUp() override { ShowCells({{"l1", "a", "v"}, {"l1", "b", "v"}}); }
};

TEST_F(TCellListViewTest, MakesOneRefreshOfManyRequests) {
    for (int request = 0; request < 10; ++request)
        Cells().RequestDelayedPopulate(UpdateAlways);
    EXPECT_EQ(m_host.Lines(), TLines());
    Cells().Populate();
    EXPECT_EQ(m_host.LinesStarting("database cells").size(), 2u);
    EXPECT_FALSE(Cells().NeedsPopulate());
    Cells().Populate();
    EXPECT_EQ(m_host.LinesStarting("database cells").size(), 2u);
}

TEST_F(TCellListViewTest, AsksTheHostWhetherAChangeMattersOnlyWhileItIsClean) {
    Cells().RequestDelayedPopulate(UpdateAlways);
    Cells().RequestDelayedPopulate(UpdateIfFilterSaysSo);
    EXPECT_EQ(m_host.Lines(), TLines());
}

TEST_F(TCellListViewTest, TakesTheLowByteOfTheHostsAnswer) {
    const std::pair<const char*, bool> answers[] = {{"0", false},   {"1", true},  {"256", false},
                                                    {"257", true},  {"-1", true}, {"-256", false},
                                                    {"yes", false}, {"", false}};
    for (const auto& [answer, marked] : answers) {
        SCOPED_TRACE(answer);
        Cells().SetNeedsPopulate(false);
        m_host.ClearLines();
        m_host.AnswerStart("database filter", answer);
        Cells().RequestDelayedPopulate(UpdateIfFilterSaysSo);
        EXPECT_EQ(Cells().NeedsPopulate(), marked);
    }
    Cells().SetNeedsPopulate(false);
    m_host.HandleStart("database filter", [](Tcl_Interp* interp) {
        Tcl_SetObjResult(interp, Tcl_NewIntObj(1));
        return TCL_ERROR;
    });
    Cells().RequestDelayedPopulate(UpdateIfFilterSaysSo);
    EXPECT_FALSE(Cells().NeedsPopulate());
}

TEST_F(TCellListViewTest, SendsTheFilterTypeAsItStands) {
    Cells().AddFilterType("All types");
    m_host.AnswerStart("database filter", "0");
    const HookGuard hook;
    Cells().RequestDelayedPopulate(UpdateIfFilterSaysSo);
    EXPECT_EQ(m_host.Lines(), TLines{"database filter All types"});
}

TEST_F(TCellListViewTest, CountsEveryOtherReasonAlike) {
    Cells().RequestDelayedPopulate(static_cast<TUpdateCellListReason>(-7));
    EXPECT_TRUE(Cells().NeedsPopulate());
}

TEST_F(TCellListViewTest, TakesTheAnswerOverARequestThatTheHostMakesWhileItIsAsked) {
    m_host.HandleStart("database filter", [this](Tcl_Interp* interp) {
        Cells().RequestDelayedPopulate(UpdateAlways);
        Tcl_SetObjResult(interp, Tcl_NewIntObj(0));
        return TCL_OK;
    });
    Cells().RequestDelayedPopulate(UpdateIfFilterSaysSo);
    EXPECT_FALSE(Cells().NeedsPopulate());
    // No answer says nothing about it.
    m_host.HandleStart("database filter", [this](Tcl_Interp*) {
        Cells().RequestDelayedPopulate(UpdateAlways);
        return TCL_ERROR;
    });
    Cells().RequestDelayedPopulate(UpdateIfFilterSaysSo);
    EXPECT_TRUE(Cells().NeedsPopulate());
}

TEST_F(TCellListViewTest, SelectsTheFirstFilterTypeAndGoesBackToIt) {
    EXPECT_TRUE(Cells().GetDropDownFilter().IsEmpty());
    Cells().AddFilterType("All");
    Cells().AddFilterType("Locked");
    EXPECT_EQ(Cells().GetDropDownFilter(), "All");
    auto& combo = dynamic_cast<CComboBox&>(*Cells().GetDlgItem(TCellListView::cnFilterCombo));
    combo.PickedByUser(1);
    EXPECT_FALSE(Cells().NeedsPopulate());
    EXPECT_EQ(Cells().GetDropDownFilter(), "Locked");
    Type("text");
    Cells().ResetFilter();
    EXPECT_EQ(Cells().GetDropDownFilter(), "All");
    EXPECT_EQ(Cells().GetFilterText(), "");
}

TEST_F(TCellListViewTest, IsMarkedByTypingAndShowsAnotherImage) {
    auto& button = dynamic_cast<CButton&>(*Cells().GetDlgItem(TCellListView::cnFilterButton));
    EXPECT_EQ(button.GetImageResource(), 562u);
    Type("a");
    EXPECT_TRUE(Cells().NeedsPopulate());
    EXPECT_EQ(m_host.Lines(), TLines());
    EXPECT_EQ(button.GetImageResource(), 564u);
    EXPECT_EQ(Cells().GetFilterText(), "a");
    Type("");
    EXPECT_EQ(button.GetImageResource(), 562u);
}

TEST_F(TCellListViewTest, IsMarkedWhenTheDropDownClosesAndTheMainWindowGetsTheKeyboard) {
    dynamic_cast<CComboBox&>(*Cells().GetDlgItem(TCellListView::cnFilterCombo)).ClosedByUser();
    EXPECT_TRUE(Cells().NeedsPopulate());
    EXPECT_EQ(CWnd::GetFocus(), &m_frame);
}

TEST_F(TCellListViewTest, HandsTheKeyboardToAControlUnlessTheColumnChooserIsShown) {
    bool isChooserShown = false;
    AnsweringWindow main(m_app);
    main.answer = [&isChooserShown](UINT message, WPARAM, LPARAM) -> LRESULT {
        return message == WM_LN_COLCHOOSERSHOWN && isChooserShown ? 1 : 0;
    };
    Report().SetFocus();
    main.SetFocus();
    Cells().FocusedByPeer(true);
    EXPECT_EQ(CWnd::GetFocus(), &Report()) << "the control that had it last";
    isChooserShown = true;
    main.SetFocus();
    Cells().FocusedByPeer(true);
    EXPECT_EQ(CWnd::GetFocus(), &Cells());
}

TEST_F(TCellListViewTest, RefreshesAtOnceWhenTheUserSorts) {
    Report().GetReportHeader().ClickedByUser(&Column("Cell"), false);
    Report().GetReportHeader().ClickedByUser(&Column("Cell"), false);
    EXPECT_EQ(m_host.LinesStarting("database cells").size(), 4u);
    EXPECT_EQ(Rows(), (TLines{"l1 b v", "l1 a v"}));
}

TEST_F(TCellListViewTest, TellsTheMainWindowOfTheSelectionUnlessARefreshIsDue) {
    ListeningWindow listener(m_app);
    SelectRow(1);
    EXPECT_EQ(listener.m_messages, (std::vector<std::pair<UINT, WPARAM>>{{WM_LN_HOSTNOTIFY, 1}}));
    EXPECT_EQ(m_host.LinesStarting("librarynavigator preview").size(), 1u);
    listener.m_messages.clear();
    Cells().SetNeedsPopulate(true);
    SelectRow(0);
    EXPECT_TRUE(listener.m_messages.empty());
    EXPECT_EQ(m_host.LinesStarting("librarynavigator preview").size(), 2u);
    Cells().Populate();
    EXPECT_EQ(listener.m_messages, (std::vector<std::pair<UINT, WPARAM>>{{WM_LN_ISDARKTHEME, 0}}));
}

TEST_F(TCellListViewTest, AWindowThatTheHostEndsWhenItIsToldOfTheSelectionSendsNothingMore) {
    AnsweringWindow window(m_app);
    window.answer = [this](UINT message, WPARAM, LPARAM) -> LRESULT {
        if (message == WM_LN_HOSTNOTIFY) m_browser.DestroyWindow();
        return 0;
    };
    m_host.ClearLines();
    SelectRow(1);
    EXPECT_FALSE(m_browser.IsWindow());
    EXPECT_EQ(m_host.Lines(), TLines());
}

TEST_F(TCellListViewTest, HasThreeTabsWhoseTextsTheHostGives) {
    const auto& tabs = dynamic_cast<CTabCtrl&>(*Cells().GetDlgItem(TCellListView::cnTabs));
    ASSERT_EQ(tabs.GetItemCount(), 3);
    EXPECT_EQ(tabs.GetItemText(1), "");
    Cells().SetCellTabsText(1, "Wide");
    Cells().SetCellTabsText(9, "none");
    EXPECT_EQ(tabs.GetItemText(1), "Wide");
    Cells().SwitchSetupTab(1);
    EXPECT_EQ(Cells().GetSetupTab(), 1);
    EXPECT_EQ(m_host.Lines(), TLines());
}

TEST_F(TCellListViewTest, NamesItsControlsForAssistiveTechnology) {
    EXPECT_FALSE(Cells().GetAccessibleName().IsEmpty());
    ASSERT_EQ(Cells().GetChildren().size(), 6u);
    for (const CWnd* control : Cells().GetChildren())
        EXPECT_FALSE(control->GetAccessibleName().IsEmpty());
}

TEST_F(TCellListViewTest, LaysOutAnySize) {
    for (const int width : {0, 1, 5, 40, 100, 400, 4000}) {
        for (const int height : {0, 1, 30, 60, 100, 900}) {
            SCOPED_TRACE(std::to_string(width) + " x " + std::to_string(height));
            Cells().MoveWindow({0, 0, width, height});
            for (const CWnd* control : Cells().GetChildren()) {
                EXPECT_GE(control->GetRect().Width(), 0);
                EXPECT_GE(control->GetRect().Height(), 0);
                EXPECT_LE(control->GetRect().Width(), width);
            }
        }
    }
    Cells().MoveWindow({0, 0, 400, 500});
    const auto rect = [this](UINT id) { return Cells().GetDlgItem(id)->GetRect(); };
    EXPECT_LE(rect(TCellListView::cnFilterCombo).right, rect(TCellListView::cnFilterEdit).left);
    EXPECT_LE(rect(TCellListView::cnFilterEdit).right, rect(TCellListView::cnFilterButton).left);
    EXPECT_EQ(rect(TCellListView::cnFilterButton).right, rect(TCellListView::cnReport).right);
    EXPECT_LE(rect(TCellListView::cnFilterEdit).bottom, rect(TCellListView::cnReport).top);
    EXPECT_LE(rect(TCellListView::cnReport).bottom, rect(TCellListView::cnTabs).top);
    EXPECT_LE(rect(TCellListView::cnTabs).bottom, rect(TCellListView::cnStatus).top);
    EXPECT_LE(rect(TCellListView::cnStatus).bottom, 500);
}

}  // namespace
