/// @file
/// The text of several lines, from both sides.
#include "toolkit/qt/QtTextPeer.h"

#include <QPlainTextEdit>
#include <QTest>

#include "tests/qt/QtTestFrame.h"
#include "vapp/text/ActiveCodePage.h"
#include "vapp/toolkit/CEdit.h"

namespace {

class QtTextPeerTest : public testing::Test {
protected:
    void SetUp() override {
        edit.SetMultiLine(true);
        edit.SetWindowText("first\nline");
        edit.SetCueText("Names");
        ASSERT_TRUE(edit.Create(&shown.form, 7, {10, 20, 210, 120}));
        field = gWidgetAs<QPlainTextEdit>(edit);
    }

    ShownFrame shown;
    CEdit edit;
    QPointer<QPlainTextEdit> field;
};

}  // namespace

TEST_F(QtTextPeerTest, ShowsTextAndCue) {
    EXPECT_EQ(field->toPlainText(), "first\nline");
    EXPECT_EQ(field->placeholderText(), "Names");
    edit.SetWindowText("second");
    EXPECT_EQ(field->toPlainText(), "second");
    EXPECT_TRUE(shown.form.heard.empty()) << "only what the user types is told";
}

TEST_F(QtTextPeerTest, TypedTextReachesControlAndParentKeyByKey) {
    field->moveCursor(QTextCursor::End);
    QTest::keyClick(field, Qt::Key_Return);
    QTest::keyClicks(field, "ab");
    EXPECT_EQ(edit.GetWindowText(), CString("first\nline\nab"));
    EXPECT_EQ(shown.form.Count(cnEditChanged), 3);
}

TEST_F(QtTextPeerTest, TabGoesOnToTheNextControl) {
    QTest::keyClick(field, Qt::Key_Tab);
    EXPECT_EQ(edit.GetWindowText(), CString("first\nline"));
}

TEST_F(QtTextPeerTest, FieldShowsWhatTheCodePageCouldTake) {
    gSetActiveCodePage(1252);
    field->moveCursor(QTextCursor::Start);
    QTest::sendKeyEvent(QTest::Click, field, Qt::Key_unknown, QStringLiteral("\u4E2D"), Qt::NoModifier);
    EXPECT_EQ(edit.GetWindowText().GetLength(), 11);
    EXPECT_EQ(field->toPlainText().size(), 11);
    EXPECT_NE(field->toPlainText().at(0), QChar(u'\u4E2D'));
    EXPECT_EQ(field->textCursor().position(), 1) << "the user goes on where they are";
    gSetActiveCodePage(0);
}

TEST_F(QtTextPeerTest, ParentMayReplaceTheTextWhileItIsTyped) {
    shown.form.answer = [this](const Notification&) { edit.SetWindowText("fixed"); };
    QTest::keyClicks(field, "x");
    EXPECT_EQ(field->toPlainText(), "fixed");
    EXPECT_EQ(shown.form.Count(cnEditChanged), 1);
}

TEST_F(QtTextPeerTest, TypingMayEndTheEdit) {
    shown.form.answer = [&](const Notification&) { edit.DestroyWindow(); };
    QTest::sendKeyEvent(QTest::Press, field, Qt::Key_X, QStringLiteral("x"), Qt::NoModifier);
    EXPECT_FALSE(edit.IsWindow());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(field.isNull());
}
