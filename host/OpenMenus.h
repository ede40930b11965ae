#pragma once
/// The menus that are open on the screen, for scripts that look at what a user sees.

#include <QRect>
#include <string>
#include <vector>

namespace navigator {

struct OpenMenuItem {
    std::string text;  ///< As it is read, without the sign of its key.
    QRect place;       ///< On the screen, in logical pixels.
    bool isEnabled = false;
    bool isChecked = false;
    bool isDefault = false;
    bool hasSubMenu = false;
};

/// The items of all open menus but their separators, each sub-menu behind the menu that it belongs to.
[[nodiscard]] std::vector<OpenMenuItem> gOpenMenuItems();

}  // namespace navigator
