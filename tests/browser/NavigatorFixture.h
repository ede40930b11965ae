/// @file
/// A whole navigator for tests: application with settings in memory, frame that answers for the theme, host
/// that records, and the three panes.
#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <memory>

#include "tests/browser/RecordingHost.h"
#include "vapp/browser/Messages.h"
#include "vapp/browser/PendingHighlight.h"
#include "vapp/browser/TLibraryBrowser.h"
#include "vapp/browser/TLibraryView.h"
#include "vapp/browser/TSymbolPreview.h"
#include "vapp/toolkit/CFrameWnd.h"
#include "vapp/toolkit/CWinAppEx.h"

/// The main window of the tests.
class ThemedFrame : public CFrameWnd {
public:
    ~ThemedFrame() override { DestroyWindow(); }
    bool dark = false;
    std::function<void(UINT)> heard;  ///< what the host does when it is asked, or told

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        if (heard) heard(message);
        if (message == vapp_library_browser::WM_LN_ISDARKTHEME) return dark ? 1 : 0;
        return CFrameWnd::WindowProc(message, wParam, lParam);
    }
};

class NavigatorFixture : public testing::Test {
protected:
    NavigatorFixture() {
        m_app.SetMainWnd(&m_frame);
        m_frame.CreateFrame("frame", {0, 0, 400, 940});
        m_host.AnswerStart("database cells", "");
        m_host.AnswerStart("librarynavigator preview set", "");
    }
    ~NavigatorFixture() override { vapp_library_browser::gPendingHighlight().reset(); }

    void Initialize() { ASSERT_TRUE(m_browser.Initialize(&m_frame, m_host.GetInterp(), nullptr)); }
    /// Answers `database all_libs` with one design "top" of these libraries, paths being "/" and the name.
    void AnswerLibraries(const std::vector<std::string>& libraries) {
        std::vector<std::string> design = {"top"};
        for (const std::string& library : libraries) {
            design.push_back(RecordingHost::List({library, "/" + library}));
        }
        m_host.Answer("database all_libs", RecordingHost::List({RecordingHost::List(design)}));
    }
    /// Initialize, and a refresh with these libraries.
    void Show(const std::vector<std::string>& libraries) {
        Initialize();
        AnswerLibraries(libraries);
        m_browser.Populate();
        m_host.ClearLines();
    }
    void Refresh() {
        m_browser.RequestLibraryViewDelayedPopulate();
        m_browser.Populate();
    }

    [[nodiscard]] vapp_library_browser::TLibraryView& Libraries() { return *m_browser.GetLibraryView(); }
    [[nodiscard]] vapp_library_browser::TCellListView& Cells() { return *m_browser.GetCellListView(); }
    [[nodiscard]] vapp_library_browser::TSymbolPreview& Preview() { return *m_browser.GetSymbolPreview(); }
    /// The names in the library list, from top to bottom.
    [[nodiscard]] std::vector<std::string> Shown() {
        std::vector<std::string> names;
        const auto& list = Libraries().GetLibraryListCtrl();
        for (int row = 0; row < list.GetItemCount(); ++row)
            names.emplace_back(list.GetItemText(row).Payload());
        return names;
    }
    [[nodiscard]] std::vector<std::string> Selected() {
        std::vector<std::string> names;
        for (const CStringIU& name : Libraries().GetSelectedLibrariesSet())
            names.emplace_back(name.Payload());
        return names;
    }
    void Select(const char* library) { Libraries().SelectInLibraryList(library); }

    RecordingHost m_host;
    CWinAppEx m_app{"tool"};
    ThemedFrame m_frame;
    vapp_library_browser::TLibraryBrowser m_browser;
};
