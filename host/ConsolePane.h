#pragma once
/// The console on the screen: what was sent and answered above, the field for the next line below. The text
/// above can be selected and copied; the oldest of it goes when there is very much.

#include <QWidget>

#include "host/TclConsole.h"

class QPlainTextEdit;

namespace navigator {

class ConsoleInput;

class ConsolePane : public QWidget {
public:
    /// @param console  outlives the pane
    explicit ConsolePane(TclConsole& console, QWidget* parent = nullptr);
    ~ConsolePane() override;

    /// Runs a text as if it had been typed.
    void Run(const QString& text);
    /// Gives the keyboard to the field.
    void FocusInput();
    [[nodiscard]] bool HasInputFocus() const;
    [[nodiscard]] QSize sizeHint() const override;
    /// While a line runs: no input reaches any window; Escape, or closing a window, ends the line.
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    enum class TInk { Sent, Written, Result, Error };

    bool LetPaint();
    void Append(const QString& text, TInk ink);

    TclConsole& m_console;
    QPlainTextEdit* m_output;
    ConsoleInput* m_input;
    bool m_isStopWanted = false;
};

}  // namespace navigator
