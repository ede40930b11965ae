/// @file
/// What is heard of a drop-down list: what it is about, and what is chosen.
#include "toolkit/qt/QtComboAccessible.h"

#include <QAbstractItemView>
#include <QAccessible>
#include <QComboBox>

#include "tests/qt/QtTestFrame.h"
#include "vapp/toolkit/CComboBox.h"

namespace {

class QtComboAccessibleTest : public testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(combo.Create(&shown.form, 5, {0, 0, 200, 24}));
        combo.SetAccessibleName("Filter type");
        for (const char* type : {"All", "Symbols"})
            combo.AddString(CStringU(type));
        combo.SetCurSel(1);
        box = gWidgetAs<QComboBox>(combo);
        face = QAccessible::queryAccessibleInterface(box);
        ASSERT_NE(face, nullptr);
    }

    ShownFrame shown;
    CComboBox combo;
    QComboBox* box = nullptr;
    QAccessibleInterface* face = nullptr;
};

}  // namespace

TEST_F(QtComboAccessibleTest, ItsNameIsWhatItIsAboutAndItsValueWhatIsChosen) {
    EXPECT_EQ(face->role(), QAccessible::ComboBox);
    EXPECT_EQ(face->text(QAccessible::Name), "Filter type");
    EXPECT_EQ(face->text(QAccessible::Value), "Symbols");
    combo.SetCurSel(-1);
    EXPECT_EQ(face->text(QAccessible::Value), "");
    EXPECT_EQ(face->text(QAccessible::Name), "Filter type");
}

TEST_F(QtComboAccessibleTest, ItsListOpensAndClosesByTheActions) {
    EXPECT_TRUE(face->state().expandable);
    EXPECT_FALSE(face->state().expanded);
    QAccessibleInterface* const list = face->child(0);
    ASSERT_NE(list, nullptr);
    EXPECT_EQ(face->childCount(), 1);
    EXPECT_EQ(face->indexOfChild(list), 0);
    EXPECT_EQ(face->indexOfChild(face), -1);
    EXPECT_EQ(face->child(1), nullptr);
    EXPECT_EQ(list->childCount(), 2);
    QAccessibleActionInterface* const actions = face->actionInterface();
    ASSERT_NE(actions, nullptr);
    ASSERT_FALSE(actions->actionNames().isEmpty());
    actions->doAction(QStringLiteral("no such action"));
    EXPECT_FALSE(face->state().expanded);
    for (const QString& action : actions->actionNames()) {
        actions->doAction(action);
        EXPECT_TRUE(face->state().expanded) << action.toStdString();
        actions->doAction(action);
        EXPECT_FALSE(face->state().expanded) << action.toStdString();
    }
    combo.EnableWindow(false);
    actions->doAction(QAccessibleActionInterface::showMenuAction());
    EXPECT_FALSE(face->state().expanded);
}
