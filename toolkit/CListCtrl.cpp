/// @file
/// The list of libraries: rows, their states, and what is told of a change: first the peer, then the parent,
/// row by row.
#include "vapp/toolkit/CListCtrl.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace {

UINT StateOf(const RowCursor& cursor, int row) {
    return (cursor.GetFocus() == row ? cnListFocused : 0) |
           (cursor.GetSelection().Contains(row) ? cnListSelected : 0);
}

}  // namespace

CListCtrl::CListCtrl() = default;

CListCtrl::~CListCtrl() {
    DestroyWindow();
}

int CListCtrl::InsertItem(int index, const CStringU& text) {
    const int place = std::clamp(index, 0, GetItemCount());
    m_items.insert(m_items.begin() + place, text);
    m_cursor.RowInserted(place);
    TellPeer(cnChangeItems | cnChangeSelection | cnChangeFocusItem);
    return place;
}

void CListCtrl::DeleteAllItems() {
    m_items.clear();
    m_cursor.Reset();
    m_top = 0;
    TellPeer(cnChangeItems | cnChangeSelection | cnChangeFocusItem | cnChangeScroll);
}

const CStringU& CListCtrl::GetItemText(int index) const {
    static const CStringU none;
    return index >= 0 && index < GetItemCount() ? m_items[static_cast<std::size_t>(index)] : none;
}

UINT CListCtrl::GetItemState(int index, UINT mask) const {
    return index >= 0 && index < GetItemCount() ? StateOf(m_cursor, index) & mask : 0;
}

void CListCtrl::SetItemState(int index, UINT state, UINT mask) {
    const int count = GetItemCount();
    if (index < -1 || index >= count || count == 0) return;
    const RowCursor before = m_cursor;
    const int first = std::max(index, 0);
    const int last = index < 0 ? count - 1 : index;
    if ((mask & cnListSelected) != 0) {
        RowSelection& selection = m_cursor.GetSelection();
        if ((state & cnListSelected) != 0) {
            selection.Add(first, last);
        } else {
            selection.Remove(first, last);
        }
    }
    if ((mask & cnListFocused) != 0) {
        if ((state & cnListFocused) == 0) {
            if (index < 0 || m_cursor.GetFocus() == index) m_cursor.SetFocus(-1);
        } else if (index >= 0) {
            m_cursor.SetFocus(index);
            m_cursor.SetAnchor(index);
        }
    }
    NotifyChanges(before);
}

void CListCtrl::SelectItems(const RowSelection& rows) {
    const RowCursor before = m_cursor;
    for (const RowSelection::Range& range : rows.GetRanges()) {
        m_cursor.GetSelection().Add(range.first, std::min(range.last, GetItemCount() - 1));
    }
    NotifyChanges(before);
}

int CListCtrl::GetNextItem(int start, UINT state) const {
    if (start >= GetItemCount()) return -1;
    for (int row = std::max(start, -1) + 1; row < GetItemCount(); ++row) {
        if ((StateOf(m_cursor, row) & state) == state) return row;
    }
    return -1;
}

int CListCtrl::GetSelectedCount() const {
    return static_cast<int>(GetSelection().GetCount());
}

void CListCtrl::InsertColumn(int index, const CString& caption) {
    const int place = std::clamp(index, 0, GetColumnCount());
    m_columns.insert(m_columns.begin() + place, {caption, 0});
    TellPeer(cnChangeColumns);
}

CString CListCtrl::GetColumnCaption(int index) const {
    return index >= 0 && index < GetColumnCount() ? m_columns[static_cast<std::size_t>(index)].caption
                                                  : CString();
}

int CListCtrl::GetColumnWidth(int index) const {
    return index >= 0 && index < GetColumnCount() ? m_columns[static_cast<std::size_t>(index)].width : 0;
}

void CListCtrl::SetColumnWidth(int index, int width) {
    if (index < 0 || index >= GetColumnCount() || GetColumnWidth(index) == width) return;
    m_columns[static_cast<std::size_t>(index)].width = width;
    TellPeer(cnChangeColumns);
}

void CListCtrl::SetExtendedStyle(UINT mask, UINT style) {
    const UINT changed = mask == 0 ? style : (m_extendedStyle & ~mask) | (style & mask);
    if (m_extendedStyle == changed) return;
    m_extendedStyle = changed;
    TellPeer(cnChangeLook);
}

void CListCtrl::SetBkColor(COLORREF color) {
    if (m_backColor == color) return;
    m_backColor = color;
    TellPeer(cnChangeLook);
}

void CListCtrl::SetTopIndex(int row) {
    const int top = std::clamp(row, 0, std::max(GetItemCount() - GetCountPerPage(), 0));
    if (m_top == top) return;
    m_top = top;
    TellPeer(cnChangeScroll);
}

void CListCtrl::EnsureVisible(int row) {
    if (row < 0 || row >= GetItemCount()) return;
    if (row < m_top) {
        SetTopIndex(row);
    } else if (row - m_top >= GetCountPerPage()) {
        SetTopIndex(row - GetCountPerPage() + 1);
    }
}

void CListCtrl::SetRowHeight(int pixels) {
    m_rowHeight = std::max(pixels, 1);
    SetTopIndex(m_top);
}

void CListCtrl::SetHeaderHeight(int pixels) {
    m_headerHeight = std::max(pixels, 0);
    SetTopIndex(m_top);
}

int CListCtrl::GetCountPerPage() const {
    return std::max((GetClientRect().bottom - m_headerHeight) / m_rowHeight, 1);
}

int CListCtrl::HitTest(CPoint point) const {
    if (!GetClientRect().PtInRect(point) || point.y < m_headerHeight) return -1;
    const int below = (point.y - m_headerHeight) / m_rowHeight;
    return below < GetItemCount() - m_top ? m_top + below : -1;
}

void CListCtrl::ClickedByUser(int row, TModifiers modifiers) {
    const RowCursor before = m_cursor;
    if (m_cursor.Click(row < GetItemCount() ? row : -1, modifiers)) CursorChanged(before, true);
}

void CListCtrl::ContextClickedByUser(int row) {
    const RowCursor before = m_cursor;
    if (m_cursor.ContextClick(row < GetItemCount() ? row : -1)) CursorChanged(before, true);
}

void CListCtrl::KeyPressedByUser(TKey key, TModifiers modifiers) {
    const RowCursor before = m_cursor;
    if (m_cursor.Key(key, modifiers, GetItemCount(), GetCountPerPage())) CursorChanged(before, false);
}

void CListCtrl::TypedByUser(const CStringU& text, std::int64_t milliseconds) {
    const int row = m_typeAhead.Find(text, milliseconds, GetFocusedItem(), GetItemCount(),
                                     [this](int item) { return GetItemText(item); });
    const RowCursor before = m_cursor;
    if (row >= 0 && m_cursor.Click(row, {})) CursorChanged(before, false);
}

// Also a row of which the lower edge of the window leaves a part.
bool CListCtrl::IsInSight(int row) const {
    const std::int64_t top = (static_cast<std::int64_t>(row) - m_top) * m_rowHeight;
    return top >= 0 && top < GetClientRect().bottom - m_headerHeight;
}

void CListCtrl::CursorChanged(const RowCursor& before, bool byPress) {
    const int focus = m_cursor.GetFocus();
    if (focus != before.GetFocus() && !(byPress && IsInSight(focus))) EnsureVisible(focus);
    NotifyChanges(before);
}

void CListCtrl::NotifyChanges(const RowCursor& before) {
    // All changes are noted before the first is told: the parent may change the states again meanwhile.
    std::vector<NotifyListItem> changes;
    for (int row = 0; row < GetItemCount(); ++row) {
        NotifyListItem change;
        change.code = cnListItemChanged;
        change.item = row;
        change.changed = cnListChangedState;
        change.oldState = StateOf(before, row);
        change.newState = StateOf(m_cursor, row);
        if (change.oldState != change.newState) changes.push_back(change);
    }
    if (changes.empty()) return;
    TellPeer(cnChangeSelection | cnChangeFocusItem);
    for (NotifyListItem& change : changes) {
        if (!IsWindow() || change.item >= GetItemCount()) return;
        NotifyParent(change);
    }
}

CStringU CListCtrl::GetEmptyText() {
    if (!m_items.empty()) return {};
    NotifyEmptyMarkup question;
    question.code = cnListEmptyMarkup;
    if (NotifyParent(question) == 0) return {};
    return {question.markup, static_cast<int>(std::size(question.markup))};
}

void CListCtrl::SetEmptyTextColor(COLORREF color) {
    if (std::exchange(m_emptyTextColor, color) != color) TellPeer(cnChangeLook);
}

std::optional<CStringU> CListCtrl::OnToolTipNotify() {
    return std::nullopt;
}

void CListCtrl::OnTipTimer() {}

bool CListCtrl::IsTipTimerRunning() const {
    return false;
}

ListItemLook CListCtrl::DrawItem(int index) {
    ListItemLook look;
    look.text = GetItemText(index);
    look.highlighted = GetItemState(index, cnListSelected) != 0;
    look.focusRect = GetItemState(index, cnListFocused) != 0 && GetFocus() == this;
    return look;
}

void CListCtrl::OnSize(UINT type, int cx, int cy) {
    CWnd::OnSize(type, cx, cy);
    SetTopIndex(m_top);
}

std::unique_ptr<Peer> CListCtrl::CreatePeer(PeerFactory& factory) {
    return factory.CreateList(*this);
}
