/// @file
/// The report: what its rows and its parts are changed by, and who is told of it. Where rows lie on the
/// screen stands in CXTPReportControlGeometry.cpp.
#include "vapp/toolkit/CXTPReportControl.h"

#include <algorithm>
#include <utility>

CXTPReportControl::CXTPReportControl()
    : m_columns(*this),
      m_header(std::make_unique<CXTPReportHeader>(*this)),
      m_selectedRows(*this),
      m_paintManager(*this) {}

CXTPReportControl::~CXTPReportControl() {
    DestroyWindow();
}

CXTPReportColumn* CXTPReportControl::AddColumn(std::unique_ptr<CXTPReportColumn> column) {
    return m_columns.Add(std::move(column));
}

void CXTPReportControl::SetReportHeader(std::unique_ptr<CXTPReportHeader> header) {
    if (!header) return;
    m_header = std::move(header);
    PartChanged(cnChangeColumns);
}

void CXTPReportControl::SetFreezeColumnsCount(int count) {
    if (m_freezeCount == std::max(count, 0)) return;
    m_freezeCount = std::max(count, 0);
    PartChanged(cnChangeColumns);
}

void CXTPReportControl::SetGridStyle(bool vertical, int style) {
    int& stored = m_gridStyle[vertical ? 1 : 0];
    if (std::exchange(stored, style) != style) PartChanged(cnChangeLook);
}

void CXTPReportControl::SetVirtualMode(std::unique_ptr<CXTPReportRecord> record, int rowCount) {
    // The former record may be the very one that is being asked; it goes when the outermost question ends.
    if (m_measureDepth > 0 && m_record) m_retiredRecords.push_back(std::move(m_record));
    m_record = std::move(record);
    m_rowCount = std::max(rowCount, 0);
    BeginUpdate();
    if (m_cursor.Truncate(m_rowCount)) SelectionChanged(cnChangeSelection | cnChangeFocusItem);
    ClampScroll();
    EndUpdate();
}

void CXTPReportControl::Populate() {
    PartChanged(cnChangeItems | cnChangeSelection | cnChangeFocusItem | cnChangeScroll);
}

std::optional<CXTPReportRow> CXTPReportControl::GetFocusedRow() const {
    return GetRows().GetAt(m_cursor.GetFocus());
}

void CXTPReportControl::SetFocusedRow(const CXTPReportRow& row, bool ensureVisible) {
    const int index = row.GetIndex();
    if (!GetRows().GetAt(index)) return;
    BeginUpdate();
    m_cursor.SetAnchor(index);
    if (m_cursor.GetFocus() != index) {
        m_cursor.SetFocus(index);
        SelectionChanged(cnChangeFocusItem);
    }
    if (ensureVisible) EnsureVisible(index);
    EndUpdate();
}

void CXTPReportControl::BeginUpdate() {
    ++m_updateDepth;
}

void CXTPReportControl::EndUpdate() {
    if (m_updateDepth > 0 && --m_updateDepth == 0) TellPending();
}

// The peer first, so that the parent finds on the screen what it is told of. What one of them changes in the
// course of this is told by its own call.
void CXTPReportControl::TellPending() {
    const bool selection = std::exchange(m_selectionPending, false);
    const bool sort = std::exchange(m_sortPending, false);
    TellPeer(std::exchange(m_pendingChanges, 0u));
    Notification notification;
    if (selection) {
        notification.code = cnReportSelectionChanged;
        NotifyParent(notification);
    }
    if (sort) {
        notification.code = cnReportSortOrderChanged;
        NotifyParent(notification);
    }
}

void CXTPReportControl::PartChanged(UINT peerChanges) {
    BeginUpdate();
    m_pendingChanges |= peerChanges;
    if ((peerChanges & cnChangeColumns) != 0) ClampScroll();
    EndUpdate();
}

void CXTPReportControl::SelectionChanged(UINT peerChanges) {
    BeginUpdate();
    m_pendingChanges |= peerChanges;
    m_selectionPending = true;
    EndUpdate();
}

void CXTPReportControl::SortChangedByUser() {
    BeginUpdate();
    m_sortPending = true;
    EndUpdate();
}

void CXTPReportControl::SetImageList(UINT resource, int width, COLORREF maskColor) {
    m_imageResource = resource;
    m_imageWidth = std::max(width, 0);
    m_imageMask = maskColor;
    PartChanged(cnChangeLook);
}

void CXTPReportControl::EnableDragDrop(const CString& format, UINT flags) {
    m_dragFormat = format;
    m_dragFlags = flags;
    PartChanged(cnChangeLook);
}

bool CXTPReportControl::MeasureItem(int row, CXTPReportColumn& column, CXTPReportRecordItemMetrics& metrics) {
    if (!m_record || row < 0 || row >= m_rowCount) return false;
    CXTPReportRecordItemDrawArgs drawArgs;
    drawArgs.control = this;
    drawArgs.column = &column;
    drawArgs.row = row;
    ++m_measureDepth;
    m_record->GetItemMetrics(drawArgs, metrics);
    // Moved out first: the end of a record may ask again.
    if (--m_measureDepth == 0 && !m_retiredRecords.empty()) {
        const auto retired = std::exchange(m_retiredRecords, {});
    }
    return true;
}

void CXTPReportControl::ClickedByUser(int row, TModifiers modifiers) {
    const int focusBefore = m_cursor.GetFocus();
    if (m_cursor.Click(row < m_rowCount ? row : -1, modifiers)) CursorChanged(focusBefore, true);
}

void CXTPReportControl::ContextClickedByUser(int row) {
    const int focusBefore = m_cursor.GetFocus();
    if (m_cursor.ContextClick(row < m_rowCount ? row : -1)) CursorChanged(focusBefore, true);
}

void CXTPReportControl::DoubleClickedByUser(CPoint point) {
    if (IsWindow()) OnDoubleClick(point);
}

void CXTPReportControl::OnDoubleClick(CPoint /*point*/) {}

bool CXTPReportControl::DragBegunByUser(CPoint point, UINT flags) {
    return IsWindow() && OnBeginDrag(point, flags);
}

bool CXTPReportControl::OnBeginDrag(CPoint /*point*/, UINT /*flags*/) {
    return false;
}

void CXTPReportControl::KeyPressedByUser(TKey key, TModifiers modifiers) {
    const int focusBefore = m_cursor.GetFocus();
    if (m_cursor.Key(key, modifiers, m_rowCount, GetCountPerPage())) CursorChanged(focusBefore, false);
}

void CXTPReportControl::TypedByUser(const CStringU& text, std::int64_t milliseconds) {
    const int row = m_typeAhead.FindMatch(
        text, milliseconds, m_cursor.GetFocus(), m_rowCount,
        [this](int index, const CStringU& wanted) { return IsTypeAheadMatch(index, wanted); });
    const int focusBefore = m_cursor.GetFocus();
    if (row >= 0 && m_cursor.Click(row, {})) CursorChanged(focusBefore, false);
}

void CXTPReportControl::ScrolledByUser(int topRow, int scrollX) {
    BeginUpdate();
    SetTopRow(topRow);
    SetScrollX(scrollX);
    EndUpdate();
}

void CXTPReportControl::CursorChanged(int focusBefore, bool byPress) {
    const int focus = m_cursor.GetFocus();
    BeginUpdate();
    if (focus != focusBefore && !(byPress && IsInSight(focus))) EnsureVisible(focus);
    SelectionChanged(cnChangeSelection | cnChangeFocusItem);
    EndUpdate();
}

CStringU CXTPReportControl::GetTypeAheadText(int /*row*/) const {
    return {};
}

bool CXTPReportControl::IsTypeAheadMatch(int row, const CStringU& text) const {
    return GetTypeAheadText(row).StartsWithNoCase(text);
}

void CXTPReportControl::OnColumnsChanged(int /*change*/, CXTPReportColumn* /*column*/) {}

std::unique_ptr<Peer> CXTPReportControl::CreatePeer(PeerFactory& factory) {
    return factory.CreateReport(*this);
}
