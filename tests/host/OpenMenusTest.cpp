/// What is told of menus while they are open.

#include "host/OpenMenus.h"

#include <gmock/gmock.h>

#include <QMenu>

namespace navigator_test {
namespace {

using namespace navigator;
using testing::ElementsAre;

std::vector<std::string> OpenTexts() {
    std::vector<std::string> texts;
    for (const OpenMenuItem& item : gOpenMenuItems())
        texts.push_back(item.text + (item.isChecked ? " *" : "") + (item.isEnabled ? "" : " -") +
                        (item.isDefault ? " !" : "") + (item.hasSubMenu ? " >" : ""));
    return texts;
}

TEST(OpenMenusTest, ItemsAreToldOnlyWhileTheyAreSeen) {
    QMenu menu;
    menu.setDefaultAction(menu.addAction(QStringLiteral("&Open && close")));
    menu.addSeparator();
    QMenu* const below = menu.addMenu(QStringLiteral("Co&py"));
    QAction* const checked = below->addAction(QStringLiteral("&Names"));
    checked->setCheckable(true);
    checked->setChecked(true);
    menu.addAction(QStringLiteral("Greyed"))->setEnabled(false);
    EXPECT_THAT(OpenTexts(), ElementsAre());
    menu.popup({10, 20});
    EXPECT_THAT(OpenTexts(), ElementsAre("Open & close !", "Copy >", "Greyed -"));
    EXPECT_TRUE(menu.geometry().contains(gOpenMenuItems().front().place));
    menu.setActiveAction(below->menuAction());
    below->popup({200, 40});
    EXPECT_THAT(OpenTexts(), ElementsAre("Open & close !", "Copy >", "Greyed -", "Names *"));
    menu.close();
    below->close();
    EXPECT_THAT(OpenTexts(), ElementsAre());
}

}  // namespace
}  // namespace navigator_test
