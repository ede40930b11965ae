/// @file
/// The rules of clicks and keys. Whether something changed is found by comparing before and after, so that no
/// rule has to count for itself.
#include "vapp/toolkit/RowCursor.h"

#include <algorithm>
#include <utility>

namespace {

// Where a key leads from the focused row; nothing for keys that move nowhere.
bool FindTarget(TKey key, int focus, int rowCount, int pageRows, int& target) {
    const int page = std::min(std::max(pageRows, 2) - 1, rowCount);
    switch (key) {
        case TKey::Up:
            target = focus - 1;
            break;
        case TKey::Down:
            target = focus < rowCount - 1 ? focus + 1 : rowCount - 1;
            break;
        case TKey::PageUp:
            target = focus - page;
            break;
        case TKey::PageDown:
            target = focus < rowCount - page ? focus + page : rowCount - 1;
            break;
        case TKey::Home:
            target = 0;
            return true;
        case TKey::End:
            target = rowCount - 1;
            return true;
        default:
            return false;
    }
    target = focus < 0 ? 0 : std::max(target, 0);
    return true;
}

}  // namespace

void RowCursor::Reset() {
    *this = RowCursor();
}

bool RowCursor::Truncate(int rowCount) {
    bool changed = m_selection.Truncate(rowCount);
    if (m_anchor >= rowCount) m_anchor = -1;
    if (m_focus >= rowCount && m_focus >= 0) {
        m_focus = -1;
        changed = true;
    }
    return changed;
}

void RowCursor::RowInserted(int row) {
    m_selection.InsertRow(row);
    if (m_focus >= row) ++m_focus;
    if (m_anchor >= row) ++m_anchor;
}

bool RowCursor::Click(int row, TModifiers modifiers) {
    if (row >= 0) return Select(row, modifiers);
    if (modifiers.shift || modifiers.control || m_selection.IsEmpty()) return false;
    m_selection.Clear();
    return true;
}

bool RowCursor::ContextClick(int row) {
    if (row < 0) return Click(row, {});
    if (!m_selection.Contains(row)) return Select(row, {});
    const bool moved = m_focus != row;
    m_focus = row;
    return moved;
}

bool RowCursor::Select(int row, TModifiers modifiers) {
    if (modifiers.shift) return SelectRange(row, modifiers.control);
    const bool moved = m_focus != row;
    m_focus = row;
    m_anchor = row;
    if (modifiers.control) {
        if (!m_selection.Remove(row, row)) m_selection.Add(row, row);
        return true;
    }
    const RowSelection before = std::move(m_selection);
    m_selection.Clear();
    m_selection.Add(row, row);
    return moved || m_selection != before;
}

bool RowCursor::SelectRange(int row, bool keepOthers) {
    if (m_anchor < 0) m_anchor = m_focus >= 0 ? m_focus : row;
    const bool moved = m_focus != row;
    m_focus = row;
    const RowSelection before = m_selection;
    if (!keepOthers) m_selection.Clear();
    m_selection.Add(std::min(m_anchor, row), std::max(m_anchor, row));
    return moved || m_selection != before;
}

bool RowCursor::Key(TKey key, TModifiers modifiers, int rowCount, int pageRows) {
    if (rowCount <= 0) return false;
    const int focus = std::min(m_focus, rowCount - 1);
    if (key == TKey::SelectAll) return m_selection.Add(0, rowCount - 1);
    if (key == TKey::Space) return focus >= 0 && Select(focus, modifiers);
    int target = -1;
    if (!FindTarget(key, focus, rowCount, pageRows, target)) return false;
    if (!modifiers.control || modifiers.shift) return Select(target, modifiers);
    const bool moved = m_focus != target;
    m_focus = target;
    return moved;
}
