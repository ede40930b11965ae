#pragma once
/// The field of the console in which lines are typed. It grows with its lines. Return sends a text in which
/// all braces are closed, and otherwise begins a line; Shift with Return always begins one.

#include <QPlainTextEdit>
#include <functional>

#include "host/TclConsole.h"

namespace navigator {

class ConsoleInput : public QPlainTextEdit {
public:
    /// @param history  outlives the field
    explicit ConsoleInput(InputHistory& history, QWidget* parent = nullptr);

    /// Called with each complete text, which has left the field then.
    void SetSendHandler(std::function<void(const QString&)> handler) { m_send = std::move(handler); }

    /// Says in the empty field what can be done: type, or stop the line that is running.
    void ShowHint(bool isRunning);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    [[nodiscard]] bool WalkHistory(const QKeyEvent& event);
    void Show(const std::optional<std::string>& text);
    void Send();
    void FitHeight();

    InputHistory& m_history;
    std::function<void(const QString&)> m_send;
};

}  // namespace navigator
