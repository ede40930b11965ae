/// @file
/// The menu as a table: a line for each item, with the depth at which it stands.
#include "celllist/CellMenu.h"

#include <array>
#include <cstddef>
#include <vector>

#include "vapp/text/Translate.h"

namespace vapp_library_browser {

namespace {

// A sub-menu has no command.
constexpr UINT cnPopup = 0;

struct MenuLine {
    std::size_t depth;
    UINT command;
    const char* key;
};
constexpr std::array cnMenuLines = {
    MenuLine{0, SelectHierarchy, "__$$Translatable$$_Select Hierarchy"},
    MenuLine{0, SelectAll, "__$$Translatable$$_Select All"},
    MenuLine{0, cnPopup, "__$$Translatable$$_Settings"},
    MenuLine{1, cnPopup, "__$$Translatable$$_Filters"},
    MenuLine{2, ShowHiddenCells, "__$$Translatable$$_Show Hidden Cells"},
    MenuLine{2, ShowVias, "__$$Translatable$$_Show Vias"},
    MenuLine{2, cnPopup, "__$$Translatable$$_Sub-string Filter"},
    MenuLine{3, FilterCaseSensitive, "__$$Translatable$$_Case-sensitive"},
    MenuLine{3, FilterAllColumns, "__$$Translatable$$_Filter All Columns"},
    MenuLine{3, FilterCellName, "__$$Translatable$$_Filter Cell-name"},
    MenuLine{3, FilterViewName, "__$$Translatable$$_Filter View-name"},
    MenuLine{2, cnPopup, "__$$Translatable$$_View-name Filter"},
    MenuLine{3, AllViewNames, "__$$Translatable$$_All View-names"},
    MenuLine{2, ExcludeViews, "__$$Translatable$$_Exclude these views..."},
    MenuLine{1, cnPopup, "__$$Translatable$$_&Columns"},
    MenuLine{2, UseSetup1, "__$$Translatable$$_Setup 1"},
    MenuLine{2, UseSetup2, "__$$Translatable$$_Setup 2"},
    MenuLine{2, UseSetup3, "__$$Translatable$$_Setup 3"},
    MenuLine{2, ColumnChooser, "__$$Translatable$$_Column Chooser..."},
    MenuLine{1, cnPopup, "__$$Translatable$$_Color"},
    MenuLine{2, ColorFilteredList, "__$$Translatable$$_Filtered List"},
    MenuLine{2, ColorReservedCells, "__$$Translatable$$_Reserved Cells"},
    MenuLine{2, ColorHiddenCells, "__$$Translatable$$_Hidden Cells"},
    MenuLine{2, ColorUnresolvedCells, "__$$Translatable$$_Unresolved Cells"},
};

}  // namespace

std::unique_ptr<CMenu> MakeCellMenu() {
    auto menu = std::make_unique<CMenu>();
    // The menus that are open at each depth of the table.
    std::vector<CMenu*> open = {menu.get()};
    for (const MenuLine& line : cnMenuLines) {
        open.resize(line.depth + 1);
        const CStringU text(vlang::gTranslate(line.key), TextEncoding::Utf8Auto);
        if (line.command == cnPopup) {
            open.push_back(&open.back()->AppendPopup(text));
        } else {
            open.back()->Append(line.command, text);
        }
    }
    return menu;
}

}  // namespace vapp_library_browser
