/// @file
/// Menus, double clicks and drags that are torn down, without a screen: whatever the host does at whichever
/// moment, the navigator lives on, and what is run names what was meant.
#include <any>

#include "tests/celllist/TornDownNavigator.h"
#include "tests/toolkit/RecordingPeers.h"
#include "vapp/browser/CExcludeDlg.h"
#include "vapp/celllist/CLibCellViewOleData.h"
#include "vapp/celllist/CLibCellViewOleDataSource.h"
#include "vapp/celllist/TCellListCommand.h"

namespace {

using namespace vapp_library_browser;
using TTornLines = std::vector<std::string>;

class TornDownMenu : public TornDownNavigator {
protected:
    struct TWhat {
        const char* name;
        std::function<void()> open;  ///< asks for the menu, and picks the host's item or the first view
        UINT picked;
    };

    TornDownMenu() {
        m_peers.pick = [this](const CMenu&) {
            ++m_shown;
            At(TMoment::Open);
            return m_picked;
        };
        m_peers.answerDialog = [this](CDialog& dialog) {
            ++m_shown;
            At(TMoment::Open);
            dynamic_cast<CButton&>(*dialog.GetDlgItem(IDOK)).Click();
        };
        COleDataSource::InstallDragRunner([this](COleDataSource& source, UINT, const CRect&) {
            At(TMoment::Open);
            const std::any* data = source.GetData(CLibCellViewOleDataSource::ClipboardFormatLibCellView);
            const auto* cell = data != nullptr ? std::any_cast<CLibCellViewOleData>(data) : nullptr;
            if (cell != nullptr) m_dragged = *cell;
            m_draggedText = source.GetText();
            return cnDropCopy;
        });
    }
    ~TornDownMenu() override { COleDataSource::InstallDragRunner({}); }

    [[nodiscard]] CPoint InRow(int row) {
        return {10, Report().GetHeaderHeight() + row * Report().GetRowHeight() + 1};
    }
    void OpenRows() {
        Report().ContextClickedByUser(0);
        Report().ContextMenuByPeer(Report().ClientToScreen(InRow(0)));
    }
    // The View column stands behind the first one.
    void OpenHeader() {
        const int left = Report().GetColumns().GetAt(0)->GetShownWidth() + 1;
        Report().ContextMenuByPeer(Report().ClientToScreen({left, 1}));
    }
    void OpenTab() { Tabs().ContextClickedByUser(1, {5, 5}); }
    void OpenLibraries() {
        m_navigator->SelectInLibraryList("l2");
        m_navigator->GetLibraryView()->GetLibraryListCtrl().ContextMenuByPeer({30, 40});
    }
    /// What the picked command was told; nothing of a tab's, which has none.
    [[nodiscard]] static TTornLines WantedLines(const std::string& menu, const TAct& act, TMoment moment) {
        if (menu == "tab" || (act.EndsWindow() && moment != TMoment::Running)) return {};
        if (menu == "rows") return {"logaction act top " + FocusWhenPicked(act.kind, moment)};
        return {"logaction act top" + LibrariesWhenPicked(act.kind, moment)};
    }

    RecordingPeers m_peers;
    UINT m_picked = 0;
    CLibCellViewOleData m_dragged{{}, {}, false};
    CStringU m_draggedText;
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
                const bool endsEarly = act.EndsWindow() && moment != TMoment::Running;
                EXPECT_EQ(m_ran, endsEarly ? 0 : 1) << "what was picked in a window that has gone is not run";
                EXPECT_EQ(m_shown, act.EndsWindow() && moment == TMoment::Filling ? 0 : 1);
                EXPECT_EQ(m_lines, WantedLines(menu.name, act, moment));
                if (!act.EndsWindow()) {
                    EXPECT_EQ(Rows(), RowsAfter(act.kind));
                }
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
        if (!act.EndsWindow()) {
            EXPECT_EQ(Report().GetOptions().viewFilter, std::set<CStringIU>{CStringIU("lay")})
                << "the name that the menu showed";
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
        EXPECT_EQ(m_ran, act.EndsWindow() ? 1 : 2) << "the message, and the line if there is still a window";
        if (!act.EndsWindow()) {
            EXPECT_EQ(m_lines, TTornLines{"logaction act top { \"l1 a sym\" }"})
                << "the selection goes with the cell";
        }
        End();
    }
}

TEST_F(TornDownMenu, ADragSurvivesEveryActAndCarriesWhatWasPressed) {
    for (const TAct& act : Acts()) {
        SCOPED_TRACE(act.name);
        Begin();
        m_act = act.run;
        m_moment = TMoment::Open;
        m_dragged = CLibCellViewOleData({}, {}, false);
        EXPECT_TRUE(Report().DragBegunByUser(InRow(0), 2)) << "the drop has been made all the same";
        EXPECT_TRUE(m_isDone);
        const TTornLines names = {m_dragged.design.Payload(), m_dragged.library.Payload(),
                                  m_dragged.cell.Payload(), m_dragged.view.Payload(),
                                  m_dragged.sortKey.Payload()};
        EXPECT_EQ(names, (TTornLines{"top", "l1", "a", "sym", ""}));
        EXPECT_TRUE(m_dragged.startedByRightButton);
        EXPECT_EQ(m_draggedText, "l1 a sym");
        if (!act.EndsWindow()) {
            EXPECT_FALSE(Report().IsInDragDrop());
            EXPECT_EQ(Rows(), RowsAfter(act.kind));
        }
        End();
    }
}

// The views to leave out are the user's setting, whatever has become of the window in which they were asked.
TEST_F(TornDownMenu, TheDialogOfTheExcludedViewsSurvivesEveryAct) {
    for (const TAct& act : Acts()) {
        SCOPED_TRACE(act.name);
        Begin();
        m_host.ClearLines();
        m_act = act.run;
        m_moment = TMoment::Open;
        m_picked = ExcludeViews;
        m_app.WriteProfileString("LibraryNavigator", "ExcludeViewNames", "mine");
        // The menu comes first; the act is the dialog's.
        m_isDone = true;
        m_peers.pick = [this](const CMenu&) {
            m_isDone = false;
            return m_picked;
        };
        OpenRows();
        EXPECT_TRUE(m_isDone);
        EXPECT_EQ(m_app.GetProfileString("LibraryNavigator", "ExcludeViewNames"), CString("mine"));
        if (act.EndsWindow()) {
            EXPECT_EQ(m_host.LinesStarting("database cells -lcv -library top -filter"), TTornLines());
        } else {
            EXPECT_EQ(Report().GetExcludeViews(), "mine");
            EXPECT_EQ(Rows(), RowsAfter(act.kind));
        }
        End();
    }
}

// What has no handler says so in a box, which waits for the user as well.
TEST_F(TornDownMenu, ABoxThatHasNothingToDoSurvivesEveryAct) {
    for (const TAct& act : Acts()) {
        SCOPED_TRACE(act.name);
        Begin();
        m_act = act.run;
        m_moment = TMoment::Open;
        m_picked = ColumnChooser;
        m_isDone = true;
        m_peers.pick = [this](const CMenu&) {
            m_isDone = false;
            return m_picked;
        };
        m_peers.whileBoxIsShown = [this] { At(TMoment::Open); };
        m_peers.boxes.clear();
        OpenRows();
        EXPECT_TRUE(m_isDone);
        ASSERT_EQ(m_peers.boxes.size(), 1u);
        EXPECT_EQ(m_peers.boxes[0].GetText(), "Not yet implemented.");
        EXPECT_EQ(m_lines, TTornLines());
        End();
    }
}

// The host is asked for the view names before each menu, and whether its column chooser shows.
TEST_F(TornDownMenu, TheQuestionsBeforeAMenuSurviveTheEndOfTheWindow) {
    for (const TAct& act : Acts()) {
        if (act.kind != TKind::WindowEnds && act.kind != TKind::FrameEnds) continue;
        for (const bool isOfViews : {true, false}) {
            SCOPED_TRACE(std::string(act.name) + (isOfViews ? " views" : " chooser"));
            Begin();
            m_isDone = true;
            m_picked = 41000;
            if (isOfViews) {
                m_host.Handle("database cells -lcv -library top", [&](Tcl_Interp*) {
                    act.run();
                    return 0;
                });
            }
            m_window.answer = [&](UINT message, WPARAM, LPARAM) -> LRESULT {
                if (message == WM_LN_COLCHOOSERSHOWN && m_navigator->IsWindow()) act.run();
                return Answer(message);
            };
            Report().ContextMenuByPeer({20, 60});
            EXPECT_FALSE(m_navigator->IsWindow());
            EXPECT_EQ(m_shown, 0);
            EXPECT_EQ(m_ran, 0);
            End();
        }
    }
}

}  // namespace
