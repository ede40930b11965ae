/// @file
/// The drop-down list, from both sides.
#include "toolkit/qt/QtComboPeer.h"

#include <QAbstractItemView>
#include <QTest>
#include <QWheelEvent>

#include "tests/qt/QtTestFrame.h"
#include "vapp/toolkit/CComboBox.h"

namespace {

class QtComboPeerTest : public testing::Test {
protected:
    void SetUp() override {
        combo.AddString(CStringU("chip"));
        ASSERT_TRUE(combo.Create(&shown.form, 5, {0, 0, 200, 24}));
        combo.AddString(CStringU(u"Verst\u00E4rker \u4E2D"));
        combo.AddString(CStringU("pads"));
        combo.SetCurSel(0);
        box = gWidgetAs<QComboBox>(combo);
        ASSERT_NE(box, nullptr);
    }

    ShownFrame shown;
    CComboBox combo;
    QComboBox* box = nullptr;
};

}  // namespace

TEST_F(QtComboPeerTest, ShowsTheItemsOfTheControl) {
    ASSERT_EQ(box->count(), 3);
    EXPECT_EQ(box->itemText(1), QStringLiteral("Verst\u00E4rker \u4E2D")) << "whatever the code page";
    EXPECT_EQ(box->currentText(), "chip");
    combo.SetCurSel(2);
    EXPECT_EQ(box->currentText(), "pads");
    combo.SetCurSel(-1);
    EXPECT_EQ(box->currentIndex(), -1);
    combo.ResetContent();
    EXPECT_EQ(box->count(), 0);
    EXPECT_TRUE(shown.form.heard.empty()) << "only what the user picks is told";
}

TEST_F(QtComboPeerTest, FirstItemIsNotPickedByItsComing) {
    CComboBox fresh;
    ASSERT_TRUE(fresh.Create(&shown.form, 6, {0, 30, 200, 54}));
    fresh.AddString(CStringU("only"));
    EXPECT_EQ(fresh.GetCurSel(), -1);
    EXPECT_EQ(gWidgetAs<QComboBox>(fresh)->currentIndex(), -1);
}

TEST_F(QtComboPeerTest, KeyPicksTheNextItem) {
    QTest::keyClick(box, Qt::Key_Down);
    EXPECT_EQ(combo.GetCurSel(), 1);
    EXPECT_EQ(shown.form.Count(cnComboSelectionChanged), 1);
    EXPECT_EQ(shown.form.Count(cnComboClosedUp), 0);
}

TEST_F(QtComboPeerTest, PickingInTheListTellsThePickThenTheClosing) {
    box->showPopup();
    QApplication::processEvents();
    QAbstractItemView* list = box->view();
    ASSERT_TRUE(list->isVisible());
    list->setCurrentIndex(list->model()->index(2, 0));
    QTest::keyClick(list, Qt::Key_Return);
    QApplication::processEvents();
    EXPECT_EQ(combo.GetCurSel(), 2);
    EXPECT_EQ(shown.form.heard, (std::vector<UINT>{cnComboSelectionChanged, cnComboClosedUp}));
}

TEST_F(QtComboPeerTest, EnterConfirmsWhatKeysHavePickedAndThatOnce) {
    QTest::keyClick(box, Qt::Key_Return);
    QApplication::processEvents();
    EXPECT_EQ(shown.form.Count(cnComboClosedUp), 0) << "nothing was picked";
    QTest::keyClick(box, Qt::Key_Down);
    QTest::keyClick(box, Qt::Key_Down);
    QTest::keyClick(box, Qt::Key_Return);
    QTest::keyClick(box, Qt::Key_Enter);
    QApplication::processEvents();
    EXPECT_EQ(combo.GetCurSel(), 2);
    EXPECT_EQ(shown.form.heard,
              (std::vector<UINT>{cnComboSelectionChanged, cnComboSelectionChanged, cnComboClosedUp}));
}

TEST_F(QtComboPeerTest, EnterAfterAPickInTheListTellsNothingMore) {
    box->showPopup();
    QApplication::processEvents();
    box->view()->setCurrentIndex(box->model()->index(2, 0));
    QTest::keyClick(box->view(), Qt::Key_Return);
    QApplication::processEvents();
    QTest::keyClick(box, Qt::Key_Return);
    QApplication::processEvents();
    EXPECT_EQ(shown.form.Count(cnComboClosedUp), 1);
}

TEST_F(QtComboPeerTest, TheWheelPicksNothing) {
    QWheelEvent notch(QPointF(5, 5), box->mapToGlobal(QPointF(5, 5)), QPoint(), QPoint(0, -120), Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(box, &notch);
    EXPECT_EQ(combo.GetCurSel(), 0);
    EXPECT_EQ(box->currentIndex(), 0);
    EXPECT_TRUE(shown.form.heard.empty());
    EXPECT_FALSE(notch.isAccepted()) << "what is around it may scroll";
}

TEST_F(QtComboPeerTest, EscapeTellsTheClosingOnly) {
    box->showPopup();
    QApplication::processEvents();
    QTest::keyClick(box->view(), Qt::Key_Escape);
    QApplication::processEvents();
    EXPECT_EQ(combo.GetCurSel(), 0);
    EXPECT_EQ(shown.form.heard, std::vector<UINT>{cnComboClosedUp});
}

TEST_F(QtComboPeerTest, PickMayEndTheCombo) {
    const QPointer<QWidget> widget = box;
    shown.form.answer = [&](const Notification&) {
        combo.DestroyWindow();
        EXPECT_FALSE(widget.isNull()) << "Qt is still in the middle of the widget's own event";
    };
    box->showPopup();
    QApplication::processEvents();
    box->view()->setCurrentIndex(box->model()->index(2, 0));
    QTest::sendKeyEvent(QTest::Press, box->view(), Qt::Key_Return, QString(), Qt::NoModifier);
    QApplication::processEvents();
    EXPECT_FALSE(combo.IsWindow());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(widget.isNull());
}

TEST_F(QtComboPeerTest, ComboMayEndWhileItsListIsOpen) {
    box->showPopup();
    QApplication::processEvents();
    combo.DestroyWindow();
    QApplication::processEvents();
    EXPECT_EQ(shown.form.Count(cnComboSelectionChanged), 0);
}
