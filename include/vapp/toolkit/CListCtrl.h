/// @file
/// A list of rows of text with multiple selection: the control behind the library list.
#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "vapp/toolkit/CFont.h"
#include "vapp/toolkit/CWnd.h"
#include "vapp/toolkit/InputTypes.h"
#include "vapp/toolkit/RowCursor.h"
#include "vapp/toolkit/TypeAhead.h"

/// State bits of a row.
inline constexpr UINT cnListFocused = 1;
inline constexpr UINT cnListSelected = 2;
/// Extended styles: select across all columns; paint without flicker.
inline constexpr UINT cnListFullRowSelect = 0x20;
inline constexpr UINT cnListDoubleBuffer = 0x10000;

/// How a row is to be painted: decided by the control at the moment of painting, drawn by the peer.
struct ListItemLook {
    CStringU text;
    COLORREF textColor = cnNoColor;
    COLORREF backColor = cnNoColor;
    CFont font;
    bool highlighted = false;  ///< fill the whole row with backColor
    bool focusRect = false;    ///< draw the focus rectangle
    int textIndent = 2;        ///< pixels from the left to the text
    UINT icons[2] = {0, 0};    ///< resource numbers drawn over one another, 0 for none
};

/// A one-column report list. Rows are held here (libraries are few); texts are UTF-8 texts of the system.
class VAPP_EXPORT CListCtrl : public CWnd {
public:
    CListCtrl();
    ~CListCtrl() override;

    /// Inserts a row (the index is kept within 0 and the count) and gives its index. Selection and focus stay
    /// with their rows; no notification.
    int InsertItem(int index, const CStringU& text);
    /// Deletes the rows, and selection and focus with them, without notification.
    void DeleteAllItems();
    [[nodiscard]] int GetItemCount() const { return static_cast<int>(m_items.size()); }
    /// The row's text; empty out of range.
    [[nodiscard]] const CStringU& GetItemText(int index) const;

    [[nodiscard]] UINT GetItemState(int index, UINT mask) const;
    /// Sets the masked bits; index -1 means all rows (which can lose the focus, but not all have it). The
    /// parent is told (cnListItemChanged) once per changed row.
    void SetItemState(int index, UINT state, UINT mask);
    /// Selects these rows besides those that are selected already; rows that aren't there count for nothing.
    /// The parent is told as by `SetItemState`, but all of it is one walk over the rows.
    void SelectItems(const RowSelection& rows);
    /// First row behind `start` (-1 to begin) that has all the state bits; -1 if none.
    [[nodiscard]] int GetNextItem(int start, UINT state) const;
    [[nodiscard]] int GetSelectedCount() const;

    void InsertColumn(int index, const CString& caption);
    [[nodiscard]] int GetColumnCount() const { return static_cast<int>(m_columns.size()); }
    [[nodiscard]] CString GetColumnCaption(int index) const;
    [[nodiscard]] int GetColumnWidth(int index) const;
    void SetColumnWidth(int index, int width);

    /// Extended styles under the mask; a mask of 0 means all of them.
    void SetExtendedStyle(UINT mask, UINT style);
    [[nodiscard]] UINT GetExtendedStyle() const { return m_extendedStyle; }
    /// The control's own tool tips (of cut texts).
    void ActivateToolTips(bool active) { m_toolTips = active; }
    [[nodiscard]] bool AreToolTipsActive() const { return m_toolTips; }
    [[nodiscard]] COLORREF GetBkColor() const { return m_backColor; }
    void SetBkColor(COLORREF color);

    /// First row shown.
    [[nodiscard]] int GetTopIndex() const { return m_top; }
    void SetTopIndex(int row);
    void EnsureVisible(int row);
    [[nodiscard]] int GetRowHeight() const { return m_rowHeight; }
    /// The peer knows the height of its font.
    void SetRowHeight(int pixels);
    /// Height of the captions above the rows, for peers that show them; 0 at first.
    [[nodiscard]] int GetHeaderHeight() const { return m_headerHeight; }
    void SetHeaderHeight(int pixels);
    /// Whole rows that fit, at least 1.
    [[nodiscard]] int GetCountPerPage() const;
    /// Row under a client point, or -1.
    [[nodiscard]] int HitTest(CPoint point) const;

    // What the user does, as peers report it
    /// A press leaves the rows where they are if any part of its row shows: what follows it, a second press
    /// or a drag, means the same row. Keys and typed letters bring the whole row into view.
    void ClickedByUser(int row, TModifiers modifiers);
    void ContextClickedByUser(int row);
    void KeyPressedByUser(TKey key, TModifiers modifiers);
    /// Type-ahead: goes to the next row that begins with the typed text, without regard to case.
    /// `milliseconds` is any steady clock; a pause of a second begins a new text.
    void TypedByUser(const CStringU& text, std::int64_t milliseconds);
    /// True while a blank belongs to what the user is typing, and is no key.
    [[nodiscard]] bool IsTyping(std::int64_t milliseconds) const {
        return m_typeAhead.IsPending(milliseconds);
    }

    [[nodiscard]] const RowSelection& GetSelection() const { return m_cursor.GetSelection(); }
    [[nodiscard]] int GetFocusedItem() const { return m_cursor.GetFocus(); }
    /// Text of an empty list, asked of the parent (cnListEmptyMarkup); empty while there are rows.
    [[nodiscard]] CStringU GetEmptyText();
    /// How the row is to be painted now. The base gives text and default colours, and shows selection and
    /// focus.
    [[nodiscard]] virtual ListItemLook DrawItem(int index);
    /// Colour of the empty list's text; cnNoColor for the desktop's own.
    [[nodiscard]] COLORREF GetEmptyTextColor() const { return m_emptyTextColor; }
    void SetEmptyTextColor(COLORREF color);

    // The tip of the list's own, for whoever shows it: a tool as large as the list. The base has none.
    /// Milliseconds between two calls of OnTipTimer.
    static constexpr UINT cnTipTimerMilliseconds = 500;
    /// The tip of what is under the pointer, asked when one is to be shown; nothing for none. It may start
    /// the timer.
    [[nodiscard]] virtual std::optional<CStringU> OnToolTipNotify();
    /// To be called each time the timer's milliseconds have passed, as long as it runs.
    virtual void OnTipTimer();
    [[nodiscard]] virtual bool IsTipTimerRunning() const;

protected:
    void OnSize(UINT type, int cx, int cy) override;
    std::unique_ptr<Peer> CreatePeer(PeerFactory& factory) override;

private:
    struct Column {
        CString caption;
        int width = 0;
    };

    [[nodiscard]] bool IsInSight(int row) const;
    void CursorChanged(const RowCursor& before, bool byPress);
    void NotifyChanges(const RowCursor& before);

    std::vector<CStringU> m_items;
    std::vector<Column> m_columns;
    RowCursor m_cursor;
    TypeAhead m_typeAhead;
    COLORREF m_backColor = 0xFFFFFF;
    COLORREF m_emptyTextColor = cnNoColor;
    UINT m_extendedStyle = 0;
    int m_top = 0;
    int m_rowHeight = 18;
    int m_headerHeight = 0;
    bool m_toolTips = true;
};
