/// Texts that are made elsewhere, in windows that do not wait for an answer.

#include "host/HelpWindow.h"

#include <tcl.h>

#include <QClipboard>
#include <QDialogButtonBox>
#include <QFontDatabase>
#include <QGuiApplication>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScreen>
#include <QTabWidget>
#include <QTextBrowser>
#include <QVBoxLayout>

#include "host/CellCommand.h"
#include "host/CommandHelp.h"
#include "host/NavigatorCommand.h"
#include "host/ProtocolText.h"
#include "host/UserCommand.h"
#include "host/UserMenuCommand.h"
#include "vapp/Version.h"

namespace navigator {

namespace {

QPlainTextEdit* PlainText(const std::string& text, const char* name, QWidget* parent) {
    auto* const view = new QPlainTextEdit(QString::fromStdString(text), parent);
    view->setObjectName(QLatin1String(name));
    view->setReadOnly(true);
    view->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    view->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    return view;
}

QDialogButtonBox* CloseBox(QDialog& dialog) {
    auto* const box = new QDialogButtonBox(QDialogButtonBox::Close, &dialog);
    QObject::connect(box, &QDialogButtonBox::rejected, &dialog, &QDialog::close);
    return box;
}

std::string ScreenFacts() {
    std::string text;
    for (const QScreen* screen : QGuiApplication::screens()) {
        const QSize size = screen->size();
        text += "screen: " + std::to_string(size.width()) + " x " + std::to_string(size.height()) +
                ", scale " + QString::number(screen->devicePixelRatio()).toStdString() + '\n';
    }
    return text;
}

}  // namespace

HelpWindow::HelpWindow(QWidget* parent) : QDialog(parent) {
    constexpr QSize cnSize(820, 640);
    setObjectName(QStringLiteral("helpWindow"));
    setWindowTitle(tr("Tcl protocol"));
    setAttribute(Qt::WA_DeleteOnClose);
    auto* const pages = new QTabWidget(this);
    pages->setAccessibleName(tr("Pages"));
    auto* const commands = PlainText(gDescribeAllCommands() + gDescribe(CellCommand::Help()) +
                                         gDescribe(NavigatorCommand::Help()) +
                                         gDescribe(UserCommand::Help()) + gDescribe(UserMenuCommand::Help()),
                                     "helpCommands", pages);
    commands->setAccessibleName(tr("Commands for scripts"));
    auto* const protocol = new QTextBrowser(pages);
    protocol->setAccessibleName(tr("Lines of the navigator"));
    protocol->setObjectName(QStringLiteral("helpProtocol"));
    // Its links lead to files beside the document, which are not in the program.
    protocol->setOpenLinks(false);
    const std::string_view text = gProtocolText();
    protocol->setMarkdown(QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size())));
    pages->addTab(commands, tr("&Commands for scripts"));
    pages->addTab(protocol, tr("&Lines of the navigator"));
    auto* const layout = new QVBoxLayout(this);
    layout->addWidget(pages);
    layout->addWidget(CloseBox(*this));
    resize(cnSize);
}

AboutWindow::AboutWindow(const std::string& facts, QWidget* parent) : QDialog(parent) {
    constexpr QSize cnSize(560, 400);
    setObjectName(QStringLiteral("aboutWindow"));
    setWindowTitle(tr("About the navigator"));
    setAttribute(Qt::WA_DeleteOnClose);
    auto* const title = new QLabel(tr("Library Navigator %1").arg(QLatin1String(csVappVersion)), this);
    QFont font = title->font();
    font.setPointSizeF(font.pointSizeF() * 1.5);
    title->setFont(font);
    auto* const text = PlainText(facts, "aboutFacts", this);
    text->setAccessibleName(tr("Facts of the program and the machine"));
    QDialogButtonBox* const box = CloseBox(*this);
    QPushButton* const copy = box->addButton(tr("&Copy"), QDialogButtonBox::ActionRole);
    copy->setObjectName(QStringLiteral("aboutCopy"));
    connect(copy, &QPushButton::clicked, this,
            [text] { QGuiApplication::clipboard()->setText(text->toPlainText()); });
    auto* const layout = new QVBoxLayout(this);
    layout->addWidget(title);
    layout->addWidget(text);
    layout->addWidget(box);
    resize(cnSize);
}

std::string gProgramFacts() {
    return std::string("navigator: ") + csVappVersion + "\nQt: " + qVersion() + ", " +
           QGuiApplication::platformName().toStdString() + "\nTcl: " + TCL_PATCH_LEVEL + '\n' + ScreenFacts();
}

}  // namespace navigator
