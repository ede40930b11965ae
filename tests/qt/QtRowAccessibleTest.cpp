/// @file
/// What assistive technology finds in a view of rows: a table whose cells exist when somebody asks for them.
#include "toolkit/qt/QtRowAccessible.h"

#include <QAccessible>

#include "tests/qt/QtTestReport.h"
#include "vapp/toolkit/CListCtrl.h"

class QtRowAccessibleTest : public ShownReport {
protected:
    QtRowAccessibleTest() { Populate(100); }
    [[nodiscard]] QAccessibleInterface* Face() const { return QAccessible::queryAccessibleInterface(View()); }
    [[nodiscard]] QAccessibleTableInterface* Table() const { return Face()->tableInterface(); }
};

TEST_F(QtRowAccessibleTest, TheViewIsATable) {
    report.SetAccessibleName("Cells");
    ASSERT_NE(Table(), nullptr);
    EXPECT_EQ(Face()->role(), QAccessible::Table);
    EXPECT_EQ(Face()->text(QAccessible::Name), "Cells");
    EXPECT_EQ(Table()->rowCount(), 100);
    EXPECT_EQ(Table()->columnCount(), 3);
    EXPECT_EQ(Table()->columnDescription(2), "Library");
    EXPECT_EQ(Table()->cellAt(100, 0), nullptr);
    EXPECT_EQ(Table()->cellAt(0, -1), nullptr);
}

TEST_F(QtRowAccessibleTest, CellsSayTextPlaceAndState) {
    report.ClickedByUser(2, {});
    QAccessibleInterface* cell = Table()->cellAt(2, 0);
    ASSERT_NE(cell, nullptr);
    EXPECT_EQ(cell->text(QAccessible::Name), "cell00002");
    EXPECT_EQ(cell->role(), QAccessible::Cell);
    EXPECT_TRUE(cell->state().selected);
    EXPECT_FALSE(cell->state().offscreen);
    EXPECT_TRUE(Table()->cellAt(90, 1)->state().offscreen);
    EXPECT_EQ(cell->tableCellInterface()->rowIndex(), 2);
    EXPECT_EQ(Face()->indexOfChild(cell), 6);
    EXPECT_EQ(Face()->child(6), cell);
    EXPECT_EQ(Face()->childAt(cell->rect().center().x(), cell->rect().center().y()), cell);
    ASSERT_NE(Face()->focusChild(), nullptr);
    EXPECT_EQ(Face()->focusChild(), cell);
}

TEST_F(QtRowAccessibleTest, SelectingGoesToTheControl) {
    EXPECT_TRUE(Table()->selectRow(4));
    EXPECT_TRUE(Table()->selectRow(6));
    EXPECT_EQ(report.GetSelectedRows().GetCount(), 2);
    EXPECT_TRUE(Table()->isRowSelected(4));
    EXPECT_EQ(Table()->selectedRows(), (QList<int>{4, 6}));
    EXPECT_EQ(Table()->selectedCells().size(), 6);
    EXPECT_TRUE(Table()->unselectRow(4));
    EXPECT_FALSE(Table()->unselectRow(4));
    EXPECT_FALSE(Table()->selectRow(100));
    EXPECT_EQ(report.GetSelectedRows().GetCount(), 1);
}

TEST_F(QtRowAccessibleTest, CellsEndWithTheirRows) {
    QAccessibleInterface* cell = Table()->cellAt(50, 0);
    const QAccessible::Id id = QAccessible::uniqueId(cell);
    ASSERT_EQ(QAccessible::accessibleInterface(id), cell);
    Populate(3);
    EXPECT_EQ(Table()->rowCount(), 3);
    // Without a screen nobody listens, and Qt does not pass the view's event on.
    QAccessibleTableModelChangeEvent event(View(), QAccessibleTableModelChangeEvent::ModelReset);
    Table()->modelChange(&event);
    EXPECT_EQ(QAccessible::accessibleInterface(id), nullptr);
}

TEST_F(QtRowAccessibleTest, ACellThatIsGoneSaysSo) {
    const QAccessibleInterface* gone = Table()->cellAt(50, 1);
    Populate(3);
    EXPECT_FALSE(gone->isValid());
    EXPECT_TRUE(gone->state().invalid);
    EXPECT_EQ(gone->text(QAccessible::Name), "");
    EXPECT_TRUE(gone->rect().isEmpty());
    report.GetColumns().GetAt(0)->SetVisible(false);
    EXPECT_EQ(Table()->cellAt(2, 1)->text(QAccessible::Name), "item 2");
}

TEST_F(QtRowAccessibleTest, AMillionSelectedRowsAreNoObjects) {
    Populate(1000000);
    report.KeyPressedByUser(TKey::SelectAll, {});
    EXPECT_EQ(Table()->selectedRowCount(), 1000000);
    EXPECT_LT(Table()->selectedCells().size(), 200);
}

TEST_F(QtRowAccessibleTest, NothingIsLeftOfAViewWithoutItsControl) {
    report.DestroyWindow();
    CListCtrl list;
    list.Create(&shown.form, 3, {0, 0, 100, 100});
    list.InsertItem(0, CStringU("std"));
    QAccessibleInterface* face = QAccessible::queryAccessibleInterface(gWidgetOf(list));
    ASSERT_NE(face, nullptr);
    ASSERT_NE(face->tableInterface(), nullptr);
    EXPECT_EQ(face->tableInterface()->cellAt(0, 0)->text(QAccessible::Name), "std");
}
