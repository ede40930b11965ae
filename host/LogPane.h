#pragma once
/// The log of what the user did, on the screen: each line as it was sent, what failed in a colour of its own.
/// It can be copied and cleared. It keeps nothing itself: the log does.

#include <QWidget>

#include "host/ActionLog.h"

class QPlainTextEdit;
class QPushButton;

namespace navigator {

class LogPane : public QWidget {
public:
    /// Shows what is in the log already. The log outlives the pane, or is told of no more of it.
    explicit LogPane(ActionLog& log, QWidget* parent = nullptr);

    /// Shows an entry behind the others; null empties the pane.
    void Show(const ActionLog::TEntry* entry);
    [[nodiscard]] QSize sizeHint() const override;

private:
    void Copy();

    QPlainTextEdit* m_text;
    QPushButton* m_copy;
    QPushButton* m_clear;
};

}  // namespace navigator
