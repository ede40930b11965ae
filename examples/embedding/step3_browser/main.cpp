// Step 3: the navigator in a frame. There is no toolkit yet that could show it, so this runs without a
// screen: the panes are filled, laid out and worked on all the same.
#include <cstdio>

#include "step2_database/Database.h"
#include "step3_browser/PrintPanes.h"
#include "vapp/app/TApp.h"
#include "vapp/toolkit/CFrameWnd.h"

int main(int, char** argv) {
    TApp app("layout_tool");
    if (app.InitInstance() == 0) return 1;
    const Interpreter interp = MakeInterpreter(argv[0]);
    const Database database(interp.get());

    CFrameWnd frame;
    frame.CreateFrame("Layout tool", CRect(0, 0, 420, 900));
    app.SetMainWnd(&frame);
    vapp_library_browser::TLibraryBrowser browser;
    browser.Initialize(&frame, interp.get(), nullptr);
    browser.SerializeSetup(false);

    // The tool calls this whenever it is idle. Only what is marked as out of date asks the database.
    browser.Populate();
    PrintPanes(browser);

    std::puts("\nthe user selects a library:");
    browser.SelectInLibraryList("logic");
    browser.Populate();
    PrintPanes(browser);
    return 0;
}
