#pragma once
/// The menus of the window: folders, the console, help. What they do beyond showing windows is done by the
/// navigator.

#include <filesystem>
#include <functional>

#include "host/Navigator.h"
#include "host/RecentFolders.h"

class QAction;
class QMainWindow;
class QMenu;
class TOsInfo;

namespace navigator {

class MainMenu {
public:
    /// Fills the window's menu bar; the actions end with the window.
    /// @param navigator  must outlive the window
    MainMenu(QMainWindow& window, Navigator& navigator);
    MainMenu(const MainMenu&) = delete;
    MainMenu& operator=(const MainMenu&) = delete;

    /// The facts of the machine that "About" shows; without it those of the program alone.
    void SetMachine(const TOsInfo& machine) { m_machine = &machine; }
    /// Puts an action into the View menu.
    void AddView(QAction& action);
    /// Called when the folders that are open have changed.
    void SetOpenHandler(std::function<void()> handler) { m_opened = std::move(handler); }

    /// Opens a folder and takes it among the recent ones; one that can't be opened is told and taken out.
    void Open(const std::filesystem::path& folder);
    /// Takes a folder that is open among the recent ones.
    void Remember(const std::filesystem::path& folder);

private:
    void FillFileMenu();
    void FillHelpMenu();
    void ShowRecent();
    void AskFolder();
    void ShowAbout();

    QMainWindow& m_window;
    Navigator& m_navigator;
    RecentFolders m_recent;
    const TOsInfo* m_machine = nullptr;
    std::function<void()> m_opened;
    QMenu* m_recentMenu;
    QMenu* m_viewMenu;
};

}  // namespace navigator
