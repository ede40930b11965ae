/// @file
/// A user who waits for a box: what is to be done with the next one that is shown, while the test itself
/// waits for its answer.
#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QMessageBox>
#include <QTimer>
#include <functional>
#include <memory>
#include <utility>

/// Does something with the next modal box. Every round of the event loop looks for it, so that nothing waits
/// for a time.
class ModalAnswer {
public:
    explicit ModalAnswer(std::function<void(QMessageBox&)> answer) : m_answer(std::move(answer)) {
        QObject::connect(&m_look, &QTimer::timeout, [this] {
            auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            if (box == nullptr || !box->isVisible()) return;
            m_look.stop();
            ++m_count;
            m_answer(*box);
            // A box that the answer didn't end would wait for ever.
            QTimer::singleShot(0, box, [box] { box->reject(); });
        });
        m_look.start(0);
    }
    ~ModalAnswer() { EXPECT_EQ(m_count, 1) << "no box came"; }
    ModalAnswer(const ModalAnswer&) = delete;
    ModalAnswer& operator=(const ModalAnswer&) = delete;

private:
    std::function<void(QMessageBox&)> m_answer;
    QTimer m_look;
    int m_count = 0;
};
