/// @file
/// One table of switches. Four of them are not free of one another: with no column to search, a sub-string
/// would hide every row, and the user would look for the reason in vain.
#include "celllist/OptionCommands.h"

#include <algorithm>
#include <array>

namespace vapp_library_browser {

namespace {

using TOptions = TCellNamesReportCtrl::TOptions;

struct OptionSwitch {
    UINT command;
    bool TOptions::*option;
};
constexpr std::array cnSwitches = {
    OptionSwitch{ShowHiddenCells, &TOptions::showHiddenCells},
    OptionSwitch{ShowVias, &TOptions::showVias},
    OptionSwitch{FilterCaseSensitive, &TOptions::filterCaseSensitive},
    OptionSwitch{FilterAllColumns, &TOptions::filterAllColumns},
    OptionSwitch{FilterCellName, &TOptions::filterCellName},
    OptionSwitch{FilterViewName, &TOptions::filterViewName},
    OptionSwitch{ColorFilteredList, &TOptions::colorFilteredList},
    OptionSwitch{ColorReservedCells, &TOptions::colorReservedCells},
    OptionSwitch{ColorHiddenCells, &TOptions::colorHiddenCells},
    OptionSwitch{ColorUnresolvedCells, &TOptions::colorUnresolvedCells},
};

bool TOptions::*OptionOf(UINT command) {
    const auto* found = std::find_if(cnSwitches.begin(), cnSwitches.end(),
                                     [command](const OptionSwitch& row) { return row.command == command; });
    return found == cnSwitches.end() ? nullptr : found->option;
}

void SearchAllColumns(TOptions& options) {
    options.filterAllColumns = true;
    options.filterCellName = false;
    options.filterViewName = false;
}

// It goes off only in favour of the view.
void ToggleCellName(TOptions& options) {
    options.filterAllColumns = false;
    options.filterCellName = !options.filterCellName || !options.filterViewName;
}

void ToggleViewName(TOptions& options) {
    options.filterAllColumns = false;
    options.filterViewName = !options.filterViewName;
    if (!options.filterViewName) options.filterCellName = true;
}

}  // namespace

bool ApplyOptionCommand(TOptions& options, UINT command) {
    bool TOptions::*const option = OptionOf(command);
    if (option == nullptr) return false;
    switch (command) {
        case FilterAllColumns:
            SearchAllColumns(options);
            break;
        case FilterCellName:
            ToggleCellName(options);
            break;
        case FilterViewName:
            ToggleViewName(options);
            break;
        default:
            options.*option = !(options.*option);
            break;
    }
    return true;
}

bool IsOptionOn(const TOptions& options, UINT command) {
    bool TOptions::*const option = OptionOf(command);
    return option != nullptr && options.*option;
}

}  // namespace vapp_library_browser
