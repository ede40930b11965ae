/// @file
/// A window divided into rows with bars that the user can move.
#pragma once

#include <cstddef>
#include <memory>
#include <vector>

#include "vapp/toolkit/CRuntimeClass.h"
#include "vapp/toolkit/CView.h"

/// A static splitter of several rows and one or more columns. It owns its panes, from `CreateView` to the end
/// of the window, or longer (see `MayFreePanes`). Columns share the width evenly.
class VAPP_EXPORT CSplitterWnd : public CWnd {
public:
    /// Height of the bar between two rows.
    static constexpr int cnBarHeight = 6;

    CSplitterWnd();
    ~CSplitterWnd() override;

    /// The most rows, and the most columns.
    static constexpr int cnMaxCells = 16;
    /// Identifier of the first pane; row by row, `cnMaxCells` to a row, the others follow.
    static constexpr UINT cnFirstPaneID = 0xE900;

    /// Makes the splitter's window with empty cells, over the whole client area of the parent. False if it
    /// has rows already, a number is out of 1 to `cnMaxCells`, or the window can't be made.
    bool CreateStatic(CWnd* parent, int rows, int columns, UINT id);
    /// Makes the pane of a cell, places it and calls its `OnInitialUpdate` at once. A positive height becomes
    /// that of the row; otherwise the row keeps its height. The width is the splitter's to decide. False if
    /// there is no such cell, it has a pane already, or the pane can't be made.
    bool CreateView(int row, int column, const CRuntimeClass& viewClass, CSize size);
    [[nodiscard]] int GetRowCount() const { return m_rows; }
    [[nodiscard]] int GetColumnCount() const { return m_columns; }
    /// The pane of the cell, or null if there is none.
    [[nodiscard]] CView* GetPane(int row, int column) const;
    /// The height asked for a row, in pixels; 0 out of range. The last row really takes what is left, and
    /// every row only what the rows above it leave.
    [[nodiscard]] int GetRowHeight(int row) const;
    /// As the user drags a bar; lays out anew. Negative heights count as 0.
    void SetRowHeight(int row, int height);
    /// Places the panes by the heights in the present client area.
    void RecalcLayout();

protected:
    void OnSize(UINT type, int cx, int cy) override;
    void OnDestroy() override;
    std::unique_ptr<Peer> CreatePeer(PeerFactory& factory) override;
    /// Asked when the window has ended, and the panes' windows with it. False keeps the panes' objects until
    /// `FreeEndedPanes` or the end of this object, for a window that is ended from the inside of its panes'
    /// own operations. The base answers true.
    [[nodiscard]] virtual bool MayFreePanes() const;
    /// Frees the panes that were kept.
    void FreeEndedPanes();
    /// The panes that were kept, for someone who keeps them longer than this object lives.
    [[nodiscard]] std::vector<std::unique_ptr<CView>> TakeEndedPanes();

private:
    [[nodiscard]] bool IsCell(int row, int column) const;
    [[nodiscard]] std::size_t CellIndex(int row, int column) const;
    void PlaceRow(int row, int top, int height, int width);
    void ReleasePanes();

    int m_rows = 0;
    int m_columns = 0;
    std::vector<std::unique_ptr<CView>> m_panes;
    std::vector<std::unique_ptr<CView>> m_endedPanes;
    std::vector<int> m_heights;
};
