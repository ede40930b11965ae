/// @file
/// The list's peer: a view with its model, kept in step with the control.
#pragma once

#include "toolkit/qt/QtListView.h"
#include "toolkit/qt/QtRowControl.h"
#include "toolkit/qt/QtRowPeer.h"

namespace vapp_qt {

/// The list, as views of rows see it.
class QtListControl : public QtRowControl {
public:
    explicit QtListControl(CListCtrl& list) : m_list(list) {}

    [[nodiscard]] int RowCount() const override;
    [[nodiscard]] int RowHeight() const override;
    [[nodiscard]] int HeaderHeight() const override;
    [[nodiscard]] int PageRows() const override;
    [[nodiscard]] int TopRow() const override;
    [[nodiscard]] int ScrollX() const override { return 0; }
    [[nodiscard]] int ContentWidth() const override { return 0; }
    [[nodiscard]] int FocusedRow() const override;
    [[nodiscard]] const RowSelection& Selection() const override;
    [[nodiscard]] CSize WindowSize() const override;
    [[nodiscard]] CSize ClientSize() const override;
    void SetHeights(int row, int header) override;
    void Reserve(CSize bars) override;
    void Click(int row, TModifiers modifiers) override;
    void ContextClick(int row) override;
    void ContextMenu(CPoint client) override;
    void DoubleClick(CPoint client) override;
    bool Find() override;
    void Key(TKey key, TModifiers modifiers) override;
    void Type(const CStringU& text, std::int64_t milliseconds) override;
    [[nodiscard]] bool IsTyping(std::int64_t milliseconds) const override;
    void Scroll(int topRow, int scrollX) override;
    void EnsureVisible(int row) override;

private:
    CListCtrl& m_list;
};

class QtListPeer : public QtRowPeer {
public:
    explicit QtListPeer(CListCtrl& list);
    ~QtListPeer() override;

    [[nodiscard]] QtListView* View() const;

protected:
    void TellView(UINT changes) override;

private:
    QtListControl m_control;
    QtListModel m_model;
};

}  // namespace vapp_qt
