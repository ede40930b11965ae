#include "celllist/CellLines.h"

#include <gtest/gtest.h>

#include "tests/browser/RecordingHost.h"

namespace {

using vapp_library_browser::AppendCountLine;
using vapp_library_browser::AppendListLine;
using vapp_library_browser::CellQuery;
using vapp_library_browser::TLineBuilder;

std::string Line(void (*append)(const CellQuery&, TLineBuilder&), const CellQuery& query) {
    TLineBuilder line;
    append(query, line);
    return std::string(line.View());
}

CellQuery Query(unsigned options) {
    CellQuery query;
    query.design = "top";
    query.allLibraries = {"beta", "Alpha", "gamma"};
    query.showHiddenCells = (options & 1) != 0;
    query.showVias = (options & 2) != 0;
    if ((options & 4) != 0) query.selectedLibraries = {"beta", "Alpha"};
    if ((options & 8) != 0) query.views = {"symbol", "Layout"};
    if ((options & 16) != 0) query.tab = 2;
    if ((options & 32) != 0) query.filterType = "All [types]";
    return query;
}

TEST(CellLines, AreWordedAsHostsKnowThemInEveryCombination) {
    std::vector<std::string> lines;
    for (unsigned options = 0; options < 64; ++options) {
        lines.push_back(Line(&AppendCountLine, Query(options)));
        lines.push_back(Line(&AppendListLine, Query(options)));
    }
    ExpectGolden("cell_lines.txt", lines);
}

TEST(CellLines, LeaveTheLibrariesOutWithAllOrNoneSelected) {
    CellQuery query = Query(0);
    EXPECT_EQ(Line(&AppendCountLine, query), "database cells -lcv -library top -count");
    query.selectedLibraries = query.allLibraries;
    EXPECT_EQ(Line(&AppendCountLine, query), "database cells -lcv -library top -count");
}

TEST(CellLines, SanitiseNamesOneByOneAndTheFilterTypeNotAtAll) {
    const RecordingHost host;  // the hook makes its words with Tcl
    const HookGuard hook;
    CellQuery query = Query(0);
    query.selectedLibraries = {"a b"};
    query.views = {"v{", "w x"};
    query.filterType = "no [hook] here";
    EXPECT_EQ(
        Line(&AppendListLine, query),
        "database cells -lcv -library top -filter no [hook] here -libraries {{a b}} -views {v\\{ {w x}}");
}

}  // namespace
