/// @file
/// The menu of the library list: empty until the host fills it, and what comes of the user's pick.
///
/// The surprise: handlers of an earlier menu are not forgotten here, unlike in the cell list; an item that
/// the host adds without a handler may find one that is left, also one of the cell list, whose 201st number
/// is the first one here.
#include <string>

#include "browser/LibraryMenuLine.h"
#include "vapp/browser/HostCallScope.h"
#include "vapp/browser/Messages.h"
#include "vapp/browser/TLibraryListCtrl.h"
#include "vapp/browser/TLibraryView.h"
#include "vapp/browser/TclBridge.h"
#include "vapp/toolkit/Clipboard.h"

namespace vapp_library_browser {

namespace {

constexpr UINT cnFirstLibraryCommand = 0xA0F0;

bool IsWord(const CStringU& text, const char* word) {
    return text.CompareNoCase(word) == 0;
}

void CopyNames(const std::set<CStringIU>& libraries) {
    std::string text;
    for (const CStringIU& library : libraries)
        text.append(library.Payload()).append("\r\n");
    SetClipboardText({text.c_str(), TextEncoding::Utf8Auto});
}

// The list's own actions; any other text is the host's to run.
bool RunBuiltIn(TLibraryView& view, const CStringU& text) {
    if (IsWord(text, "Edit CDF")) {
        AskMainWindow(WM_LN_HOSTNOTIFY, cnNotifyEditCdf);
    } else if (IsWord(text, "CopyNamestoClipboard")) {
        CopyNames(view.GetSelectedLibrariesSet());
    } else if (IsWord(text, "Alphabetical") || IsWord(text, "LibDefsOrder")) {
        view.SetAlphabetical(IsWord(text, "Alphabetical"));
        view.RequestDelayedPopulate();
    } else {
        return false;
    }
    return true;
}

void RunCommand(TLibraryView& view, const TLibraryView::TCommand& command) {
    const auto& [text, style] = command;
    if (style == StyleBuiltIn && RunBuiltIn(view, text)) return;
    const std::optional<CStringU> line = MakeLibraryMenuLine(
        text, style, view.GetQEdit(), view.GetSelectedDesign(), view.GetSelectedLibrariesSet());
    if (line) EvaluateTcl(view.GetTclInterp(), *line, nullptr);
}

}  // namespace

void TLibraryListCtrl::OnContextMenu(CWnd& /*from*/, CPoint screen) {
    auto* view = dynamic_cast<TLibraryView*>(GetParent());
    if (view == nullptr || m_hostMenu.IsOpen()) return;
    // The host may end the window while it fills the menu and while that is shown; the panes live on.
    const HostCallScope scope;
    CMenu menu;
    {
        const THostMenu::TScope building(m_hostMenu, menu, cnFirstLibraryCommand);
        AskMainWindow(WM_LN_BUILDLIBRARYMENU);
    }
    if (!IsWindow()) return;
    const UINT picked = menu.Track(*this, screen);
    if (picked == 0 || !IsWindow()) return;
    const TLibraryView::TCommand command = view->GetCommandHandler(picked);
    if (!command.first.IsEmpty()) RunCommand(*view, command);
}

}  // namespace vapp_library_browser
