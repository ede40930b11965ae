/// The window's parts, and the search, which begins anew at the end of the text.

#include "host/TextViewer.h"

#include <QFontDatabase>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QShortcut>
#include <QTextBlock>
#include <QVBoxLayout>

#include "host/DisplayName.h"
#include "host/FileText.h"

namespace navigator {

namespace {

constexpr QSize cnViewerSize(760, 560);

QString FileNameOf(const std::filesystem::path& file) {
    return QString::fromStdString(gDisplayName(file.native()));
}

QString TitleOf(const CellViewName& name) {
    return QString::fromStdString(name.cell + " (" + name.view + ") - " + name.library);
}

}  // namespace

TextViewer& TextViewer::Show(const CellViewName& name, const std::filesystem::path& file, QWidget& parent) {
    TextViewer* shown = nullptr;
    for (QDialog* const other : parent.findChildren<QDialog*>(QStringLiteral("textViewer"))) {
        auto* const viewer = dynamic_cast<TextViewer*>(other);
        if (viewer != nullptr && viewer->m_file == file) shown = viewer;
    }
    if (shown == nullptr) shown = new TextViewer(name, file, parent);
    shown->Read();
    shown->show();
    shown->raise();
    shown->activateWindow();
    return *shown;
}

TextViewer::TextViewer(const CellViewName& name, const std::filesystem::path& file, QWidget& parent)
    : QDialog(&parent),
      m_file(file),
      m_text(new QPlainTextEdit(this)),
      m_wanted(new QLineEdit(this)),
      m_note(new QLabel(this)) {
    setObjectName(QStringLiteral("textViewer"));
    setWindowTitle(TitleOf(name));
    setAttribute(Qt::WA_DeleteOnClose);
    m_text->setObjectName(QStringLiteral("viewerText"));
    m_text->setAccessibleName(tr("Text of the view"));
    m_text->setReadOnly(true);
    m_text->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    m_text->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    m_text->setLineWrapMode(QPlainTextEdit::NoWrap);
    m_text->setTabChangesFocus(true);
    m_wanted->setObjectName(QStringLiteral("viewerFind"));
    m_wanted->setAccessibleName(tr("Find in the text"));
    m_wanted->setPlaceholderText(tr("Find"));
    m_wanted->setClearButtonEnabled(true);
    m_note->setObjectName(QStringLiteral("viewerNote"));
    m_note->setTextFormat(Qt::PlainText);
    auto* const path = new QLineEdit(FileNameOf(file), this);
    path->setObjectName(QStringLiteral("viewerPath"));
    path->setAccessibleName(tr("File"));
    path->setReadOnly(true);
    path->setFrame(false);
    path->setCursorPosition(0);
    auto* const bar = new QHBoxLayout;
    bar->addWidget(path, 2);
    bar->addWidget(m_wanted, 1);
    auto* const layout = new QVBoxLayout(this);
    layout->addLayout(bar);
    layout->addWidget(m_note);
    layout->addWidget(m_text, 1);
    m_text->setFocus();
    connect(m_wanted, &QLineEdit::returnPressed, this, [this] { FindNext(false); });
    connect(new QShortcut(QKeySequence::Find, this), &QShortcut::activated, m_wanted, [this] {
        m_wanted->setFocus();
        m_wanted->selectAll();
    });
    connect(new QShortcut(QKeySequence::FindNext, this), &QShortcut::activated, this,
            [this] { FindNext(false); });
    connect(new QShortcut(QKeySequence::FindPrevious, this), &QShortcut::activated, this,
            [this] { FindNext(true); });
    connect(new QShortcut(QKeySequence::Refresh, this), &QShortcut::activated, this, [this] { Read(); });
    resize(cnViewerSize);
}

void TextViewer::Read() {
    const FileText file = gReadFileText(m_file);
    m_text->setPlainText(QString::fromStdString(file.text));
    m_note->setText(QString::fromStdString(file.note));
    m_note->setVisible(!file.note.empty());
}

void TextViewer::FindNext(bool isBackward) {
    const QString wanted = m_wanted->text();
    if (wanted.isEmpty()) return;
    const QTextDocument::FindFlags way =
        isBackward ? QTextDocument::FindBackward : QTextDocument::FindFlags();
    bool isFound = m_text->find(wanted, way);
    if (!isFound) {
        const QTextCursor before = m_text->textCursor();
        m_text->moveCursor(isBackward ? QTextCursor::End : QTextCursor::Start);
        isFound = m_text->find(wanted, way);
        if (!isFound) m_text->setTextCursor(before);
    }
    m_note->setText(tr("Not found: %1").arg(wanted));
    m_note->setVisible(!isFound);
}

}  // namespace navigator
