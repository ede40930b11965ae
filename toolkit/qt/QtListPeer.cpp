/// @file
/// Which change of the list concerns which part of its view.
#include "toolkit/qt/QtListPeer.h"

#include "vapp/toolkit/CListCtrl.h"

namespace vapp_qt {

int QtListControl::RowCount() const {
    return m_list.GetItemCount();
}

int QtListControl::RowHeight() const {
    return m_list.GetRowHeight();
}

int QtListControl::HeaderHeight() const {
    return m_list.GetHeaderHeight();
}

int QtListControl::PageRows() const {
    return m_list.GetCountPerPage();
}

int QtListControl::TopRow() const {
    return m_list.GetTopIndex();
}

int QtListControl::FocusedRow() const {
    return m_list.GetFocusedItem();
}

const RowSelection& QtListControl::Selection() const {
    return m_list.GetSelection();
}

CSize QtListControl::WindowSize() const {
    return m_list.GetRect().Size();
}

CSize QtListControl::ClientSize() const {
    return m_list.GetClientRect().Size();
}

void QtListControl::SetHeights(int row, int header) {
    m_list.SetHeaderHeight(header);
    m_list.SetRowHeight(row);
}

void QtListControl::Reserve(CSize bars) {
    m_list.ReservedByPeer(bars);
}

void QtListControl::Click(int row, TModifiers modifiers) {
    m_list.ClickedByUser(row, modifiers);
}

void QtListControl::ContextClick(int row) {
    m_list.ContextClickedByUser(row);
}

void QtListControl::ContextMenu(CPoint client) {
    m_list.ContextMenuByPeer(m_list.ClientToScreen(client));
}

void QtListControl::DoubleClick(CPoint /*client*/) {}

bool QtListControl::Find() {
    return m_list.KeyByPeer(TKey::Find, {});
}

void QtListControl::Key(TKey key, TModifiers modifiers) {
    m_list.KeyPressedByUser(key, modifiers);
}

void QtListControl::Type(const CStringU& text, std::int64_t milliseconds) {
    m_list.TypedByUser(text, milliseconds);
}

bool QtListControl::IsTyping(std::int64_t milliseconds) const {
    return m_list.IsTyping(milliseconds);
}

void QtListControl::Scroll(int topRow, int /*scrollX*/) {
    m_list.SetTopIndex(topRow);
}

void QtListControl::EnsureVisible(int row) {
    m_list.EnsureVisible(row);
}

QtListPeer::QtListPeer(CListCtrl& list) : QtRowPeer(list), m_control(list), m_model(list) {
    SetWidget(new QtListView(list, m_control, m_model, gClientWidgetAbove(list)));
}

QtListPeer::~QtListPeer() {
    if (QtListView* view = View()) view->Detach();
    m_model.Detach();
}

QtListView* QtListPeer::View() const {
    return static_cast<QtListView*>(Widget());
}

void QtListPeer::TellView(UINT changes) {
    QtListView* const view = View();
    if ((changes & cnChangeItems) != 0) m_model.Reset();
    if ((changes & (cnChangeItems | cnChangeRect | cnChangeScroll)) != 0) view->ApplyGeometry();
    // A model that was reset has lost the copy of the selection.
    if ((changes & (cnChangeSelection | cnChangeFocusItem | cnChangeItems)) != 0) view->ApplySelection();
    if ((changes & (cnChangeLook | cnChangeColumns)) != 0) view->viewport()->update();
}

}  // namespace vapp_qt
