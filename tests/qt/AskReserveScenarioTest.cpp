/// @file
/// The preference to reserve, with a real box and a real combo box.
#include <QComboBox>
#include <QPushButton>
#include <QTest>

#include "tests/qt/ModalAnswer.h"
#include "tests/qt/QtTestFrame.h"
#include "vapp/app/TAllowAskReserveGuard.h"
#include "vapp/app/TPreferenceMgr.h"

namespace {

using namespace prefs;

void Click(QMessageBox& box, const QString& text) {
    for (QAbstractButton* button : box.buttons())
        if (button->text() == text) QTest::mouseClick(button, Qt::LeftButton);
}

}  // namespace

TEST(AskReserveScenario, YesReservesAndNoDoesNot) {
    TPreferenceMgr& manager = TPreferenceMgr::GetInstance();
    const TAllowAskReserveGuard guard;
    {
        const ModalAnswer user([](QMessageBox& box) {
            EXPECT_EQ(box.windowTitle(), "Reserve");
            EXPECT_EQ(box.text(), "Do you want to reserve the cellview?");
            Click(box, "&Yes");
        });
        EXPECT_EQ(manager.AskReserve(false, AskAlways), Agreed);
    }
    {
        const ModalAnswer user([](QMessageBox& box) { Click(box, "&No"); });
        EXPECT_EQ(manager.AskReserve(true, AskManagedCellsOnly), Declined);
    }
    {
        const ModalAnswer user([](QMessageBox& box) { QTest::keyClick(&box, Qt::Key_Escape); });
        EXPECT_EQ(manager.AskReserve(true, AskManagedCellsOnly), Declined);
    }
    {
        const ModalAnswer user([](QMessageBox& box) {
            EXPECT_EQ(box.defaultButton()->shortcut(), QKeySequence(Qt::ALT | Qt::Key_Y)) << "its own key";
            QTest::keyClick(&box, Qt::Key_Return);
        });
        EXPECT_EQ(manager.AskReserve(true, AskManagedCellsOnly), Agreed);
    }
    manager.ResetAskReserveStatus();
}

TEST(AskReserveScenario, TheUserPicksAnOptionByItsText) {
    ShownFrame shown;
    TComboBoxCtrl combo;
    ASSERT_TRUE(combo.Create(&shown.form, 5, {0, 0, 200, 24}));
    gInitAskReserveCombo(&combo, AskNever);
    auto* box = gWidgetAs<QComboBox>(combo);
    ASSERT_NE(box, nullptr);
    EXPECT_EQ(box->count(), 3);
    EXPECT_EQ(box->currentText(), "Never");
    QTest::keyClick(box, Qt::Key_Down);
    EXPECT_EQ(gConvertStringToEnum(combo.GetLBText(combo.GetCurSel())), AskManagedCellsOnly);
    TComboBoxCtrl none;
    ASSERT_TRUE(none.Create(&shown.form, 6, {0, 30, 200, 54}));
    gInitAskReserveCombo(&none, 7);
    EXPECT_EQ(gWidgetAs<QComboBox>(none)->currentIndex(), -1);
}
