/// @file
/// What the host's commands do: those that the user picks from the menu of rows, and the one that a double
/// click runs. How their lines are worded stands in CellCommandLine.h.
///
/// Between the question and the line the host's code runs: its answer to a message, its hook. So the panes
/// are looked up anew before each use, and the interpreter is taken when the line is ready.
#include <string>

#include "celllist/CellCommandLine.h"
#include "vapp/browser/HostCallScope.h"
#include "vapp/browser/Messages.h"
#include "vapp/browser/TLibraryView.h"
#include "vapp/browser/TclBridge.h"
#include "vapp/celllist/TCellListView.h"
#include "vapp/celllist/TCellNamesReportCtrl.h"
#include "vapp/text/Translate.h"
#include "vapp/toolkit/CWinAppEx.h"
#include "vapp/toolkit/Clipboard.h"
#include "vapp/toolkit/TMessageBox.h"

namespace vapp_library_browser {

namespace {

using TReport = TCellNamesReportCtrl;

// In place of a line of the host, the names go to the clipboard.
constexpr char csCopySelectedCellNames[] = "CopySelectedCellNamesToClipboard";
constexpr char csCopySelectedCellViews[] = "CopySelectedCellViewsToClipboard";
constexpr char csCopyAllCellNames[] = "CopyAllCellNamesToClipboard";
constexpr char csCopyAllCellViews[] = "CopyAllCellViewsToClipboard";

constexpr char csNotYetImplemented[] = "__$$Translatable$$_Not yet implemented.";

std::set<TLibCellView> SetOf(const TReport::TSelectedColl& cells) {
    std::set<TLibCellView> set;
    for (const TLibCellView& cell : cells)
        set.insert(cell);
    return set;
}

// What was on the clipboard stays there if nothing is selected.
void CopySelected(const TReport& report, bool wholeTriples) {
    std::string text;
    for (const TLibCellView& cell : SetOf(report.GetSelected())) {
        text.append(wholeTriples ? cell.Join(" ").Payload() : cell.cell.Payload()).append(1, '\n');
    }
    if (!text.empty()) SetClipboardUnicodeText({text.c_str(), TextEncoding::Utf8Auto});
}

bool RunClipboardWord(const TReport& report, const CStringU& command) {
    if (command == csCopySelectedCellNames) {
        CopySelected(report, false);
    } else if (command == csCopySelectedCellViews) {
        CopySelected(report, true);
    } else if (command == csCopyAllCellNames) {
        SetClipboardText(report.GetShownCellList());
    } else if (command == csCopyAllCellViews) {
        SetClipboardText(report.GetShownCellViewList());
    } else {
        return false;
    }
    return true;
}

// The selected cells only for the one style that tells them: sorting a million of them takes seconds.
CellCommandSubject SubjectOf(const TReport& report, const TLibraryView& view,
                             TLibraryBrowserTclInterfaceStyle style) {
    return {view.GetSelectedDesign(), view.GetQEdit(), report.GetFocusedCell(),
            style == StyleSelectedLcvs ? SetOf(report.GetSelected()) : std::set<TLibCellView>()};
}

void SendLine(const TReport& report, const CStringU& line) {
    if (const TLibraryView* view = report.GetPane().GetLibraryView())
        EvaluateTcl(view->GetTclInterp(), line, nullptr);
}

void TellNotImplemented() {
    const CWinAppEx* app = CWinAppEx::GetApp();
    const CStringU title(app != nullptr ? app->GetAppName() : CString());
    TMessageBox(gGetMainWnd(), title, {vlang::gTranslate(csNotYetImplemented), TextEncoding::Utf8Auto},
                MB_OK | MB_ICONINFORMATION)
        .DoModal();
}

}  // namespace

// The user's pick of a number that is none of the list's own. A number without a handler is a view's name, or
// one of the two fixed items that only a host can give a meaning.
void TReport::RunMenuPick(UINT id, const std::set<CStringIU>& views) {
    const TLibraryView* view = m_pane.GetLibraryView();
    const TLibraryView::TCommand handler =
        view != nullptr ? view->GetCommandHandler(id) : TLibraryView::TCommand();
    if (view == nullptr || handler.first.IsEmpty()) {
        if (!ProcessViewNameFilterMenu(static_cast<int>(id), views)) TellNotImplemented();
        return;
    }
    if (RunClipboardWord(*this, handler.first)) return;
    const auto& [command, style] = handler;
    SendLine(*this, MakeCellMenuLine(command, style, SubjectOf(*this, *view, style)));
}

void TReport::SetCellListDefaultMenuCommand(const CStringU& command, TLibraryBrowserTclInterfaceStyle style) {
    m_defaultCommand = command;
    m_defaultCommandStyle = style;
}

void TReport::OnDoubleClick(CPoint point) {
    const HostCallScope scope;
    CXTPReportControl::OnDoubleClick(point);
    if (!IsWindow()) return;
    if (HitTestRow(point)) {
        // With the keys a click may leave the focus where it was; the host is asked about the focused cell.
        if (m_populated && HitTest(point) == GetFocusedCell()) RunDefaultCommand();
    } else if (GetReportHeader().HitTest(point) == nullptr) {
        m_pane.EmptyFilterText();
    }
}

void TReport::RunDefaultCommand() {
    AskMainWindow(WM_LN_CELLDBLCLK);
    const TLibraryView* view = m_pane.GetLibraryView();
    if (!IsWindow() || view == nullptr || m_defaultCommand.IsEmpty()) return;
    SendLine(*this, MakeDoubleClickLine(m_defaultCommand, m_defaultCommandStyle,
                                        SubjectOf(*this, *view, m_defaultCommandStyle)));
}

}  // namespace vapp_library_browser
