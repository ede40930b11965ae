/// @file
/// The two lines with which a population asks the host for its rows.
///
/// Here stands how they are worded, and nothing about when they are sent. The golden files of the tests hold
/// them in every combination.
#pragma once

#include <optional>
#include <set>

#include "vapp/browser/TLineBuilder.h"
#include "vapp/text/CStringIU.h"
#include "vapp/text/CStringU.h"

namespace vapp_library_browser {

/// What a line asks for.
struct CellQuery {
    CStringU design;  ///< sanitised already
    bool showHiddenCells = false;
    bool showVias = false;
    std::set<CStringIU> selectedLibraries;
    std::set<CStringIU> allLibraries;
    std::set<CStringIU> views;  ///< only these; empty for all
    std::optional<int> tab;     ///< current tab, where the host is the schematic editor
    CStringU filterType;        ///< goes into the line as it stands
};

/// Asks how many triples there are before the filter type and the sub-string narrow them.
void AppendCountLine(const CellQuery& query, TLineBuilder& line);
/// Asks for the triples. Without a filter type the line has " -filter " with nothing behind it: hosts know it
/// so.
void AppendListLine(const CellQuery& query, TLineBuilder& line);

}  // namespace vapp_library_browser
