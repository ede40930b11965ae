/// @file
/// The list of libraries on the screen: what it asks, what it paints, and what the user does to it.
#include "toolkit/qt/QtListPeer.h"

#include <QAbstractItemModelTester>
#include <QHelpEvent>
#include <QPointer>
#include <QScrollBar>
#include <QTest>
#include <QTextDocument>
#include <QToolTip>
#include <optional>

#include "tests/qt/QtTestReport.h"
#include "toolkit/qt/QtListView.h"
#include "vapp/toolkit/CListCtrl.h"

namespace {

class FakeList : public CListCtrl {
public:
    std::vector<int> asked;
    std::function<void(int, ListItemLook&)> look;
    std::function<void(int)> onAsked;
    std::optional<CStringU> tip;
    std::function<void()> onTip;  ///< host script of the tip
    bool tipTimerRuns = false;
    int ticks = 0;

    std::optional<CStringU> OnToolTipNotify() override {
        const auto telling = onTip;
        if (telling) telling();
        return tip;
    }
    void OnTipTimer() override {
        ++ticks;
        tipTimerRuns = false;
    }
    [[nodiscard]] bool IsTipTimerRunning() const override { return tipTimerRuns; }
    ListItemLook DrawItem(int index) override {
        asked.push_back(index);
        ListItemLook answer = CListCtrl::DrawItem(index);
        if (look) look(index, answer);
        const auto answering = onAsked;
        if (answering) answering(index);
        return answer;
    }
};

// A form that tells an empty list what to show.
class AnsweringForm : public RecordingForm {
protected:
    bool OnNotify(Notification& notification, LRESULT& result) override {
        if (notification.code == cnListEmptyMarkup) {
            std::copy_n(u"No designs", 11, static_cast<NotifyEmptyMarkup&>(notification).markup);
            result = 1;
            return true;
        }
        return RecordingForm::OnNotify(notification, result);
    }
};

}  // namespace

class QtListPeerTest : public testing::Test {
protected:
    QtListPeerTest() {
        form.Create(&shown.form, 2, {0, 0, 300, 200});
        list.Create(&form, 5, {0, 0, 200, 120});
        QApplication::processEvents();
    }
    void Fill(int rows) {
        list.DeleteAllItems();
        for (int row = 0; row < rows; ++row) {
            CStringU name;
            name.Format("library%02d", row);
            list.InsertItem(row, name);
        }
        QApplication::processEvents();
        list.asked.clear();
        form.heard.clear();
    }
    [[nodiscard]] vapp_qt::QtListView* View() const { return gWidgetAs<vapp_qt::QtListView>(list); }
    QImage Paint() const { return gPictureOf(*gWidgetOf(list)); }
    [[nodiscard]] QPoint At(int row, int x = 20) const {
        return {x, (row - list.GetTopIndex()) * list.GetRowHeight() + list.GetRowHeight() / 2};
    }
    void Click(int row, Qt::KeyboardModifiers modifiers = {}) {
        QTest::mouseClick(View()->viewport(), Qt::LeftButton, modifiers, At(row));
    }

    ShownFrame shown;
    AnsweringForm form;
    FakeList list;
};

TEST_F(QtListPeerTest, ModelKeepsTheRulesOfModels) {
    const QAbstractItemModelTester tester(View()->model(),
                                          QAbstractItemModelTester::FailureReportingMode::Fatal);
    Fill(20);
    EXPECT_EQ(View()->model()->rowCount(), 20);
    EXPECT_EQ(View()->model()->index(3, 0).data().toString(), "library03");
    Fill(0);
    EXPECT_EQ(View()->model()->rowCount(), 0);
}

TEST_F(QtListPeerTest, AsksOnlyForShownRowsAndEachOnce) {
    Fill(100);
    list.SetTopIndex(40);
    list.asked.clear();
    Paint();
    ASSERT_FALSE(list.asked.empty());
    EXPECT_EQ(list.asked.front(), 40);
    EXPECT_EQ(std::adjacent_find(list.asked.begin(), list.asked.end()), list.asked.end());
    EXPECT_LE(static_cast<int>(list.asked.size()), list.GetCountPerPage() + 1);
}

TEST_F(QtListPeerTest, ClicksKeysAndLettersSelectByTheControlsRules) {
    Fill(40);
    Click(1);
    Click(3, Qt::ShiftModifier);
    EXPECT_EQ(list.GetSelectedCount(), 3);
    Click(2, Qt::ControlModifier);
    EXPECT_EQ(list.GetSelectedCount(), 2);
    QTest::keyClick(View(), Qt::Key_Down);
    EXPECT_EQ(list.GetFocusedItem(), 3);
    QTest::keyClicks(View(), "library2");
    EXPECT_EQ(list.GetFocusedItem(), 20);
    QTest::keyClick(View(), Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(list.GetSelectedCount(), 40);
    EXPECT_GT(form.Count(cnListItemChanged), 40);
    QApplication::processEvents();
    EXPECT_EQ(View()->selectionModel()->selectedRows().size(), 40);
}

TEST_F(QtListPeerTest, BarAndWheelScrollTheControl) {
    Fill(40);
    gWheel(*View()->viewport(), 1);
    EXPECT_EQ(list.GetTopIndex(), QApplication::wheelScrollLines());
    list.SetTopIndex(20);
    EXPECT_EQ(View()->verticalScrollBar()->value(), 20);
    EXPECT_FALSE(View()->horizontalScrollBar()->isVisible()) << "texts are cut, never scrolled";
    Fill(2);
    EXPECT_FALSE(View()->verticalScrollBar()->isVisible());
}

TEST_F(QtListPeerTest, RowsLookAsTheControlSays) {
    Fill(4);
    list.look = [](int row, ListItemLook& look) {
        look.text = CStringU();
        look.backColor = row == 1 ? 0xE6E6FF : cnNoColor;
        look.highlighted = row == 2;
        if (row == 3) look.icons[0] = 366;
    };
    const QImage picture = Paint();
    const auto back = [&](int row) { return picture.pixelColor(At(row, 150)); };
    EXPECT_EQ(back(0), QColor(Qt::white));
    EXPECT_EQ(back(1), QColor(0xFF, 0xE6, 0xE6));
    EXPECT_EQ(back(2), View()->palette().color(QPalette::Inactive, QPalette::Highlight));
    EXPECT_NE(picture.pixelColor(At(3, list.GetRowHeight() * 2 / 5)), back(0)) << "the mark";
    list.look = [](int, ListItemLook& look) {
        look.highlighted = true;
        look.backColor = 0xFF9933;
        look.text = CStringU();
    };
    EXPECT_EQ(Paint().pixelColor(At(0, 150)), QColor(0x33, 0x99, 0xFF)) << "the control's own highlight";
}

TEST_F(QtListPeerTest, MarksAreToldToAssistiveTechnology) {
    Fill(2);
    list.look = [](int, ListItemLook& look) {
        look.icons[0] = 366;
        look.icons[1] = 367;
    };
    EXPECT_EQ(View()->model()->index(0, 0).data(Qt::AccessibleTextRole).toString(),
              "library00, unresolved, not editable");
}

TEST_F(QtListPeerTest, AnEmptyListShowsTheParentsText) {
    Fill(0);
    list.SetBkColor(0x2D2D2D);
    const QImage with = Paint();
    QImage without(with.size(), with.format());
    without.fill(QColor(0x2D, 0x2D, 0x2D));
    int ink = 0;
    for (int y = 0; y < 40; ++y) {
        for (int x = 0; x < with.width(); ++x)
            ink += with.pixelColor(x, y) != without.pixelColor(x, y) ? 1 : 0;
    }
    EXPECT_GT(ink, 30);
    EXPECT_EQ(with.pixelColor(5, with.height() - 5), QColor(0x2D, 0x2D, 0x2D));
}

TEST_F(QtListPeerTest, TheEmptyTextHasTheControlsColour) {
    Fill(0);
    list.SetBkColor(0x2D2D2D);
    list.SetEmptyTextColor(0xA0A0A0);
    const QImage picture = Paint();
    int exact = 0;
    for (int y = 0; y < 40; ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            const QColor pixel = picture.pixelColor(x, y);
            exact += pixel == QColor(0xA0, 0xA0, 0xA0) ? 1 : 0;
            EXPECT_LE(pixel.lightness(), 0xA0) << "nothing is lighter";
        }
    }
    EXPECT_GT(exact, 0);
}

TEST_F(QtListPeerTest, ATipIsTheControlsAndItsTimerTicks) {
    Fill(3);
    const auto hover = [this](int row) {
        QHelpEvent event(QEvent::ToolTip, At(row), View()->viewport()->mapToGlobal(At(row)));
        QApplication::sendEvent(View()->viewport(), &event);
    };
    hover(0);
    EXPECT_FALSE(QToolTip::isVisible());
    list.tip = CStringU("/libs/<b>std</b>");
    list.tipTimerRuns = true;
    hover(1);
    ASSERT_TRUE(QToolTip::isVisible());
    QTextDocument shownText;
    shownText.setHtml(QToolTip::text());
    EXPECT_EQ(shownText.toPlainText(), "/libs/<b>std</b>") << "no markup";
    EXPECT_TRUE(QTest::qWaitFor([this] { return list.ticks > 0; }));
    QToolTip::hideText();
    list.onTip = [this] { list.DestroyWindow(); };
    list.tip = CStringU("gone");
    const QPointer<QWidget> widget = View();
    hover(2);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(widget.isNull());
}

TEST_F(QtListPeerTest, RefillInsidePaintingIsShownAfterwards) {
    Fill(10);
    list.onAsked = [this](int row) {
        if (row != 1) return;
        list.onAsked = nullptr;
        list.DeleteAllItems();
        list.InsertItem(0, CStringU("only one"));
    };
    Paint();
    QApplication::processEvents();
    EXPECT_EQ(View()->model()->rowCount(), 1);
    list.onAsked = [this](int) { list.DestroyWindow(); };
    const QPointer<QWidget> widget = View();
    widget->grab();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(widget.isNull());
}

TEST_F(QtListPeerTest, AClickThatEndsTheWindowIsNoHarm) {
    Fill(10);
    form.answer = [this](const Notification& told) {
        if (told.code == cnListItemChanged) list.DestroyWindow();
    };
    Click(2);
    EXPECT_FALSE(list.IsWindow());
}

TEST_F(QtListPeerTest, TheListOutlivesItsWidget) {
    Fill(10);
    delete gWidgetOf(list);
    Fill(3);
    list.ClickedByUser(1, {});
    list.SetTopIndex(1);
    list.Invalidate();
    list.UpdateWindow();
    EXPECT_EQ(list.GetSelectedCount(), 1);
}
