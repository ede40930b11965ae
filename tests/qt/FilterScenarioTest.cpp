/// @file
/// The filter row, the menus and the setups of a whole navigator on the screen, by mouse and keys, and a
/// second run that finds all as it was.
#include <QContextMenuEvent>
#include <QLabel>
#include <QLineEdit>
#include <QTabBar>
#include <QTest>
#include <QToolButton>

#include "tests/celllist/CellListFixture.h"
#include "tests/qt/PopupAnswer.h"
#include "toolkit/qt/QtReportHeader.h"
#include "toolkit/qt/QtReportView.h"
#include "vapp/toolkit/qt/QtPeerFactory.h"

namespace {

using namespace vapp_library_browser;
using TLines = std::vector<std::string>;

class FilterScenarioTest : public CellListFixture {
protected:
    void SetUp() override {
        ShowCells({{"l1", "abc", "sym"}, {"l1", "abd", "lay"}, {"l1", "xyz", "sym"}});
        m_host.Answer("database cells -lcv -library top", "{l1 abc sym} {l1 abd lay}");
        m_browser.SerializeSetup(false);
        m_frame.ShowWindow(true);
        QApplication::processEvents();
        QApplication::setActiveWindow(gWidgetOf(m_frame));
        m_host.ClearLines();
    }

    template <typename Widget>
    [[nodiscard]] Widget* Control(UINT id) {
        return dynamic_cast<Widget*>(gWidgetOf(*Cells().GetDlgItem(id)));
    }
    [[nodiscard]] QLineEdit* Edit() { return Control<QLineEdit>(TCellListView::cnFilterEdit); }
    [[nodiscard]] vapp_qt::QtReportView* View() {
        return Control<vapp_qt::QtReportView>(TCellListView::cnReport);
    }
    [[nodiscard]] QTabBar* Tabs() { return Control<QTabBar>(TCellListView::cnTabs); }
    void ClickTab(int tab) {
        QTest::mouseClick(Tabs(), Qt::LeftButton, Qt::NoModifier, Tabs()->tabRect(tab).center());
    }
    void AskForMenu(QWidget* widget, QPoint point) {
        QContextMenuEvent event(QContextMenuEvent::Mouse, point, widget->mapToGlobal(point));
        QApplication::sendEvent(widget, &event);
    }
    // What the host does when nothing is left to do.
    void Idle() {
        QApplication::processEvents();
        m_browser.Populate();
        QApplication::processEvents();
    }
};

TEST_F(FilterScenarioTest, TypedLettersNarrowTheListOnceTheHostIsIdle) {
    Edit()->setFocus();
    QTest::keyClicks(Edit(), "ab");
    EXPECT_EQ(m_host.LinesStarting("database cells"), TLines());
    Idle();
    EXPECT_EQ(Rows(), (TLines{"l1 abc sym", "l1 abd lay"}));
    EXPECT_EQ(Status(), "2 of 3 cells");
    QTest::keyClick(Edit(), Qt::Key_Escape);
    Idle();
    EXPECT_EQ(Rows().size(), 3u);
    EXPECT_TRUE(Edit()->text().isEmpty());
    EXPECT_TRUE(Edit()->hasFocus());
    QTest::keyClick(Edit(), Qt::Key_Escape);
    EXPECT_TRUE(View()->hasFocus());
}

TEST_F(FilterScenarioTest, KeysLeadToTheFilterAndBack) {
    View()->setFocus();
    QTest::keyClick(View(), Qt::Key_F, Qt::ControlModifier);
    EXPECT_TRUE(Edit()->hasFocus());
    QTest::keyClick(Edit(), Qt::Key_Down);
    EXPECT_TRUE(View()->hasFocus());
    EXPECT_EQ(SelectedCells(), TLines{"l1 abc sym"});
    QTest::keyClick(View(), Qt::Key_Down);
    EXPECT_EQ(SelectedCells(), TLines{"l1 abd lay"});
    QTest::keyClicks(View(), "/");
    EXPECT_TRUE(Edit()->hasFocus());
    EXPECT_TRUE(Edit()->text().isEmpty()) << "the key itself is no text";
    QWidget* libraries = gWidgetOf(Libraries().GetLibraryListCtrl());
    libraries->setFocus();
    QTest::keyClick(libraries, Qt::Key_F, Qt::ControlModifier);
    EXPECT_TRUE(Edit()->hasFocus());
}

TEST_F(FilterScenarioTest, GoingToTheFilterSelectsItsText) {
    QTest::keyClicks(Edit(), "abc");
    View()->setFocus();
    QTest::keyClick(View(), Qt::Key_F, Qt::ControlModifier);
    EXPECT_EQ(Edit()->selectedText(), "abc");
}

TEST_F(FilterScenarioTest, TheButtonClearsAndThenOffersTheHistory) {
    auto* button = Control<QToolButton>(TCellListView::cnFilterButton);
    ASSERT_NE(button, nullptr);
    QTest::keyClicks(Edit(), "xyz");
    QTest::mouseClick(button, Qt::LeftButton);
    EXPECT_TRUE(Edit()->text().isEmpty());
    {
        const PopupAnswer answer([](QMenu& popup) {
            ASSERT_EQ(popup.actions().size(), 1);
            QTest::mouseClick(&popup, Qt::LeftButton, Qt::NoModifier,
                              popup.actionGeometry(popup.actions().first()).center());
        });
        QTest::mouseClick(button, Qt::LeftButton);
    }
    EXPECT_EQ(Edit()->text(), "xyz");
    Idle();
    EXPECT_EQ(Rows(), TLines{"l1 xyz sym"});
}

TEST_F(FilterScenarioTest, TheMenusOfRowsAndHeadersLimitTheViews) {
    {
        const PopupAnswer answer([](QMenu& popup) {
            ASSERT_EQ(popup.actions().size(), 4);
            EXPECT_EQ(popup.actions()[2]->text(), "lay");
            popup.actions()[2]->trigger();
        });
        AskForMenu(View()->Header(), {150, 3});
    }
    EXPECT_EQ(Report().GetOptions().viewFilter, (std::set<CStringIU>{"lay"}));
    {
        const PopupAnswer answer([](QMenu& popup) {
            QAction* item = popup.findChild<QAction*>("command40621");
            ASSERT_NE(item, nullptr);
            EXPECT_FALSE(item->isChecked());
            item->trigger();
        });
        AskForMenu(View()->viewport(), {10, 5});
    }
    EXPECT_TRUE(Report().GetOptions().showHiddenCells);
    EXPECT_EQ(m_host.LinesStarting("database cells").back(),
              std::string(csList) + " -showhiddencells -showvias -views {lay}");
}

TEST_F(FilterScenarioTest, ADoubleClickBelowTheRowsEmptiesTheFilter) {
    QTest::keyClicks(Edit(), "ab");
    Idle();
    const QPoint below(10, View()->viewport()->height() - 2);
    QTest::mouseDClick(View()->viewport(), Qt::LeftButton, Qt::NoModifier, below);
    EXPECT_TRUE(Edit()->text().isEmpty());
}

TEST_F(FilterScenarioTest, NoTabIsNarrowerThanItsShortestText) {
    const int least = Tabs()->fontMetrics().horizontalAdvance("WWW");
    for (int tab = 0; tab < 3; ++tab)
        EXPECT_GE(Tabs()->tabRect(tab).width(), least) << tab;
}

TEST_F(FilterScenarioTest, DraggedColumnsComeBackWithTheirSetupAndInTheNextRun) {
    vapp_qt::QtReportHeader* header = View()->Header();
    const int edge = Column("Cell").GetWidth();
    QTest::mousePress(header, Qt::LeftButton, Qt::NoModifier, {edge - 1, 5});
    QTest::mouseMove(header, {edge + 20, 5});
    QTest::mouseMove(header, {edge + 29, 5});
    QTest::mouseRelease(header, Qt::LeftButton, Qt::NoModifier, {edge + 29, 5});
    const int width = Column("Cell").GetWidth();
    EXPECT_EQ(width, edge + 30);
    ClickTab(1);
    EXPECT_EQ(Report().GetActiveSetup(), "Setup2");
    EXPECT_EQ(Column("Cell").GetWidth(), 140);
    ClickTab(0);
    EXPECT_EQ(Column("Cell").GetWidth(), width);
    QTest::keyClicks(Edit(), "abc");
    m_browser.SerializeSetup(true);

    // The next run of the program, with the settings of this one.
    CFrameWnd frame;
    ASSERT_TRUE(frame.CreateFrame("next", {0, 0, 400, 900}));
    TLibraryBrowser next;
    ASSERT_TRUE(next.Initialize(&frame, m_host.GetInterp(), nullptr));
    next.SerializeSetup(false);
    TCellListView& cells = *next.GetCellListView();
    EXPECT_EQ(cells.GetReport().GetColumns().GetAt(0)->GetWidth(), width);
    EXPECT_EQ(cells.GetSetupTab(), 0);
    EXPECT_EQ(cells.GetCellFilterHistory(), "abc\n");
    EXPECT_TRUE(cells.GetFilterText().IsEmpty()) << "the filter itself doesn't last";
}

}  // namespace
