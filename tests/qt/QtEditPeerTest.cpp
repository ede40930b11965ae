/// @file
/// The line of text, from both sides.
#include "toolkit/qt/QtEditPeer.h"

#include <QAccessible>
#include <QLineEdit>
#include <QTest>

#include "tests/qt/QtTestFrame.h"
#include "vapp/text/ActiveCodePage.h"
#include "vapp/toolkit/CEdit.h"

TEST(QtEditPeer, ShowsTextAndCue) {
    ShownFrame shown;
    CEdit edit;
    edit.SetWindowText("first");
    edit.SetCueText("Filter");
    ASSERT_TRUE(edit.Create(&shown.form, 7, {10, 20, 110, 44}));
    const auto* line = gWidgetAs<QLineEdit>(edit);
    EXPECT_EQ(line->text(), "first");
    EXPECT_EQ(line->placeholderText(), "Filter");
    edit.SetWindowText("second");
    edit.SetCueText("");
    EXPECT_EQ(line->text(), "second");
    EXPECT_TRUE(line->placeholderText().isEmpty());
    EXPECT_TRUE(shown.form.heard.empty()) << "only what the user types is told";
}

TEST(QtEditPeer, TypedTextReachesControlAndParentKeyByKey) {
    ShownFrame shown;
    CEdit edit;
    ASSERT_TRUE(edit.Create(&shown.form, 7, {10, 20, 110, 44}));
    QTest::keyClicks(gWidgetOf(edit), "nand");
    EXPECT_EQ(edit.GetWindowText(), "nand");
    EXPECT_EQ(shown.form.Count(cnEditChanged), 4);
    QTest::keyClick(gWidgetOf(edit), Qt::Key_Backspace);
    EXPECT_EQ(edit.GetWindowText(), "nan");
}

TEST(QtEditPeer, TextThatAScreenReaderPutsInIsToldAsTypedTextIs) {
    ShownFrame shown;
    CEdit edit;
    ASSERT_TRUE(edit.Create(&shown.form, 7, {10, 20, 110, 44}));
    QAccessibleInterface* field = QAccessible::queryAccessibleInterface(gWidgetOf(edit));
    ASSERT_NE(field, nullptr);
    field->setText(QAccessible::Value, QStringLiteral("nand"));
    EXPECT_EQ(edit.GetWindowText(), "nand");
    EXPECT_EQ(shown.form.Count(cnEditChanged), 1);
    edit.SetWindowText("nor");
    EXPECT_EQ(field->text(QAccessible::Value), "nor");
    EXPECT_EQ(shown.form.Count(cnEditChanged), 1) << "what the program shows is told to nobody";
}

TEST(QtEditPeer, FieldShowsWhatTheCodePageCouldTake) {
    gSetActiveCodePage(1252);
    {
        ShownFrame shown;
        CEdit edit;
        ASSERT_TRUE(edit.Create(&shown.form, 7, {10, 20, 110, 44}));
        auto* line = gWidgetAs<QLineEdit>(edit);
        QTest::keyClicks(line, "ab");
        line->setCursorPosition(1);
        QTest::sendKeyEvent(QTest::Click, line, Qt::Key_unknown, QStringLiteral("\u4E2D"), Qt::NoModifier);
        EXPECT_EQ(edit.GetWindowText().GetLength(), 3);
        EXPECT_EQ(line->text().size(), 3);
        EXPECT_NE(line->text().at(1), QChar(u'\u4E2D'));
        EXPECT_EQ(line->cursorPosition(), 2) << "the user goes on where they are";
    }
    gSetActiveCodePage(0);
}

TEST(QtEditPeer, ParentMayReplaceTheTextWhileItIsTyped) {
    ShownFrame shown;
    CEdit edit;
    ASSERT_TRUE(edit.Create(&shown.form, 7, {10, 20, 110, 44}));
    shown.form.answer = [&edit](const Notification&) { edit.SetWindowText("fixed"); };
    QTest::keyClicks(gWidgetOf(edit), "x");
    EXPECT_EQ(gWidgetAs<QLineEdit>(edit)->text(), "fixed");
    EXPECT_EQ(shown.form.Count(cnEditChanged), 1);
}

TEST(QtEditPeer, TypingMayEndTheEdit) {
    ShownFrame shown;
    CEdit edit;
    ASSERT_TRUE(edit.Create(&shown.form, 7, {10, 20, 110, 44}));
    const QPointer<QWidget> widget = gWidgetOf(edit);
    shown.form.answer = [&](const Notification&) {
        edit.DestroyWindow();
        EXPECT_FALSE(widget.isNull()) << "Qt is still in the middle of the widget's own event";
    };
    QTest::sendKeyEvent(QTest::Press, widget, Qt::Key_X, QStringLiteral("x"), Qt::NoModifier);
    EXPECT_FALSE(edit.IsWindow());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(widget.isNull());
}
