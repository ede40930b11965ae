/// @file
/// The filter alone: rows are read before, and neither sorted nor shown. The loop beside it walks over the
/// names as the rows hold them, one call for each row, and gathers the rows that it keeps.
#include "bench/CellFilterBench.h"

#include <strings.h>
#include <tcl.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <functional>
#include <limits>

#include "celllist/CellRows.h"
#include "celllist/SubstringFilter.h"
#include "tests/browser/TclInterpreter.h"
#include "vapp/browser/TclBridge.h"
#include "vapp/celllist/TCellListView.h"
#include "vapp/toolkit/CFrameWnd.h"
#include "vapp/toolkit/CWinAppEx.h"

using namespace vapp_library_browser;

namespace {

constexpr int cnFilterRuns = 7;

// The best of some runs; what is prepared for each of them isn't counted.
double FilterSeconds(const std::function<void()>& prepare, const std::function<void()>& function) {
    double best = std::numeric_limits<double>::max();
    for (int run = 0; run < cnFilterRuns; ++run) {
        prepare();
        const std::clock_t start = std::clock();
        function();
        best = std::min(best, static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC);
    }
    return best;
}

CellRows ReadRows(const std::vector<BenchRow>& rows) {
    Tcl_Interp* interp = MakeTclInterpreter();
    if (!EnsureTclBound(interp)) std::abort();
    Tcl_Obj* list = Tcl_NewListObj(0, nullptr);
    Tcl_IncrRefCount(list);
    const auto text = [](const std::string& name) {
        return Tcl_NewStringObj(name.data(), static_cast<int>(name.size()));
    };
    for (const BenchRow& row : rows) {
        const std::array<Tcl_Obj*, 3> names = {text(row.library), text(row.cell), text(row.view)};
        Tcl_ListObjAppendElement(nullptr, list, Tcl_NewListObj(3, names.data()));
    }
    std::optional<CellRows> read = CellRows::Read(list);
    Tcl_DecrRefCount(list);
    EndTclInterpreter(interp);
    if (!read) std::abort();
    return *read;
}

}  // namespace

void BenchFilter(const char* name, BenchRows kind, std::size_t count) {
    const std::vector<BenchRow> rows = MakeBenchRows(kind, count);
    std::vector<std::string> names;
    names.reserve(rows.size());
    for (const BenchRow& row : rows)
        names.push_back(row.cell);
    const CellRows read = ReadRows(rows);
    CWinAppEx app{"bench"};
    CFrameWnd frame;
    frame.CreateFrame("frame", {0, 0, 400, 1400});
    TCellListView pane;
    pane.Create(&frame, 1);
    pane.OnInitialUpdate();
    for (const char* text : {"LL_", "77", "123", "zz"}) {
        std::size_t kept = 0;
        std::size_t keptByLoop = 0;
        std::size_t keptByModel = 0;
        CellRows filtered;
        const double ours = FilterSeconds([&] { filtered = read; },
                                          [&] {
                                              SubstringFilter(pane.GetReport(), text).Apply(filtered);
                                              kept = filtered.Count();
                                          });
        std::vector<std::uint32_t> loopRows;
        const double loop = FilterSeconds([&] { loopRows = {}; },
                                          [&] {
                                              for (std::size_t row = 0; row < names.size(); ++row) {
                                                  if (strcasestr(names[row].c_str(), text) != nullptr)
                                                      loopRows.push_back(static_cast<std::uint32_t>(row));
                                              }
                                              keptByLoop = loopRows.size();
                                          });
        const double model = FilterItemModel(names, text, keptByModel);
        if (kept != keptByLoop || (model >= 0 && kept != keptByModel)) std::abort();
        std::printf("%-14s \"%s\" keeps %zu: filter %6.1f ms = %4.2f of the loop of strcasestr", name, text,
                    kept, ours * 1e3, ours / loop);
        if (model >= 0) std::printf(", item model's filter = %5.1f of ours", model / ours);
        std::printf("\n");
    }
}
