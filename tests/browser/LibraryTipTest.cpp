#include <gtest/gtest.h>

#include "platform/WineNames.h"
#include "platform/World.h"
#include "tests/browser/AnsweringWindow.h"
#include "tests/browser/NavigatorFixture.h"
#include "tests/toolkit/RecordingPeers.h"

namespace {

using namespace vapp_library_browser;

class LibraryTipTest : public NavigatorFixture {
protected:
    LibraryTipTest() {
        m_window.answer = [this](UINT message, WPARAM wParam, LPARAM lParam) -> LRESULT {
            if (message != WM_LN_HOSTNOTIFY || wParam != cnNotifyStatusText) return 0;
            const auto* text = reinterpret_cast<const CStringU*>(lParam);
            m_status.emplace_back(text != nullptr ? text->Payload() : "(cleared)");
            if (m_heard) m_heard();
            return 0;
        };
    }
    ~LibraryTipTest() override { vapp_platform::SetWineAnswer(std::nullopt); }
    void ShowPath(const std::string& path) {
        if (Started()) {
            m_browser.DestroyWindow();
        }
        Initialize();
        m_host.Answer("database all_libs",
                      RecordingHost::List({RecordingHost::List({"top", RecordingHost::List({"a", path})})}));
        m_browser.Populate();
    }
    [[nodiscard]] bool Started() const { return m_browser.GetLibraryView() != nullptr; }
    [[nodiscard]] TLibraryListCtrl& List() { return Libraries().GetLibraryListCtrl(); }
    void PointAt(int row) {
        m_peers.cursor =
            List().ClientToScreen({3, List().GetHeaderHeight() + row * List().GetRowHeight() + 1});
    }
    std::string TipOf(const std::string& path) {
        ShowPath(path);
        PointAt(0);
        const std::optional<CStringU> tip = List().OnToolTipNotify();
        return tip ? tip->Payload() : "(none)";
    }

    RecordingPeers m_peers;
    AnsweringWindow m_window{m_app};
    std::vector<std::string> m_status;
    std::function<void()> m_heard;
};

TEST_F(LibraryTipTest, APathOfForwardSlashesShowsBackslashesOnWindows) {
    vapp_platform::SetWineAnswer(false);
    EXPECT_EQ(TipOf("/libs/../std"), "\\libs\\..\\std") << "made canonical before, where only \\ counts";
    EXPECT_EQ(m_status, std::vector<std::string>{"\\libs\\..\\std"});
}

TEST_F(LibraryTipTest, APathOfForwardSlashesKeepsThemUnderWine) {
    vapp_platform::SetWineAnswer(true);
    const std::string tip = TipOf("/libs/std");
    const CStringU unixPath = gGetUnixPathOf("\\libs\\std");
    EXPECT_EQ(tip, unixPath.Payload());
    // A Wine that can't name Unix paths leaves them as they are.
    if (unixPath == CStringU("\\libs\\std")) GTEST_SKIP() << "this Wine has no names of the Unix side";
    EXPECT_TRUE(tip.ends_with("/libs/std")) << tip;
    EXPECT_EQ(tip.find('\\'), std::string::npos) << tip;
}

TEST_F(LibraryTipTest, DotsBetweenBackslashesGo) {
    vapp_platform::SetWineAnswer(false);
    EXPECT_EQ(TipOf("C:\\a\\.\\b\\..\\c"), "C:\\a\\c");
    EXPECT_EQ(TipOf("C:\\..\\.."), "C:\\");
    EXPECT_EQ(TipOf("\\a\\.."), "\\");
    EXPECT_EQ(TipOf("a\\..\\b"), "b");
    const std::string tooLong = "C:\\a\\..\\" + std::string(260, 'x');
    EXPECT_EQ(TipOf(tooLong), tooLong) << "taken as it stands";
}

TEST_F(LibraryTipTest, ALibraryWithoutAPathHasNoTip) {
    vapp_platform::SetWineAnswer(false);
    EXPECT_EQ(TipOf(""), "(none)");
    EXPECT_FALSE(List().IsTipTimerRunning());
    EXPECT_TRUE(m_status.empty());
    const auto library = [](const char* name, const char* path) { return RecordingHost::List({name, path}); };
    m_host.Answer(
        "database all_libs",
        RecordingHost::List({RecordingHost::List({"top", library("a", "here"), library("b", "")})}));
    Libraries().RequestDelayedPopulate();
    m_browser.Populate();
    PointAt(0);
    EXPECT_EQ(List().OnToolTipNotify(), CStringU("here"));
    PointAt(1);
    EXPECT_EQ(List().OnToolTipNotify(), std::nullopt);
    EXPECT_EQ(m_status, (std::vector<std::string>{"here", "(cleared)"}))
        << "no path of another library stays";
}

TEST_F(LibraryTipTest, ATipIsCutAndTheStatusTextIsWhole) {
    vapp_platform::SetWineAnswer(false);
    const std::string path(3000, 'x');
    EXPECT_EQ(TipOf(path), std::string(2047, 'x'));
    EXPECT_EQ(m_status, std::vector<std::string>{path});
}

TEST_F(LibraryTipTest, OverNoRowThereIsNoTip) {
    ShowPath("/libs/a");
    PointAt(1);
    EXPECT_EQ(List().OnToolTipNotify(), std::nullopt);
    EXPECT_FALSE(List().IsTipTimerRunning());
    EXPECT_TRUE(m_status.empty());
}

TEST_F(LibraryTipTest, TheStatusTextGoesOnceThePointerHasLeftTheRows) {
    vapp_platform::SetWineAnswer(false);
    TipOf("a");
    EXPECT_TRUE(List().IsTipTimerRunning());
    List().OnTipTimer();
    EXPECT_EQ(m_status.size(), 1u) << "the pointer is still there";
    PointAt(5);
    List().OnTipTimer();
    List().OnTipTimer();
    EXPECT_EQ(m_status, (std::vector<std::string>{"a", "(cleared)"}));
    EXPECT_FALSE(List().IsTipTimerRunning());
}

TEST_F(LibraryTipTest, SurvivesAHostThatEndsTheWindowWhenItIsTold) {
    ShowPath("a");
    PointAt(0);
    m_heard = [this] { m_browser.DestroyWindow(); };
    EXPECT_NE(List().OnToolTipNotify(), std::nullopt);
    EXPECT_FALSE(m_browser.IsWindow());
}

TEST_F(LibraryTipTest, OnlyALetterAndAColonAreADrive) {
    vapp_platform::SetWineAnswer(false);
    EXPECT_EQ(TipOf("C:"), "C:\\");
    EXPECT_EQ(TipOf("lib:"), "lib:");
    EXPECT_EQ(TipOf("lib:\\.."), "\\") << "nothing is left of it";
}

TEST_F(LibraryTipTest, ATipIsNotCutWithinACharacter) {
    vapp_platform::SetWineAnswer(false);
    const std::string smile = "\xED\xA0\xBD\xED\xB8\x80";  // as two units, the form in which texts hold it
    EXPECT_TRUE(TipOf(std::string(2046, 'x') + smile) == std::string(2046, 'x'));
    EXPECT_TRUE(TipOf(std::string(2045, 'x') + smile + "y") == std::string(2045, 'x') + smile);
}

TEST_F(LibraryTipTest, TheStatusTextGoesWithTheList) {
    vapp_platform::SetWineAnswer(false);
    TipOf("a");
    m_browser.DestroyWindow();
    EXPECT_EQ(m_status, (std::vector<std::string>{"a", "(cleared)"}));
    ShowPath("b");
    m_browser.DestroyWindow();
    EXPECT_EQ(m_status.size(), 2u) << "nothing stood there";
}

}  // namespace
