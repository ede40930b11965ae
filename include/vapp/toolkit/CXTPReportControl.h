/// @file
/// The report: a header of columns over rows that exist only as numbers. In virtual mode one record answers
/// for every row at the moment of painting; the control itself holds the row count, selection, focus, scroll
/// position and the columns, and so the whole of its behaviour works without pixels.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

#include "vapp/toolkit/CWnd.h"
#include "vapp/toolkit/CXTPReportColumns.h"
#include "vapp/toolkit/CXTPReportHeader.h"
#include "vapp/toolkit/CXTPReportPaintManager.h"
#include "vapp/toolkit/CXTPReportRecord.h"
#include "vapp/toolkit/CXTPReportSelectedRows.h"
#include "vapp/toolkit/InputTypes.h"
#include "vapp/toolkit/RowCursor.h"
#include "vapp/toolkit/TypeAhead.h"
#include "vapp/toolkit/XTPPaintManager.h"

/// All rows by number.
class CXTPReportRows {
public:
    explicit CXTPReportRows(int count) : m_count(count) {}
    [[nodiscard]] int GetCount() const { return m_count; }
    /// The row, or nothing out of range.
    [[nodiscard]] std::optional<CXTPReportRow> GetAt(int index) const {
        return index >= 0 && index < m_count ? std::optional<CXTPReportRow>(CXTPReportRow(index))
                                             : std::nullopt;
    }

private:
    int m_count;
};

/// The report control.
class VAPP_EXPORT CXTPReportControl : public CWnd {
public:
    CXTPReportControl();
    ~CXTPReportControl() override;

    // Columns and header
    [[nodiscard]] CXTPReportColumns& GetColumns() { return m_columns; }
    [[nodiscard]] const CXTPReportColumns& GetColumns() const { return m_columns; }
    /// Adds a column behind the others; the report owns it.
    CXTPReportColumn* AddColumn(std::unique_ptr<CXTPReportColumn> column);
    [[nodiscard]] CXTPReportHeader& GetReportHeader() const { return *m_header; }
    /// Replaces the header; null is ignored.
    void SetReportHeader(std::unique_ptr<CXTPReportHeader> header);
    /// The first visible columns that stay in place when the rest scrolls sideways.
    [[nodiscard]] int GetFreezeColumnsCount() const { return m_freezeCount; }
    void SetFreezeColumnsCount(int count);
    /// Sideways scrolling by whole columns (else by pixels).
    void SetFullColumnScrolling(bool full) { m_fullColumnScrolling = full; }
    [[nodiscard]] bool IsFullColumnScrolling() const { return m_fullColumnScrolling; }
    /// Lines between rows (`vertical` false) or columns (true): 0 none, 1 thin.
    void SetGridStyle(bool vertical, int style);
    [[nodiscard]] int GetGridStyle(bool vertical) const { return m_gridStyle[vertical ? 1 : 0]; }

    // Rows
    /// One record for all rows. The report owns it and drops the former one. Selection and focus beyond the
    /// count are dropped, and the parent told if there were any; `Populate` shows the rows.
    void SetVirtualMode(std::unique_ptr<CXTPReportRecord> record, int rowCount);
    [[nodiscard]] CXTPReportRecord* GetVirtualRecord() const { return m_record.get(); }
    /// Tells the peer that the rows are others. Overridden by reports that fetch their rows.
    virtual void Populate();
    [[nodiscard]] CXTPReportRows GetRows() const { return CXTPReportRows(m_rowCount); }
    [[nodiscard]] CXTPReportSelectedRows& GetSelectedRows() { return m_selectedRows; }
    [[nodiscard]] const CXTPReportSelectedRows& GetSelectedRows() const { return m_selectedRows; }
    [[nodiscard]] std::optional<CXTPReportRow> GetFocusedRow() const;
    /// Focus without selection; scrolls the row into view if asked. Tells the parent
    /// (cnReportSelectionChanged). The row becomes the anchor of ranges; one out of range is ignored.
    void SetFocusedRow(const CXTPReportRow& row, bool ensureVisible = true);
    /// First row shown.
    [[nodiscard]] int GetTopRowIndex() const { return m_top; }
    /// Scrolls; kept within 0 and the last full page.
    void SetTopRow(int row);
    void EnsureVisible(int row);

    // Geometry of rows, for hit tests and paging; peers set what depends on fonts
    [[nodiscard]] int GetRowHeight() const { return m_rowHeight; }
    [[nodiscard]] int GetHeaderHeight() const { return m_headerHeight; }
    void SetRowMetrics(int rowHeight, int headerHeight);
    [[nodiscard]] int GetScrollX() const { return m_scrollX; }
    /// Sideways scrolling, kept within 0 and what the shown columns need beyond the client width.
    void SetScrollX(int pixels);
    /// Whole rows that fit, at least 1.
    [[nodiscard]] int GetCountPerPage() const;
    /// Row under a client point, or nothing (the header, below the last row, outside); `area` then receives
    /// its rectangle, as wide as the client area.
    [[nodiscard]] std::optional<CXTPReportRow> HitTestRow(CPoint point, CRect* area = nullptr) const;

    /// Between the two no notification goes out and the peer is told nothing; the last end tells once.
    void BeginUpdate();
    void EndUpdate();

    [[nodiscard]] CXTPReportPaintManager& GetPaintManager() { return m_paintManager; }
    [[nodiscard]] const CXTPReportPaintManager& GetPaintManager() const { return m_paintManager; }
    /// Strip of row icons: resource number, width of an icon in pixels, transparent colour.
    void SetImageList(UINT resource, int width, COLORREF maskColor);
    [[nodiscard]] UINT GetImageListResource() const { return m_imageResource; }
    [[nodiscard]] int GetImageWidth() const { return m_imageWidth; }
    [[nodiscard]] COLORREF GetImageMaskColor() const { return m_imageMask; }
    /// Clipboard format and permissions of dragging rows out. With an empty format, as from the start, no row
    /// can be dragged, and the pointer's way over rows selects them.
    void EnableDragDrop(const CString& format, UINT flags);
    [[nodiscard]] const CString& GetDragFormat() const { return m_dragFormat; }
    [[nodiscard]] UINT GetDragFlags() const { return m_dragFlags; }

    /// Asks the record how an item looks now; false if the row or the record isn't there. What the record
    /// asks of a host may come back here and populate anew: the record that is being asked lives on until the
    /// outermost question has its answer.
    bool MeasureItem(int row, CXTPReportColumn& column, CXTPReportRecordItemMetrics& metrics);

    // What the user does, as peers report it
    /// A press leaves the rows where they are if any part of its row shows: what follows it, a second press
    /// or a drag, means the same row. Keys and typed letters bring the whole row into view.
    void ClickedByUser(int row, TModifiers modifiers);
    void ContextClickedByUser(int row);
    /// A double click at a client point: `OnDoubleClick` follows. The row has got its click before.
    void DoubleClickedByUser(CPoint point);
    /// The user drags what is at a client point, where a button went down: `OnBeginDrag` follows.
    bool DragBegunByUser(CPoint point, UINT flags);
    void KeyPressedByUser(TKey key, TModifiers modifiers);
    /// Type-ahead, as for lists, over `GetTypeAheadText`.
    void TypedByUser(const CStringU& text, std::int64_t milliseconds);
    /// True while a blank belongs to what the user is typing, and is no key.
    [[nodiscard]] bool IsTyping(std::int64_t milliseconds) const {
        return m_typeAhead.IsPending(milliseconds);
    }
    /// The peer scrolled by wheel or scroll bar.
    void ScrolledByUser(int topRow, int scrollX);

    /// The user begins to drag at a client point; bit 0 of the flags stands for the left mouse button, bit 1
    /// for the right one. True if it ended with a drop. The base drags nothing.
    virtual bool OnBeginDrag(CPoint point, UINT flags);

    /// Text that type-ahead compares for a row; must be cheap. The base has none.
    [[nodiscard]] virtual CStringU GetTypeAheadText(int row) const;
    /// True if that text begins with the other one, without regard to case. Asked of row after row: a list
    /// that has many had better answer without making a text.
    [[nodiscard]] virtual bool IsTypeAheadMatch(int row, const CStringU& text) const;
    /// For headers that want their report to know: columns were added, moved, hidden, shown or resized. The
    /// base header does not call it, and the base does nothing.
    virtual void OnColumnsChanged(int change, CXTPReportColumn* column);

    /// For the report's own parts: something changed.
    void PartChanged(UINT peerChanges);
    /// For the selection face: notifies after a change of selection or focus.
    void SelectionChanged(UINT peerChanges);
    /// For the header: the user changed the sort order; notifies.
    void SortChangedByUser();
    [[nodiscard]] RowCursor& GetCursor() { return m_cursor; }
    [[nodiscard]] const RowCursor& GetCursor() const { return m_cursor; }

protected:
    /// A double click at a client point; the base does nothing.
    virtual void OnDoubleClick(CPoint point);
    std::unique_ptr<Peer> CreatePeer(PeerFactory& factory) override;
    void OnSize(UINT type, int cx, int cy) override;

private:
    [[nodiscard]] int LastTopRow() const;
    [[nodiscard]] int LastScrollX() const;
    void ClampScroll();
    [[nodiscard]] bool IsInSight(int row) const;
    void CursorChanged(int focusBefore, bool byPress);
    void TellPending();

    CXTPReportColumns m_columns;
    std::unique_ptr<CXTPReportHeader> m_header;
    std::unique_ptr<CXTPReportRecord> m_record;
    std::vector<std::unique_ptr<CXTPReportRecord>> m_retiredRecords;
    CXTPReportSelectedRows m_selectedRows;
    CXTPReportPaintManager m_paintManager;
    RowCursor m_cursor;
    CString m_dragFormat;
    TypeAhead m_typeAhead;
    COLORREF m_imageMask = cnNoColor;
    UINT m_imageResource = 0;
    UINT m_dragFlags = 0;
    UINT m_pendingChanges = 0;
    int m_imageWidth = 0;
    int m_rowCount = 0;
    int m_top = 0;
    int m_scrollX = 0;
    int m_rowHeight = 20;
    int m_headerHeight = 24;
    int m_freezeCount = 0;
    int m_gridStyle[2] = {1, 1};
    int m_updateDepth = 0;
    int m_measureDepth = 0;
    bool m_fullColumnScrolling = true;
    bool m_selectionPending = false;
    bool m_sortPending = false;
};
