/// @file
/// TLibraryView: the top pane of the navigator, a combo box of the open designs above a list of that design's
/// libraries. It fills both from the database when it is dirty and the host is idle, keeps the selection by
/// name over a refresh, and remembers for the host which views are reserved or modified.
///
/// It is not the list's look (TLibraryListCtrl) and holds no design data besides the names and paths of the
/// last answer.
///
/// The surprises: looking up the path of an unknown library leaves an empty entry, as does asking whether a
/// view of an unknown library is modified. Two library names of equal natural order ("3" and the same number
/// in another script) are one entry in the alphabetical list. Names that are malformed UTF-8 are kept as they
/// come, but have no firm place in the natural order: beside others of their kind one may stand anywhere, be
/// taken for another or not be found again. Nothing worse comes of it.
#pragma once

#include <cstdint>
#include <map>
#include <set>
#include <utility>
#include <vector>

#include "vapp/Export.h"
#include "vapp/browser/TLibCellView.h"
#include "vapp/browser/TLibraryBrowserTclInterfaceStyle.h"
#include "vapp/browser/TLibraryListCtrl.h"
#include "vapp/browser/TNaturalLess.h"
#include "vapp/text/CStringIU.h"
#include "vapp/toolkit/CComboBox.h"
#include "vapp/toolkit/CFormView.h"
#include "vapp/toolkit/CStatic.h"

struct Tcl_Interp;

namespace vapp_library_browser {

class TCellListView;
class TSymbolPreview;
class TTclList;

/// The library pane.
class VAPP_EXPORT TLibraryView : public CFormView {
public:
    static constexpr UINT cnDialog = 387;
    static constexpr UINT cnLibraryListId = 7691;
    static constexpr UINT cnDesignComboId = 7692;
    static constexpr UINT cnFrameId = 7703;

    /// A menu command: its text and how it wants its arguments.
    using TCommand = std::pair<CStringU, TLibraryBrowserTclInterfaceStyle>;

    TLibraryView();
    ~TLibraryView() override;

    // --- Refresh ---------------------------------------------------------------------------------------

    /// Refills both controls from "database all_libs" if dirty. A failed line, or an answer of another form,
    /// leaves the pane dirty. Returns at once while it is running already; a request that comes in meanwhile
    /// is served by the refresh that is running, if that one comes to its end.
    void Populate();
    /// Marks the pane dirty and asks for painting; the refresh itself waits for Populate.
    void RequestDelayedPopulate();
    [[nodiscard]] bool NeedsPopulate() const { return m_needsPopulate; }
    void OnInitialUpdate() override;
    /// Any hint marks the pane dirty. With cnHintSelectedMaster the selected master is asked first and
    /// becomes the pending highlight; if that line fails, nothing is marked.
    void OnUpdate(CView* sender, std::int64_t hint, CObject* hintObject) override;

    // --- Designs and libraries -------------------------------------------------------------------------

    /// The selected design; the only one there is, selected or not; else empty.
    [[nodiscard]] CStringU GetSelectedDesign() const;
    /// Selects the design of exactly this name, if there is one and it isn't selected yet, and refreshes the
    /// library list and the cell list at once.
    void SetSelectedDesign(const CStringU& name);
    /// Selects that one library; deselects all if there is none of that name.
    void SelectInLibraryList(const CStringU& library);
    /// Names in the list; of names that differ only in case the first one.
    [[nodiscard]] std::set<CStringIU> GetAllLibrariesSet() const;
    [[nodiscard]] std::set<CStringIU> GetSelectedLibrariesSet() const;
    /// Name of the row with the focus; empty if none.
    [[nodiscard]] CStringU GetFocusedLibrary() const;
    /// Path of a library of the selected design; empty if unknown. An unknown name leaves an empty entry
    /// behind, so that the next refresh sees another number of libraries and rebuilds the list.
    [[nodiscard]] CStringU GetAbsoluteLibraryPath(const CStringU& library);
    /// Order of the list: natural, or as the library definitions stand. A change is kept in the settings and
    /// shows with the next refresh.
    void SetAlphabetical(bool alphabetical);
    [[nodiscard]] bool GetAlphabetical() const { return m_alphabetical; }

    /// The host is the schematic editor: there is one design and no choice of it. Hides the combo box.
    void ModifyForQEdit();
    [[nodiscard]] bool GetQEdit() const { return m_qeditMode; }

    // --- What the host knows of single views -----------------------------------------------------------

    void SetOaViewReserved(const TLibCellView& view, bool reserved);
    [[nodiscard]] bool HasOaReservedViews(const CStringU& library) const;
    /// Also marks the pane dirty, as RequestDelayedPopulate does.
    void SetLcvModified(const TLibCellView& view, bool modified);
    [[nodiscard]] bool HasModifiedLcvs(const CStringU& library) const;
    /// Not const: asking creates the library's entry.
    [[nodiscard]] bool IsLcvModified(const TLibCellView& view);
    void ClearCaches();

    // --- Commands of the menus of both lists -----------------------------------------------------------

    void ClearCommandHandlers() { m_commandHandlers.clear(); }
    void SetCommandHandler(unsigned id, const CStringU& command, TLibraryBrowserTclInterfaceStyle style);
    /// Empty text and style 0 for an unknown id.
    [[nodiscard]] TCommand GetCommandHandler(unsigned id) const;

    // --- Neighbours ------------------------------------------------------------------------------------

    /// The host's interpreter, not owned. When it ends, or Tcl is finalized, the view has none. One that this
    /// library can't work with is taken as null.
    void SetTclInterp(Tcl_Interp* interp);
    [[nodiscard]] Tcl_Interp* GetTclInterp() const { return m_interp; }
    void SetCellListView(TCellListView* view) { m_cellListView = view; }
    [[nodiscard]] TCellListView* GetCellListView() const { return m_cellListView; }
    void SetPreviewView(TSymbolPreview* view) { m_previewView = view; }
    [[nodiscard]] TSymbolPreview* GetPreviewView() const { return m_previewView; }
    /// To the preview pane, if there is one; see TSymbolPreview::SetPreview.
    void SetPreview(bool clear, const CStringU& caption, HBITMAP bitmap);
    [[nodiscard]] TLibraryListCtrl& GetLibraryListCtrl() { return m_libraryList; }
    [[nodiscard]] const TLibraryListCtrl& GetLibraryListCtrl() const { return m_libraryList; }
    [[nodiscard]] TComboBoxCtrl& GetDesignCombo() { return m_designCombo; }
    /// True while the pointer is over the list; false where nothing is on a screen.
    [[nodiscard]] bool IsCursorOverLibraryList() const;

    // --- What the controls report ----------------------------------------------------------------------

    /// Marks the cell list dirty.
    void OnEditFilterChange();
    void OnSelchangeListLibraries();
    /// Refreshes the list and the cell list at once.
    void OnSelchangeComboActiveDesign();
    /// Marks the cell list dirty if the state of a row changed; answers 0.
    LRESULT OnItemChangedListLibraries(const NotifyListItem& change);
    /// Fills in what an empty list shows; answers 1.
    LRESULT OnGetEmptyMarkup(NotifyEmptyMarkup& markup) const;

protected:
    /// Refills the list for the selected design from the last answer; sends no line. Does nothing if the
    /// names in the list are those of the design already, whatever their order.
    void PopulateList();

    void OnCreate() override;
    void OnSize(UINT type, int cx, int cy) override;
    bool OnNotify(Notification& notification, LRESULT& result) override;

private:
    using TPathOfLibrary = std::map<CStringU, CStringU, TNaturalLess>;
    using TViewsOfLibrary = std::map<CStringU, std::set<TLibCellView>>;

    bool FetchDesigns();
    bool TakeDesign(const TTclList& design);
    void FillDesignCombo(const CStringU& wanted);
    void ShowPendingHighlight();
    void UpdateListBackground();
    [[nodiscard]] bool ListShows(const TPathOfLibrary& libraries) const;
    void FillList(const CStringU& design, const TPathOfLibrary& libraries);
    bool FetchSelectedMaster();
    void MarkCellListDirty();
    void RefreshCellListNow();

    TComboBoxCtrl m_designCombo{true};
    TLibraryListCtrl m_libraryList;
    CStatic m_frame{CStatic::TKind::Frame};
    bool m_needsPopulate = true;
    Tcl_Interp* m_interp = nullptr;
    std::map<CStringU, TPathOfLibrary> m_designLibraries;
    std::map<CStringU, std::vector<CStringU>> m_designLibraryOrder;
    bool m_alphabetical = true;
    bool m_forceRelist = false;
    TCellListView* m_cellListView = nullptr;
    TSymbolPreview* m_previewView = nullptr;
    std::map<unsigned, TCommand> m_commandHandlers;
    bool m_qeditMode = false;
    TViewsOfLibrary m_oaReservedViews;
    TViewsOfLibrary m_modifiedLcvs;
    bool m_populating = false;
    bool m_askingSelectedMaster = false;
};

}  // namespace vapp_library_browser
