/// @file
/// The menus of both lists, of a tab and of a header as the user sees them, torn down while they are open:
/// whatever the host does, the menu leaves the screen with its window, and what is picked in one that stays
/// is done with what was meant.
#include <QContextMenuEvent>
#include <QPointer>
#include <QTabBar>
#include <QTest>

#include "tests/celllist/TornDownNavigator.h"
#include "tests/qt/PopupAnswer.h"
#include "toolkit/qt/QtListView.h"
#include "toolkit/qt/QtReportHeader.h"
#include "toolkit/qt/QtReportView.h"
#include "vapp/toolkit/CTabCtrl.h"
#include "vapp/toolkit/qt/QtPeerFactory.h"

namespace {

using namespace vapp_library_browser;

class TornDownMenus : public TornDownNavigator {
protected:
    struct TShown {
        const char* name;
        std::function<void()> open;
        bool isBelow;  ///< the item is picked from the sub-menu
    };

    void Show() {
        m_frame->ShowWindow(true);
        QApplication::processEvents();
        QApplication::setActiveWindow(gWidgetOf(*m_frame));
    }
    // As a right button does it: the press first, and then the request. The widget may end meanwhile.
    static void RightClick(QWidget& widget, QPoint point) {
        const QPointer<QWidget> clicked(&widget);
        QTest::mousePress(&widget, Qt::RightButton, Qt::NoModifier, point);
        QContextMenuEvent event(QContextMenuEvent::Mouse, point, widget.mapToGlobal(point));
        QApplication::sendEvent(&widget, &event);
        EXPECT_FALSE(clicked.isNull()) << "its event isn't over";
    }
    void OpenRows() {
        RightClick(*dynamic_cast<vapp_qt::QtReportView&>(*gWidgetOf(Report())).viewport(),
                   {30, Report().GetRowHeight() / 2});
    }
    void OpenHeader() {
        auto& view = dynamic_cast<vapp_qt::QtReportView&>(*gWidgetOf(Report()));
        auto* const header = view.findChild<vapp_qt::QtReportHeader*>();
        ASSERT_NE(header, nullptr);
        const QPoint point(Report().GetColumns().GetAt(0)->GetShownWidth() + 3, 4);
        QContextMenuEvent event(QContextMenuEvent::Mouse, point, header->mapToGlobal(point));
        QApplication::sendEvent(header, &event);
    }
    void OpenTab() {
        auto& bar = dynamic_cast<QTabBar&>(*gWidgetOf(Tabs()));
        RightClick(bar, bar.tabRect(1).center());
    }
    void OpenLibraries() {
        m_navigator->SelectInLibraryList("l2");
        auto& list = m_navigator->GetLibraryView()->GetLibraryListCtrl();
        RightClick(*dynamic_cast<vapp_qt::QtListView&>(*gWidgetOf(list)).viewport(),
                   {10, list.GetRowHeight() + 4});
    }
    /// The host's sub-menu stands behind its item.
    static QAction* More(const QMenu& popup) { return popup.actions().at(1); }
};

TEST_F(TornDownMenus, EachLeavesTheScreenWithItsWindowAndActsOnWhatWasMeantOtherwise) {
    const TShown menus[] = {{"rows", [this] { OpenRows(); }, false},
                            {"rows, sub-menu", [this] { OpenRows(); }, true},
                            {"header", [this] { OpenHeader(); }, false},
                            {"tab", [this] { OpenTab(); }, false},
                            {"libraries", [this] { OpenLibraries(); }, false}};
    for (const TShown& menu : menus) {
        for (const TAct& act : Acts()) {
            SCOPED_TRACE(std::string(menu.name) + ": " + act.name);
            Begin();
            Show();
            m_isDone = true;
            {
                const PopupAnswer answer([&](QMenu& popup) {
                    const QPointer<QMenu> open(&popup);
                    if (menu.isBelow) {
                        popup.setActiveAction(More(popup));
                        QTest::keyClick(&popup, Qt::Key_Right);
                        ASSERT_EQ(QApplication::activePopupWidget(), More(popup)->menu());
                    }
                    act.run();
                    EXPECT_EQ(!open || !open->isVisible(), act.EndsWindow());
                    if (act.EndsWindow()) {
                        EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
                    }
                    QApplication::processEvents();
                    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
                    if (!open) return;
                    QAction* const item =
                        menu.isBelow ? More(*open)->menu()->actions().first() : open->actions().first();
                    item->trigger();
                });
                menu.open();
            }
            const std::string name = menu.name;
            std::vector<std::string> wanted;
            if (name == "rows") wanted = {"logaction act top " + FocusWhenPicked(act.kind, TMoment::Open)};
            if (menu.isBelow) wanted = {"logaction act top -lcvs { \"l1 a sym\" }"};
            if (name == "libraries")
                wanted = {"logaction act top" + LibrariesWhenPicked(act.kind, TMoment::Open)};
            EXPECT_EQ(m_lines, act.EndsWindow() ? std::vector<std::string>() : wanted);
            if (!act.EndsWindow()) {
                EXPECT_EQ(Rows(), RowsAfter(act.kind));
            }
            End();
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        }
    }
}

}  // namespace
