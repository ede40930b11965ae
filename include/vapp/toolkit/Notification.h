/// @file
/// What a control tells its parent window: who, which kind, and for lists which row.
#pragma once

#include "vapp/toolkit/BasicTypes.h"
#include "vapp/toolkit/CPoint.h"

class CWnd;

/// Kinds of notification. The values of the list's markup question is the system's own; the others only
/// need to be distinct.
enum : UINT {
    cnListItemChanged = 0xFF9B,         ///< a row of a list changed its state (NotifyListItem)
    cnListEmptyMarkup = 0xFF45,         ///< an empty list asks for its text (NotifyEmptyMarkup)
    cnComboSelectionChanged = 1,        ///< the user picked an item of a combo box
    cnComboClosedUp = 8,                ///< the drop-down list of a combo box closed
    cnEditChanged = 0x0300,             ///< the text of an edit control changed
    cnButtonClicked = 0,                ///< a button was pressed
    cnTabSelectionChanged = 0xFDD9,     ///< the user picked another tab
    cnTabContextClicked = 0xFFFB,       ///< the user asked for the menu of a tab (NotifyTabClick)
    cnReportSelectionChanged = 0x0301,  ///< the selection or the focused row of a report changed
    cnReportSortOrderChanged = 0x0302,  ///< the user sorted by a header
};

/// Set in NotifyListItem::changed when selection or focus of the row changed.
inline constexpr UINT cnListChangedState = 8;

/// Head of every notification.
struct Notification {
    CWnd* from = nullptr;  ///< the control
    UINT id = 0;           ///< its identifier
    UINT code = 0;         ///< one of the kinds above
};

/// A row of a list changed.
struct NotifyListItem : Notification {
    int item = -1;      ///< row, or -1 for all rows
    UINT changed = 0;   ///< what changed, cnListChangedState among it
    UINT oldState = 0;  ///< state bits before
    UINT newState = 0;  ///< state bits after
};

/// The user asked for the menu of a tab.
struct NotifyTabClick : Notification {
    int tab = -1;
    CPoint screen;  ///< where, on the screen
};

/// An empty list asks what to show; the parent fills the text and answers 1.
struct NotifyEmptyMarkup : Notification {
    char16_t markup[2084] = {};  ///< NUL-terminated
};
