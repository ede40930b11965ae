/// @file
/// The end of the navigator's window from inside of each line that it sends: whoever sent the line goes on
/// afterwards, in a pane whose window has gone.
#include <gtest/gtest.h>
#include <tcl.h>

#include <functional>

#include "tests/browser/NavigatorFixture.h"
#include "vapp/toolkit/CDocument.h"

using namespace vapp_library_browser;

class TLibraryBrowserEnd : public NavigatorFixture {
protected:
    /// Two designs, two libraries, two cells; the focus on the first cell.
    void ShowAll() {
        m_host.Answer("database all_libs", "{one {a /a} {b /b}} {two {c /c}}");
        m_host.AnswerStart("database selected_master", "a inv layout");
        m_host.AnswerStart("database cells", "2");
        m_host.AnswerStart("database cells -lcv -library one -count", "2");
        m_host.AnswerStart("database cells -lcv -library two", "{c inv layout}");
        m_host.AnswerStart("database libraryinfo is_edit_allowed", "1");
        m_host.AnswerStart("database libraryinfo is_unresolved", "1");
        m_host.AnswerStart("database cells -lcv -library one -filter", "{a inv layout} {a nand layout}");
        m_host.AnswerStart("database cells -lcv -library two -filter", "{c inv layout}");
        m_host.AnswerStart("database filter", "1");
        m_host.AnswerStart("database top_level", "a");
        m_host.AnswerStart("database libraryinfo", "1");
        m_host.AnswerStart("database cellviewinfo", "1");
        m_host.AnswerStart("column", "text");
        m_host.AnswerStart("librarynavigator preview set", "");
        if (!m_browser.Initialize(&m_frame, m_host.GetInterp(), nullptr)) return;
        m_browser.AddCellViewListColumn("Column", "column", true, false);
        m_browser.AddViewsToDoc(&m_document);
        m_browser.Populate();
        Cells().GetReport().ClickedByUser(0, {});
        m_host.ClearLines();
    }
    void PaintCells() {
        auto& report = Cells().GetReport();
        // The columns too are the pane's: as a peer does it, the walk ends with the window.
        for (int column = 0; report.IsWindow() && column < report.GetColumns().GetCount(); ++column) {
            CXTPReportRecordItemMetrics metrics;
            report.MeasureItem(0, *report.GetColumns().GetAt(column), metrics);
        }
    }
    void PaintLibraries() { static_cast<void>(Libraries().GetLibraryListCtrl().DrawItem(0)); }

    CDocument m_document;
};

TEST_F(TLibraryBrowserEnd, InsideOfAnyLineIsSurvived) {
    struct Case {
        const char* line;
        std::function<void()> action;
    };
    const Case cases[] = {
        {"database all_libs", [this] { Refresh(); }},
        {"database selected_master", [this] { m_document.UpdateAllViews(nullptr, cnHintSelectedMaster); }},
        {"database cells -lcv -library one -count",
         [this] { m_browser.RequestCellListViewDelayedPopulate(UpdateAlways), m_browser.Populate(); }},
        {"database cells -lcv -library one -filter",
         [this] { m_browser.RequestCellListViewDelayedPopulate(UpdateAlways), m_browser.Populate(); }},
        {"database cells -lcv -library two", [this] { m_browser.SetSelectedDesign("two"); }},
        {"database cells -lcv -library two", [this] { Libraries().GetDesignCombo().PickedByUser(1); }},
        {"database filter", [this] { m_browser.RequestCellListViewDelayedPopulate(UpdateIfFilterSaysSo); }},
        {"database top_level", [this] { PaintLibraries(); }},
        {"database libraryinfo is_edit_allowed", [this] { m_browser.ModifyForQEdit(), PaintLibraries(); }},
        {"database libraryinfo is_unresolved", [this] { m_browser.ModifyForQEdit(), PaintLibraries(); }},
        {"database cellviewinfo", [this] { PaintCells(); }},
        {"column", [this] { PaintCells(); }},
        {"librarynavigator preview set", [this] { Preview().DisplayNewPreview(); }},
        {"librarynavigator preview set", [this] { Cells().GetReport().ClickedByUser(1, {}); }},
        {"librarynavigator preview set",
         [this] {
             m_frame.MoveWindow({0, 0, 500, 800});
         }},
        {"librarynavigator preview set",
         [this] { m_browser.SetRowHeight(1, m_browser.GetRowHeight(1) - 7); }},
    };
    m_host.AddCommand("column");
    for (const Case& test : cases) {
        for (const bool again : {false, true}) {
            SCOPED_TRACE(std::string(test.line) + (again ? ", made again at once" : ""));
            ShowAll();
            ASSERT_EQ(m_browser.GetRowCount(), 3);
            ASSERT_EQ(m_browser.GetCellViewCount(), 2u);
            int times = 0;
            m_host.HandleStart(test.line, [&](Tcl_Interp* interp) {
                ++times;
                m_browser.DestroyWindow();
                if (again && times == 1) static_cast<void>(m_browser.Initialize(&m_frame, interp, nullptr));
                Tcl_SetObjResult(interp, Tcl_NewStringObj("1", -1));
                return TCL_OK;
            });
            m_host.Handle("database all_libs", [&, ends = std::string_view(test.line) ==
                                                          "database all_libs"](Tcl_Interp* interp) {
                if (ends) ++times, m_browser.DestroyWindow();
                Tcl_SetObjResult(interp, Tcl_NewStringObj("{one {a /a} {b /b}} {two {c /c}}", -1));
                return TCL_OK;
            });
            test.action();
            EXPECT_GE(times, 1) << "the line was not sent";
            m_browser.DestroyWindow();
            EXPECT_EQ(m_browser.GetLibraryView(), nullptr);
            EXPECT_TRUE(m_document.GetViews().empty());
            gPendingHighlight().reset();
            m_frame.MoveWindow({0, 0, 400, 940});
            // The handlers are of this round; the table of the next one replaces what it needs.
            m_host.HandleStart(test.line, [](Tcl_Interp*) { return TCL_ERROR; });
        }
    }
}

TEST_F(TLibraryBrowserEnd, InsideOfAnyMessageIsSurvived) {
    struct Case {
        UINT message;
        std::function<void()> action;
    };
    const Case cases[] = {
        {WM_LN_HOSTNOTIFY, [this] { Cells().GetReport().ClickedByUser(1, {}); }},
        {WM_LN_ISDARKTHEME, [this] { Refresh(); }},
        {WM_LN_ISDARKTHEME, [this] { PaintLibraries(); }},
        {WM_LN_ISDARKTHEME,
         [this] { m_browser.RequestCellListViewDelayedPopulate(UpdateAlways), m_browser.Populate(); }},
        {WM_LN_COLCHOOSERSHOWN, [this] { Cells().SetFocus(); }},
    };
    m_host.AddCommand("column");
    for (const Case& test : cases) {
        for (const bool again : {false, true}) {
            SCOPED_TRACE(std::to_string(test.message) + (again ? ", made again at once" : ""));
            ShowAll();
            ASSERT_EQ(m_browser.GetRowCount(), 3);
            int times = 0;
            m_frame.heard = [&](UINT message) {
                if (message != test.message || ++times > 1) return;
                m_browser.DestroyWindow();
                if (again) static_cast<void>(m_browser.Initialize(&m_frame, m_host.GetInterp(), nullptr));
            };
            test.action();
            m_frame.heard = nullptr;
            EXPECT_GE(times, 1) << "nobody was asked";
            m_browser.DestroyWindow();
            EXPECT_TRUE(m_document.GetViews().empty());
        }
    }
}

std::function<void()> gHookAction;

TEST_F(TLibraryBrowserEnd, InsideOfTheHookIsSurvived) {
    const std::function<void()> actions[] = {
        [this] { PaintLibraries(); },
        [this] { PaintCells(); },
        [this] { Preview().DisplayNewPreview(); },
        [this] { m_browser.RequestCellListViewDelayedPopulate(UpdateAlways), m_browser.Populate(); },
    };
    m_host.AddCommand("column");
    for (std::size_t action = 0; action < std::size(actions); ++action) {
        // In the course of a line the hook comes once for each name.
        for (const int call : {1, 2, 3}) {
            SCOPED_TRACE(std::to_string(action) + ", call " + std::to_string(call));
            ShowAll();
            int times = 0;
            gHookAction = [&] {
                if (++times == call) m_browser.DestroyWindow();
            };
            vapp::gSetTclSanitizeInputUPointer([](const CStringU& name) {
                gHookAction();
                return name;
            });
            actions[action]();
            vapp::gSetTclSanitizeInputUPointer(nullptr);
            EXPECT_GE(times, 1);
            m_browser.DestroyWindow();
            EXPECT_TRUE(m_document.GetViews().empty());
        }
    }
    gHookAction = nullptr;
}

TEST_F(TLibraryBrowserEnd, WithTheFrameInsideOfALineIsSurvived) {
    ShowAll();
    m_host.Handle("database all_libs", [this](Tcl_Interp*) {
        m_frame.DestroyWindow();
        return TCL_OK;
    });
    Refresh();
    EXPECT_EQ(m_browser.GetRowCount(), 0);
    EXPECT_FALSE(m_browser.IsWindow());
}

TEST_F(TLibraryBrowserEnd, SettingsOfAnEndedListNeverReplaceThoseOfTheNextOne) {
    ShowAll();
    m_host.Handle("database all_libs", [this](Tcl_Interp* interp) {
        m_browser.DestroyWindow();
        static_cast<void>(m_browser.Initialize(&m_frame, interp, nullptr));
        return TCL_OK;
    });
    Refresh();
    ASSERT_EQ(m_browser.GetRowCount(), 3);
    EXPECT_EQ(m_app.GetProfileString("LibraryNavigator", "ShowVias", "none"), CString("true"));
    m_app.WriteProfileString("LibraryNavigator", "ShowVias", "false");
    m_browser.SerializeSetup(false);
    m_browser.DestroyWindow();
    ASSERT_TRUE(m_browser.Initialize(&m_frame, m_host.GetInterp(), nullptr)) << "which frees the ended panes";
    EXPECT_EQ(m_app.GetProfileString("LibraryNavigator", "ShowVias", "none"), CString("false"));
}

TEST_F(TLibraryBrowserEnd, OutsideOfLinesFreesThePanesAtOnce) {
    ShowAll();
    ASSERT_EQ(m_document.GetViews().size(), 3u);
    m_browser.DestroyWindow();
    EXPECT_TRUE(m_document.GetViews().empty());
}
