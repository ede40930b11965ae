/// @file
/// The report's peer: a view with its model, kept in step with the control.
#pragma once

#include "toolkit/qt/QtReportModel.h"
#include "toolkit/qt/QtRowControl.h"
#include "toolkit/qt/QtRowPeer.h"

namespace vapp_qt {

class QtReportView;

/// The report, as views of rows see it.
class QtReportControl : public QtRowControl {
public:
    explicit QtReportControl(CXTPReportControl& report) : m_report(report) {}

    [[nodiscard]] int RowCount() const override;
    [[nodiscard]] int RowHeight() const override;
    [[nodiscard]] int HeaderHeight() const override;
    [[nodiscard]] int PageRows() const override;
    [[nodiscard]] int TopRow() const override;
    [[nodiscard]] int ScrollX() const override;
    [[nodiscard]] int ContentWidth() const override;
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
    [[nodiscard]] bool CanDrag() const override;
    void BeginDrag(CPoint client, UINT flags) override;
    bool Find() override;
    void Key(TKey key, TModifiers modifiers) override;
    void Type(const CStringU& text, std::int64_t milliseconds) override;
    [[nodiscard]] bool IsTyping(std::int64_t milliseconds) const override;
    void Scroll(int topRow, int scrollX) override;
    void EnsureVisible(int row) override;

private:
    [[nodiscard]] int WholeColumns(int scrollX) const;

    CXTPReportControl& m_report;
};

class QtReportPeer : public QtRowPeer {
public:
    explicit QtReportPeer(CXTPReportControl& report);
    ~QtReportPeer() override;

    [[nodiscard]] QtReportView* View() const;

protected:
    void TellView(UINT changes) override;

private:
    QtReportControl m_control;
    QtReportModel m_model;
};

}  // namespace vapp_qt
