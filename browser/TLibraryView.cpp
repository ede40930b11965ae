/// @file
/// The library pane as a window: its controls, their layout, what they report, and the plain answers. The
/// refresh stands in TLibraryViewPopulate.cpp, the memory of single views in TLibraryViewCaches.cpp.
#include "vapp/browser/TLibraryView.h"

#include <tcl.h>

#include <algorithm>
#include <array>

#include "toolkit/DialogItems.h"
#include "vapp/browser/TProfileSection.h"
#include "vapp/browser/TSymbolPreview.h"
#include "vapp/browser/TclBridge.h"
#include "vapp/celllist/TCellListView.h"
#include "vapp/text/Translate.h"

namespace vapp_library_browser {

namespace {

// The frame stands two margins below the combo box, so that a margin is left below it as well.
constexpr std::array<DialogItem, 3> cnLibraryItems = {{
    {TLibraryView::cnDesignComboId, {4, 4, 236, 28}},
    {TLibraryView::cnFrameId, {4, 36, 236, 196}},
    {TLibraryView::cnLibraryListId, {5, 37, 235, 195}},
}};
constexpr DialogTemplate cnLibraryTemplate = {TLibraryView::cnDialog, {240, 200}, cnLibraryItems};

// What the column leaves free for a vertical scroll bar. A number and not the desktop's own width: the logic
// counts in pixels of its own, which a peer scales, and a bar that is a little wider just hides a blank edge.
constexpr int cnScrollBarWidth = 17;

constexpr char csOrderSetting[] = "LibrariesInLibDefsOrder";
constexpr char csNoDesigns[] = "__$$Translatable$$_No designs";

// A view's pointer to its interpreter is taken back when the interpreter ends, or Tcl as a whole: nothing of
// either may be called afterwards, and a host may end them before the view or behind it.
void ForgetAtExit(void* pointer);

void ForgetInterp(void* pointer, Tcl_Interp* /*interp*/) {
    Tcl_DeleteExitHandler(&ForgetAtExit, pointer);
    *static_cast<Tcl_Interp**>(pointer) = nullptr;
}

void ForgetAtExit(void* pointer) {
    auto& interp = *static_cast<Tcl_Interp**>(pointer);
    Tcl_DontCallWhenDeleted(interp, &ForgetInterp, pointer);
    interp = nullptr;
}

void WatchInterp(Tcl_Interp*& pointer) {
    if (pointer == nullptr) return;
    Tcl_CallWhenDeleted(pointer, &ForgetInterp, &pointer);
    Tcl_CreateExitHandler(&ForgetAtExit, &pointer);
}

void StopWatchingInterp(Tcl_Interp*& pointer) {
    if (pointer == nullptr) return;
    Tcl_DontCallWhenDeleted(pointer, &ForgetInterp, &pointer);
    Tcl_DeleteExitHandler(&ForgetAtExit, &pointer);
}

}  // namespace

TLibraryView::TLibraryView() : CFormView(cnLibraryTemplate) {}

TLibraryView::~TLibraryView() {
    DestroyWindow();
    StopWatchingInterp(m_interp);
}

void TLibraryView::OnCreate() {
    CFormView::OnCreate();
    CreateItem(m_designCombo, cnDesignComboId);
    CreateItem(m_frame, cnFrameId);
    CreateItem(m_libraryList, cnLibraryListId);
    m_designCombo.SetAccessibleName(gTranslateWindowText("__$$Translatable$$_Designs"));
    m_libraryList.SetAccessibleName(gTranslateWindowText("__$$Translatable$$_Libraries"));
}

void TLibraryView::OnInitialUpdate() {
    CFormView::OnInitialUpdate();
    m_libraryList.SetExtendedStyle(0, cnListFullRowSelect | cnListDoubleBuffer);
    m_libraryList.InsertColumn(0, "Library");
    // Its own tips show cut texts; ours show the path of the library.
    m_libraryList.ActivateToolTips(false);
    m_libraryList.EnableToolTips(true);
    EnableToolTips(true);
    bool definitionOrder = false;
    TProfileSection(false).ExchangeBool(csOrderSetting, definitionOrder, false);
    m_alphabetical = !definitionOrder;
    // The pane got its size before the column was there.
    OnSize(0, 0, 0);
}

void TLibraryView::OnSize(UINT type, int cx, int cy) {
    CFormView::OnSize(type, cx, cy);
    if (type == cnSizeMinimized || !m_libraryList.IsWindow()) return;
    if (cx == 0) {
        cx = GetClientRect().Width();
        cy = GetClientRect().Height();
    }
    const CRect combo = m_designCombo.GetRect();
    const int left = m_frame.GetRect().left;
    const int width = std::max(cx - 2 * left, left);
    const int top = m_qeditMode ? combo.top : GetTemplateRect(cnFrameId).top;
    const int height = m_qeditMode ? cy - 2 * combo.top : cy - combo.bottom - 3 * combo.top;
    const CRect frame(left, top, left + width, top + std::max(height, 0));

    m_designCombo.MoveWindow({combo.left, combo.top, combo.left + width, combo.bottom});
    m_frame.MoveWindow(frame);
    m_libraryList.MoveWindow({frame.left + 1, frame.top + 1, std::max(frame.right - 1, frame.left + 1),
                              std::max(frame.bottom - 1, frame.top + 1)});
    m_libraryList.SetColumnWidth(0, std::max(width - left - cnScrollBarWidth, 1));
}

bool TLibraryView::OnNotify(Notification& notification, LRESULT& result) {
    if (notification.id == cnDesignComboId && notification.code == cnComboSelectionChanged) {
        OnSelchangeComboActiveDesign();
        return true;
    }
    if (notification.id == cnLibraryListId && notification.code == cnListItemChanged) {
        result = OnItemChangedListLibraries(static_cast<const NotifyListItem&>(notification));
        return true;
    }
    if (notification.id == cnLibraryListId && notification.code == cnListEmptyMarkup) {
        result = OnGetEmptyMarkup(static_cast<NotifyEmptyMarkup&>(notification));
        return true;
    }
    return CFormView::OnNotify(notification, result);
}

void TLibraryView::OnSelchangeComboActiveDesign() {
    PopulateList();
    RefreshCellListNow();
}

LRESULT TLibraryView::OnItemChangedListLibraries(const NotifyListItem& change) {
    if ((change.changed & cnListChangedState) != 0) MarkCellListDirty();
    return 0;
}

void TLibraryView::OnSelchangeListLibraries() {
    MarkCellListDirty();
}

void TLibraryView::OnEditFilterChange() {
    MarkCellListDirty();
}

LRESULT TLibraryView::OnGetEmptyMarkup(NotifyEmptyMarkup& markup) const {
    const std::u16string text = CStringU(vlang::gTranslate(csNoDesigns), TextEncoding::Utf8Auto).ToWide();
    const std::size_t length = std::min(text.size(), std::size(markup.markup) - 1);
    std::copy_n(text.begin(), length, markup.markup);
    markup.markup[length] = u'\0';
    return 1;
}

CStringU TLibraryView::GetSelectedDesign() const {
    return m_designCombo.GetLBText(m_designCombo.GetCount() == 1 ? 0 : m_designCombo.GetCurSel());
}

void TLibraryView::SetSelectedDesign(const CStringU& name) {
    for (int item = 0; item < m_designCombo.GetCount(); ++item) {
        if (m_designCombo.GetLBText(item) != name) continue;
        if (item == m_designCombo.GetCurSel()) return;
        m_designCombo.SetCurSel(item);
        PopulateList();
        RefreshCellListNow();
        return;
    }
}

void TLibraryView::SelectInLibraryList(const CStringU& library) {
    int found = -1;
    for (int row = 0; row < m_libraryList.GetItemCount() && found < 0; ++row) {
        if (m_libraryList.GetItemText(row) == library) found = row;
    }
    const bool selected = m_libraryList.GetItemState(found, cnListSelected) != 0;
    if (selected && m_libraryList.GetSelectedCount() == 1) return;
    m_libraryList.SetItemState(-1, 0, cnListSelected);
    if (found >= 0) m_libraryList.SetItemState(found, cnListSelected, cnListSelected);
}

std::set<CStringIU> TLibraryView::GetAllLibrariesSet() const {
    std::set<CStringIU> names;
    for (int row = 0; row < m_libraryList.GetItemCount(); ++row)
        names.insert(m_libraryList.GetItemText(row));
    return names;
}

std::set<CStringIU> TLibraryView::GetSelectedLibrariesSet() const {
    std::set<CStringIU> names;
    for (int row = m_libraryList.GetNextItem(-1, cnListSelected); row >= 0;
         row = m_libraryList.GetNextItem(row, cnListSelected)) {
        names.insert(m_libraryList.GetItemText(row));
    }
    return names;
}

CStringU TLibraryView::GetFocusedLibrary() const {
    return m_libraryList.GetItemText(m_libraryList.GetFocusedItem());
}

CStringU TLibraryView::GetAbsoluteLibraryPath(const CStringU& library) {
    const auto design = m_designLibraries.find(GetSelectedDesign());
    if (design == m_designLibraries.end()) return {};
    // The empty entry of an unknown name is wanted: it makes the next refresh rebuild a list that shows names
    // which the design does not have any more.
    return design->second[library];
}

void TLibraryView::SetAlphabetical(bool alphabetical) {
    if (alphabetical == m_alphabetical) return;
    m_alphabetical = alphabetical;
    m_forceRelist = true;
    bool definitionOrder = !alphabetical;
    TProfileSection(true).ExchangeBool(csOrderSetting, definitionOrder, false);
}

void TLibraryView::ModifyForQEdit() {
    m_qeditMode = true;
    m_designCombo.ShowWindow(false);
    OnSize(0, 0, 0);
}

void TLibraryView::SetCommandHandler(unsigned id, const CStringU& command,
                                     TLibraryBrowserTclInterfaceStyle style) {
    m_commandHandlers[id] = {command, style};
}

TLibraryView::TCommand TLibraryView::GetCommandHandler(unsigned id) const {
    const auto found = m_commandHandlers.find(id);
    return found == m_commandHandlers.end() ? TCommand(CStringU(), StyleCommandOnly) : found->second;
}

void TLibraryView::SetTclInterp(Tcl_Interp* interp) {
    StopWatchingInterp(m_interp);
    m_interp = EnsureTclBound(interp) ? interp : nullptr;
    WatchInterp(m_interp);
}

void TLibraryView::SetPreview(bool clear, const CStringU& caption, HBITMAP bitmap) {
    if (m_previewView != nullptr) m_previewView->SetPreview(clear, caption, bitmap);
}

bool TLibraryView::IsCursorOverLibraryList() const {
    const PeerFactory* factory = PeerFactory::Installed();
    return factory != nullptr && m_libraryList.IsWindow() &&
           m_libraryList.GetWindowRect().PtInRect(factory->CursorPosition());
}

}  // namespace vapp_library_browser
