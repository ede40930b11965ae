/// @file
/// Which change of the report concerns which part of its view.
#include "toolkit/qt/QtReportPeer.h"

#include <algorithm>
#include <cstdint>
#include <limits>

#include "toolkit/qt/QtReportView.h"
#include "vapp/toolkit/CXTPReportControl.h"

namespace vapp_qt {

int QtReportControl::RowCount() const {
    return m_report.GetRows().GetCount();
}

int QtReportControl::RowHeight() const {
    return m_report.GetRowHeight();
}

int QtReportControl::HeaderHeight() const {
    return m_report.GetHeaderHeight();
}

int QtReportControl::PageRows() const {
    return m_report.GetCountPerPage();
}

int QtReportControl::TopRow() const {
    return m_report.GetTopRowIndex();
}

int QtReportControl::ScrollX() const {
    return m_report.GetScrollX();
}

int QtReportControl::ContentWidth() const {
    const CXTPReportColumns& columns = m_report.GetColumns();
    std::int64_t width = 0;
    for (int position = 0; position < columns.GetCount(); ++position) {
        const CXTPReportColumn* column = columns.GetAt(position);
        if (column->IsVisible()) width += column->GetShownWidth();
    }
    return static_cast<int>(std::min<std::int64_t>(width, std::numeric_limits<int>::max()));
}

int QtReportControl::FocusedRow() const {
    return m_report.GetCursor().GetFocus();
}

const RowSelection& QtReportControl::Selection() const {
    return m_report.GetSelectedRows().GetSelection();
}

CSize QtReportControl::WindowSize() const {
    return m_report.GetRect().Size();
}

CSize QtReportControl::ClientSize() const {
    return m_report.GetClientRect().Size();
}

void QtReportControl::SetHeights(int row, int header) {
    m_report.SetRowMetrics(row, header);
}

void QtReportControl::Reserve(CSize bars) {
    m_report.ReservedByPeer(bars);
}

void QtReportControl::Click(int row, TModifiers modifiers) {
    m_report.ClickedByUser(row, modifiers);
}

void QtReportControl::ContextClick(int row) {
    m_report.ContextClickedByUser(row);
}

void QtReportControl::ContextMenu(CPoint client) {
    m_report.ContextMenuByPeer(m_report.ClientToScreen(client));
}

void QtReportControl::DoubleClick(CPoint client) {
    m_report.DoubleClickedByUser(client);
}

bool QtReportControl::CanDrag() const {
    return !m_report.GetDragFormat().IsEmpty();
}

void QtReportControl::BeginDrag(CPoint client, UINT flags) {
    m_report.DragBegunByUser(client, flags);
}

bool QtReportControl::Find() {
    return m_report.KeyByPeer(TKey::Find, {});
}

void QtReportControl::Key(TKey key, TModifiers modifiers) {
    m_report.KeyPressedByUser(key, modifiers);
}

void QtReportControl::Type(const CStringU& text, std::int64_t milliseconds) {
    m_report.TypedByUser(text, milliseconds);
}

bool QtReportControl::IsTyping(std::int64_t milliseconds) const {
    return m_report.IsTyping(milliseconds);
}

void QtReportControl::Scroll(int topRow, int scrollX) {
    m_report.ScrolledByUser(topRow, m_report.IsFullColumnScrolling() ? WholeColumns(scrollX) : scrollX);
}

// The next column's edge in the direction of the scrolling, so that every step gets somewhere.
int QtReportControl::WholeColumns(int scrollX) const {
    const CXTPReportColumns& columns = m_report.GetColumns();
    std::int64_t edge = 0;
    std::int64_t below = 0;
    for (int visible = m_report.GetFreezeColumnsCount(); edge < scrollX; ++visible) {
        const CXTPReportColumn* column = columns.GetVisibleAt(visible);
        if (column == nullptr) return scrollX;
        below = edge;
        edge += column->GetShownWidth();
    }
    const bool forward = scrollX > m_report.GetScrollX();
    return static_cast<int>(
        std::min<std::int64_t>(forward || edge == scrollX ? edge : below, std::numeric_limits<int>::max()));
}

void QtReportControl::EnsureVisible(int row) {
    m_report.EnsureVisible(row);
}

QtReportPeer::QtReportPeer(CXTPReportControl& report)
    : QtRowPeer(report), m_control(report), m_model(report) {
    SetWidget(new QtReportView(report, m_control, m_model, gClientWidgetAbove(report)));
}

QtReportPeer::~QtReportPeer() {
    if (QtReportView* view = View()) view->Detach();
    m_model.Detach();
}

QtReportView* QtReportPeer::View() const {
    return static_cast<QtReportView*>(Widget());
}

void QtReportPeer::TellView(UINT changes) {
    QtReportView* const view = View();
    if ((changes & cnChangeItems) != 0) {
        m_model.ResetRows();
        view->ForgetPress();
    } else if ((changes & cnChangeColumns) != 0) {
        m_model.ResetColumns();
    }
    constexpr UINT cnGeometry = cnChangeItems | cnChangeColumns | cnChangeRect | cnChangeScroll;
    if ((changes & cnGeometry) != 0) view->ApplyGeometry();
    // A model that was reset has lost the copy of the selection.
    constexpr UINT cnSelection = cnChangeSelection | cnChangeFocusItem | cnChangeItems | cnChangeColumns;
    if ((changes & cnSelection) != 0) view->ApplySelection();
    constexpr UINT cnHeader = cnChangeColumns | cnChangeSort | cnChangeLook | cnChangeScroll;
    if ((changes & cnHeader) != 0) view->ApplyHeader();
}

}  // namespace vapp_qt
