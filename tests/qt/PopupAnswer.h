/// @file
/// A user who waits for a menu: what is to be done with the next one that pops up, while the test itself
/// waits for its end.
#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QMenu>
#include <QTimer>
#include <functional>
#include <utility>

/// Does something with the next menu. Every round of the event loop looks for it, so that nothing waits for a
/// time.
class PopupAnswer {
public:
    explicit PopupAnswer(std::function<void(QMenu&)> answer) : m_answer(std::move(answer)) {
        QObject::connect(&m_look, &QTimer::timeout, [this] {
            auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
            if (menu == nullptr || !menu->isVisible()) return;
            m_look.stop();
            ++m_count;
            const QPointer<QMenu> open(menu);
            m_answer(*menu);
            // A menu that the answer didn't end would wait for ever.
            if (open) open->close();
        });
        m_look.start(0);
    }
    ~PopupAnswer() { EXPECT_EQ(m_count, 1) << "no menu came"; }
    PopupAnswer(const PopupAnswer&) = delete;
    PopupAnswer& operator=(const PopupAnswer&) = delete;

private:
    std::function<void(QMenu&)> m_answer;
    QTimer m_look;
    int m_count = 0;
};
