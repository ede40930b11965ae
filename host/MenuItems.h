#pragma once
/// Items for the menus of the navigator's lists as plain values, and their way into a menu that a list is
/// building. What a command of an item becomes is the library's affair; here only its style is named.
///
/// The surprise: a menu takes one sub-menu at a time, so items of the same sub-menu go into it together, at
/// the place of the first of them.

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "vapp/browser/TLibraryBrowserTclInterfaceStyle.h"

namespace vapp_library_browser {
class TLibraryBrowser;
}

namespace navigator {

/// The menus that take items.
enum class TMenuPlace { Cells, Libraries, Tabs };

/// The word of a script for a menu: cells, libraries, tabs.
[[nodiscard]] std::optional<TMenuPlace> gMenuPlaceOf(std::string_view word);

/// A style as scripts call it, and where it has a meaning.
struct MenuStyle {
    std::string_view word;
    vapp_library_browser::TLibraryBrowserTclInterfaceStyle style;
    bool isForCells;
    bool isForLibraries;
};

[[nodiscard]] std::span<const MenuStyle> gMenuStyles();
/// The style of a word, if that menu has it; a tab's menu has none.
[[nodiscard]] const MenuStyle* gFindMenuStyle(TMenuPlace place, std::string_view word);

/// All texts are UTF-8; an `&` in a title marks its key.
struct MenuItem {
    bool isSeparator = false;
    std::string subMenu;  ///< Title of the sub-menu that it belongs to; empty for none.
    std::string text;
    std::string command;
    vapp_library_browser::TLibraryBrowserTclInterfaceStyle style = vapp_library_browser::StyleCommandOnly;
    bool isDisabled = false;
    bool isChecked = false;
    bool isDefault = false;
};

/// While the cell list builds its menu: puts the items in front of its own. Items that get the selected views
/// are greyed if the name of one of them can't be told in a list of lists, as one that begins with a
/// quote or holds a backslash; of very many selected views the first ones are looked at.
void gAddCellItems(vapp_library_browser::TLibraryBrowser& browser, std::span<const MenuItem> items);

/// While the library list builds its menu. Its menu has no separators. The names of libraries that are told
/// by StyleSelectedLibraries stand in that line as they are: with a brace, a quote or a backslash in one of
/// them the line would be another one, so that such an item is greyed then.
void gAddLibraryItems(vapp_library_browser::TLibraryBrowser& browser, std::span<const MenuItem> items);

/// While a tab builds its menu, which has no sub-menus: titles are left out. Gives the command of each item
/// by its number in the menu; that of a separator is empty.
[[nodiscard]] std::vector<std::string> gAddTabItems(vapp_library_browser::TLibraryBrowser& browser,
                                                    std::span<const MenuItem> items);

}  // namespace navigator
