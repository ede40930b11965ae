/// The field of the console, by keys.

#include "host/ConsoleInput.h"

#include <gtest/gtest.h>

#include <QTest>

namespace navigator_test {
namespace {

using navigator::ConsoleInput;
using navigator::InputHistory;

class ConsoleInputTest : public testing::Test {
protected:
    void SetUp() override {
        m_input.SetSendHandler([this](const QString& text) {
            m_sent << text;
            m_history.Add(text.toStdString());
        });
        m_input.show();
        m_input.setFocus();
    }
    void Type(const char* text) { QTest::keyClicks(&m_input, QLatin1String(text)); }
    void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        QTest::keyClick(&m_input, key, modifiers);
    }
    [[nodiscard]] std::string Text() const { return m_input.toPlainText().toStdString(); }

    InputHistory m_history;
    ConsoleInput m_input{m_history};
    QStringList m_sent;
};

TEST_F(ConsoleInputTest, ReturnSendsALineAndEmptiesTheField) {
    Type("database all_libs");
    Press(Qt::Key_Return);
    EXPECT_EQ(QStringList{QStringLiteral("database all_libs")}, m_sent);
    EXPECT_EQ("", Text());
}

TEST_F(ConsoleInputTest, AnOpenBraceKeepsTheTextUntilItIsClosed) {
    Type("foreach x {1 2} {");
    Press(Qt::Key_Return);
    Type("puts $x");
    Press(Qt::Key_Enter, Qt::KeypadModifier);
    EXPECT_TRUE(m_sent.isEmpty());
    const int height = m_input.height();
    Type("}");
    Press(Qt::Key_Return);
    EXPECT_EQ(QStringList{QStringLiteral("foreach x {1 2} {\nputs $x\n}")}, m_sent);
    EXPECT_LT(m_input.height(), height) << "the field grows with its lines and shrinks again";
}

TEST_F(ConsoleInputTest, ShiftWithReturnBeginsALineThatTclUnderstands) {
    Type("set x 1");
    Press(Qt::Key_Return, Qt::ShiftModifier);
    Type("set y 2");
    EXPECT_EQ("set x 1\nset y 2", Text());
}

TEST_F(ConsoleInputTest, BlanksAloneAreNotSent) {
    Type("   ");
    Press(Qt::Key_Return);
    EXPECT_TRUE(m_sent.isEmpty());
}

TEST_F(ConsoleInputTest, UpAndDownWalkThroughWhatWasSent) {
    for (const char* text : {"one", "two"}) {
        Type(text);
        Press(Qt::Key_Return);
    }
    Type("half");
    Press(Qt::Key_Up);
    EXPECT_EQ("two", Text());
    Press(Qt::Key_Up);
    Press(Qt::Key_Up);
    EXPECT_EQ("one", Text()) << "and no further";
    Press(Qt::Key_Down);
    Press(Qt::Key_Down);
    EXPECT_EQ("half", Text());
    Press(Qt::Key_Down);
    EXPECT_EQ("half", Text());
}

TEST_F(ConsoleInputTest, InATextOfSeveralLinesTheArrowsMoveTheCaretFirst) {
    Type("sent");
    Press(Qt::Key_Return);
    Type("if 1 {");
    Press(Qt::Key_Return);
    Type("b");
    Press(Qt::Key_Up);
    EXPECT_EQ("if 1 {\nb", Text()) << "the caret went to the first line";
    Press(Qt::Key_Up);
    EXPECT_EQ("sent", Text());
    Press(Qt::Key_Down);
    EXPECT_EQ("if 1 {\nb", Text());
}

TEST_F(ConsoleInputTest, EscapeEmptiesTheField) {
    Type("if 1 {");
    Press(Qt::Key_Return);
    Press(Qt::Key_Escape);
    EXPECT_EQ("", Text());
    EXPECT_TRUE(m_sent.isEmpty());
}

TEST_F(ConsoleInputTest, ManyLinesDoNotPushThePaneAway) {
    m_input.setPlainText(QString(200, QLatin1Char('\n')));
    const int height = m_input.height();
    m_input.setPlainText(QString(20'000, QLatin1Char('\n')));
    EXPECT_EQ(height, m_input.height());
}

}  // namespace
}  // namespace navigator_test
