/// @file
/// A navigator whose host tears things down: while it fills a menu, while one is open or a drag is going on,
/// and in the command that was picked, it ends the window, the navigator itself or the frame, drops a
/// library, or fetches rows. Who shows menus is the deriving test's to say.
#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "tests/browser/AnsweringWindow.h"
#include "tests/browser/RecordingHost.h"
#include "vapp/browser/Messages.h"
#include "vapp/browser/TLibraryBrowser.h"
#include "vapp/browser/TLibraryView.h"
#include "vapp/toolkit/CFrameWnd.h"
#include "vapp/toolkit/CWinAppEx.h"

class TornDownFrame : public CFrameWnd {
public:
    ~TornDownFrame() override { DestroyWindow(); }
};

/// Rows `l1 a sym` and `l2 b lay`; after some acts others.
class TornDownNavigator : public testing::Test {
protected:
    enum class TMoment { Filling, Open, Running };
    enum class TKind { WindowEnds, ObjectEnds, FrameEnds, LibraryGoes, RowsFetched, RowComesBefore };
    struct TAct {
        const char* name;
        TKind kind;
        std::function<void()> run;
        [[nodiscard]] bool EndsWindow() const { return kind <= TKind::FrameEnds; }
    };

    TornDownNavigator() {
        m_window.answer = [this](UINT message, WPARAM, LPARAM) -> LRESULT { return Answer(message); };
    }

    void Begin() {
        using vapp_library_browser::TLibraryBrowser;
        m_frame = std::make_unique<TornDownFrame>();
        m_frame->CreateFrame("frame", {0, 0, 400, 940});
        m_navigator = std::make_unique<TLibraryBrowser>();
        m_host.Answer("database all_libs", "{top {l1 /l1} {l2 /l2}}");
        m_host.AnswerStart("database cells", "2");
        AnswerRows("{l1 a sym} {l2 b lay}");
        m_host.AnswerStart("librarynavigator preview set", "");
        m_host.HandleStart("logaction", [this](Tcl_Interp*) {
            ++m_ran;
            m_lines.push_back(m_host.Lines().back());
            At(TMoment::Running);
            return 0;
        });
        ASSERT_TRUE(m_navigator->Initialize(m_frame.get(), m_host.GetInterp(), nullptr));
        m_navigator->Populate();
        m_shown = m_ran = 0;
        m_lines.clear();
        m_isDone = false;
    }
    void End() {
        m_navigator.reset();
        m_frame.reset();
    }

    LRESULT Answer(UINT message) {
        using namespace vapp_library_browser;
        if (message == WM_LN_BUILDCELLMENU && m_navigator) {
            m_navigator->AddCellListMenuCommand("Act", "act", StyleFocusedLcv, false, false, false);
            m_navigator->BeginCellListSubmenu("More");
            m_navigator->AddCellListMenuCommand("Below", "act", StyleSelectedLcvs, false, false, false);
            m_navigator->EndCellListSubmenu();
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

    [[nodiscard]] vapp_library_browser::TCellNamesReportCtrl& Report() {
        return m_navigator->GetCellListView()->GetReport();
    }
    [[nodiscard]] CTabCtrl& Tabs() {
        using vapp_library_browser::TCellListView;
        return dynamic_cast<CTabCtrl&>(*m_navigator->GetCellListView()->GetDlgItem(TCellListView::cnTabs));
    }
    /// All rows as "library cell view".
    [[nodiscard]] std::vector<std::string> Rows() {
        std::vector<std::string> rows;
        for (std::uint64_t row = 0; row < Report().GetCellViewCount(); ++row)
            rows.emplace_back(Report().GetCell(row).Join(" ").Payload());
        return rows;
    }
    void AnswerRows(const char* rows) {
        m_host.AnswerStart("database cells -lcv -library top -filter", rows);
        m_host.Answer("database cells -lcv -library top", rows);
    }
    void FetchRows() {
        m_navigator->RequestCellListViewDelayedPopulate(vapp_library_browser::UpdateAlways);
        m_navigator->Populate();
    }
    void DropLibrary() {
        m_host.Answer("database all_libs", "{top {l1 /l1}}");
        AnswerRows("{l1 a sym}");
        m_navigator->RequestLibraryViewDelayedPopulate();
        FetchRows();
    }
    [[nodiscard]] std::vector<TAct> Acts() {
        return {{"the window ends", TKind::WindowEnds, [this] { m_navigator->DestroyWindow(); }},
                {"the navigator ends", TKind::ObjectEnds, [this] { m_navigator.reset(); }},
                {"the frame's window ends", TKind::FrameEnds, [this] { m_frame->DestroyWindow(); }},
                {"the library goes", TKind::LibraryGoes, [this] { DropLibrary(); }},
                {"rows are fetched", TKind::RowsFetched, [this] { FetchRows(); }},
                {"a row comes before", TKind::RowComesBefore, [this] {
                     AnswerRows("{l1 0 sym} {l1 a sym} {l2 b lay}");
                     FetchRows();
                 }}};
    }
    /// What the act leaves in the list.
    [[nodiscard]] static std::vector<std::string> RowsAfter(TKind kind) {
        if (kind == TKind::LibraryGoes) return {"l1 a sym"};
        if (kind == TKind::RowComesBefore) return {"l1 0 sym", "l1 a sym", "l2 b lay"};
        return {"l1 a sym", "l2 b lay"};
    }
    /// The cell that has the focus when the command is run that was picked in the menu of `l1 a sym`. A
    /// fetching puts the focus back by the row's number, and the user sees it there before picking.
    [[nodiscard]] static std::string FocusWhenPicked(TKind kind, TMoment moment) {
        return kind == TKind::RowComesBefore && moment != TMoment::Running ? "l1 0 sym" : "l1 a sym";
    }
    /// What a command for libraries is told when `l2` was selected.
    [[nodiscard]] static std::string LibrariesWhenPicked(TKind kind, TMoment moment) {
        const bool isGone = kind == TKind::LibraryGoes && moment != TMoment::Running;
        return isGone ? "" : " -libraries { \"l2\" }";
    }

    RecordingHost m_host;
    CWinAppEx m_app{"tool"};
    AnsweringWindow m_window{m_app};
    std::unique_ptr<TornDownFrame> m_frame;
    std::unique_ptr<vapp_library_browser::TLibraryBrowser> m_navigator;
    std::function<void()> m_act;
    TMoment m_moment = TMoment::Filling;
    int m_shown = 0;
    int m_ran = 0;
    std::vector<std::string> m_lines;
    bool m_isDone = false;
};
