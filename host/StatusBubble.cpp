/// Placing, shortening, hiding.

#include "host/StatusBubble.h"

#include <QEvent>
#include <QToolTip>
#include <algorithm>

namespace navigator {

namespace {

constexpr int cnBubbleMargin = 4;
constexpr int cnWhile = 8000;

}  // namespace

StatusBubble::StatusBubble(QWidget& window) : QLabel(&window), m_window(window) {
    setObjectName(QStringLiteral("statusBubble"));
    setAccessibleName(tr("Status"));
    setTextFormat(Qt::PlainText);
    setAutoFillBackground(true);
    setFrameShape(QFrame::StyledPanel);
    setMargin(cnBubbleMargin);
    // What is below gets the clicks.
    setAttribute(Qt::WA_TransparentForMouseEvents);
    hide();
    m_while.setSingleShot(true);
    m_while.setInterval(cnWhile);
    connect(&m_while, &QTimer::timeout, this, [this] { Tell(QString()); });
    window.installEventFilter(this);
}

void StatusBubble::Tell(const QString& text) {
    m_while.stop();
    m_text = text.simplified();
    if (m_text.isEmpty()) {
        hide();
        return;
    }
    Place();
    show();
    raise();
}

void StatusBubble::TellForAWhile(const QString& text) {
    Tell(text);
    if (!isHidden()) m_while.start();
}

bool StatusBubble::eventFilter(QObject* watched, QEvent* event) {
    if (watched == &m_window && event->type() == QEvent::Resize && !isHidden()) Place();
    return QLabel::eventFilter(watched, event);
}

// In the colours of a tool tip, of the theme that is on at the moment.
void StatusBubble::Place() {
    setPalette(QToolTip::palette());
    setForegroundRole(QPalette::ToolTipText);
    setBackgroundRole(QPalette::ToolTipBase);
    const int room = std::max(m_window.width() - 2 * (cnBubbleMargin + frameWidth()), 0);
    setText(fontMetrics().elidedText(m_text, Qt::ElideMiddle, room));
    adjustSize();
    move(0, m_window.height() - height());
}

}  // namespace navigator
