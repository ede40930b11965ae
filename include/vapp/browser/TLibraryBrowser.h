/// @file
/// TLibraryBrowser: what a host sees of the navigator. A splitter of three panes inside the host's frame, and
/// one class that passes calls on to them.
///
/// The host drives it: nothing here starts work by itself. Changes of the database are told by the Request
/// operations (or by updates of a document, see AddViewsToDoc); when idle the host calls Populate, which
/// refreshes whatever is dirty. All of it belongs to the thread of the windows. Host script that runs inside
/// a line may call any of these operations.
///
/// The order that a host follows: construct; Initialize; optionally ModifyForQEdit, the sanitise hook, host
/// columns and filter types, AddViewsToDoc; SerializeSetup(false); then Populate when idle; at the end
/// SerializeSetup(true). The destruction of the window saves the heights of the panes.
///
/// Before Initialize, and after the window has gone, the operations do nothing and answer empty. What needs
/// no pane works all the same: the names, states and versions that the host told of single views, and the
/// setting of the excluded views.
///
/// DestroyWindow may come from inside of a line; the panes' objects then live on until the next Initialize or
/// the end of this object. The object itself may be destroyed while a menu of the navigator is filled or
/// open, while a drag goes on, in answer to the message of a double click or of a pick in a tab's menu, and
/// by the command that a menu or a double click runs: then the panes' objects live on until the next
/// navigator's Initialize. It must not be destroyed from inside of any other line or message.
#pragma once

#include <cstddef>
#include <map>
#include <set>
#include <utility>
#include <vector>

#include "vapp/Export.h"
#include "vapp/browser/TLibCellView.h"
#include "vapp/browser/TLibraryBrowserTclInterfaceStyle.h"
#include "vapp/celllist/TCellListView.h"
#include "vapp/text/CStringIU.h"
#include "vapp/toolkit/CSplitterWnd.h"

class CDocument;
class CFrameWnd;
class CXTPReportSubListControl;
struct Tcl_Interp;

namespace vapp_library_browser {

class TLibraryView;
class TSymbolPreview;

/// The navigator.
class VAPP_EXPORT TLibraryBrowser : public CSplitterWnd {
public:
    TLibraryBrowser();
    ~TLibraryBrowser() override;

    // --- Creation and persistence ----------------------------------------------------------------------

    /// Makes the three panes with the heights of the last time and connects them. Nothing is owned; the
    /// interpreter must outlive the navigator's use of it, the chooser may be null.
    /// False, with nothing done, if the panes exist already; false too if the parent is no window, and then
    /// the chooser is the new one all the same.
    bool Initialize(CFrameWnd* parent, Tcl_Interp* interp, CXTPReportSubListControl* columnChooser);
    /// Writes or reads the settings of the cell list; reading comes when all its columns exist.
    void SerializeSetup(bool store);
    /// Lets the document's updates reach the panes; panes that are there already stay.
    void AddViewsToDoc(CDocument* document) const;
    /// For the schematic editor: no choice of designs; the tab of the cell list goes into its lines.
    void ModifyForQEdit();
    /// The setting of the view names that hosts hide from the cell list, in the active code page.
    [[nodiscard]] CString GetExcludeViewNames() const;

    // --- Refresh ---------------------------------------------------------------------------------------

    /// Refreshes the library pane if it is dirty, then the cell list if that is dirty. For the host to call
    /// when idle, and no menu is open: a command that is picked from one is run for the cells that have focus
    /// and selection by then, and a refresh puts the focus back by the number of its row.
    void Populate();
    void RequestLibraryViewDelayedPopulate();
    void RequestCellListViewDelayedPopulate(TUpdateCellListReason reason);
    /// Refreshes the cell list now if it is dirty.
    void PopulateCellListView();
    /// Paints the cell pane now.
    void UpdateWindowCellListView();

    // --- Designs and libraries: see TLibraryView -------------------------------------------------------

    [[nodiscard]] CStringU GetSelectedDesign() const;
    void SetSelectedDesign(const CStringU& design);
    [[nodiscard]] CStringU GetFocusedLibrary() const;
    [[nodiscard]] std::set<CStringIU> GetAllLibrariesSet() const;
    [[nodiscard]] std::set<CStringIU> GetSelectedLibrariesSet() const;
    void SelectInLibraryList(const CStringU& library);
    [[nodiscard]] bool GetAlphabeticalLibraryNames() const;
    void SetCommandHandler(unsigned id, const CStringU& command, TLibraryBrowserTclInterfaceStyle style);
    [[nodiscard]] std::pair<CStringU, TLibraryBrowserTclInterfaceStyle> GetCommandHandler(unsigned id) const;

    // --- What the host knows of single views -----------------------------------------------------------

    void SetOaViewReserved(const TLibCellView& view, bool reserved);
    [[nodiscard]] bool HasOaReservedViews(const CStringU& library) const;
    void SetLcvModified(const TLibCellView& view, bool modified);
    [[nodiscard]] bool HasModifiedLcvs(const CStringU& library) const;
    [[nodiscard]] bool IsLcvModified(const TLibCellView& view);
    /// Name of the user who holds the view, its state and its version in the repository: as the host set
    /// them, empty for an unknown view. An empty text stays as an entry.
    [[nodiscard]] CStringU GetReservedBy(const TLibCellView& view) const;
    void SetReservedBy(const TLibCellView& view, const CStringU& user);
    [[nodiscard]] CStringU GetRepoState(const TLibCellView& view) const;
    void SetRepoState(const TLibCellView& view, const CStringU& state);
    [[nodiscard]] CStringU GetVersion(const TLibCellView& view) const;
    void SetVersion(const TLibCellView& view, const CStringU& version);
    /// Forgets all of the above.
    void ClearCaches();

    // --- The cell list: see TCellListView and its report -----------------------------------------------

    void AddCellViewListColumn(const CStringU& caption, const CStringU& tclCommand, bool sortForward,
                               bool hideInThirdSetup);
    void AddCellViewListColumn(const CStringU& caption, CStringU (*getText)(const TLibCellView&),
                               bool sortForward, bool hideInThirdSetup);
    void AddCellViewListFilterType(const CStringU& name);
    void ResetCellViewListFilter();
    void SetCellTabsText(int tab, const CString& text);
    [[nodiscard]] TLibCellView GetFocusedCell() const;
    [[nodiscard]] std::vector<TLibCellView> GetSelectedCells() const;
    [[nodiscard]] bool AreAnyCellsSelected() const;
    void AddToCellListSelections(const std::set<TLibCellView>& cells);
    /// Selects the library in the library list, and the first of the cell's rows that are shown now.
    void HighlightCellInList(const CStringU& library, const CStringU& cell);
    [[nodiscard]] std::size_t GetCellViewCount() const;
    [[nodiscard]] CStringU GetShownCellList() const;
    [[nodiscard]] CStringU GetShownCellViewList() const;
    [[nodiscard]] CStringU GetExcludeViews() const;

    // --- Menus -----------------------------------------------------------------------------------------
    //
    // For the host to call while it answers WM_LN_BUILDCELLMENU, WM_LN_BUILDLIBRARYMENU or
    // WM_LN_BUILDTABMENU, when a list builds its menu. At any other time they do nothing, but for the default
    // command, which counts whenever it is set.

    /// Adds an item that runs a host command, with the next free number. Give it a command: a number without
    /// one is taken for the name of a view from 43000 on, and says "Not yet implemented." below.
    void AddCellListMenuCommand(const CString& text, const CStringU& command,
                                TLibraryBrowserTclInterfaceStyle style, bool disabled, bool checked,
                                bool isDefault);
    void AddCellListMenuSeparator();
    /// Items go into a sub-menu from now on, until it is ended.
    void BeginCellListSubmenu(const CString& title);
    void EndCellListSubmenu();
    /// The host command that a double click on a cell runs; empty for none.
    void SetCellListDefaultMenuCommand(const CStringU& command, TLibraryBrowserTclInterfaceStyle style);
    void AddCellTabsMenuItem(const CString& text, bool checked);
    void AddCellTabsMenuSeparator();
    /// As AddCellListMenuCommand, for the library list.
    void AddLibraryListMenuCommand(const CString& text, const CStringU& command,
                                   TLibraryBrowserTclInterfaceStyle style, bool disabled, bool checked,
                                   bool isDefault);
    void BeginLibraryListSubmenu(const CString& title);
    void EndLibraryListSubmenu();

    // --- The preview -----------------------------------------------------------------------------------

    /// The host's answer to a preview line; see TSymbolPreview::SetPreview.
    void SetPreview(bool clear, const CStringU& caption, HBITMAP bitmap);

    // --- The panes, null while they don't exist --------------------------------------------------------

    [[nodiscard]] TLibraryView* GetLibraryView() const;
    [[nodiscard]] TCellListView* GetCellListView() const;
    [[nodiscard]] TSymbolPreview* GetSymbolPreview() const;

protected:
    /// Saves the heights of the panes.
    void OnDestroy() override;
    /// From any pane, the key to look for something goes to the filter of the cell list.
    bool OnKey(CWnd& from, TKey key, TModifiers modifiers) override;
    /// Not while a line is running, whose sender may be one of the panes.
    [[nodiscard]] bool MayFreePanes() const override;

private:
    using TTextOfView = std::map<TLibCellView, CStringU>;

    void CreatePanes();
    void ConnectPanes(Tcl_Interp* interp);

    TTextOfView m_reservedBy;
    TTextOfView m_repoState;
    TTextOfView m_version;
};

}  // namespace vapp_library_browser
