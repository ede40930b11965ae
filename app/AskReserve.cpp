/// @file
/// The three texts, in the order of their numbers.
#include "vapp/app/AskReserve.h"

#include <map>

namespace prefs {

const CStringU csAlways("Always");
const CStringU csNever("Never");
const CStringU csManagedCellsOnly("Managed Cells Only");

TAskReserveOption gConvertStringToEnum(const CStringU& text) {
    static const std::map<CStringU, TAskReserveOption> options = {
        {csAlways, AskAlways}, {csNever, AskNever}, {csManagedCellsOnly, AskManagedCellsOnly}};
    const auto found = options.find(text);
    return found != options.end() ? found->second : AskNever;
}

void gInitAskReserveCombo(TComboBoxCtrl* combo, int selection) {
    if (combo == nullptr) return;
    int index = 0;
    for (const CStringU* text : {&csAlways, &csNever, &csManagedCellsOnly})
        combo->InsertString(index++, CStringU(text->ToAnsi()));
    combo->SetCurSel(selection);
}

}  // namespace prefs
