// Step 5: the way back. What the user does reaches the tool as messages to its main window and as Tcl lines,
// and what changes in the tool reaches the panes as requests.
#include <cstdio>
#include <string>

#include "step2_database/Database.h"
#include "step3_browser/PrintPanes.h"
#include "step5_actions/MenuUser.h"
#include "vapp/app/TApp.h"
#include "vapp/browser/Messages.h"
#include "vapp/browser/TclBridge.h"
#include "vapp/toolkit/CDocument.h"
#include "vapp/toolkit/CFrameWnd.h"

using namespace vapp_library_browser;

namespace {

class Frame final : public CFrameWnd {
public:
    ~Frame() override { DestroyWindow(); }
    TLibraryBrowser* browser = nullptr;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        if (message == WM_LN_HOSTNOTIFY && wParam == cnNotifySelectionChanged)
            std::puts("  main window: the selection has changed");
        if (message == WM_LN_BUILDCELLMENU) AddItems();
        if (message == WM_LN_ISDARKTHEME) return 0;
        return CFrameWnd::WindowProc(message, wParam, lParam);
    }

private:
    // Items of this tool, in front of the list's own. The style tells what the list puts behind the command:
    // design, library, cell and view of the focused row. Of some commands it knows what to do by itself.
    void AddItems() {
        const bool isAnySelected = browser->AreAnyCellsSelected();
        browser->AddCellListMenuCommand("Open", "open_cell", StyleFocusedLcv, !isAnySelected, false, true);
        browser->AddCellListMenuCommand("Copy names", "CopySelectedCellNamesToClipboard", StyleBuiltIn,
                                        !isAnySelected, false, false);
        browser->AddCellListMenuSeparator();
    }
};

// The tool's log: it receives a whole line, writes it, and runs it.
int LogAction(ClientData, Tcl_Interp* interp, int count, Tcl_Obj* const words[]) {
    if (count != 2) return TCL_ERROR;
    std::printf("  log: %s\n", Tcl_GetString(words[1]));
    return Tcl_EvalObjEx(interp, words[1], TCL_EVAL_GLOBAL);
}

// "librarynavigator preview set -primary DESIGN -library LIBRARY -cell CELL ...": a picture is wanted. This
// tool draws none yet and answers with a caption alone.
int LibraryNavigator(ClientData browser, Tcl_Interp*, int count, Tcl_Obj* const words[]) {
    for (int at = 3; at + 1 < count; at += 2) {
        if (std::string(Tcl_GetString(words[at])) != "-cell") continue;
        const char* cell = Tcl_GetString(words[at + 1]);
        std::printf("  preview of %s\n", cell);
        const CStringU caption(cell, TextEncoding::Utf8Auto);
        static_cast<TLibraryBrowser*>(browser)->SetPreview(false, caption, nullptr);
    }
    return TCL_OK;
}

int OpenCell(ClientData, Tcl_Interp*, int count, Tcl_Obj* const words[]) {
    if (count != 5) return TCL_ERROR;
    std::printf("  opens %s of %s\n", Tcl_GetString(words[3]), Tcl_GetString(words[2]));
    return TCL_OK;
}

}  // namespace

int main(int, char** argv) {
    TApp app("layout_tool");
    const Interpreter interp = MakeInterpreter(argv[0]);
    Database database(interp.get());
    Frame frame;
    frame.CreateFrame("Layout tool", CRect(0, 0, 420, 900));
    app.SetMainWnd(&frame);
    CDocument document;
    TLibraryBrowser browser;
    Tcl_CreateObjCommand(interp.get(), "logaction", &LogAction, nullptr, nullptr);
    Tcl_CreateObjCommand(interp.get(), "librarynavigator", &LibraryNavigator, &browser, nullptr);
    Tcl_CreateObjCommand(interp.get(), "open_cell", &OpenCell, nullptr, nullptr);
    browser.Initialize(&frame, interp.get(), nullptr);
    frame.browser = &browser;
    browser.AddViewsToDoc(&document);
    browser.SerializeSetup(false);
    browser.Populate();

    std::puts("the user clicks a cell:");
    TCellNamesReportCtrl& report = browser.GetCellListView()->GetReport();
    report.ClickedByUser(static_cast<int>(report.Find("logic", "nand2")), {});

    std::puts("the user picks an item of the tool from the menu of the cells:");
    {
        const MenuUser user("Open");
        report.ContextMenuByPeer(report.ClientToScreen({10, 100}));
    }

    std::puts("a command of the tool's own windows goes through the same log:");
    const TLibCellView cell = browser.GetFocusedCell();
    const CStringU line = WrapForActionLog("open_cell " + SanitizeTclInput(browser.GetSelectedDesign()) +
                                           " " + SanitizeTclInput(cell.library) + " " +
                                           SanitizeTclInput(cell.cell) + " " + SanitizeTclInput(cell.view));
    Tcl_EvalEx(interp.get(), line.Payload(), -1, TCL_EVAL_GLOBAL);

    std::puts("the design gets a cell, the panes are told, and refreshed when the tool is idle:");
    database.cells.push_back({"logic", "xor2", "symbol"});
    browser.RequestLibraryViewDelayedPopulate();
    browser.RequestCellListViewDelayedPopulate(UpdateAlways);
    browser.Populate();
    PrintPanes(browser);

    std::puts("the tool selects a master in a window of its own:");
    database.selectedMaster = {"logic", "xor2", "symbol"};
    document.UpdateAllViews(nullptr, cnHintSelectedMaster);
    browser.RequestCellListViewDelayedPopulate(UpdateAlways);
    browser.Populate();
    std::printf("  the list shows %s\n", browser.GetFocusedCell().cell.Payload());

    std::puts("states that the tool tells the navigator stay until ClearCaches:");
    browser.SetLcvModified(cell, true);
    browser.SetRepoState(cell, "checked out");
    std::printf("  %d, %s\n", browser.HasModifiedLcvs("logic") ? 1 : 0, browser.GetRepoState(cell).Payload());
    browser.ClearCaches();
    std::printf("  %d, %s\n", browser.HasModifiedLcvs("logic") ? 1 : 0,
                browser.GetRepoState(cell).IsEmpty() ? "nothing" : "something");
    return 0;
}
