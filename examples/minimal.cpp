// The smallest host: a Tcl interpreter that knows a design, a frame, and the navigator in it.
#include <tcl.h>

#include <QApplication>

#include "vapp/browser/TLibraryBrowser.h"
#include "vapp/toolkit/CFrameWnd.h"
#include "vapp/toolkit/CWinAppEx.h"
#include "vapp/toolkit/qt/QtIdle.h"
#include "vapp/toolkit/qt/QtPeerFactory.h"

static const char csDesign[] = R"tcl(
    proc database {what args} {
        set cells {{logic inv symbol} {logic nand2 symbol} {logic nand10 symbol} {top chip schematic}}
        switch $what {
            all_libs  { return {{chip {logic /libs/logic} {top /libs/top}}} }
            top_level { return top }
            cells     { return [expr {"-count" in $args ? [llength $cells] : $cells}] }
            default   { return 0 }
        }
    }
    proc librarynavigator args {}
    proc logaction line { puts $line; eval $line }
)tcl";

int main(int argc, char** argv) {
    QApplication qt(argc, argv);
    QtPeerFactory::Install();
    Tcl_FindExecutable(argv[0]);
    Tcl_Interp* interp = Tcl_CreateInterp();
    if (Tcl_Eval(interp, csDesign) != TCL_OK) return 1;

    CWinAppEx app("minimal");
    CFrameWnd frame;
    frame.CreateFrame("A first embedding", CRect(0, 0, 420, 800));
    app.SetMainWnd(&frame);
    vapp_library_browser::TLibraryBrowser navigator;
    navigator.Initialize(&frame, interp, nullptr);
    navigator.SerializeSetup(false);
    // The host drives the navigator: it refreshes what is dirty whenever the event loop has nothing else to
    // do, and no menu is open.
    gRunWhenIdle(qt, [&navigator] { navigator.Populate(); });
    frame.ShowWindow(true);
    return QApplication::exec();
}
