/// @file
/// What clicks and keys do to selection and focus of a list of rows: one set of rules for all lists. No text,
/// no scrolling, no notification: the control around it does those.
#pragma once

#include "vapp/Export.h"
#include "vapp/toolkit/InputTypes.h"
#include "vapp/toolkit/RowSelection.h"

/// Selection, focused row and anchor of a multiple selection list.
///
/// A plain click or arrow selects one row and makes it the anchor; with shift the range from the anchor,
/// which stays; with control a click toggles, an arrow moves the focus alone and the space bar toggles; with
/// both the range is added. Without an anchor a range begins at the focused row, or else at the row itself.
class VAPP_EXPORT RowCursor {
public:
    [[nodiscard]] const RowSelection& GetSelection() const { return m_selection; }
    [[nodiscard]] RowSelection& GetSelection() { return m_selection; }
    /// Focused row, -1 for none.
    [[nodiscard]] int GetFocus() const { return m_focus; }
    void SetFocus(int row) { m_focus = row; }
    [[nodiscard]] int GetAnchor() const { return m_anchor; }
    void SetAnchor(int row) { m_anchor = row; }
    /// Forgets everything.
    void Reset();
    /// Drops what lies at or above the count; true if selection or focus changed.
    bool Truncate(int rowCount);
    /// A row was inserted: all that lies there or behind it moves with its row.
    void RowInserted(int row);

    /// A click on a row (left button). A row of -1 is the empty area: without modifiers it clears the
    /// selection. True if selection or focus changed.
    bool Click(int row, TModifiers modifiers);
    /// A right click: a row outside the selection becomes the selection; inside, the selection stays.
    bool ContextClick(int row);
    /// A key, for `rowCount` rows of which `pageRows` fit; true if selection or focus changed. A page key
    /// leaves one row of the page in sight. Without a focused row every arrow goes to the first row. Keys
    /// without meaning here change nothing.
    bool Key(TKey key, TModifiers modifiers, int rowCount, int pageRows);

private:
    bool Select(int row, TModifiers modifiers);
    bool SelectRange(int row, bool keepOthers);

    RowSelection m_selection;
    int m_focus = -1;
    int m_anchor = -1;
};
