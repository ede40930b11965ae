/// @file
/// Menus on the screen: what they show, and what comes back.
#include "toolkit/qt/QtMenu.h"

#include <QTest>
#include <functional>

#include "tests/qt/PopupAnswer.h"
#include "tests/qt/QtTestFrame.h"
#include "toolkit/qt/QtPeer.h"

namespace {

class QtMenuTest : public testing::Test {
protected:
    QtMenuTest() {
        menu.Append(1, "&First");
        menu.AppendSeparator();
        menu.Append(2, gMenuTextOf("a&b"));
        menu.AppendPopup("More").Append(3, "third");
    }
    UINT Track(TMenuAlign align = TMenuAlign::Left) {
        return menu.Track(shown.form, shown.form.ClientToScreen({50, 60}), align);
    }

    ShownFrame shown;
    CMenu menu;
};

}  // namespace

TEST_F(QtMenuTest, ShowsItsItems) {
    menu.Check(1, true);
    menu.Enable(2, false);
    menu.SetDefault(1);
    const PopupAnswer answer([](QMenu& popup) {
        const QList<QAction*> actions = popup.actions();
        ASSERT_EQ(actions.size(), 4);
        EXPECT_EQ(actions[0]->text(), "&First");
        EXPECT_TRUE(actions[0]->isChecked());
        EXPECT_EQ(popup.defaultAction(), actions[0]);
        EXPECT_TRUE(actions[1]->isSeparator());
        EXPECT_EQ(actions[2]->text(), "a&&b");
        EXPECT_FALSE(actions[2]->isEnabled());
        ASSERT_NE(actions[3]->menu(), nullptr);
        EXPECT_EQ(actions[3]->menu()->actions().first()->text(), "third");
    });
    EXPECT_EQ(Track(), 0u) << "a menu that was left";
}

TEST_F(QtMenuTest, ShowsATabAsABlankAndCutsWhatIsVeryLong) {
    CMenu odd;
    odd.Append(1, "left\tright");
    odd.Append(2, CStringU(std::string(30'000, 'x').c_str()));
    odd.Append(3, gMenuTextOf(CStringU(std::string(300, '&').c_str())));
    odd.AppendPopup("a\tb").Append(4, "below");
    const PopupAnswer answer([](QMenu& popup) {
        const QList<QAction*> actions = popup.actions();
        ASSERT_EQ(actions.size(), 4);
        EXPECT_EQ(actions[0]->text(), "left right");
        EXPECT_LE(actions[1]->text().size(), 161);
        EXPECT_TRUE(actions[1]->text().endsWith(QChar(0x2026)));
        EXPECT_EQ(actions[2]->text().count(QLatin1Char('&')) % 2, 0) << "no sign becomes a key";
        EXPECT_EQ(actions[3]->text(), "a b");
        actions[1]->trigger();
    });
    EXPECT_EQ(odd.Track(shown.form, shown.form.ClientToScreen({50, 60})), 2u);
}

TEST_F(QtMenuTest, GivesTheCommandThatWasPickedByKeys) {
    const PopupAnswer answer([](QMenu& popup) {
        QTest::keyClick(&popup, Qt::Key_Down);
        QTest::keyClick(&popup, Qt::Key_Down);
        QTest::keyClick(&popup, Qt::Key_Return);
    });
    EXPECT_EQ(Track(), 2u);
}

TEST_F(QtMenuTest, GivesTheCommandOfASubMenu) {
    const PopupAnswer answer([](QMenu& popup) { popup.actions()[3]->menu()->actions().first()->trigger(); });
    EXPECT_EQ(Track(), 3u);
}

TEST_F(QtMenuTest, OpensOnEitherSideOfItsPoint) {
    const QPoint point = gWidgetOf(shown.form)->mapToGlobal(QPoint(50, 60));
    {
        const PopupAnswer answer([point](QMenu& popup) { EXPECT_EQ(popup.pos(), point); });
        EXPECT_EQ(Track(), 0u);
    }
    const PopupAnswer answer([point](QMenu& popup) {
        EXPECT_LT(popup.pos().x(), point.x());
        EXPECT_EQ(popup.pos().y(), point.y());
    });
    EXPECT_EQ(Track(TMenuAlign::Right), 0u);
}

TEST_F(QtMenuTest, SurvivesTheEndOfItsOwner) {
    {
        const PopupAnswer answer([this](QMenu& popup) {
            popup.close();
            shown.frame.DestroyWindow();
        });
        EXPECT_EQ(Track(), 0u);
    }
    CWnd without;
    EXPECT_EQ(menu.Track(without, {}), 0u) << "no widget, no menu";
}

TEST_F(QtMenuTest, LeavesTheScreenWithItsOwner) {
    const std::function<void()> ends[] = {[this] { shown.form.ShowWindow(false); },
                                          [this] { shown.frame.ShowWindow(false); },
                                          [this] { shown.form.DestroyWindow(); }};
    for (const std::function<void()>& end : ends) {
        for (const bool isSubMenuOpen : {false, true}) {
            if (!shown.form.IsWindow()) continue;
            shown.frame.ShowWindow(true);
            shown.form.ShowWindow(true);
            QApplication::processEvents();
            const PopupAnswer answer([&](QMenu& popup) {
                const QPointer<QMenu> open(&popup);
                const QPointer<QMenu> below(popup.actions()[3]->menu());
                if (isSubMenuOpen) {
                    popup.setActiveAction(popup.actions()[3]);
                    QTest::keyClick(&popup, Qt::Key_Right);
                    ASSERT_TRUE(below->isVisible());
                }
                // As it comes from inside of an event of the window itself.
                const vapp_qt::QtBusyScope busy;
                end();
                EXPECT_TRUE(!open || !open->isVisible()) << "nobody is there to pick for";
                EXPECT_TRUE(!below || !below->isVisible());
            });
            EXPECT_EQ(Track(), 0u);
            EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
        }
    }
}
