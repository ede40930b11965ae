/// @file
/// What clicks and keys do to selection and focus of a list of rows: one set of rules for all lists. No text,
/// no scrolling, no notification: the control around it does those.
#pragma once

#include "vapp/Export.h"
#include "vapp/toolkit/InputTypes.h"
#include "vapp/toolkit/RowSelection.h"

/// Selection, focused row and anchor of a multiple selection list.
///
/// A plain click or arrow selects one row; with shift the range from the anchor; with control a click
/// toggles, an arrow moves the focus alone and the space bar toggles.
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

    /// A click on a row (left button). A row of -1 is the empty area: without modifiers it clears the
    /// selection. True if selection or focus changed.
    bool Click(int row, TModifiers modifiers);
    /// A right click: a row outside the selection becomes the selection; inside, the selection stays.
    bool ContextClick(int row);
    /// A key, for `rowCount` rows of which `pageRows` fit; true if selection or focus changed. Keys without
    /// meaning here change nothing.
    bool Key(TKey key, TModifiers modifiers, int rowCount, int pageRows);

private:
    bool MoveTo(int row, TModifiers modifiers);

    RowSelection m_selection;
    int m_focus = -1;
    int m_anchor = -1;
};
