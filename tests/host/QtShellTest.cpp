/// The host with its window: what is left of it when it ends and starts again, each time with a new program's
/// objects and the same file of settings.

#include "host/QtShell.h"

#include <gmock/gmock.h>

#include <QMainWindow>
#include <QScreen>
#include <QStatusBar>
#include <QTest>
#include <fstream>
#include <sstream>

#include "host/Navigator.h"
#include "host/NavigatorApp.h"
#include "tests/host/TempFolder.h"
#include "vapp/text/ActiveCodePage.h"
#include "vapp/toolkit/qt/QtPeerFactory.h"
#include "vapp/toolkit/qt/QtProfileStore.h"

namespace navigator_test {
namespace {

using navigator::Navigator;
using navigator::QtShell;
using testing::HasSubstr;

class QtShellTest : public testing::Test {
protected:
    /// The objects of one run of the program.
    struct Run {
        explicit Run(const QtShellTest& test, int height = 940) {
            app.SetProfileStore(QtProfileStore::InFile(test.m_settings.c_str(), nullptr));
            EXPECT_FALSE(navigator.OpenFolder(test.m_folder.Path()));
            navigator.CreateWindow(600, height, false);
            navigator.LoadSetup();
            shell.RestorePlace();
            shell.Show();
            QApplication::processEvents();
        }
        /// Drags the bar below a row by so many pixels.
        void Drag(int row, int by) {
            auto* const bar =
                gWidgetOf(navigator.Browser())->findChild<QWidget*>(QStringLiteral("bar%1").arg(row));
            ASSERT_NE(bar, nullptr);
            const QPoint grab(50, 2);
            QTest::mousePress(bar, Qt::LeftButton, Qt::NoModifier, grab);
            QMouseEvent move(QEvent::MouseMove, grab + QPoint(0, by), bar->mapToGlobal(grab + QPoint(0, by)),
                             Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
            QApplication::sendEvent(bar, &move);
            QTest::mouseRelease(bar, Qt::LeftButton, Qt::NoModifier, grab);
        }
        [[nodiscard]] QWidget* Window() { return gWidgetOf(navigator.Frame()); }

        navigator::NavigatorApp app;
        Navigator navigator{app};
        QtShell shell{navigator};
    };

    void SetUp() override {
        gSetActiveCodePage(cnUtf8CodePage);
        m_folder.Write("lib/inv.sym", "v {}\n");
    }
    void TearDown() override {
        PeerFactory::Install(nullptr);
        gSetActiveCodePage(0);
    }

    TempFolder m_folder;
    TempFolder m_home;
    std::string m_settings = (m_home.Path() / "navigator.ini").string();
};

TEST_F(QtShellTest, PaneHeightsSurviveARestart) {
    {
        Run first(*this);
        EXPECT_EQ(200, first.navigator.Browser().GetRowHeight(0));
        EXPECT_EQ(500, first.navigator.Browser().GetRowHeight(1));
        first.Drag(0, -60);
        first.Drag(1, -40);
        EXPECT_EQ(140, first.navigator.Browser().GetRowHeight(0));
        first.Window()->close();
    }
    std::ostringstream file;
    file << std::ifstream(m_settings).rdbuf();
    EXPECT_THAT(file.str(), HasSubstr("\nnavigatorLibrariesPaneHeight=140\n"));
    Run second(*this);
    EXPECT_EQ(140, second.navigator.Browser().GetRowHeight(0));
    EXPECT_EQ(460, second.navigator.Browser().GetRowHeight(1));
    EXPECT_EQ(140, gWidgetOf(*second.navigator.Browser().GetPane(0, 0))->height());
}

TEST_F(QtShellTest, AFirstStartInASmallWindowShowsAllPanesAndALaterOneTheUsersHeights) {
    {
        Run first(*this, 640);
        auto& browser = first.navigator.Browser();
        EXPECT_EQ(200, browser.GetRowHeight(0));
        EXPECT_LT(browser.GetRowHeight(1), 300) << "the cells give first";
        EXPECT_GE(browser.GetPane(2, 0)->GetRect().Height(), 80) << "the preview is seen";
        first.Drag(0, -150);
        first.Drag(1, 100);
        EXPECT_EQ(50, browser.GetRowHeight(0));
    }
    Run second(*this, 300);
    EXPECT_EQ(50, second.navigator.Browser().GetRowHeight(0)) << "what the user chose stays";
}

TEST_F(QtShellTest, ThePlaceOfTheWindowSurvivesARestart) {
    {
        Run first(*this);
        EXPECT_EQ(QSize(600, 940), first.Window()->size());
        first.Window()->move(40, 30);
        first.Window()->resize(500, 620);
        QApplication::processEvents();
        first.Window()->close();
    }
    for (int run = 0; run < 3; ++run) {
        Run next(*this);
        EXPECT_EQ(QPoint(40, 30), next.Window()->pos()) << "and it does not wander";
        EXPECT_EQ(QSize(500, 620), next.Window()->size());
        EXPECT_EQ(500, next.navigator.Browser().GetRect().Width());
    }
}

TEST_F(QtShellTest, AMaximizedWindowComesBackMaximizedAndKnowsItsFormerPlace) {
    {
        Run first(*this);
        first.Window()->move(40, 30);
        first.Window()->resize(500, 620);
        first.Window()->showMaximized();
        QApplication::processEvents();
    }
    Run next(*this);
    EXPECT_TRUE(next.Window()->isMaximized());
    next.Window()->showNormal();
    QApplication::processEvents();
    EXPECT_EQ(QSize(500, 620), next.Window()->size());
}

TEST_F(QtShellTest, APlaceOutsideOfAllMonitorsIsBroughtBack) {
    {
        QtProfileStore::InFile(m_settings.c_str(), nullptr)
            ->WriteText("WindowPlacement", "WindowPos", "normal 9000 -5000 9500 -4400");
    }
    Run run(*this);
    const QRect screen = QGuiApplication::primaryScreen()->geometry();
    EXPECT_EQ(screen.right() + 1 - 500, run.Window()->x()) << "no farther than needed";
    EXPECT_EQ(screen.top(), run.Window()->y());
    EXPECT_EQ(QSize(500, 600), run.Window()->size());
}

TEST_F(QtShellTest, ASentenceForTheUserStandsInTheStatusLine) {
    Run run(*this);
    run.shell.Tell(
        "Na\xC3\xAF"
        "ve words.");
    EXPECT_EQ(QString::fromUtf8("Na\xC3\xAF"
                                "ve words."),
              qobject_cast<QMainWindow*>(run.Window())->statusBar()->currentMessage());
}

}  // namespace
}  // namespace navigator_test
