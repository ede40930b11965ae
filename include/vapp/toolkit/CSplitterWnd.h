/// @file
/// A window divided into rows with bars that the user can move.
#pragma once

#include <memory>
#include <vector>

#include "vapp/toolkit/CRuntimeClass.h"
#include "vapp/toolkit/CView.h"

/// A static splitter of several rows and one or more columns. It owns its panes.
class VAPP_EXPORT CSplitterWnd : public CWnd {
public:
    /// Height of the bar between two rows.
    static constexpr int cnBarHeight = 6;

    CSplitterWnd();
    ~CSplitterWnd() override;

    /// Makes the splitter's window with empty cells. False if it has rows already.
    bool CreateStatic(CWnd* parent, int rows, int columns, UINT id);
    /// Makes the pane of a cell. A width or height of 0 lets the splitter decide.
    bool CreateView(int row, int column, const CRuntimeClass& viewClass, CSize size);
    [[nodiscard]] int GetRowCount() const { return m_rows; }
    [[nodiscard]] int GetColumnCount() const { return m_columns; }
    /// The pane of the cell, or null if there is none.
    [[nodiscard]] CView* GetPane(int row, int column) const;
    /// The height asked for a row; the last one takes what is left.
    [[nodiscard]] int GetRowHeight(int row) const;
    /// As the user drags a bar; lays out anew. Negative heights count as 0.
    void SetRowHeight(int row, int height);
    /// Places the panes by the heights in the present client area.
    void RecalcLayout();

protected:
    void OnSize(UINT type, int cx, int cy) override;
    void OnDestroy() override;
    std::unique_ptr<Peer> CreatePeer(PeerFactory& factory) override;

private:
    int m_rows = 0;
    int m_columns = 0;
    std::vector<std::unique_ptr<CView>> m_panes;
    std::vector<int> m_heights;
};
