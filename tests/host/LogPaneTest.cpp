/// The log on the screen.

#include "host/LogPane.h"

#include <gtest/gtest.h>

#include <QClipboard>
#include <QGuiApplication>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTest>
#include <QTextBlock>

namespace navigator_test {
namespace {

using namespace navigator;

class LogPaneTest : public testing::Test {
protected:
    LogPaneTest() {
        m_log.Add(ActionLog::TKind::Action, "before");
        m_pane = std::make_unique<LogPane>(m_log);
        m_log.SetHandler([this](const ActionLog::TEntry* entry) { m_pane->Show(entry); });
    }
    [[nodiscard]] QPlainTextEdit& Text() {
        return *m_pane->findChild<QPlainTextEdit*>(QStringLiteral("logText"));
    }
    [[nodiscard]] QPushButton& Button(const char* name) {
        return *m_pane->findChild<QPushButton*>(QLatin1String(name));
    }
    [[nodiscard]] static std::string Clipboard() {
        return QGuiApplication::clipboard()->text().toStdString();
    }

    ActionLog m_log;
    std::unique_ptr<LogPane> m_pane;
};

TEST_F(LogPaneTest, EachLineIsShownBehindWhatWasThereAndOnOneLine) {
    m_log.Add(ActionLog::TKind::Action, std::string("two\nlines\0x", 11));
    m_log.Add(ActionLog::TKind::Failure, "failed");
    EXPECT_EQ(Text().toPlainText().toStdString(), "before\ntwo\xE2\x86\xB5lines\xE2\x90\x80x\n  failed");
    EXPECT_TRUE(Text().isReadOnly());
}

TEST_F(LogPaneTest, AFailureHasAColourOfItsOwn) {
    m_log.Add(ActionLog::TKind::Failure, "failed");
    const auto inkOf = [](const QTextBlock& block) {
        return block.begin().fragment().charFormat().foreground();
    };
    EXPECT_NE(inkOf(Text().document()->firstBlock()), inkOf(Text().document()->lastBlock()));
}

TEST_F(LogPaneTest, AllOrWhatIsSelectedIsCopied) {
    m_log.Add(ActionLog::TKind::Action, "second");
    QTest::mouseClick(&Button("logCopy"), Qt::LeftButton);
    EXPECT_EQ(Clipboard(), "before\nsecond");
    QTextCursor cursor(Text().document());
    cursor.movePosition(QTextCursor::Right, QTextCursor::KeepAnchor, 9);
    Text().setTextCursor(cursor);
    QTest::mouseClick(&Button("logCopy"), Qt::LeftButton);
    EXPECT_EQ(Clipboard(), "before\nse");
}

TEST_F(LogPaneTest, ClearingEmptiesTheLogItself) {
    QTest::mouseClick(&Button("logClear"), Qt::LeftButton);
    EXPECT_TRUE(m_log.Entries().empty());
    EXPECT_EQ(Text().toPlainText().toStdString(), "");
    EXPECT_FALSE(Button("logClear").isEnabled());
    EXPECT_FALSE(Button("logCopy").isEnabled());
    m_log.Add(ActionLog::TKind::Action, "after");
    EXPECT_EQ(Text().toPlainText().toStdString(), "after");
    EXPECT_TRUE(Button("logClear").isEnabled());
}

TEST_F(LogPaneTest, AsManyLinesAreShownAsAreKept) {
    for (std::size_t line = 0; line < ActionLog::cnMostKept + 10; ++line)
        m_log.Add(ActionLog::TKind::Action, "line " + std::to_string(line) + "\nand more");
    EXPECT_EQ(Text().blockCount(), static_cast<int>(ActionLog::cnMostKept));
    EXPECT_EQ(Text().document()->firstBlock().text().toStdString(),
              "line 10\xE2\x86\xB5"
              "and more");
}

}  // namespace
}  // namespace navigator_test
