/// Menus among the windows of the program.

#include "host/OpenMenus.h"

#include <QAction>
#include <QApplication>
#include <QMenu>

namespace navigator {

namespace {

std::string ReadText(const QAction& action) {
    QString text;
    const QString whole = action.text();
    for (qsizetype at = 0; at < whole.size(); ++at) {
        if (whole[at] == QLatin1Char('&') && ++at == whole.size()) break;
        text += whole[at];
    }
    return text.toStdString();
}

void Collect(const QMenu& menu, std::vector<OpenMenuItem>& items) {
    const QMenu* below = nullptr;
    for (QAction* const action : menu.actions()) {
        if (action->isSeparator() || !action->isVisible()) continue;
        const QRect inside = menu.actionGeometry(action);
        items.push_back({ReadText(*action),
                         {menu.mapToGlobal(inside.topLeft()), inside.size()},
                         action->isEnabled(),
                         action->isChecked(),
                         menu.defaultAction() == action,
                         action->menu() != nullptr});
        if (action->menu() != nullptr && action->menu()->isVisible()) below = action->menu();
    }
    if (below != nullptr) Collect(*below, items);
}

}  // namespace

std::vector<OpenMenuItem> gOpenMenuItems() {
    std::vector<OpenMenuItem> items;
    for (const QWidget* const window : QApplication::topLevelWidgets()) {
        const auto* const menu = qobject_cast<const QMenu*>(window);
        if (menu == nullptr || !menu->isVisible()) continue;
        // A sub-menu comes with the one that it belongs to.
        const QAction* const opener = menu->menuAction();
        bool isBelow = false;
        for (const QObject* const owner : opener->associatedObjects()) {
            const auto* const above = qobject_cast<const QMenu*>(owner);
            isBelow = isBelow || (above != nullptr && above->isVisible());
        }
        if (!isBelow) Collect(*menu, items);
    }
    return items;
}

}  // namespace navigator
