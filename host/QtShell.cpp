/// The window's parts that are Qt's alone, and what follows from the event loop.
///
/// The preview's bitmap stays with the shell: the pane shows it without owning it, so the old one goes only
/// when the new one is in its place.

#include "host/QtShell.h"

#include <QAbstractEventDispatcher>
#include <QAction>
#include <QApplication>
#include <QDockWidget>
#include <QFile>
#include <QInputDialog>
#include <QLineEdit>
#include <QMainWindow>
#include <QScreen>
#include <QStatusBar>
#include <QToolTip>
#include <utility>

#include "host/LibraryText.h"
#include "host/OpenMenus.h"
#include "host/SymbolPainter.h"
#include "host/TextViewer.h"
#include "host/WindowLayout.h"
#include "vapp/browser/TSymbolPreview.h"
#include "vapp/celllist/TCellListView.h"
#include "vapp/toolkit/WindowPlacement.h"
#include "vapp/toolkit/qt/QtIdle.h"
#include "vapp/toolkit/qt/QtPeerFactory.h"
#include "vapp/toolkit/qt/QtTheme.h"

namespace navigator {

namespace {

/// A refresh may ask for another one (a pending highlight, a change noted by a script), and painting may ask
/// for a preview; more rounds than this means that a script asks for a refresh at each refresh.
constexpr int cnSettlingRounds = 10;

/// Under this name the placement of the main window is kept.
constexpr char csWindowPlace[] = "WindowPos";
/// What is this program's own in the settings: which of its bars are shown, and where.
constexpr char csHostSection[] = "Window";
constexpr char csBars[] = "Bars";

/// The items of the open menus as a script sees them.
Tcl_Obj* OpenMenuList() {
    Tcl_Obj* const list = Tcl_NewListObj(0, nullptr);
    const auto put = [](Tcl_Obj* dictionary, const char* key, Tcl_Obj* value) {
        Tcl_DictObjPut(nullptr, dictionary, Tcl_NewStringObj(key, -1), value);
    };
    for (const OpenMenuItem& item : gOpenMenuItems()) {
        Tcl_Obj* const facts = Tcl_NewDictObj();
        Tcl_Obj* const place = Tcl_NewListObj(0, nullptr);
        for (const int number : {item.place.x(), item.place.y(), item.place.width(), item.place.height()})
            Tcl_ListObjAppendElement(nullptr, place, Tcl_NewIntObj(number));
        put(facts, "text", gTclText(item.text));
        put(facts, "place", place);
        put(facts, "enabled", Tcl_NewIntObj(item.isEnabled ? 1 : 0));
        put(facts, "checked", Tcl_NewIntObj(item.isChecked ? 1 : 0));
        put(facts, "default", Tcl_NewIntObj(item.isDefault ? 1 : 0));
        put(facts, "submenu", Tcl_NewIntObj(item.hasSubMenu ? 1 : 0));
        Tcl_ListObjAppendElement(nullptr, list, facts);
    }
    return list;
}

std::string CaptionOf(const CellViewName& name) {
    return name.library + " / " + name.cell + " / " + name.view;
}

}  // namespace

QtShell::QtShell(Navigator& navigator)
    : m_navigator(navigator),
      m_watcher([this] {
          m_navigator.Rescan();
          m_watcher.Watch(m_navigator.Store());
          TellTroubles();
      }),
      m_console(navigator.Interp()),
      m_exit(navigator.Interp(), "exit",
             [this](Tcl_Interp* interp, TclWords words) { return Exit(interp, words); }) {
    QtPeerFactory::Install();
    m_navigator.Commands().SetPreviewHandler([this](const PreviewRequest& request) { ShowPreview(request); });
}

QtShell::~QtShell() {
    if (m_wasShown) {
        KeepPlace();
        m_navigator.KeepLastView();
    }
    m_navigator.User().SetConsoleHandler(nullptr);
    m_navigator.User().SetMenuHandler(nullptr);
    m_navigator.User().SetTipHandler(nullptr);
    m_navigator.Commands().Log().SetHandler(nullptr);
    m_navigator.Cells().SetOpenHandler(nullptr);
    m_navigator.Menus().SetTabNameQuestion(nullptr);
    m_navigator.Menus().SetStatusHandler(nullptr);
    // The window may live on for a moment; the console in it has nothing to talk to any more.
    delete m_dock.data();
    delete m_logDock.data();
    delete m_status.data();
    QObject::disconnect(m_refreshing);
    QObject::disconnect(m_idle);
    m_navigator.Commands().SetPreviewHandler(nullptr);
    m_navigator.Browser().SetPreview(true, CStringU(), nullptr);
}

QMainWindow* QtShell::Window() const {
    return qobject_cast<QMainWindow*>(gWidgetOf(m_navigator.Frame()));
}

void QtShell::Equip(const TOsInfo* machine) {
    QMainWindow* const window = Window();
    if (window == nullptr) return;
    gApplyTheme(m_navigator.Frame().IsDark());
    m_menu = std::make_unique<MainMenu>(*window, m_navigator);
    if (machine != nullptr) m_menu->SetMachine(*machine);
    m_menu->SetOpenHandler([this] { m_watcher.Watch(m_navigator.Store()); });
    AddConsole(*window);
    AddLog(*window);
    ArrangeBars(*window);
    ConnectMenus(*window);
}

void QtShell::AddConsole(QMainWindow& window) {
    m_dock = new QDockWidget(QObject::tr("Tcl console"), &window);
    m_dock->setObjectName(QStringLiteral("consoleDock"));
    m_consolePane = new ConsolePane(m_console, m_dock);
    m_dock->setWidget(m_consolePane);
    m_navigator.User().SetConsoleHandler(
        [this](const std::string& text) { m_consolePane->Run(QString::fromStdString(text)); });
    window.addDockWidget(Qt::RightDockWidgetArea, m_dock);
    auto* const action = new QAction(QObject::tr("Tcl &console"), m_dock);
    action->setCheckable(true);
    action->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_T));
    QObject::connect(action, &QAction::triggered, m_dock, [this] { ToggleConsole(); });
    // Hidden together with a window that is minimised it is still wanted.
    QObject::connect(m_dock->toggleViewAction(), &QAction::toggled, action, &QAction::setChecked);
    action->setChecked(true);
    m_menu->AddView(*action);
}

void QtShell::AddLog(QMainWindow& window) {
    ActionLog& log = m_navigator.Commands().Log();
    m_logDock = new QDockWidget(QObject::tr("Log"), &window);
    m_logDock->setObjectName(QStringLiteral("logDock"));
    m_logPane = new LogPane(log, m_logDock);
    m_logDock->setWidget(m_logPane);
    window.addDockWidget(Qt::RightDockWidgetArea, m_logDock);
    QAction* const action = m_logDock->toggleViewAction();
    action->setText(QObject::tr("&Log of actions"));
    action->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_L));
    m_menu->AddView(*action);
    log.SetHandler([this](const ActionLog::TEntry* entry) { OnLogged(entry); });
}

// What somebody should know who doesn't look at the log is told in the status line too.
void QtShell::OnLogged(const ActionLog::TEntry* entry) {
    if (m_logPane != nullptr) m_logPane->Show(entry);
    if (entry == nullptr || m_status == nullptr) return;
    // What was said of the action before is over.
    const bool isAction = entry->kind == ActionLog::TKind::Action;
    m_status->TellForAWhile(isAction ? QString()
                                     : QString::fromStdString(entry->text.substr(0, entry->text.find('\n'))));
}

void QtShell::ArrangeBars(QMainWindow& window) {
    const QByteArray bars = m_navigator.App().GetProfileString(csHostSection, csBars).GetString();
    if (!bars.isEmpty() && window.restoreState(QByteArray::fromBase64(bars))) return;
    const bool hasRoom = gHasRoomForConsole(window.width());
    m_dock->setVisible(hasRoom);
    m_logDock->setVisible(hasRoom);
}

void QtShell::ConnectMenus(QMainWindow& window) {
    m_status = new StatusBubble(window);
    m_navigator.Cells().SetOpenHandler(
        [&window](const CellViewName& name, const std::filesystem::path& file) {
            TextViewer::Show(name, file, window);
        });
    m_navigator.Menus().SetStatusHandler([this](const std::string& text) {
        if (m_status != nullptr) m_status->Tell(QString::fromStdString(text));
    });
    m_navigator.Menus().SetTabNameQuestion([&window](const std::string& now) -> std::optional<std::string> {
        bool isTaken = false;
        const QString name =
            QInputDialog::getText(&window, QObject::tr("Rename the tab"), QObject::tr("Name:"),
                                  QLineEdit::Normal, QString::fromStdString(now), &isTaken);
        return isTaken ? std::optional(name.toStdString()) : std::nullopt;
    });
    m_navigator.User().SetMenuHandler(&OpenMenuList);
    m_navigator.User().SetTipHandler([this] {
        const bool isTold = m_status != nullptr && !m_status->isHidden();
        return UserCommand::Tips{QToolTip::text().toStdString(),
                                 isTold ? m_status->Text().toStdString() : std::string()};
    });
}

// One key brings the keyboard to the console wherever it is, and from there away again.
void QtShell::ToggleConsole() {
    if (m_dock->isVisible() && m_consolePane->HasInputFocus()) {
        m_dock->hide();
        FocusCells();
        return;
    }
    m_dock->show();
    m_dock->raise();
    m_dock->activateWindow();
    m_consolePane->FocusInput();
    m_dock->toggleViewAction()->setChecked(true);
}

int QtShell::Exit(Tcl_Interp* interp, TclWords words) {
    int status = 0;
    if (words.size() > 2) {
        Tcl_WrongNumArgs(interp, 1, words.data(), "?returnCode?");
        return TCL_ERROR;
    }
    if (words.size() == 2 && Tcl_GetIntFromObj(interp, words[1], &status) != TCL_OK) return TCL_ERROR;
    // The line that says so ends first: its interpreter, and what is kept at the end, are still needed.
    m_exitStatus = status;
    if (m_isRunning) QCoreApplication::exit(status);
    return TCL_OK;
}

int QtShell::Run() {
    if (m_exitStatus) return *m_exitStatus;
    m_isRunning = true;
    const int status = QApplication::exec();
    m_isRunning = false;
    return status;
}

// The keyboard belongs to the list that is the heart of it all, and no splitter's bar.
void QtShell::FirstLook() {
    m_navigator.FitPanes();
    FocusCells();
}

// A script may have ended the panes, and left the window.
void QtShell::FocusCells() {
    if (auto* const cells = m_navigator.Browser().GetCellListView()) cells->GetReport().SetFocus();
}

void QtShell::Show() {
    gApplyTheme(m_navigator.Frame().IsDark());
    m_watcher.Watch(m_navigator.Store());
    m_refreshing = gRunWhenIdle(*qApp, [this] { Refresh(); });
    // A script that plays the user has something to do in open menus too.
    m_idle = QObject::connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::aboutToBlock,
                              qApp, [this] { m_navigator.RunIdleScript(); });
    m_navigator.Frame().ShowWindow(true);
    FirstLook();
    TellTroubles();
    m_navigator.ShowLastView();
    m_wasShown = true;
}

// A list that goes to a cell takes the keyboard. To somebody who typed the line that made it go there, the
// next letters would be lost.
void QtShell::Refresh() {
    const bool isTyping = m_consolePane != nullptr && m_consolePane->HasInputFocus();
    m_navigator.Populate();
    if (isTyping && !m_consolePane->HasInputFocus()) m_consolePane->FocusInput();
}

// The widget's own place and size, and not the control's: those are of the client area, without the title
// bar, and the window would wander by the bar's height from run to run.
void QtShell::RestorePlace() {
    QWidget* const window = gWidgetOf(m_navigator.Frame());
    TWindowPlacement placement;
    if (window == nullptr || !gReadWindowPlacement(&placement, csWindowPlace)) return;
    ClipOrCenterRectToMonitor(&placement.normal, cnMonitorClip);
    window->move(placement.normal.left, placement.normal.top);
    // A smaller screen than the last time: the window fits into it, and its panes stay within reach.
    const QScreen* const screen = QGuiApplication::screenAt(window->pos());
    const QSize size(placement.normal.Width(), placement.normal.Height());
    window->resize(screen != nullptr ? size.boundedTo(screen->availableSize()) : size);
    if (placement.isMaximized) window->setWindowState(window->windowState() | Qt::WindowMaximized);
}

void QtShell::KeepPlace() {
    const QWidget* const window = gWidgetOf(m_navigator.Frame());
    if (window == nullptr) return;
    m_navigator.App().WriteProfileString(csHostSection, csBars, Window()->saveState().toBase64().constData());
    const bool isNormal = (window->windowState() & (Qt::WindowMaximized | Qt::WindowMinimized)) == 0;
    const QRect place = isNormal ? QRect(window->pos(), window->size()) : window->normalGeometry();
    gWriteWindowPlacement({{place.x(), place.y(), place.x() + place.width(), place.y() + place.height()},
                           window->isMaximized()},
                          csWindowPlace);
}

void QtShell::Tell(const CString& sentence) {
    if (QMainWindow* const window = Window())
        window->statusBar()->showMessage(QString::fromUtf8(sentence.GetString()));
}

// Once for each folder that can't be read; the list shows its library, and nothing of it.
void QtShell::TellTroubles() {
    std::vector<std::string> troubles = m_navigator.Store().Troubles();
    if (troubles == m_toldTroubles) return;
    m_toldTroubles = std::move(troubles);
    const std::size_t count = m_toldTroubles.size();
    if (count == 0) return Tell({});
    const std::string others = count > 1 ? " And " + std::to_string(count - 1) + " more." : std::string();
    Tell((m_toldTroubles.front() + others).c_str());
}

std::optional<std::string> QtShell::Screenshot(const std::string& file) {
    gApplyTheme(m_navigator.Frame().IsDark());
    m_navigator.Frame().ShowWindow(true);
    FirstLook();
    for (int round = 0; round < cnSettlingRounds; ++round) {
        QApplication::processEvents();
        Refresh();
        m_navigator.RunIdleScript();
    }
    QApplication::processEvents();
    QWidget* const window = gWidgetOf(m_navigator.Frame());
    if (window == nullptr || !window->grab().save(QFile::decodeName(file.c_str())))
        return "The picture can't be written to \"" + file + "\".";
    return std::nullopt;
}

// Of the screen on which the pane stands: a picture for a finer one would be scaled down, and its lines lie
// between the pixels.
qreal QtShell::PreviewScale() const {
    const auto* const pane = m_navigator.Browser().GetSymbolPreview();
    const QWidget* const widget = pane != nullptr ? gWidgetOf(*pane) : nullptr;
    return widget != nullptr ? widget->devicePixelRatioF() : qApp->devicePixelRatio();
}

void QtShell::ShowPreview(const PreviewRequest& request) {
    DesignStore& store = m_navigator.Store();
    const CellViewRef view =
        store.Find(request.name.design, request.name.library, request.name.cell, request.name.view);
    PictureRequest picture;
    picture.width = request.width;
    picture.height = request.height;
    picture.scale = PreviewScale();
    picture.isDark = m_navigator.Frame().IsDark();
    QtBitmap bitmap(gPaintView(store, view, picture));
    m_navigator.Browser().SetPreview(false, gLibraryText(CaptionOf(request.name)), bitmap.Get());
    m_picture = std::move(bitmap);
}

}  // namespace navigator
