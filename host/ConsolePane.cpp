/// The two fields of the console, and the colours of what is in the upper one.

#include "host/ConsolePane.h"

#include <QApplication>
#include <QFontDatabase>
#include <QKeyEvent>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QTextBlock>
#include <QVBoxLayout>

#include "host/ConsoleInput.h"

namespace navigator {

namespace {

constexpr int cnMostLinesKept = 20'000;
constexpr int cnWantedWidth = 400;
constexpr int cnWantedHeight = 200;
constexpr int cnPaneMargin = 4;

QString ShownText(const std::string& utf8) {
    QString text = QString::fromStdString(utf8);
    // A NUL would end what is copied in many programs.
    return text.replace(QChar(0), QChar(0x2400));
}

}  // namespace

ConsolePane::ConsolePane(TclConsole& console, QWidget* parent)
    : QWidget(parent),
      m_console(console),
      m_output(new QPlainTextEdit(this)),
      m_input(new ConsoleInput(console.History(), this)) {
    setObjectName(QStringLiteral("console"));
    const QFont fixed = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    m_output->setFont(fixed);
    m_input->setFont(fixed);
    m_output->setObjectName(QStringLiteral("consoleOutput"));
    m_output->setAccessibleName(tr("Answers of Tcl commands"));
    m_output->setReadOnly(true);
    m_output->setUndoRedoEnabled(false);
    m_output->setMaximumBlockCount(cnMostLinesKept);
    // A read-only text gets no caret by itself; with one it can be selected by keys as well.
    m_output->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    m_output->setTabChangesFocus(true);
    m_output->setMinimumSize(1, 1);
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(cnPaneMargin, 0, cnPaneMargin, cnPaneMargin);
    layout->setSpacing(cnPaneMargin);
    layout->addWidget(m_output, 1);
    layout->addWidget(m_input);
    setFocusProxy(m_input);
    m_input->SetSendHandler([this](const QString& text) { Run(text); });
    m_console.SetBusyHandler([this] { return LetPaint(); });
}

ConsolePane::~ConsolePane() {
    m_console.SetBusyHandler(nullptr);
}

void ConsolePane::Run(const QString& text) {
    Append(QStringLiteral("% ") + text, TInk::Sent);
    m_isStopWanted = false;
    const ConsoleAnswer answer = m_console.Run(text.toStdString());
    m_input->ShowHint(false);
    if (!answer.output.empty()) Append(ShownText(answer.output), TInk::Written);
    if (!answer.result.empty()) Append(ShownText(answer.result), answer.isError ? TInk::Error : TInk::Result);
    QScrollBar* const bar = m_output->verticalScrollBar();
    bar->setValue(bar->maximum());
}

bool ConsolePane::LetPaint() {
    m_input->ShowHint(true);
    qApp->installEventFilter(this);
    QCoreApplication::processEvents();
    qApp->removeEventFilter(this);
    return m_isStopWanted;
}

bool ConsolePane::eventFilter(QObject* watched, QEvent* event) {
    switch (event->type()) {
        case QEvent::ShortcutOverride:
        case QEvent::KeyPress:
            if (static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape) m_isStopWanted = true;
            return true;
        case QEvent::Close:
            m_isStopWanted = true;
            event->ignore();
            return true;
        case QEvent::KeyRelease:
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonRelease:
        case QEvent::MouseButtonDblClick:
        case QEvent::MouseMove:
        case QEvent::Wheel:
        case QEvent::ContextMenu:
        case QEvent::Shortcut:
        case QEvent::InputMethod:
        case QEvent::DragEnter:
        case QEvent::Drop:
            return true;
        default:
            return QWidget::eventFilter(watched, event);
    }
}

void ConsolePane::FocusInput() {
    m_input->setFocus(Qt::ShortcutFocusReason);
}

bool ConsolePane::HasInputFocus() const {
    return m_input->hasFocus();
}

QSize ConsolePane::sizeHint() const {
    return {cnWantedWidth, cnWantedHeight};
}

// Whatever the user has selected stays selected: the text goes in by a cursor of its own.
void ConsolePane::Append(const QString& text, TInk ink) {
    QTextCharFormat format;
    QFont font = m_output->font();
    font.setBold(ink == TInk::Sent);
    format.setFont(font);
    if (ink == TInk::Error) format.setForeground(palette().color(QPalette::BrightText));
    QTextCursor end(m_output->document());
    end.movePosition(QTextCursor::End);
    if (!m_output->document()->isEmpty()) end.insertBlock();
    const bool endsLine = text.endsWith(QLatin1Char('\n'));
    end.insertText(endsLine ? text.chopped(1) : text, format);
}

}  // namespace navigator
