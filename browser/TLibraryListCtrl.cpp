/// @file
/// How a library's row looks, asked of the database while it is painted.
///
/// The surprise is the order: in the light theme the highlight hides the colours of the row, in the dark
/// theme the text colour follows from what the light theme would have used.
#include "vapp/browser/TLibraryListCtrl.h"

#include "vapp/browser/Messages.h"
#include "vapp/browser/TLibraryView.h"
#include "vapp/browser/TclBridge.h"

namespace vapp_library_browser {

namespace {

constexpr COLORREF cnOtherLibraryText = 0xFF0000;  // blue
constexpr COLORREF cnReservedBackground = 0xE6E6FF;
constexpr COLORREF cnDarkHighlight = 0xFF9933;
constexpr COLORREF cnDarkOtherLibraryText = 0xFF9090;
constexpr COLORREF cnDarkText = 0xFFFFFF;

/// What the schematic editor knows of a library.
struct EditorState {
    bool editAllowed = true;
    bool unresolved = false;
    bool spaceForIcon = false;
};

// The names go in bare here, without the hook: the editor's commands take library names as they are.
bool AskLibraryInfo(const TLibraryView& view, const char* key, const CStringU& library, bool onFailure) {
    TLineBuilder line("database libraryinfo ");
    line.Literal(key).Literal(" ").Text(library);
    return AskTclFlag(view.GetTclInterp(), line.GetString(), onFailure);
}

EditorState AskEditorState(const TLibraryView& view, const CStringU& library) {
    EditorState state;
    state.editAllowed = AskLibraryInfo(view, "is_edit_allowed", library, true);
    state.unresolved = AskLibraryInfo(view, "is_unresolved", library, false);
    // A marked library has its icon anyway; only the others leave it to the host whether texts line up.
    state.spaceForIcon = !state.editAllowed || state.unresolved ||
                         AskLibraryInfo(view, "allow_space_for_icon", library, false);
    return state;
}

// The top library of the design stands out by the plain text colour. A failed line tells the empty name,
// which no library has but one without a name.
COLORREF AskTextColor(const TLibraryView& view, const CStringU& library) {
    if (view.GetQEdit()) return cnNoColor;
    TLineBuilder line("database top_level ");
    line.Name(view.GetSelectedDesign());
    return AskTclText(view.GetTclInterp(), line.GetString()) == library ? cnNoColor : cnOtherLibraryText;
}

void ApplyDarkTheme(ListItemLook& look) {
    look.textColor = look.textColor == cnOtherLibraryText ? cnDarkOtherLibraryText : cnDarkText;
    look.backColor = look.highlighted ? cnDarkHighlight : cnDarkBackground;
}

void PlaceIcons(ListItemLook& look, const EditorState& state, int rowHeight) {
    if (state.spaceForIcon) look.textIndent += rowHeight;
    UINT* icon = look.icons;
    // The lock is drawn over the other mark where both hold.
    if (state.unresolved) *icon++ = cnIconUnresolvedLibrary;
    if (!state.editAllowed) *icon = cnIconReadOnlyLibrary;
}

}  // namespace

TLibraryListCtrl::TLibraryListCtrl() = default;

TLibraryListCtrl::~TLibraryListCtrl() {
    DestroyWindow();
}

ListItemLook TLibraryListCtrl::DrawItem(int index) {
    ListItemLook look = CListCtrl::DrawItem(index);
    const auto* view = dynamic_cast<const TLibraryView*>(GetParent());
    if (view == nullptr || index < 0 || index >= GetItemCount()) return look;

    // All that the list itself knows is taken before the first line: host script may refill the list.
    const CStringU library = GetItemText(index);
    const int rowHeight = GetRowHeight();
    look.text = library;
    look.highlighted = GetItemState(index, cnListSelected) != 0;
    look.focusRect = GetItemState(index, cnListFocused) != 0 && GetFocus() == this;

    const bool reserved = view->HasOaReservedViews(library);
    look.font.bold = reserved && view->HasModifiedLcvs(library);
    look.textColor = AskTextColor(*view, library);
    look.backColor = reserved ? cnReservedBackground : cnNoColor;
    if (look.highlighted) {
        look.textColor = cnNoColor;
        look.backColor = cnNoColor;
    }
    if (view->GetQEdit()) PlaceIcons(look, AskEditorState(*view, library), rowHeight);
    if (gIsDarkTheme()) ApplyDarkTheme(look);
    return look;
}

}  // namespace vapp_library_browser
