/// @file
/// The report's life and its rows as others see them. Population, painting, setups and selection stand in the
/// Report*.cpp files of this folder.
#include "vapp/celllist/TCellNamesReportCtrl.h"

#include <memory>

#include "celllist/CellRows.h"
#include "text/Codec.h"
#include "text/Compare.h"
#include "vapp/browser/ExcludeViewNames.h"
#include "vapp/browser/TProfileSection.h"
#include "vapp/celllist/CLibCellViewOleDataSource.h"
#include "vapp/celllist/TCellListView.h"

namespace vapp_library_browser {

namespace {

constexpr UINT cnRowIcons = 104;
constexpr int cnRowIconWidth = 22;
constexpr COLORREF cnRowIconMask = 0xFFFF00;
// Rows can be dragged out; the list itself takes nothing.
constexpr UINT cnDragPermissions = 6;

}  // namespace

TCellNamesReportCtrl::TCellNamesReportCtrl(TCellListView& pane)
    : m_pane(pane), m_cells(std::make_unique<CellRows>()) {
    TProfileSection(false).ExchangeText(csExcludeViewNamesKey, m_excludeViews, csDefaultExcludeViewNames);
    SetReportHeader(std::make_unique<TReportHeader>(*this));
    SetGridStyle(false, 0);
    SetGridStyle(true, 1);
}

TCellNamesReportCtrl::~TCellNamesReportCtrl() {
    DestroyWindow();
    if (!m_isSetupStored) SerializeSetup(true);
}

// With the window, and not with the object: one that was ended inside of a line lives on, and would write its
// settings over those of its successor.
void TCellNamesReportCtrl::OnDestroy() {
    SerializeSetup(true);
    m_isSetupStored = true;
    CXTPReportControl::OnDestroy();
}

void TCellNamesReportCtrl::Init() {
    GetReportHeader().SetAutoColumnSizing(false);
    SetImageList(cnRowIcons, cnRowIconWidth, cnRowIconMask);
    GetPaintManager().SetNoItemsText("");
    AddBuiltInColumns();
    EnableDragDrop(CLibCellViewOleDataSource::ClipboardFormatLibCellView, cnDragPermissions);
    SetFullColumnScrolling(false);
    SetFreezeColumnsCount(1);
}

std::size_t TCellNamesReportCtrl::GetCellViewCount() const {
    return m_cells->Count();
}

TLibCellView TCellNamesReportCtrl::GetCell(int row) const {
    return row < 0 ? TLibCellView() : GetCell(static_cast<std::uint64_t>(row));
}

TLibCellView TCellNamesReportCtrl::GetCell(std::uint64_t row) const {
    return row < m_cells->Count() ? m_cells->At(row) : TLibCellView();
}

TLibCellView TCellNamesReportCtrl::GetCell(const CXTPReportRow* row) const {
    return m_populated && row != nullptr ? GetCell(row->GetIndex()) : TLibCellView();
}

TLibCellView TCellNamesReportCtrl::GetFocusedCell() const {
    const std::optional<CXTPReportRow> row = GetFocusedRow();
    return GetCell(row ? &*row : nullptr);
}

TLibCellView TCellNamesReportCtrl::HitTest(CPoint point, CRect* area) const {
    if (!m_populated) return {};
    const std::optional<CXTPReportRow> row = HitTestRow(point, area);
    return GetCell(row ? &*row : nullptr);
}

TCellNamesReportCtrl::TColumn* TCellNamesReportCtrl::HeaderHitTest(CPoint point) const {
    return dynamic_cast<TColumn*>(GetReportHeader().HitTest(point));
}

CStringU TCellNamesReportCtrl::GetTypeAheadText(int row) const {
    return GetCell(row).cell;
}

bool TCellNamesReportCtrl::IsTypeAheadMatch(int row, const CStringU& text) const {
    const auto at = static_cast<std::size_t>(row);
    if (row < 0 || at >= m_cells->Count()) return false;
    const char* const name = vapp_text::SkipMarker(m_cells->Name(at, NameRole::Cell).data());
    return vapp_text::CompareNNoCaseU(name, text.Payload(), text.GetCharCount()) == 0;
}

TCellNamesReportCtrl::TColCellName* TCellNamesReportCtrl::FindCellColumn() const {
    for (int position = 0; position < GetColumns().GetCount(); ++position) {
        if (auto* column = dynamic_cast<TColCellName*>(GetColumns().GetAt(position))) return column;
    }
    return nullptr;
}

// The cell's name and all on its left stay in place when the list scrolls sideways; hidden, it holds nothing.
void TCellNamesReportCtrl::OnColumnsChanged(int /*change*/, CXTPReportColumn* /*column*/) {
    const TColCellName* cellColumn = FindCellColumn();
    if (cellColumn == nullptr) return;
    const int count = GetColumns().GetVisibleIndex(cellColumn) + 1;
    if (count == GetFreezeColumnsCount()) return;
    SetFreezeColumnsCount(count);
    Invalidate();
}

}  // namespace vapp_library_browser
