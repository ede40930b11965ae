/// One text field and two buttons.

#include "host/LogPane.h"

#include <QClipboard>
#include <QFontDatabase>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QTextBlock>
#include <QVBoxLayout>

namespace navigator {

namespace {

constexpr QSize cnWantedLogSize(400, 160);
constexpr int cnLogMargin = 4;

QPushButton* Button(const QString& text, const char* name, QWidget* parent) {
    auto* const button = new QPushButton(text, parent);
    button->setObjectName(QLatin1String(name));
    button->setEnabled(false);
    // Enter in the console must not reach them.
    button->setAutoDefault(false);
    return button;
}

/// One line of the pane for each entry, so that as many are shown as are kept.
QString LineOf(const ActionLog::TEntry& entry) {
    QString text = QString::fromStdString(entry.text);
    text.replace(QChar(0), QChar(0x2400));
    text.replace(QLatin1Char('\n'), QChar(0x21B5));
    return entry.kind == ActionLog::TKind::Action ? text : QStringLiteral("  ") + text;
}

}  // namespace

LogPane::LogPane(ActionLog& log, QWidget* parent)
    : QWidget(parent),
      m_text(new QPlainTextEdit(this)),
      m_copy(Button(tr("&Copy"), "logCopy", this)),
      m_clear(Button(tr("C&lear"), "logClear", this)) {
    setObjectName(QStringLiteral("log"));
    m_text->setObjectName(QStringLiteral("logText"));
    m_text->setAccessibleName(tr("Log of actions"));
    m_text->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    m_text->setReadOnly(true);
    m_text->setUndoRedoEnabled(false);
    m_text->setMaximumBlockCount(static_cast<int>(ActionLog::cnMostKept));
    m_text->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    m_text->setTabChangesFocus(true);
    m_text->setMinimumSize(1, 1);
    m_copy->setToolTip(tr("Copies what is selected, or all"));
    auto* const buttons = new QHBoxLayout;
    buttons->addStretch(1);
    buttons->addWidget(m_copy);
    buttons->addWidget(m_clear);
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(cnLogMargin, 0, cnLogMargin, cnLogMargin);
    layout->setSpacing(cnLogMargin);
    layout->addWidget(m_text, 1);
    layout->addLayout(buttons);
    connect(m_copy, &QPushButton::clicked, this, [this] { Copy(); });
    connect(m_clear, &QPushButton::clicked, this, [&log] { log.Clear(); });
    for (const ActionLog::TEntry& entry : log.Entries())
        Show(&entry);
}

void LogPane::Show(const ActionLog::TEntry* entry) {
    m_copy->setEnabled(entry != nullptr);
    m_clear->setEnabled(entry != nullptr);
    if (entry == nullptr) {
        m_text->clear();
        return;
    }
    QTextCharFormat format;
    if (entry->kind == ActionLog::TKind::Failure) format.setForeground(palette().color(QPalette::BrightText));
    QFont font = m_text->font();
    font.setItalic(entry->kind == ActionLog::TKind::Notice);
    format.setFont(font);
    // The user's own selection stays.
    QTextCursor end(m_text->document());
    end.movePosition(QTextCursor::End);
    if (!m_text->document()->isEmpty()) end.insertBlock();
    end.insertText(LineOf(*entry), format);
    QScrollBar* const bar = m_text->verticalScrollBar();
    bar->setValue(bar->maximum());
}

void LogPane::Copy() {
    const QTextCursor selected = m_text->textCursor();
    QString text = selected.hasSelection() ? selected.selectedText() : m_text->toPlainText();
    text.replace(QChar::ParagraphSeparator, QLatin1Char('\n'));
    QGuiApplication::clipboard()->setText(text);
}

QSize LogPane::sizeHint() const {
    return cnWantedLogSize;
}

}  // namespace navigator
