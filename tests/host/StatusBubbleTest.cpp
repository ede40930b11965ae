/// The line at the lower edge.

#include "host/StatusBubble.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QTest>

namespace navigator_test {
namespace {

using navigator::StatusBubble;

class StatusBubbleTest : public testing::Test {
protected:
    StatusBubbleTest() {
        m_window.resize(300, 200);
        m_window.show();
        QApplication::processEvents();
    }
    QWidget m_window;
    StatusBubble m_bubble{m_window};
};

TEST_F(StatusBubbleTest, ATextIsSeenAtTheLowerEdgeAndTakesNoRoom) {
    EXPECT_FALSE(m_bubble.isVisible());
    m_bubble.Tell(QStringLiteral("two\nlines"));
    EXPECT_TRUE(m_bubble.isVisible());
    EXPECT_EQ(m_bubble.text().toStdString(), "two lines");
    EXPECT_EQ(m_bubble.geometry().bottomLeft(), m_window.rect().bottomLeft());
    m_window.resize(300, 150);
    QApplication::processEvents();
    EXPECT_EQ(m_bubble.geometry().bottomLeft(), m_window.rect().bottomLeft());
    m_bubble.Tell(QString());
    EXPECT_FALSE(m_bubble.isVisible());
}

TEST_F(StatusBubbleTest, ALongTextStaysInTheWindow) {
    m_bubble.Tell(QString(1000, QLatin1Char('x')));
    EXPECT_LE(m_bubble.width(), m_window.width());
    EXPECT_GT(m_bubble.text().size(), 10);
}

TEST_F(StatusBubbleTest, WhatIsToldForAWhileGoesByItself) {
    m_bubble.SetWhile(0);
    m_bubble.TellForAWhile(QStringLiteral("done"));
    ASSERT_TRUE(m_bubble.isVisible());
    EXPECT_TRUE(QTest::qWaitFor([this] { return !m_bubble.isVisible(); }));
    m_bubble.TellForAWhile(QStringLiteral("done"));
    m_bubble.Tell(QStringLiteral("stays"));
    QApplication::processEvents();
    EXPECT_TRUE(m_bubble.isVisible());
}

}  // namespace
}  // namespace navigator_test
