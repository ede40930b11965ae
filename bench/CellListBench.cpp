/// @file
/// How long a population of the cell list takes beside a bare walk over the same Tcl list, beside the plain
/// ways to sort, and beside an item model; how much memory a row takes; what painting costs beside the bare
/// evaluation of its lines. Ratios to the walk of the same run are counters of each bench.
///
///     bench_celllist [--rows=1000000] [--filter] [--typing]
///
/// With --filter it measures the sub-string alone, with --typing a key of type-ahead that finds nothing.
#include <malloc.h>
#include <strings.h>
#include <tcl.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <functional>
#include <limits>
#include <memory>
#include <new>
#include <set>
#include <string_view>

#include "bench/CellFilterBench.h"
#include "bench/CellListBench.h"
#include "tests/browser/TclInterpreter.h"
#include "vapp/browser/TLibraryBrowser.h"
#include "vapp/browser/TLibraryView.h"
#include "vapp/browser/TclBridge.h"
#include "vapp/celllist/TCellListView.h"
#include "vapp/toolkit/CFrameWnd.h"
#include "vapp/toolkit/CWinAppEx.h"

using namespace vapp_library_browser;

namespace {

std::size_t s_live = 0;
std::size_t s_peak = 0;
std::size_t s_allocations = 0;

void* Counted(std::size_t size) {
    void* memory = std::malloc(size == 0 ? 1 : size);
    if (memory == nullptr) throw std::bad_alloc();
    ++s_allocations;
    s_live += malloc_usable_size(memory);
    s_peak = std::max(s_peak, s_live);
    return memory;
}

void Freed(void* memory) noexcept {
    if (memory != nullptr) s_live -= malloc_usable_size(memory);
    std::free(memory);
}

// The best of some runs, in seconds of processor time: what else runs on the machine doesn't count.
double Seconds(int runs, const std::function<void()>& function) {
    double best = std::numeric_limits<double>::max();
    for (int run = 0; run < runs; ++run) {
        const std::clock_t start = std::clock();
        function();
        best = std::min(best, static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC);
    }
    return best;
}

// The host: one command that answers from C++, as hosts do.
struct Host {
    Tcl_Interp* interp = MakeTclInterpreter();
    Tcl_Obj* libraries = nullptr;
    Tcl_Obj* count = nullptr;
    Tcl_Obj* list = nullptr;

    Host() {
        if (!EnsureTclBound(interp)) std::abort();
        Tcl_CreateObjCommand(interp, "database", &Host::Database, this, nullptr);
        Tcl_CreateObjCommand(interp, "librarynavigator", &Host::Nothing, nullptr, nullptr);
        libraries = Kept(Tcl_NewStringObj("{top {lib_00 /lib_00}}", -1));
    }
    Host(const Host&) = delete;
    Host& operator=(const Host&) = delete;
    ~Host() {
        for (Tcl_Obj* object : {libraries, count, list}) {
            if (object != nullptr) Tcl_DecrRefCount(object);
        }
        EndTclInterpreter(interp);
    }

    static Tcl_Obj* Kept(Tcl_Obj* object) {
        Tcl_IncrRefCount(object);
        return object;
    }
    static Tcl_Obj* Text(const std::string& text) {
        return Tcl_NewStringObj(text.data(), static_cast<int>(text.size()));
    }
    void Answer(const std::vector<BenchRow>& rows) {
        if (list != nullptr) Tcl_DecrRefCount(list);
        if (count != nullptr) Tcl_DecrRefCount(count);
        list = Kept(Tcl_NewListObj(0, nullptr));
        count = Kept(Tcl_NewIntObj(static_cast<int>(rows.size())));
        for (const BenchRow& row : rows) {
            const std::array<Tcl_Obj*, 3> names = {Text(row.library), Text(row.cell), Text(row.view)};
            Tcl_ListObjAppendElement(nullptr, list, Tcl_NewListObj(3, names.data()));
        }
    }

    static int Nothing(void* /*data*/, Tcl_Interp* /*interp*/, int /*count*/, Tcl_Obj* const /*words*/[]) {
        return TCL_OK;
    }
    static int Database(void* data, Tcl_Interp* interp, int wordCount, Tcl_Obj* const words[]) {
        const Host& host = *static_cast<Host*>(data);
        const std::string_view question = wordCount > 1 ? Tcl_GetString(words[1]) : "";
        if (question == "all_libs") {
            Tcl_SetObjResult(interp, host.libraries);
        } else if (question == "cells") {
            const bool counts = std::string_view(Tcl_GetString(words[5])) == "-count";
            Tcl_SetObjResult(interp, counts ? host.count : host.list);
        } else {
            Tcl_SetObjResult(interp, Tcl_NewIntObj(0));
        }
        return TCL_OK;
    }
};

struct Navigator {
    explicit Navigator(Host& host) {
        frame.CreateFrame("frame", {0, 0, 400, 1400});
        browser.Initialize(&frame, host.interp, nullptr);
        browser.Populate();
    }
    TCellNamesReportCtrl& Report() { return browser.GetCellListView()->GetReport(); }

    CWinAppEx app{"bench"};
    CFrameWnd frame;
    TLibraryBrowser browser;
};

std::size_t Walk(Tcl_Obj* list) {
    int count = 0;
    Tcl_Obj** elements = nullptr;
    Tcl_ListObjGetElements(nullptr, list, &count, &elements);
    std::size_t bytes = 0;
    for (int at = 0; at < count; ++at) {
        int names = 0;
        Tcl_Obj** name = nullptr;
        Tcl_ListObjGetElements(nullptr, elements[at], &names, &name);
        for (int item = 0; item < names; ++item)
            bytes += static_cast<unsigned char>(*Tcl_GetString(name[item]));
    }
    return bytes;
}

void SortPlainly(const std::vector<BenchRow>& rows) {
    std::vector<const BenchRow*> order;
    for (const BenchRow& row : rows)
        order.push_back(&row);
    std::sort(order.begin(), order.end(), [](const BenchRow* left, const BenchRow* right) {
        int compared = strcasecmp(left->cell.c_str(), right->cell.c_str());
        if (compared == 0) compared = strcasecmp(left->view.c_str(), right->view.c_str());
        if (compared == 0) compared = strcasecmp(left->library.c_str(), right->library.c_str());
        return compared < 0;
    });
}

void FillSet(const std::vector<BenchRow>& rows) {
    std::set<TLibCellView> set;
    for (const BenchRow& row : rows)
        set.emplace(row.library.c_str(), row.cell.c_str(), row.view.c_str());
}

void Population(const char* name, BenchRows kind, std::size_t count, bool withPeers) {
    const std::vector<BenchRow> rows = MakeBenchRows(kind, count);
    Host host;
    host.Answer(rows);
    Navigator navigator(host);
    TCellNamesReportCtrl& report = navigator.Report();
    std::size_t bytes = 0;
    const double walk = Seconds(5, [&] { bytes += Walk(host.list); });
    const double populate = Seconds(5, [&] { report.Populate(); });
    if (report.GetCellViewCount() != count || bytes == 0) std::abort();
    host.Answer({});
    report.Populate();
    host.Answer(rows);
    const std::size_t before = s_live;
    s_peak = s_live;
    report.Populate();
    const auto perRow = [&](std::size_t size) {
        return static_cast<double>(size - before) / static_cast<double>(count);
    };
    std::printf(
        "%-16s walk %7.1f ms  Populate %7.1f ms  = %5.2f walks; bytes a row: peak %5.1f, kept %5.1f\n", name,
        walk * 1e3, populate * 1e3, populate / walk, perRow(s_peak), perRow(s_live));
    report.OnSelectAll();
    const double selected = Seconds(1, [&] { report.Populate(); });
    std::printf("%-16s Populate with all rows selected %7.1f ms\n", name, selected * 1e3);
    if (!withPeers) return;
    const double plain = Seconds(1, [&] { SortPlainly(rows); });
    const double set = Seconds(1, [&] { FillSet(rows); });
    std::printf(
        "%-16s sort by strcasecmp %7.1f ms (Populate = %4.2f of it), set of values %7.1f ms (%4.2f)\n", name,
        plain * 1e3, populate / plain, set * 1e3, populate / set);
}

// On fewer rows than the others: a million take the item model minutes.
void ItemModel(std::size_t count) {
    const std::vector<BenchRow> rows = MakeBenchRows(BenchRows::Shuffled, count);
    Host host;
    host.Answer(rows);
    Navigator navigator(host);
    const double populate = Seconds(5, [&] { navigator.Report().Populate(); });
    const double items = FillAndSortItemModel(rows);
    if (items < 0) {
        std::printf("item model: Qt is not installed\n");
    } else {
        std::printf("item model of %zu rows: %7.1f ms (Populate = %5.3f of it)\n", count, items * 1e3,
                    populate / items);
    }
}

// A key that no row begins with looks at all of them.
void Typing(std::size_t count) {
    Host host;
    host.Answer(MakeBenchRows(BenchRows::Shuffled, count));
    Navigator navigator(host);
    TCellNamesReportCtrl& report = navigator.Report();
    report.Populate();
    const std::size_t before = s_allocations;
    std::int64_t clock = 0;
    const double key = Seconds(5, [&] { report.TypedByUser("~", clock += 2 * TypeAhead::cnPause); });
    const std::size_t allocations = (s_allocations - before) / 5;
    const double texts = Seconds(1, [&] {
        for (std::size_t row = 0; row < count; ++row)
            if (report.GetTypeAheadText(static_cast<int>(row)).StartsWithNoCase("~")) std::abort();
    });
    std::printf("a key without a hit in %zu rows: %7.1f ms, %zu allocations; by texts %7.1f ms\n", count,
                key * 1e3, allocations, texts * 1e3);
}

// 50 rows of 3 columns: measured by the report, and the same lines evaluated as they are.
void Painting() {
    Host host;
    host.Answer(MakeBenchRows(BenchRows::Shuffled, 50));
    Navigator navigator(host);
    TCellNamesReportCtrl& report = navigator.Report();
    const char* const icons[] = {"is_fab",       "is_stdviadef", "is_customviadef",
                                 "is_guardring", "is_vcell",     "is_lockedbyuser"};
    const char* const looks[] = {"is_modified", "is_reserved", "is_hiddeninlists", "cache"};
    std::vector<std::string> lines;
    for (int row = 0; row < 50; ++row) {
        const std::string subject = std::string(" top ") + report.GetCell(row).Join(" ").Payload() + " ";
        for (const char* key : icons)
            lines.push_back(std::string("database cellviewinfo ") + key + subject);
        for (int column = 0; column < 3; ++column) {
            for (const char* key : looks)
                lines.push_back(std::string("database cellviewinfo ") + key + subject);
        }
    }
    constexpr int cnRuns = 300;
    const double bare = Seconds(cnRuns, [&] {
        for (const std::string& line : lines)
            Tcl_EvalEx(host.interp, line.c_str(), -1, 0);
    });
    const double paint = Seconds(cnRuns, [&] {
        CXTPReportRecordItemMetrics metrics;
        for (int row = 0; row < 50; ++row) {
            for (int column = 0; column < 3; ++column) {
                metrics.Reset();
                report.MeasureItem(row, *report.GetColumns().GetAt(column), metrics);
            }
        }
    });
    std::printf("painting 50 x 3: bare lines %7.1f us, MeasureItem %7.1f us = %4.2f of them (%zu lines)\n",
                bare * 1e6, paint * 1e6, paint / bare, lines.size());
}

}  // namespace

void* operator new(std::size_t size) {
    return Counted(size);
}
void operator delete(void* memory) noexcept {
    Freed(memory);
}
void operator delete(void* memory, std::size_t /*size*/) noexcept {
    Freed(memory);
}

int main(int argumentCount, char** arguments) {
    std::size_t count = 1000000;
    bool filterAlone = false;
    bool typingAlone = false;
    for (int at = 1; at < argumentCount; ++at) {
        if (std::string_view(arguments[at]).starts_with("--rows="))
            count = std::strtoul(arguments[at] + 7, nullptr, 10);
        filterAlone = filterAlone || std::string_view(arguments[at]) == "--filter";
        typingAlone = typingAlone || std::string_view(arguments[at]) == "--typing";
    }
    if (!filterAlone) Typing(count);
    if (typingAlone) return 0;
    BenchFilter("shared cells", BenchRows::Sorted, count);
    BenchFilter("distinct cells", BenchRows::Distinct, count);
    if (filterAlone) return 0;
    Painting();
    Population("sorted", BenchRows::Sorted, count, false);
    Population("shuffled", BenchRows::Shuffled, count, true);
    Population("unpadded", BenchRows::Unpadded, count, false);
    Population("shared names", BenchRows::SharedShuffled, count, false);
    ItemModel(count / 10);
    return 0;
}
