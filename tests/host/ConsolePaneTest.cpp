/// The console on the screen: what stands in it after lines were typed.

#include "host/ConsolePane.h"

#include <gmock/gmock.h>

#include <QClipboard>
#include <QElapsedTimer>
#include <QGuiApplication>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QTest>
#include <QTextBlock>
#include <QTimer>

#include "tests/host/TestInterp.h"

namespace navigator_test {
namespace {

using navigator::ConsolePane;
using navigator::TclConsole;
using testing::HasSubstr;

class ConsolePaneTest : public testing::Test {
protected:
    void SetUp() override {
        m_pane.resize(400, 300);
        m_pane.show();
        m_pane.FocusInput();
    }
    QPlainTextEdit* Field(const char* name) { return m_pane.findChild<QPlainTextEdit*>(QLatin1String(name)); }
    void Send(const char* line) {
        QTest::keyClicks(Field("consoleInput"), QLatin1String(line));
        QTest::keyClick(Field("consoleInput"), Qt::Key_Return);
    }
    std::string Output() { return Field("consoleOutput")->toPlainText().toStdString(); }
    QColor ColorOf(const QTextBlock& block) {
        return block.begin().fragment().charFormat().foreground().color();
    }

    TestInterp m_interp;
    TclConsole m_console{m_interp.Get()};
    ConsolePane m_pane{m_console};
};

TEST_F(ConsolePaneTest, ShowsWhatWasTypedWrittenAndAnswered) {
    Send("puts hello; expr 6*7");
    Send("set none {}");
    EXPECT_EQ("% puts hello; expr 6*7\nhello\n42\n% set none {}", Output());
}

TEST_F(ConsolePaneTest, AnErrorHasAColourOfItsOwn) {
    Send("nosuchcommand");
    QTextBlock last = Field("consoleOutput")->document()->lastBlock();
    EXPECT_EQ("invalid command name \"nosuchcommand\"", last.text().toStdString());
    EXPECT_EQ(m_pane.palette().color(QPalette::BrightText), ColorOf(last));
    Send("expr 1");
    last = Field("consoleOutput")->document()->lastBlock();
    EXPECT_NE(m_pane.palette().color(QPalette::BrightText), ColorOf(last));
}

TEST_F(ConsolePaneTest, TheAnswersCanBeSelectedAndCopiedAndNotChanged) {
    Send("expr 6*7");
    QPlainTextEdit* const output = Field("consoleOutput");
    output->setFocus();
    QTest::keyClicks(output, QStringLiteral("typed"));
    EXPECT_EQ("% expr 6*7\n42", Output());
    QTest::keyClick(output, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(output, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ("% expr 6*7\n42", QGuiApplication::clipboard()->text().toStdString());
}

TEST_F(ConsolePaneTest, TheLastAnswerIsInSight) {
    Send("for {set i 0} {$i < 500} {incr i} {puts $i}");
    QScrollBar* const bar = Field("consoleOutput")->verticalScrollBar();
    EXPECT_GT(bar->maximum(), 400);
    EXPECT_EQ(bar->maximum(), bar->value());
}

TEST_F(ConsolePaneTest, AFloodIsShownInPartAndTheOldestGoes) {
    for (int run = 0; run < 15; ++run)
        Send("for {set i 0} {$i < 30000} {incr i} {puts $i}");
    EXPECT_LE(Field("consoleOutput")->blockCount(), 20'000);
    EXPECT_THAT(Output(), HasSubstr("\n1999\n... "));
    Send("expr 6*7");
    EXPECT_EQ("42", Field("consoleOutput")->document()->lastBlock().text().toStdString());
}

TEST_F(ConsolePaneTest, OneEndlessLineIsShownWithoutAPause) {
    QElapsedTimer clock;
    clock.start();
    Send("string repeat x 5000000");
    QGuiApplication::processEvents();
    m_pane.grab();
    // Undivided, such a line takes minutes here; the bound is far above what a slow machine needs.
    EXPECT_LT(clock.elapsed(), 20'000);
    RecordProperty("milliseconds", static_cast<int>(clock.elapsed()));
    EXPECT_THAT(Output(), HasSubstr(" bytes more"));
}

TEST_F(ConsolePaneTest, EscapeStopsALineAndOtherKeysMeanwhileAreNobodys) {
    // Comes when events are handled for the first time, which is in the middle of the line.
    QTimer::singleShot(
        0, &m_pane, [this] {
            EXPECT_EQ("Running. Escape stops it.", Field("consoleInput")->placeholderText().toStdString());
            QTest::keyClicks(Field("consoleInput"), QStringLiteral("lost"));
            EXPECT_FALSE(m_pane.close())
                << "an end of the window in the middle of a line would be the end of it all";
            QTest::keyClick(Field("consoleInput"), Qt::Key_Escape);
        });
    Field("consoleInput")->setPlainText(QStringLiteral("while 1 {}"));
    QTest::keyClick(Field("consoleInput"), Qt::Key_Return);
    EXPECT_EQ("% while 1 {}\nstopped", Output());
    EXPECT_EQ("", Field("consoleInput")->toPlainText().toStdString());
    EXPECT_TRUE(m_pane.isVisible());
    Send("expr 6*7");
    EXPECT_EQ("42", Field("consoleOutput")->document()->lastBlock().text().toStdString());
}

TEST_F(ConsolePaneTest, ASignThatEndsTextsIsShownAsASign) {
    Send("set x a\\0b");
    EXPECT_EQ(
        "% set x a\\0b\na\xE2\x90\x80"
        "b",
        Output());
}

}  // namespace
}  // namespace navigator_test
