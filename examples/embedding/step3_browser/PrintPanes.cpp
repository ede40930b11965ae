#include "step3_browser/PrintPanes.h"

#include <cstdio>

#include "vapp/browser/TLibraryView.h"

void PrintPanes(vapp_library_browser::TLibraryBrowser& browser) {
    std::printf("design %s:", browser.GetSelectedDesign().Payload());
    const auto selected = browser.GetSelectedLibrariesSet();
    for (const CStringIU& library : browser.GetAllLibrariesSet())
        std::printf(" %s%s", library.Payload(), selected.contains(library) ? "*" : "");
    CStringU table;
    browser.GetCellListView()->GetReport().DumpContents({}, table);
    std::printf("\n%s", table.Payload());
}
