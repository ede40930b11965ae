/// Keys of the console's field.

#include "host/ConsoleInput.h"

#include <QEvent>
#include <QKeyEvent>
#include <QTextBlock>
#include <algorithm>
#include <cmath>

namespace navigator {

namespace {

constexpr int cnMostLinesSeen = 10;

bool IsReturn(const QKeyEvent& event) {
    return event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
}

}  // namespace

ConsoleInput::ConsoleInput(InputHistory& history, QWidget* parent)
    : QPlainTextEdit(parent), m_history(history) {
    setObjectName(QStringLiteral("consoleInput"));
    setAccessibleName(tr("Tcl command"));
    ShowHint(false);
    setLineWrapMode(NoWrap);
    // Tab goes on to the next pane, as everywhere in the window.
    setTabChangesFocus(true);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    connect(this, &QPlainTextEdit::blockCountChanged, this, [this] { FitHeight(); });
    FitHeight();
}

void ConsoleInput::ShowHint(bool isRunning) {
    const QString hint =
        isRunning ? tr("Running. Escape stops it.") : tr("Tcl, for example: database all_libs");
    if (placeholderText() != hint) setPlaceholderText(hint);
}

void ConsoleInput::keyPressEvent(QKeyEvent* event) {
    const bool isPlainReturn = IsReturn(*event) && !event->modifiers().testFlag(Qt::ShiftModifier);
    if (isPlainReturn && TclConsole::IsComplete(toPlainText().toStdString())) {
        Send();
    } else if (IsReturn(*event)) {
        // Not the line separator that the base makes of Shift with Return: Tcl would not end a line there.
        textCursor().insertBlock();
        ensureCursorVisible();
    } else if (event->key() == Qt::Key_Escape) {
        clear();
    } else if (!WalkHistory(*event)) {
        QPlainTextEdit::keyPressEvent(event);
    }
}

bool ConsoleInput::WalkHistory(const QKeyEvent& event) {
    if ((event.modifiers() & ~Qt::KeypadModifier) != Qt::NoModifier) return false;
    const QTextBlock line = textCursor().block();
    if (event.key() == Qt::Key_Up && !line.previous().isValid()) {
        Show(m_history.Previous(toPlainText().toStdString()));
        return true;
    }
    if (event.key() == Qt::Key_Down && !line.next().isValid()) {
        Show(m_history.Next());
        return true;
    }
    return false;
}

void ConsoleInput::Show(const std::optional<std::string>& text) {
    if (!text) return;
    setPlainText(QString::fromStdString(*text));
    moveCursor(QTextCursor::End);
}

void ConsoleInput::Send() {
    const QString text = toPlainText();
    clear();
    if (m_send && !text.trimmed().isEmpty()) m_send(text);
}

void ConsoleInput::changeEvent(QEvent* event) {
    QPlainTextEdit::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) FitHeight();
}

void ConsoleInput::FitHeight() {
    // By itself the bar comes a pixel too early.
    setVerticalScrollBarPolicy(blockCount() > cnMostLinesSeen ? Qt::ScrollBarAsNeeded
                                                              : Qt::ScrollBarAlwaysOff);
    const int lines = std::clamp(blockCount(), 1, cnMostLinesSeen);
    const double text = lines * fontMetrics().lineSpacing() + 2 * document()->documentMargin();
    setFixedHeight(static_cast<int>(std::ceil(text)) + 2 * frameWidth());
}

}  // namespace navigator
