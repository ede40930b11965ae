/// The host with its window: what is left of it when it ends and starts again, each time with a new program's
/// objects and the same file of settings.

#include "host/QtShell.h"

#include <gmock/gmock.h>

#include <QAbstractItemView>
#include <QContextMenuEvent>
#include <QDockWidget>
#include <QMainWindow>
#include <QScreen>
#include <QStatusBar>
#include <QTest>
#include <QTimer>
#include <fstream>
#include <sstream>

#include "host/Navigator.h"
#include "host/NavigatorApp.h"
#include "tests/host/TempFolder.h"
#include "tests/qt/PopupAnswer.h"
#include "tests/qt/UntilIdle.h"
#include "vapp/celllist/TCellListView.h"
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
            shell.Equip(&app);
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
        [[nodiscard]] QMainWindow* Window() {
            return qobject_cast<QMainWindow*>(gWidgetOf(navigator.Frame()));
        }
        [[nodiscard]] QDockWidget* Console() {
            return Window()->findChild<QDockWidget*>(QStringLiteral("consoleDock"));
        }

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

TEST_F(QtShellTest, AWindowLargerThanTheScreenOfTodayIsMadeToFit) {
    {
        QtProfileStore::InFile(m_settings.c_str(), nullptr)
            ->WriteText("WindowPlacement", "WindowPos", "normal 100 100 5000 4000");
    }
    Run run(*this);
    const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
    EXPECT_EQ(screen.size(), run.Window()->size());
    EXPECT_EQ(screen.topLeft(), run.Window()->pos());
}

TEST_F(QtShellTest, TheConsoleIsWhereItWasAndHiddenIfItWas) {
    {
        Run first(*this);
        EXPECT_FALSE(first.Console()->isVisible()) << "a narrow window belongs to the panes at first";
        QTest::keyClick(first.Window(), Qt::Key_T, Qt::ControlModifier);
        EXPECT_TRUE(first.Console()->isVisible());
        first.Window()->addDockWidget(Qt::BottomDockWidgetArea, first.Console());
        QApplication::processEvents();
    }
    {
        Run second(*this);
        EXPECT_TRUE(second.Console()->isVisible());
        EXPECT_EQ(Qt::BottomDockWidgetArea, second.Window()->dockWidgetArea(second.Console()));
        second.Console()->close();
    }
    Run third(*this);
    EXPECT_FALSE(third.Console()->isVisible());
}

TEST_F(QtShellTest, OneKeyGoesToTheConsoleAndBack) {
    Run run(*this);
    run.Window()->activateWindow();
    QTRY_VERIFY_WITH_TIMEOUT(run.Window()->isActiveWindow(), 10'000);
    QTest::keyClick(run.Window(), Qt::Key_T, Qt::ControlModifier);
    QWidget* const input = run.Console()->findChild<QWidget*>(QStringLiteral("consoleInput"));
    EXPECT_EQ(input, QApplication::focusWidget());
    QTest::keyClick(input, Qt::Key_T, Qt::ControlModifier);
    EXPECT_FALSE(run.Console()->isVisible());
    EXPECT_NE(input, QApplication::focusWidget());
    EXPECT_NE(nullptr, QApplication::focusWidget());
}

TEST_F(QtShellTest, ALineThatMovesTheListLeavesTheKeyboardInTheConsole) {
    Run run(*this);
    run.Window()->activateWindow();
    QTRY_VERIFY_WITH_TIMEOUT(run.Window()->isActiveWindow(), 10'000);
    QTest::keyClick(run.Window(), Qt::Key_T, Qt::ControlModifier);
    QWidget* const input = run.Console()->findChild<QWidget*>(QStringLiteral("consoleInput"));
    QTest::keyClicks(input, QStringLiteral("database select lib inv symbol"));
    QTest::keyClick(input, Qt::Key_Return);
    QTRY_VERIFY_WITH_TIMEOUT(run.navigator.Browser().GetFocusedCell().cell == "inv", 10'000);
    EXPECT_EQ(input, QApplication::focusWidget());
}

// The loop of an open menu comes to rest too. What the user picks is done with the cell that the menu is of.
TEST_F(QtShellTest, RowsThatCameWhileAMenuIsOpenAreFetchedWhenItHasBeenLeft) {
    Run run(*this);
    gRunUntilIdle();
    auto& report = run.navigator.Browser().GetCellListView()->GetReport();
    ASSERT_EQ(1, report.GetRows().GetCount());
    std::string opened;
    run.navigator.Cells().SetOpenHandler(
        [&](const navigator::CellViewName& name, const std::filesystem::path&) { opened = name.cell; });
    auto& rows = *dynamic_cast<QAbstractItemView&>(*gWidgetOf(report)).viewport();
    const QPoint row(30, report.GetRowHeight() / 2);
    {
        const PopupAnswer answer([&](QMenu& popup) {
            m_folder.Write("lib/and.sym", "v {}\n");
            run.navigator.Rescan();
            gRunUntilIdle();
            EXPECT_EQ(1, report.GetRows().GetCount());
            popup.defaultAction()->trigger();
        });
        QTest::mousePress(&rows, Qt::RightButton, Qt::NoModifier, row);
        QContextMenuEvent event(QContextMenuEvent::Mouse, row, rows.mapToGlobal(row));
        QApplication::sendEvent(&rows, &event);
        QTest::mouseRelease(&rows, Qt::RightButton, Qt::NoModifier, row);
    }
    EXPECT_EQ("inv", opened);
    gRunUntilIdle();
    EXPECT_EQ(2, report.GetRows().GetCount());
}

TEST_F(QtShellTest, TheKeyOfTheConsoleIsNoHarmWithoutPanes) {
    Run run(*this);
    run.Window()->activateWindow();
    QTRY_VERIFY_WITH_TIMEOUT(run.Window()->isActiveWindow(), 10'000);
    QTest::keyClick(run.Window(), Qt::Key_T, Qt::ControlModifier);
    QWidget* const input = run.Console()->findChild<QWidget*>(QStringLiteral("consoleInput"));
    run.navigator.Browser().DestroyWindow();
    QTest::keyClick(input, Qt::Key_T, Qt::ControlModifier);
    EXPECT_FALSE(run.Console()->isVisible());
}

TEST_F(QtShellTest, AScriptEndsTheProgramWithItsStatus) {
    Run run(*this);
    EXPECT_EQ(TCL_ERROR, Tcl_Eval(run.navigator.Interp(), "exit some words"));
    EXPECT_EQ(TCL_ERROR, Tcl_Eval(run.navigator.Interp(), "exit word"));
    QTimer::singleShot(0, run.Window(), [&] {
        EXPECT_EQ(TCL_OK, Tcl_Eval(run.navigator.Interp(), "exit 7; set ::reached 1"));
    });
    EXPECT_EQ(7, run.shell.Run());
    EXPECT_STREQ("1", Tcl_GetVar(run.navigator.Interp(), "reached", TCL_GLOBAL_ONLY))
        << "the line comes to its end first";
}

TEST_F(QtShellTest, AScriptMayEndTheProgramBeforeItsWindowIsThere) {
    Run run(*this);
    EXPECT_EQ(TCL_OK, Tcl_Eval(run.navigator.Interp(), "exit"));
    EXPECT_EQ(0, run.shell.Run());
}

TEST_F(QtShellTest, TheListHasTheKeyboardAtFirst) {
    Run run(*this);
    run.Window()->activateWindow();
    QTRY_VERIFY_WITH_TIMEOUT(run.Window()->isActiveWindow(), 10'000);
    QWidget* const list = gWidgetOf(run.navigator.Browser().GetCellListView()->GetReport());
    ASSERT_NE(nullptr, QApplication::focusWidget());
    EXPECT_TRUE(list == QApplication::focusWidget() || list->isAncestorOf(QApplication::focusWidget()));
}

TEST_F(QtShellTest, ASentenceForTheUserStandsInTheStatusLine) {
    Run run(*this);
    run.shell.Tell(
        "Na\xC3\xAF"
        "ve words.");
    EXPECT_EQ(QString::fromUtf8("Na\xC3\xAF"
                                "ve words."),
              run.Window()->statusBar()->currentMessage());
}

}  // namespace
}  // namespace navigator_test
