/// Actions of the menu bar.

#include "host/MainMenu.h"

#include <QAction>
#include <QFile>
#include <QFileDialog>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <string>

#include "host/HelpWindow.h"
#include "host/MachineFacts.h"
#include "host/PathText.h"
#include "vapp/toolkit/TMessageBox.h"

namespace navigator {

MainMenu::MainMenu(QMainWindow& window, Navigator& navigator)
    : m_window(window),
      m_navigator(navigator),
      m_recentMenu(new QMenu(QObject::tr("Open &recent"), &window)),
      m_viewMenu(new QMenu(QObject::tr("&View"), &window)) {
    FillFileMenu();
    m_viewMenu->setObjectName(QStringLiteral("viewMenu"));
    m_window.menuBar()->addMenu(m_viewMenu);
    FillHelpMenu();
    m_recent.Load(m_navigator.App());
    ShowRecent();
}

void MainMenu::AddView(QAction& action) {
    m_viewMenu->addAction(&action);
}

void MainMenu::FillFileMenu() {
    QMenu* const menu = m_window.menuBar()->addMenu(QObject::tr("&File"));
    menu->setObjectName(QStringLiteral("fileMenu"));
    m_recentMenu->setObjectName(QStringLiteral("recentMenu"));
    QAction* const open = menu->addAction(QObject::tr("&Open folder..."));
    open->setShortcut(QKeySequence::Open);
    QObject::connect(open, &QAction::triggered, &m_window, [this] { AskFolder(); });
    menu->addMenu(m_recentMenu);
    // Another instance may have opened a folder since.
    QObject::connect(menu, &QMenu::aboutToShow, &m_window, [this] {
        m_recent.Load(m_navigator.App());
        ShowRecent();
    });
    menu->addSeparator();
    QAction* const quit = menu->addAction(QObject::tr("&Quit"));
    quit->setShortcut(QKeySequence::Quit);
    quit->setMenuRole(QAction::QuitRole);
    QObject::connect(quit, &QAction::triggered, &m_window, &QWidget::close);
}

void MainMenu::FillHelpMenu() {
    QMenu* const menu = m_window.menuBar()->addMenu(QObject::tr("&Help"));
    menu->setObjectName(QStringLiteral("helpMenu"));
    QAction* const protocol = menu->addAction(QObject::tr("&Tcl protocol"));
    protocol->setShortcut(QKeySequence::HelpContents);
    QObject::connect(protocol, &QAction::triggered, &m_window,
                     [this] { (new HelpWindow(&m_window))->show(); });
    menu->addSeparator();
    QAction* const about = menu->addAction(QObject::tr("&About"));
    about->setMenuRole(QAction::AboutRole);
    QObject::connect(about, &QAction::triggered, &m_window, [this] { ShowAbout(); });
}

void MainMenu::ShowRecent() {
    m_recentMenu->clear();
    int number = 0;
    for (const std::string& path : m_recent.Paths()) {
        QAction* const action =
            m_recentMenu->addAction(QString::fromStdString(gRecentFolderText(++number, path)));
        action->setStatusTip(QString::fromStdString(path));
        // Queued, as opening fills the menu anew, and so ends the action that is running.
        QObject::connect(
            action, &QAction::triggered, &m_window, [this, path] { Open(gPathOf(path)); },
            Qt::QueuedConnection);
    }
    m_recentMenu->setEnabled(number > 0);
}

void MainMenu::AskFolder() {
    const QString folder = QFileDialog::getExistingDirectory(&m_window, QObject::tr("Open folder"));
    if (!folder.isEmpty()) Open(QFile::encodeName(folder).toStdString());
}

void MainMenu::Open(const std::filesystem::path& folder) {
    if (const auto failure = m_navigator.ShowFolder(folder)) {
        m_recent.Load(m_navigator.App());
        m_recent.Remove(folder);
        m_recent.Store(m_navigator.App());
        ShowRecent();
        TMessageBox(&m_navigator.Frame(), "Open folder", CStringU(failure->c_str(), TextEncoding::Utf8Auto),
                    MB_ICONWARNING)
            .DoModal();
        return;
    }
    Remember(folder);
    if (m_opened) m_opened();
}

void MainMenu::Remember(const std::filesystem::path& folder) {
    m_recent.Load(m_navigator.App());
    m_recent.Add(folder);
    m_recent.Store(m_navigator.App());
    ShowRecent();
}

void MainMenu::ShowAbout() {
    std::string facts = gProgramFacts();
    if (m_machine != nullptr) facts += gMachineFacts(*m_machine);
    (new AboutWindow(facts, &m_window))->show();
}

}  // namespace navigator
