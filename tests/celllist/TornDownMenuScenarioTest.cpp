/// @file
/// Menus that are torn down: while the host fills one, while it is open, and by the command that was picked
/// from it, the host ends the window, the navigator itself or the frame, drops a library, or fetches rows.
#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "tests/browser/AnsweringWindow.h"
#include "tests/browser/RecordingHost.h"
#include "tests/toolkit/RecordingPeers.h"
#include "vapp/browser/Messages.h"
#include "vapp/browser/TLibraryBrowser.h"
#include "vapp/browser/TLibraryView.h"
#include "vapp/celllist/CLibCellViewOleDataSource.h"
#include "vapp/toolkit/CFrameWnd.h"
#include "vapp/toolkit/CWinAppEx.h"

namespace {

using namespace vapp_library_browser;

class TornDownFrame : public CFrameWnd {
public:
    ~TornDownFrame() override { DestroyWindow(); }
};

class TornDownMenu : public testing::Test {
protected:
    enum class TMoment { Filling, Open, Running };
    struct TWhat {
        const char* name;
        std::function<void()> open;  ///< asks for the menu, and picks the host's item or the first view
        UINT picked;
    };
    struct TAct {
        const char* name;
        std::function<void()> run;
        bool endsWindow;
    };

    TornDownMenu() {
        m_window.answer = [this](UINT message, WPARAM, LPARAM) -> LRESULT { return Answer(message); };
        m_peers.pick = [this](const CMenu&) {
            ++m_shown;
            At(TMoment::Open);
            return m_picked;
        };
        COleDataSource::InstallDragRunner([this](COleDataSource&, UINT, const CRect&) {
            At(TMoment::Open);
            return cnDropCopy;
        });
    }
    ~TornDownMenu() override { COleDataSource::InstallDragRunner({}); }

    void Begin() {
        m_frame = std::make_unique<TornDownFrame>();
        m_frame->CreateFrame("frame", {0, 0, 400, 940});
        m_navigator = std::make_unique<TLibraryBrowser>();
        m_host.Answer("database all_libs", "{top {l1 /l1} {l2 /l2}}");
        m_host.AnswerStart("database cells", "2");
        m_host.AnswerStart("database cells -lcv -library top -filter", "{l1 a sym} {l2 b lay}");
        m_host.Answer("database cells -lcv -library top", "{l1 a sym} {l2 b lay}");
        m_host.AnswerStart("librarynavigator preview set", "");
        m_host.HandleStart("logaction", [this](Tcl_Interp*) {
            ++m_ran;
            At(TMoment::Running);
            return 0;
        });
        ASSERT_TRUE(m_navigator->Initialize(m_frame.get(), m_host.GetInterp(), nullptr));
        m_navigator->Populate();
        m_shown = m_ran = 0;
        m_isDone = false;
    }
    void End() {
        m_navigator.reset();
        m_frame.reset();
    }

    LRESULT Answer(UINT message) {
        if (message == WM_LN_BUILDCELLMENU && m_navigator) {
            m_navigator->AddCellListMenuCommand("Act", "act", StyleFocusedLcv, false, false, false);
            At(TMoment::Filling);
        }
        if (message == WM_LN_BUILDLIBRARYMENU && m_navigator) {
            m_navigator->AddLibraryListMenuCommand("Act", "act", StyleSelectedLibraries, false, false, false);
            At(TMoment::Filling);
        }
        if (message == WM_LN_BUILDTABMENU && m_navigator) {
            m_navigator->GetCellListView()->AddCellTabsMenuItem("Act", false);
            At(TMoment::Filling);
        }
        if (message == WM_LN_TABMENUPICK || message == WM_LN_CELLDBLCLK) {
            ++m_ran;
            At(TMoment::Running);
        }
        return 0;
    }
    void At(TMoment moment) {
        if (moment != m_moment || m_isDone) return;
        m_isDone = true;
        m_act();
    }

    [[nodiscard]] TCellNamesReportCtrl& Report() { return m_navigator->GetCellListView()->GetReport(); }
    [[nodiscard]] CPoint InRow(int row) {
        return {10, Report().GetHeaderHeight() + row * Report().GetRowHeight() + 1};
    }
    void OpenRows() { Report().ContextMenuByPeer(Report().ClientToScreen(InRow(0))); }
    // The View column stands behind the first one.
    void OpenHeader() {
        const int left = Report().GetColumns().GetAt(0)->GetShownWidth() + 1;
        Report().ContextMenuByPeer(Report().ClientToScreen({left, 1}));
    }
    void OpenTab() {
        auto& tabs =
            dynamic_cast<CTabCtrl&>(*m_navigator->GetCellListView()->GetDlgItem(TCellListView::cnTabs));
        tabs.ContextClickedByUser(1, {5, 5});
    }
    void OpenLibraries() {
        m_navigator->SelectInLibraryList("l2");
        m_navigator->GetLibraryView()->GetLibraryListCtrl().ContextMenuByPeer({30, 40});
    }
    void FetchRows() {
        m_navigator->RequestCellListViewDelayedPopulate(UpdateAlways);
        m_navigator->Populate();
    }
    void DropLibrary() {
        m_host.Answer("database all_libs", "{top {l1 /l1}}");
        m_host.AnswerStart("database cells -lcv -library top -filter", "{l1 a sym}");
        m_navigator->RequestLibraryViewDelayedPopulate();
        FetchRows();
    }
    [[nodiscard]] std::vector<TAct> Acts() {
        return {{"the window ends", [this] { m_navigator->DestroyWindow(); }, true},
                {"the navigator ends", [this] { m_navigator.reset(); }, true},
                {"the frame's window ends", [this] { m_frame->DestroyWindow(); }, true},
                {"the library goes", [this] { DropLibrary(); }, false},
                {"rows are fetched", [this] { FetchRows(); }, false}};
    }

    RecordingHost m_host;
    RecordingPeers m_peers;
    CWinAppEx m_app{"tool"};
    AnsweringWindow m_window{m_app};
    std::unique_ptr<TornDownFrame> m_frame;
    std::unique_ptr<TLibraryBrowser> m_navigator;
    std::function<void()> m_act;
    TMoment m_moment = TMoment::Filling;
    UINT m_picked = 0;
    int m_shown = 0;
    int m_ran = 0;
    bool m_isDone = false;
};

TEST_F(TornDownMenu, EveryMenuSurvivesEveryActAtEveryMoment) {
    const TWhat menus[] = {{"rows", [this] { OpenRows(); }, 41000},
                           {"tab", [this] { OpenTab(); }, 101},
                           {"libraries", [this] { OpenLibraries(); }, 0xA0F0}};
    for (const TWhat& menu : menus) {
        for (const TAct& act : Acts()) {
            for (const TMoment moment : {TMoment::Filling, TMoment::Open, TMoment::Running}) {
                SCOPED_TRACE(std::string(menu.name) + ": " + act.name + " at moment " +
                             std::to_string(static_cast<int>(moment)));
                Begin();
                m_act = act.run;
                m_moment = moment;
                m_picked = menu.picked;
                menu.open();
                EXPECT_TRUE(m_isDone);
                const bool endsEarly = act.endsWindow && moment != TMoment::Running;
                EXPECT_EQ(m_ran, endsEarly ? 0 : 1) << "what was picked in a window that has gone is not run";
                EXPECT_EQ(m_shown, act.endsWindow && moment == TMoment::Filling ? 0 : 1);
                End();
            }
        }
    }
}

TEST_F(TornDownMenu, TheMenuOfAHeaderSurvivesEveryAct) {
    for (const TAct& act : Acts()) {
        SCOPED_TRACE(act.name);
        Begin();
        m_act = act.run;
        m_moment = TMoment::Open;
        m_picked = 43000;
        OpenHeader();
        EXPECT_TRUE(m_isDone);
        if (!act.endsWindow) {
            EXPECT_EQ(Report().GetOptions().viewFilter.size(), 1u);
        }
        End();
    }
}

TEST_F(TornDownMenu, ADoubleClickSurvivesEveryAct) {
    for (const TAct& act : Acts()) {
        SCOPED_TRACE(act.name);
        Begin();
        m_act = act.run;
        m_moment = TMoment::Running;
        m_navigator->SetCellListDefaultMenuCommand("act", StyleSelectedLcvs);
        Report().ClickedByUser(0, {});
        Report().DoubleClickedByUser(InRow(0));
        EXPECT_TRUE(m_isDone);
        EXPECT_EQ(m_ran, act.endsWindow ? 1 : 2) << "the message, and the line if there is still a window";
        End();
    }
}

TEST_F(TornDownMenu, ADragSurvivesEveryAct) {
    for (const TAct& act : Acts()) {
        SCOPED_TRACE(act.name);
        Begin();
        m_act = act.run;
        m_moment = TMoment::Open;
        EXPECT_TRUE(Report().DragBegunByUser(InRow(0), 1)) << "the drop has been made all the same";
        EXPECT_TRUE(m_isDone);
        if (m_navigator && m_navigator->IsWindow()) {
            EXPECT_FALSE(Report().IsInDragDrop());
        }
        End();
    }
}

}  // namespace
