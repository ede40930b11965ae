/// @file
/// Wording of the lines; the order of the options is part of what hosts expect.
#include "celllist/CellLines.h"

namespace vapp_library_browser {

namespace {

void AppendBase(const CellQuery& query, TLineBuilder& line) {
    line.Literal("database cells -lcv -library ").Text(query.design);
}

void AppendNames(const char* option, const std::set<CStringIU>& names, TLineBuilder& line) {
    line.Literal(option);
    bool first = true;
    for (const CStringIU& name : names) {
        if (!first) line.Literal(" ");
        line.Name(name);
        first = false;
    }
    line.Literal("}");
}

// With no library selected the whole design shows, as with all of them.
bool LimitsLibraries(const CellQuery& query) {
    return !query.selectedLibraries.empty() && query.selectedLibraries.size() < query.allLibraries.size();
}

void AppendOptions(const CellQuery& query, TLineBuilder& line) {
    if (query.showHiddenCells) line.Literal(" -showhiddencells");
    if (query.showVias) line.Literal(" -showvias");
    if (LimitsLibraries(query)) AppendNames(" -libraries {", query.selectedLibraries, line);
    if (!query.views.empty()) AppendNames(" -views {", query.views, line);
    if (query.tab) line.Literal(" -tab ").Number(*query.tab);
}

}  // namespace

void AppendCountLine(const CellQuery& query, TLineBuilder& line) {
    AppendBase(query, line);
    line.Literal(" -count");
    AppendOptions(query, line);
}

void AppendListLine(const CellQuery& query, TLineBuilder& line) {
    AppendBase(query, line);
    line.Literal(" -filter ").Text(query.filterType);
    AppendOptions(query, line);
}

}  // namespace vapp_library_browser
