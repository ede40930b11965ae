#include "vapp/browser/TSymbolPreview.h"

#include <gtest/gtest.h>
#include <tcl.h>

#include "platform/World.h"
#include "tests/browser/NavigatorFixture.h"
#include "tests/text/TextHelpers.h"
#include "tests/toolkit/RecordingPeers.h"

using namespace vapp_library_browser;

class TSymbolPreviewTest : public NavigatorFixture {
protected:
    /// One cell in the list; with the focus on it.
    void ShowFocusedCell() {
        m_host.AnswerStart("database cells -lcv -library top -count", "1");
        m_host.AnswerStart("database cells -lcv -library top -filter", "{lib inv layout}");
        Show({"lib"});
        ASSERT_EQ(m_browser.GetCellViewCount(), 1u);
        Cells().GetReport().ClickedByUser(0, {});
        ASSERT_EQ(m_browser.GetFocusedCell(), TLibCellView("lib", "inv", "layout"));
        m_host.ClearLines();
    }
    [[nodiscard]] std::vector<std::string> PreviewLines() const {
        return m_host.LinesStarting("librarynavigator");
    }

    /// As a desktop reports sizes, minimised ones too.
    void Resize(UINT type, int cx, int cy) {
        struct Opened : TSymbolPreview {
            using TSymbolPreview::OnSize;
        };
        (Preview().*(&Opened::OnSize))(type, cx, cy);
    }

    HBITMAP m_bitmap = reinterpret_cast<HBITMAP>(&m_host);  // opaque: only its address is looked at
};

TEST_F(TSymbolPreviewTest, ALineThatMovesTheFocusAndEndsTheWindowIsTheLast) {
    ShowFocusedCell();
    m_host.HandleStart("librarynavigator preview", [this](Tcl_Interp*) {
        Preview().DisplayNewPreview();
        m_browser.DestroyWindow();
        return TCL_OK;
    });
    Preview().DisplayNewPreview();
    EXPECT_EQ(PreviewLines().size(), 1u);
}

TEST_F(TSymbolPreviewTest, AsksForAPictureOfThePresentSize) {
    ShowFocusedCell();
    Preview().MoveWindow({0, 0, 208, 232});
    m_host.ClearLines();
    Preview().DisplayNewPreview();
    m_browser.ModifyForQEdit();
    Preview().DisplayNewPreview();
    ExpectGolden("preview.txt", PreviewLines());
}

TEST_F(TSymbolPreviewTest, WithoutAFocusedCellPictureAndCaptionAreClearedAndNothingIsSent) {
    Show({"lib"});
    m_browser.SetPreview(false, "inv", m_bitmap);
    m_host.ClearLines();
    const unsigned paints = Preview().GetPicture().GetInvalidateCount();
    Preview().DisplayNewPreview();
    EXPECT_TRUE(m_host.Lines().empty());
    EXPECT_EQ(Preview().GetPicture().GetImage(), nullptr);
    EXPECT_TRUE(Preview().GetCaption().GetWindowText().IsEmpty());
    EXPECT_GT(Preview().GetPicture().GetInvalidateCount(), paints);
}

TEST_F(TSymbolPreviewTest, TheEditorModeNamesNoDesign) {
    ShowFocusedCell();
    m_browser.ModifyForQEdit();
    Preview().DisplayNewPreview();
    ASSERT_EQ(PreviewLines().size(), 1u);
    EXPECT_EQ(PreviewLines()[0].find("-primary"), std::string::npos);
}

TEST_F(TSymbolPreviewTest, NamesAreSanitisedOneByOne) {
    const HookGuard hook;
    m_host.Answer("database all_libs", "{{my top} {{my lib} /lib}}");
    m_host.AnswerStart("database cells -lcv -library {my top} -count", "1");
    m_host.AnswerStart("database cells -lcv -library {my top} -filter", "{{my lib} {a b} {c d}}");
    Initialize();
    m_browser.Populate();
    Cells().GetReport().ClickedByUser(0, {});
    m_host.ClearLines();
    Preview().DisplayNewPreview();
    ASSERT_EQ(PreviewLines().size(), 1u);
    EXPECT_TRUE(
        PreviewLines()[0].starts_with("librarynavigator preview set -primary {my top} -library {my lib} "
                                      "-cell {a b} -view {c d} -bmwidth "))
        << PreviewLines()[0];
}

TEST_F(TSymbolPreviewTest, AResizeSendsOneLineWithTheNewSize) {
    ShowFocusedCell();
    Preview().MoveWindow({0, 0, 308, 332});
    ASSERT_EQ(PreviewLines().size(), 1u);
    EXPECT_TRUE(PreviewLines()[0].ends_with(" -bmwidth 300 -bmheight 300")) << PreviewLines()[0];
    Preview().MoveWindow({10, 10, 318, 342});
    EXPECT_EQ(PreviewLines().size(), 1u) << "the size is the same";
}

TEST_F(TSymbolPreviewTest, AMovedPaneIsRepaintedWholeWherePixelsComeAlong) {
    vapp_platform::SetWineAnswer(true);
    Initialize();
    Preview().MoveWindow({0, 0, 208, 232});
    const unsigned pane = Preview().GetInvalidateCount();
    const unsigned picture = Preview().GetPicture().GetInvalidateCount();
    const unsigned caption = Preview().GetCaption().GetInvalidateCount();
    Preview().MoveWindow({0, 10, 208, 242});
    EXPECT_EQ(Preview().GetInvalidateCount(), pane + 1);
    EXPECT_EQ(Preview().GetPicture().GetInvalidateCount(), picture + 1);
    EXPECT_EQ(Preview().GetCaption().GetInvalidateCount(), caption + 1);
    vapp_platform::SetWineAnswer(false);
    Preview().MoveWindow({0, 20, 208, 252});
    EXPECT_EQ(Preview().GetInvalidateCount(), pane + 1) << "elsewhere nothing need be painted";
    EXPECT_EQ(Preview().GetPicture().GetInvalidateCount(), picture + 1);
    vapp_platform::SetWineAnswer(std::nullopt);
}

TEST_F(TSymbolPreviewTest, TheCaptionStandsBelowThePictureWithinTheMargins) {
    Initialize();
    Preview().MoveWindow({0, 0, 208, 232});
    EXPECT_EQ(Preview().GetPicture().GetRect(), CRect(4, 4, 204, 204));
    EXPECT_EQ(Preview().GetCaption().GetRect(), CRect(4, 208, 204, 228));
}

TEST_F(TSymbolPreviewTest, AWindowTooSmallForItsMarginsKeepsSaneSizes) {
    ShowFocusedCell();
    for (const CRect& rect :
         {CRect(0, 0, 1, 1), CRect(0, 0, 3, 500), CRect(0, 0, 500, 3), CRect(0, 0, 0, 0)}) {
        Preview().MoveWindow(rect);
        EXPECT_GE(Preview().GetPicture().GetRect().Width(), 0);
        EXPECT_GE(Preview().GetPicture().GetRect().Height(), 0);
    }
}

TEST_F(TSymbolPreviewTest, TheHostAnswersFromInsideOfTheLine) {
    ShowFocusedCell();
    m_host.HandleStart("librarynavigator preview set", [this](Tcl_Interp*) {
        m_browser.SetPreview(false, "inv", m_bitmap);
        return TCL_OK;
    });
    Preview().DisplayNewPreview();
    EXPECT_EQ(Preview().GetPicture().GetImage(), m_bitmap);
    EXPECT_EQ(Preview().GetCaption().GetWindowText(), CString("inv"));
}

TEST_F(TSymbolPreviewTest, WithoutAnAnswerTheOldPictureStays) {
    ShowFocusedCell();
    m_browser.SetPreview(false, "old", m_bitmap);
    m_host.HandleStart("librarynavigator preview set", [](Tcl_Interp*) { return TCL_ERROR; });
    Preview().DisplayNewPreview();
    EXPECT_EQ(Preview().GetPicture().GetImage(), m_bitmap);
    EXPECT_EQ(Preview().GetCaption().GetWindowText(), CString("old"));
}

TEST_F(TSymbolPreviewTest, ClearingTakesTheBitmapThatComesWithItAndNoCaption) {
    Initialize();
    m_browser.SetPreview(true, "caption", m_bitmap);
    EXPECT_EQ(Preview().GetPicture().GetImage(), m_bitmap);
    EXPECT_TRUE(Preview().GetCaption().GetWindowText().IsEmpty());
}

TEST_F(TSymbolPreviewTest, AHostThatRefreshesInEveryAnswerComesToAnEnd) {
    ShowFocusedCell();
    m_host.HandleStart("librarynavigator preview set", [this](Tcl_Interp*) {
        Preview().DisplayNewPreview();
        m_browser.RequestCellListViewDelayedPopulate(UpdateAlways);
        m_browser.Populate();
        return TCL_OK;
    });
    Preview().DisplayNewPreview();
    EXPECT_EQ(PreviewLines().size(), 2u);
}

TEST_F(TSymbolPreviewTest, WithoutItsNeighboursItDoesNothing) {
    TLibraryView withoutCellPane;
    TSymbolPreview preview;
    preview.DisplayNewPreview();
    ASSERT_TRUE(preview.Create(&m_frame, 1, {0, 0, 100, 100}));
    preview.SetPreview(false, "inv", m_bitmap);
    for (TLibraryView* neighbour : {static_cast<TLibraryView*>(nullptr), &withoutCellPane}) {
        preview.SetLibraryView(neighbour);
        preview.DisplayNewPreview();
        EXPECT_EQ(preview.GetPicture().GetImage(), m_bitmap);
        EXPECT_EQ(preview.GetCaption().GetWindowText(), CString("inv"));
    }
    EXPECT_TRUE(m_host.Lines().empty());
}

TEST_F(TSymbolPreviewTest, TheCaptionShowsInTheActiveCodePage) {
    const text_test::TCodePageGuard guard(1252);
    Initialize();
    m_browser.SetPreview(false, CStringU("caf\xC3\xA9", TextEncoding::Utf8Auto), nullptr);
    EXPECT_EQ(Preview().GetCaption().GetWindowText(), CString("caf\xE9"));
}

TEST_F(TSymbolPreviewTest, AMinimisedPaneKeepsItsLayoutAndSendsNoLine) {
    ShowFocusedCell();
    Preview().MoveWindow({0, 0, 208, 232});
    m_host.ClearLines();
    Resize(cnSizeMinimized, 50, 50);
    EXPECT_EQ(Preview().GetPicture().GetRect(), CRect(4, 4, 204, 204));
    EXPECT_TRUE(m_host.Lines().empty());
}

TEST_F(TSymbolPreviewTest, ASizeWithoutAWidthLaysOutByTheWindowAndSendsNoLine) {
    ShowFocusedCell();
    Preview().MoveWindow({0, 0, 208, 232});
    m_host.ClearLines();
    Preview().GetPicture().MoveWindow({4, 4, 5, 5});
    Resize(0, 0, 77);
    EXPECT_EQ(Preview().GetPicture().GetRect(), CRect(4, 4, 204, 204));
    EXPECT_TRUE(m_host.Lines().empty());
    Resize(0, 208, 232);
    EXPECT_EQ(PreviewLines().size(), 1u);
}

TEST_F(TSymbolPreviewTest, AMovedPaneIsPaintedAtOnce) {
    vapp_platform::SetWineAnswer(true);
    RecordingPeers peers;
    Initialize();
    Preview().MoveWindow({0, 0, 208, 232});
    peers.ForgetAll();
    Preview().MoveWindow({0, 0, 218, 232});
    EXPECT_EQ(peers.Of(Preview()).updates, 0u) << "another size alone is painted when there is time";
    Preview().MoveWindow({0, 10, 218, 242});
    EXPECT_EQ(peers.Of(Preview()).updates, 1u);
    EXPECT_EQ(peers.Of(Preview()).invalidations, 1u);
    vapp_platform::SetWineAnswer(std::nullopt);
}
