#pragma once
/// Shows a Navigator on a screen by Qt, or off screen: pictures for the preview pane, refreshing when idle,
/// watching the folders, menus, the console beside the panes, screenshots.

#include <QDockWidget>
#include <QImage>
#include <QPointer>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "host/ConsolePane.h"
#include "host/FolderWatcher.h"
#include "host/LogPane.h"
#include "host/MainMenu.h"
#include "host/Navigator.h"
#include "host/StatusBubble.h"
#include "host/TclCommand.h"
#include "host/TclConsole.h"
#include "vapp/toolkit/qt/QtBitmap.h"

class QAction;
class QMainWindow;

namespace navigator {

class QtShell {
public:
    /// Installs the peers and connects them to the navigator, whose window must not exist yet. A QApplication
    /// must exist, and the navigator must outlive this object.
    explicit QtShell(Navigator& navigator);
    ~QtShell();
    QtShell(const QtShell&) = delete;
    QtShell& operator=(const QtShell&) = delete;

    /// Gives the window its menus and the console. Call once, when the window exists and before anything else
    /// is done with it.
    /// @param machine  what "About" tells of; null for nothing
    void Equip(const TOsInfo* machine);
    /// The menus, when they are there.
    [[nodiscard]] MainMenu& Menu() { return *m_menu; }
    /// Handles the user's input until the window is closed or a script says `exit`. Gives the exit status.
    int Run();
    /// Puts the window where the last run left it, as far as the monitors of today have that place. Call
    /// before Show.
    void RestorePlace();
    /// Shows the window, and follows the folders from then on. Its place is kept at the end.
    void Show();
    /// A sentence for the user in the window's status line, without a question that stops the work. The
    /// window must exist.
    void Tell(const CString& sentence);
    /// Refreshes and paints until nothing is left to do, then writes the window as a picture in the format of
    /// the file's ending. Gives nothing on success, or else a sentence.
    [[nodiscard]] std::optional<std::string> Screenshot(const std::string& file);

private:
    [[nodiscard]] QMainWindow* Window() const;
    void AddConsole(QMainWindow& window);
    void AddLog(QMainWindow& window);
    void ArrangeBars(QMainWindow& window);
    void ConnectMenus(QMainWindow& window);
    void OnLogged(const ActionLog::TEntry* entry);
    void ToggleConsole();
    int Exit(Tcl_Interp* interp, TclWords words);
    void FirstLook();
    void FocusCells();
    void Refresh();
    void KeepPlace();
    [[nodiscard]] qreal PreviewScale() const;
    void ShowPreview(const PreviewRequest& request);
    void TellTroubles();

    Navigator& m_navigator;
    FolderWatcher m_watcher;
    QtBitmap m_picture;
    TclConsole m_console;
    std::unique_ptr<MainMenu> m_menu;
    // The window's, and gone with it.
    QPointer<ConsolePane> m_consolePane;
    QPointer<QDockWidget> m_dock;
    QPointer<LogPane> m_logPane;
    QPointer<QDockWidget> m_logDock;
    QPointer<StatusBubble> m_status;
    TclCommand m_exit;
    std::optional<int> m_exitStatus;
    bool m_isRunning = false;
    QMetaObject::Connection m_refreshing;
    QMetaObject::Connection m_idle;
    bool m_wasShown = false;
    std::vector<std::string> m_toldTroubles;
};

}  // namespace navigator
