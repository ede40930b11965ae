/// @file
/// Rows of panes under one another. The heights that were asked for are kept as they are, however small the
/// window becomes: when it grows again, the panes have their old heights.
#include "vapp/toolkit/CSplitterWnd.h"

#include <algorithm>
#include <cstdint>
#include <utility>

#include "vapp/toolkit/CDocument.h"

CSplitterWnd::CSplitterWnd() = default;

CSplitterWnd::~CSplitterWnd() {
    DestroyWindow();
}

bool CSplitterWnd::CreateStatic(CWnd* parent, int rows, int columns, UINT id) {
    if (m_rows != 0 || IsWindow()) return false;
    if (rows < 1 || rows > cnMaxCells || columns < 1 || columns > cnMaxCells) return false;
    m_rows = rows;
    m_columns = columns;
    m_heights.assign(static_cast<std::size_t>(rows), 0);
    m_panes.resize(static_cast<std::size_t>(rows) * static_cast<std::size_t>(columns));
    if (Create(parent, id, parent != nullptr ? parent->GetClientRect() : CRect())) return true;
    ReleasePanes();
    return false;
}

bool CSplitterWnd::CreateView(int row, int column, const CRuntimeClass& viewClass, CSize size) {
    if (!IsCell(row, column) || GetPane(row, column) != nullptr || viewClass.create == nullptr) return false;
    std::unique_ptr<CView> made = viewClass.create();
    if (!made) return false;
    CView* pane = made.get();
    m_panes[CellIndex(row, column)] = std::move(made);
    if (!pane->Create(this, cnFirstPaneID + static_cast<UINT>(row * cnMaxCells + column))) {
        if (GetPane(row, column) == pane) m_panes[CellIndex(row, column)].reset();
        return false;
    }
    if (size.cy > 0) m_heights[static_cast<std::size_t>(row)] = size.cy;
    TellPeer(cnChangeItems);
    RecalcLayout();
    // A pane's answer to its first size may be the end of this window, and the pane's with it.
    if (GetPane(row, column) != pane) return false;
    pane->OnInitialUpdate();
    return true;
}

CView* CSplitterWnd::GetPane(int row, int column) const {
    return IsCell(row, column) ? m_panes[CellIndex(row, column)].get() : nullptr;
}

int CSplitterWnd::GetRowHeight(int row) const {
    return row >= 0 && row < m_rows ? m_heights[static_cast<std::size_t>(row)] : 0;
}

void CSplitterWnd::SetRowHeight(int row, int height) {
    if (row < 0 || row >= m_rows) return;
    int& stored = m_heights[static_cast<std::size_t>(row)];
    if (std::exchange(stored, std::max(height, 0)) == std::max(height, 0)) return;
    TellPeer(cnChangeItems);
    RecalcLayout();
}

void CSplitterWnd::RecalcLayout() {
    const CRect client = GetClientRect();
    int top = 0;
    // Moving a pane may come back and change heights, which lays out anew, or end this window: then the rows
    // are none.
    for (int row = 0; row < m_rows; ++row) {
        const int left = std::max(client.bottom - top, 0);
        const bool last = row + 1 == m_rows;
        const int height = last ? left : std::min(m_heights[static_cast<std::size_t>(row)], left);
        PlaceRow(row, top, height, client.right);
        top = std::min(top + height + cnBarHeight, std::max(client.bottom, 0));
    }
}

void CSplitterWnd::PlaceRow(int row, int top, int height, int width) {
    for (int column = 0; column < m_columns; ++column) {
        CView* pane = GetPane(row, column);
        if (pane == nullptr) continue;
        const std::int64_t whole = std::max(width, 0);
        const auto left = static_cast<int>(whole * column / m_columns);
        const auto right = static_cast<int>(whole * (column + 1) / m_columns);
        pane->MoveWindow({left, top, right, top + height});
    }
}

bool CSplitterWnd::IsCell(int row, int column) const {
    return row >= 0 && row < m_rows && column >= 0 && column < m_columns;
}

std::size_t CSplitterWnd::CellIndex(int row, int column) const {
    return static_cast<std::size_t>(row) * static_cast<std::size_t>(m_columns) +
           static_cast<std::size_t>(column);
}

void CSplitterWnd::OnSize(UINT type, int cx, int cy) {
    CWnd::OnSize(type, cx, cy);
    if (type != cnSizeMinimized) RecalcLayout();
}

void CSplitterWnd::OnDestroy() {
    for (const std::unique_ptr<CView>& pane : m_panes) {
        if (pane) pane->DestroyWindow();
    }
    ReleasePanes();
    CWnd::OnDestroy();
}

void CSplitterWnd::ReleasePanes() {
    // The panes' destructors find a splitter without rows rather than one with half of its panes.
    std::vector<std::unique_ptr<CView>> panes = std::exchange(m_panes, {});
    m_heights.clear();
    m_rows = 0;
    m_columns = 0;
    if (MayFreePanes()) return;
    for (std::unique_ptr<CView>& pane : panes) {
        if (!pane) continue;
        // It shows nothing any more, so the document need not tell it of changes.
        if (CDocument* document = pane->GetDocument()) document->RemoveView(pane.get());
        m_endedPanes.push_back(std::move(pane));
    }
}

bool CSplitterWnd::MayFreePanes() const {
    return true;
}

void CSplitterWnd::FreeEndedPanes() {
    const std::vector<std::unique_ptr<CView>> panes = std::exchange(m_endedPanes, {});
}

std::vector<std::unique_ptr<CView>> CSplitterWnd::TakeEndedPanes() {
    return std::exchange(m_endedPanes, {});
}

std::unique_ptr<Peer> CSplitterWnd::CreatePeer(PeerFactory& factory) {
    return factory.CreateSplitter(*this);
}
