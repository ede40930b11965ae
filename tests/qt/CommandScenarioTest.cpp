/// @file
/// What the user does in a whole navigator on the screen: menus by mouse and by key, a double click, a drag,
/// a tip; and hosts that end all of it while a menu is open. And that each control can be told by its name.
#include <QContextMenuEvent>
#include <QCursor>
#include <QHelpEvent>
#include <QTabBar>
#include <QTest>
#include <QToolTip>

#include "tests/browser/AnsweringWindow.h"
#include "tests/celllist/CellListFixture.h"
#include "tests/qt/PopupAnswer.h"
#include "toolkit/qt/QtListView.h"
#include "toolkit/qt/QtReportView.h"
#include "vapp/celllist/CLibCellViewOleData.h"
#include "vapp/celllist/CLibCellViewOleDataSource.h"
#include "vapp/celllist/TCellListCommand.h"
#include "vapp/toolkit/qt/QtPeerFactory.h"

namespace {

using namespace vapp_library_browser;
using TCommandLines = std::vector<std::string>;

class CommandScenarioTest : public CellListFixture {
protected:
    void SetUp() override {
        ShowCells({{"l1", "abc", "sym"}, {"l1", "abd", "lay"}, {"l1", "xyz", "sym"}});
        m_host.Answer("database cells -lcv -library top", "{l1 abc sym} {l1 abd lay}");
        m_frame.ShowWindow(true);
        QApplication::processEvents();
        QApplication::setActiveWindow(gWidgetOf(m_frame));
        m_window.answer = [this](UINT message, WPARAM wParam, LPARAM lParam) {
            return Answer(message, wParam, lParam);
        };
        m_host.ClearLines();
    }
    ~CommandScenarioTest() override { QToolTip::hideText(); }

    LRESULT Answer(UINT message, WPARAM wParam, LPARAM lParam) {
        if (message == WM_LN_BUILDCELLMENU) {
            m_browser.AddCellListMenuCommand("&Open", "open", StyleFocusedLcv, false, false, true);
            m_browser.BeginCellListSubmenu("More");
            m_browser.AddCellListMenuCommand("Lock", "lock", StyleSelectedLcvs, false, true, false);
            m_browser.AddCellListMenuCommand("Never", "never", StyleCommandOnly, true, false, false);
            m_browser.EndCellListSubmenu();
        }
        if (message == WM_LN_BUILDLIBRARYMENU) {
            m_browser.AddLibraryListMenuCommand("Show", "show", StyleSelectedLibraries, false, false, false);
        }
        if (message == WM_LN_HOSTNOTIFY && wParam == cnNotifyStatusText) {
            const auto* text = reinterpret_cast<const CStringU*>(lParam);
            m_status.emplace_back(text != nullptr ? text->Payload() : "(cleared)");
        }
        return 0;
    }
    [[nodiscard]] QWidget& Viewport() {
        return *dynamic_cast<vapp_qt::QtReportView&>(*gWidgetOf(Report())).viewport();
    }
    [[nodiscard]] QWidget& LibraryViewport() {
        CWnd& list = Libraries().GetLibraryListCtrl();
        return *dynamic_cast<vapp_qt::QtListView&>(*gWidgetOf(list)).viewport();
    }
    [[nodiscard]] QPoint InRow(int row) {
        return {30, row * Report().GetRowHeight() + Report().GetRowHeight() / 2};
    }
    // As a right button does it: the press first, and then the request.
    static void RightClick(QWidget& widget, QPoint point) {
        QTest::mousePress(&widget, Qt::RightButton, Qt::NoModifier, point);
        QContextMenuEvent event(QContextMenuEvent::Mouse, point, widget.mapToGlobal(point));
        QApplication::sendEvent(&widget, &event);
        QTest::mouseRelease(&widget, Qt::RightButton, Qt::NoModifier, point);
    }
    static void PressMenuKey(QWidget& widget) {
        QContextMenuEvent event(QContextMenuEvent::Keyboard, widget.rect().center(),
                                widget.mapToGlobal(widget.rect().center()));
        QApplication::sendEvent(&widget, &event);
    }
    [[nodiscard]] TCommandLines Sent() { return m_host.LinesStarting("logaction"); }

    AnsweringWindow m_window{m_app};
    TCommandLines m_status;
};

TEST_F(CommandScenarioTest, TheMenuOfARowByTheMouse) {
    const PopupAnswer answer([](QMenu& popup) {
        const QList<QAction*> actions = popup.actions();
        ASSERT_GE(actions.size(), 4);
        EXPECT_EQ(popup.defaultAction(), actions[0]) << "shown bold";
        EXPECT_EQ(actions[0]->text(), "&Open");
        const QList<QAction*> below = actions[1]->menu()->actions();
        EXPECT_TRUE(below[0]->isChecked());
        EXPECT_FALSE(below[1]->isEnabled());
        QTest::keyClick(&popup, Qt::Key_O);
    });
    RightClick(Viewport(), InRow(1));
    EXPECT_EQ(Sent(), TCommandLines{"logaction open top l1 abd lay"}) << "the row that was clicked";
}

TEST_F(CommandScenarioTest, TheMenuKeyMeansTheFocusedRow) {
    QTest::mouseClick(&Viewport(), Qt::LeftButton, Qt::NoModifier, InRow(2));
    {
        const PopupAnswer answer([this](QMenu& popup) {
            const QPoint place = Viewport().mapFromGlobal(popup.pos());
            EXPECT_EQ(place.y() / Report().GetRowHeight(), 2);
            popup.defaultAction()->trigger();
        });
        PressMenuKey(Viewport());
    }
    EXPECT_EQ(Sent(), TCommandLines{"logaction open top l1 xyz sym"});
}

TEST_F(CommandScenarioTest, TheMenuOfTheLibrariesByMouseAndKey) {
    m_host.ClearLines();
    {
        const PopupAnswer answer([](QMenu& popup) { popup.actions().first()->trigger(); });
        RightClick(LibraryViewport(), {10, 5});
    }
    {
        const PopupAnswer answer([](QMenu& popup) { popup.actions().first()->trigger(); });
        PressMenuKey(LibraryViewport());
    }
    const TCommandLines both(2, "logaction show top -libraries { \"l1\" }");
    EXPECT_EQ(Sent(), both);
}

TEST_F(CommandScenarioTest, ADoubleClickRunsTheDefaultCommand) {
    m_browser.SetCellListDefaultMenuCommand("open", StyleFocusedLcv);
    QTest::mouseClick(&Viewport(), Qt::LeftButton, Qt::NoModifier, InRow(1));
    m_host.ClearLines();
    QTest::mouseDClick(&Viewport(), Qt::LeftButton, Qt::NoModifier, InRow(1));
    EXPECT_EQ(Sent(), TCommandLines{"logaction open top l1 abd lay"});
}

TEST_F(CommandScenarioTest, ADragOutOfTheListCarriesTheRowThatWasPressed) {
    TCommandLines dragged;
    const COleDataSource::TDragRunner own = [&](COleDataSource& source, UINT, const CRect&) {
        const std::any* data = source.GetData(CLibCellViewOleDataSource::ClipboardFormatLibCellView);
        dragged.emplace_back(std::any_cast<const CLibCellViewOleData&>(*data).cell.Payload());
        EXPECT_EQ(Report().OnDragOver(source, {5, 30}), 0u);
        return cnDropNone;
    };
    COleDataSource::InstallDragRunner(own);
    QTest::mousePress(&Viewport(), Qt::LeftButton, Qt::NoModifier, InRow(1));
    QMouseEvent move(QEvent::MouseMove, InRow(0), Viewport().mapToGlobal(InRow(0)), Qt::NoButton,
                     Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&Viewport(), &move);
    QtPeerFactory::Install();
    EXPECT_EQ(dragged, TCommandLines{"abd"});
}

// The usual case: the height of the list is no multiple of that of a row.
TEST_F(CommandScenarioTest, ARowOfWhichAPartShowsIsDraggedAndOpenedAsAnyOther) {
    TTriples rows;
    for (int number = 100; number < 400; ++number)
        rows.push_back({"l1", "c" + std::to_string(number), "sym"});
    AnswerCells(rows);
    Repopulate();
    const int height = Report().GetRowHeight();
    const int page = Report().GetCountPerPage();
    const CRect rect = Report().GetRect();
    Report().MoveWindow({rect.left, rect.top, rect.right,
                         rect.top + Report().GetHeaderHeight() + page * height + height / 2 +
                             (rect.bottom - rect.top - Report().GetClientRect().bottom)});
    QApplication::processEvents();
    ASSERT_EQ(Report().GetCountPerPage(), page);
    const QPoint inPart(30, page * height + 2);
    const std::string pressed = "c" + std::to_string(100 + page);
    TCommandLines dragged;
    const COleDataSource::TDragRunner own = [&](COleDataSource& source, UINT, const CRect&) {
        const std::any* data = source.GetData(CLibCellViewOleDataSource::ClipboardFormatLibCellView);
        dragged.emplace_back(std::any_cast<const CLibCellViewOleData&>(*data).cell.Payload());
        return cnDropNone;
    };
    COleDataSource::InstallDragRunner(own);
    QTest::mousePress(&Viewport(), Qt::LeftButton, Qt::NoModifier, inPart);
    QMouseEvent move(QEvent::MouseMove, InRow(0), Viewport().mapToGlobal(InRow(0)), Qt::NoButton,
                     Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&Viewport(), &move);
    QtPeerFactory::Install();
    QTest::mouseRelease(&Viewport(), Qt::LeftButton, Qt::NoModifier, inPart);
    EXPECT_EQ(dragged, TCommandLines{pressed});
    QTest::mouseClick(&Viewport(), Qt::LeftButton, Qt::NoModifier, InRow(0));
    m_browser.SetCellListDefaultMenuCommand("open", StyleFocusedLcv);
    m_host.ClearLines();
    QTest::mouseClick(&Viewport(), Qt::LeftButton, Qt::NoModifier, inPart);
    QTest::mouseDClick(&Viewport(), Qt::LeftButton, Qt::NoModifier, inPart);
    EXPECT_EQ(Sent(), TCommandLines{"logaction open top l1 " + pressed + " sym"});
}

TEST_F(CommandScenarioTest, ALibraryHasATipAndAStatusTextUntilThePointerLeaves) {
    const QPoint inside(10, 5);
    QCursor::setPos(LibraryViewport().mapToGlobal(inside));
    if (QCursor::pos() != LibraryViewport().mapToGlobal(inside))
        GTEST_SKIP() << "no pointer can be moved here";
    QHelpEvent event(QEvent::ToolTip, inside, LibraryViewport().mapToGlobal(inside));
    QApplication::sendEvent(&LibraryViewport(), &event);
    ASSERT_EQ(m_status.size(), 1u);
    EXPECT_EQ(QToolTip::text().toStdString(), m_status[0]);
    EXPECT_TRUE(m_status[0].ends_with("l1")) << m_status[0];
    QCursor::setPos(Viewport().mapToGlobal(QPoint(10, 40)));
    EXPECT_TRUE(QTest::qWaitFor([this] { return m_status.size() == 2; })) << "the timer looks";
    EXPECT_EQ(m_status.back(), "(cleared)");
}

TEST_F(CommandScenarioTest, EachControlHasAName) {
    int named = 0;
    for (const QWidget* widget :
         gWidgetOf(m_frame)->findChildren<QWidget*>(QRegularExpression("^control[0-9]+$"))) {
        // The panes' frames and the texts speak for themselves.
        if (widget->focusPolicy() == Qt::NoFocus || !widget->isVisible()) continue;
        EXPECT_FALSE(widget->accessibleName().isEmpty()) << widget->objectName().toStdString();
        ++named;
    }
    EXPECT_GE(named, 6);
}

TEST_F(CommandScenarioTest, SurvivesHostsThatEndThingsWhileAMenuIsOpen) {
    const std::function<void()> acts[] = {[this] { Repopulate(); }, [this] { Refresh(); },
                                          [this] { m_browser.DestroyWindow(); }};
    for (const std::function<void()>& act : acts) {
        for (QWidget* widget : {&Viewport(), &LibraryViewport()}) {
            if (!m_browser.IsWindow()) break;
            const QPointer<QWidget> clicked(widget);
            const PopupAnswer answer([&](QMenu& popup) {
                const QPointer<QMenu> open(&popup);
                act();
                QApplication::processEvents();
                QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
                EXPECT_FALSE(clicked.isNull()) << "its event isn't over";
                if (open) popup.actions().first()->trigger();
            });
            RightClick(*widget, {10, 5});
        }
    }
    EXPECT_FALSE(m_browser.IsWindow());
}

}  // namespace
