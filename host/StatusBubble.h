#pragma once
/// A line of text at the lower left edge of the window, upon what is there: a bar of its own would take room
/// from the panes, or move them whenever it comes.

#include <QLabel>
#include <QTimer>

namespace navigator {

class StatusBubble : public QLabel {
public:
    explicit StatusBubble(QWidget& window);

    /// Shows a text until the next one; an empty text hides the line. Only the beginning of a long text is
    /// seen.
    void Tell(const QString& text);
    /// The same, and the line goes by itself after a while.
    void TellForAWhile(const QString& text);
    /// The whole text that was told last.
    [[nodiscard]] const QString& Text() const { return m_text; }
    /// Stays at its edge.
    bool eventFilter(QObject* watched, QEvent* event) override;

    /// How long a text stays that nobody takes away, in milliseconds.
    void SetWhile(int milliseconds) { m_while.setInterval(milliseconds); }

private:
    void Place();

    QWidget& m_window;
    QString m_text;
    QTimer m_while;
};

}  // namespace navigator
