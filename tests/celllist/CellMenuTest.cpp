#include "celllist/CellMenu.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

#include "vapp/text/Translate.h"

namespace {

using namespace vapp_library_browser;

void Outline(const CMenu& menu, const std::string& indent, std::string& text) {
    for (int position = 0; position < menu.GetItemCount(); ++position) {
        const CMenu::TItem& item = *menu.GetItem(position);
        text += indent + item.text.Payload();
        if (item.subMenu) {
            text += "\n";
            Outline(*item.subMenu, indent + "  ", text);
        } else {
            text += " " + std::to_string(item.id) + "\n";
        }
    }
}

TEST(CellMenuTest, HasTheItemsOfTheList) {
    std::string outline;
    Outline(*MakeCellMenu(), "", outline);
    EXPECT_EQ(outline,
              "Select Hierarchy 40659\n"
              "Select All 40660\n"
              "Settings\n"
              "  Filters\n"
              "    Show Hidden Cells 40621\n"
              "    Show Vias 40630\n"
              "    Sub-string Filter\n"
              "      Case-sensitive 40626\n"
              "      Filter All Columns 40627\n"
              "      Filter Cell-name 40628\n"
              "      Filter View-name 40629\n"
              "    View-name Filter\n"
              "      All View-names 40665\n"
              "    Exclude these views... 32772\n"
              "  &Columns\n"
              "    Setup 1 40622\n"
              "    Setup 2 40623\n"
              "    Setup 3 40624\n"
              "    Column Chooser... 40625\n"
              "  Color\n"
              "    Filtered List 40661\n"
              "    Reserved Cells 40662\n"
              "    Hidden Cells 40664\n"
              "    Unresolved Cells 40686\n");
}

TEST(CellMenuTest, ItsTextsAreTranslated) {
    vlang::gSetTranslation("__$$Translatable$$_Show Vias", "Durchkontakte");
    EXPECT_EQ(MakeCellMenu()->FindItem(ShowVias)->text, "Durchkontakte");
    vlang::gClearTranslations();
    EXPECT_EQ(MakeCellMenu()->FindItem(ShowVias)->text, "Show Vias");
}

}  // namespace
