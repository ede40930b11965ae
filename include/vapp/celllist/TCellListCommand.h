/// @file
/// The commands of the cell list's own menu, by number.
///
/// A host gives `SelectHierarchy` and `ColumnChooser` their meaning; all others are the list's. Numbers that
/// follow one another are for hosts' items, from `FirstHostCommand` on, and for the names of the view filter,
/// from `FirstViewName` on.
#pragma once

#include "vapp/toolkit/BasicTypes.h"

namespace vapp_library_browser {

enum TCellListCommand : UINT {
    ExcludeViews = 32772,
    ShowHiddenCells = 40621,
    UseSetup1 = 40622,
    UseSetup2 = 40623,
    UseSetup3 = 40624,
    ColumnChooser = 40625,
    FilterCaseSensitive = 40626,
    FilterAllColumns = 40627,
    FilterCellName = 40628,
    FilterViewName = 40629,
    ShowVias = 40630,
    SelectHierarchy = 40659,
    SelectAll = 40660,
    ColorFilteredList = 40661,
    ColorReservedCells = 40662,
    ColorHiddenCells = 40664,
    AllViewNames = 40665,
    ColorUnresolvedCells = 40686,
    FirstHostCommand = 41000,
    FirstViewName = 43000
};

}  // namespace vapp_library_browser
