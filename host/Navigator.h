#pragma once
/// The host put together: interpreter, design store, Tcl commands, application object, frame and navigator.
/// It works without a screen; with peers installed before ShowWindow the same objects are on the screen. It
/// draws nothing: whoever shows it sets the preview handler of Commands().

#include <tcl.h>

#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "host/CellColumns.h"
#include "host/CellCommand.h"
#include "host/DatabaseCommand.h"
#include "host/DesignStore.h"
#include "host/DesignerMenus.h"
#include "host/HostCommands.h"
#include "host/NavigatorCommand.h"
#include "host/NavigatorFrame.h"
#include "host/UserCommand.h"
#include "host/UserMenuCommand.h"
#include "vapp/browser/TLibraryBrowser.h"
#include "vapp/toolkit/CDocument.h"
#include "vapp/toolkit/CWinAppEx.h"

namespace navigator {

class Navigator {
public:
    /// @param app  the application object; must outlive this one
    explicit Navigator(CWinAppEx& app);
    ~Navigator();
    Navigator(const Navigator&) = delete;
    Navigator& operator=(const Navigator&) = delete;

    /// Opens a folder as a design. Gives nothing on success, or else a sentence that says what failed.
    [[nodiscard]] std::optional<std::string> OpenFolder(const std::filesystem::path& folder);
    /// Opens a folder while the window is there, and chooses its design; a folder that is open already is
    /// only chosen. Gives nothing on success, or else a sentence that says what failed.
    [[nodiscard]] std::optional<std::string> ShowFolder(const std::filesystem::path& folder);
    /// Makes frame and panes. Call once, when the application has its settings; afterwards scripts may add
    /// columns and filter types.
    void CreateWindow(int width, int height, bool dark);
    /// Adds what this host shows beside names: state, date and size. For a window that somebody looks at; a
    /// list for other programs goes without, so that the same design gives the same text on each machine.
    void AddColumns() { m_columns.AddTo(m_app); }
    /// Sources a script at global level. Gives nothing on success, or else the script's error with its place.
    [[nodiscard]] std::optional<std::string> SourceScript(const std::string& file);
    /// Reads the stored layout; to be called when all columns are there.
    void LoadSetup();
    /// Gives each pane a part of a window that is too small for their first heights. Does nothing where the
    /// user has left other heights; to be called when the window has its size.
    void FitPanes();

    /// Fills the lists and puts back what the user looked at the last time, but for what a script has chosen;
    /// to be called when the window is shown for the first time.
    void ShowLastView();
    /// Keeps what the user looks at; to be called before the window goes.
    void KeepLastView();
    /// Refreshes what is dirty; to be called when idle.
    void Populate();
    /// Runs what a script wants to be run then; to be called when idle, after the refresh.
    void RunIdleScript() { m_script.RunIdleScript(); }
    /// Reads the folders again and marks the panes if something has changed.
    void Rescan();

    /// The cell list of the first design that was opened: every column, all libraries, as comma-separated
    /// lines.
    [[nodiscard]] std::string Dump();

    [[nodiscard]] CWinAppEx& App() { return m_app; }
    [[nodiscard]] NavigatorFrame& Frame() { return m_frame; }
    [[nodiscard]] vapp_library_browser::TLibraryBrowser& Browser() { return *m_browser; }
    [[nodiscard]] DesignStore& Store() { return m_store; }
    [[nodiscard]] UserCommand& User() { return m_user; }
    [[nodiscard]] HostCommands& Commands() { return m_commands; }
    [[nodiscard]] CellCommand& Cells() { return m_cells; }
    [[nodiscard]] DesignerMenus& Menus() { return m_menus; }
    [[nodiscard]] Tcl_Interp* Interp() const { return m_interp.get(); }

private:
    struct InterpDeleter {
        void operator()(Tcl_Interp* interp) const { Tcl_DeleteInterp(interp); }
    };

    void OnDatabaseChange(DatabaseChange change);

    // Order matters: windows go before the commands that they may still call, those before the interpreter.
    CWinAppEx& m_app;
    DesignStore m_store;
    std::unique_ptr<Tcl_Interp, InterpDeleter> m_interp;
    DatabaseCommand m_database;
    HostCommands m_commands;
    CDocument m_document;
    NavigatorFrame m_frame;
    std::unique_ptr<vapp_library_browser::TLibraryBrowser> m_browser;
    CellColumns m_columns;
    NavigatorCommand m_script;
    UserCommand m_user;
    CellCommand m_cells;
    UserMenuCommand m_userMenu;
    DesignerMenus m_menus;
    bool m_previewDue = false;
    bool m_hasKeptHeights = false;
};

}  // namespace navigator
