// Step 4: what the cell list shows of each view: columns of the tool, types to filter by, order, and looks.
#include <cstdio>
#include <string>

#include "step2_database/Database.h"
#include "step3_browser/PrintPanes.h"
#include "vapp/app/TApp.h"
#include "vapp/toolkit/CFont.h"
#include "vapp/toolkit/CFrameWnd.h"

using namespace vapp_library_browser;

namespace {

// A column by a command: it receives design, library, cell and view.
constexpr char csReservedCommand[] = R"tcl(
    proc reserved_by {design library cell view} {
        expr {[database cellviewinfo is_reserved $design $library $cell $view] ? "ada" : "nobody"}
    }
)tcl";

// A column by a function, without a way through the interpreter.
CStringU DescriptionOf(const TLibCellView& cell) {
    return cell.view + " of " + cell.cell;
}

CXTPReportColumn* ColumnOf(TCellNamesReportCtrl& report, const char* caption) {
    for (int position = 0; position < report.GetColumns().GetCount(); ++position) {
        CXTPReportColumn* column = report.GetColumns().GetAt(position);
        if (column->GetCaption() == caption) return column;
    }
    return nullptr;
}

// What a painter is told of each row. On a screen this is asked at each painting, so it is never out of date.
void PrintLooks(TCellNamesReportCtrl& report) {
    CXTPReportColumn* column = ColumnOf(report, "Cell");
    for (int row = 0; row < report.GetRows().GetCount(); ++row) {
        CXTPReportRecordItemMetrics look;
        report.MeasureItem(row, *column, look);
        std::printf("    %s:%s%s\n", look.text.GetString(), look.font != nullptr ? " bold" : "",
                    look.background != cnNoColor ? " tinted" : "");
    }
}

}  // namespace

int main(int, char** argv) {
    TApp app("layout_tool");
    const Interpreter interp = MakeInterpreter(argv[0]);
    Database database(interp.get());
    Tcl_Eval(interp.get(), csReservedCommand);
    CFrameWnd frame;
    frame.CreateFrame("Layout tool", CRect(0, 0, 420, 900));
    app.SetMainWnd(&frame);
    TLibraryBrowser browser;
    browser.Initialize(&frame, interp.get(), nullptr);

    // Between Initialize and SerializeSetup: the stored layout is for all columns, also the tool's.
    browser.AddCellViewListColumn("Reserved by", "reserved_by", true, false);
    browser.AddCellViewListColumn("Description", &DescriptionOf, true, false);
    browser.AddCellViewListFilterType("All");
    browser.AddCellViewListFilterType("Layouts");
    browser.SerializeSetup(false);
    browser.Populate();

    TCellListView& pane = *browser.GetCellListView();
    TCellNamesReportCtrl& report = pane.GetReport();
    std::puts("the user goes to the second tab, which has other columns:");
    report.OnSwitchSetupTab(1);
    PrintPanes(browser);

    std::puts("\nmodified cells are bold, reserved ones have a tint:");
    PrintLooks(report);

    std::puts("\nthe user clicks the header of the libraries, twice:");
    report.GetReportHeader().ClickedByUser(ColumnOf(report, "Library"), false);
    report.GetReportHeader().ClickedByUser(ColumnOf(report, "Library"), false);
    PrintPanes(browser);

    std::puts("\nthe user picks the type \"Layouts\":");
    auto* types = dynamic_cast<CComboBox*>(pane.GetDlgItem(TCellListView::cnFilterCombo));
    types->PickedByUser(1);
    types->ClosedByUser();
    browser.Populate();
    PrintPanes(browser);
    return 0;
}
