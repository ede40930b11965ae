/// @file
/// The preference whether a user is asked to reserve a cell view before it is edited: its three options as
/// numbers, as texts in the settings, and as items of a combo box.
#pragma once

#include "vapp/Export.h"
#include "vapp/text/CStringU.h"
#include "vapp/toolkit/CComboBox.h"

namespace prefs {

/// When the question is asked; the number is the item's place in the combo box.
enum TAskReserveOption {
    AskAlways = 0,
    AskNever = 1,
    AskManagedCellsOnly = 2,
};

/// How it was answered.
enum TAskReserveStatus {
    Declined = 0,
    Agreed = 1,
    NotAsked = 2,
};

/// The options as they are stored and shown. Built when the library is loaded; code of the library itself
/// must not touch them before main.
extern VAPP_EXPORT const CStringU csAlways;
extern VAPP_EXPORT const CStringU csNever;
extern VAPP_EXPORT const CStringU csManagedCellsOnly;

/// The option of a stored text, byte for byte; AskNever for any other text.
[[nodiscard]] VAPP_EXPORT TAskReserveOption gConvertStringToEnum(const CStringU& text);

/// Puts the three options at the front of a combo box and selects one of its items; none if there is no such
/// item. They are not translated: what the user picks is what is stored.
VAPP_EXPORT void gInitAskReserveCombo(TComboBoxCtrl* combo, int selection);

}  // namespace prefs
