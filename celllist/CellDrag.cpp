/// @file
/// Dragging a cell view out of the list: the row under the pointer and nothing else, whatever is selected.
/// Nothing can be dropped here.
///
/// While a drag is going on the host's code runs, also its drop target: it may fetch rows or end the window.
#include <cstdio>
#include <memory>

#include "text/PlatformProcess.h"
#include "toolkit/FlagGuard.h"
#include "vapp/browser/HostCallScope.h"
#include "vapp/browser/TLibraryView.h"
#include "vapp/celllist/CLibCellViewOleData.h"
#include "vapp/celllist/CLibCellViewOleDataSource.h"
#include "vapp/celllist/TCellListView.h"
#include "vapp/celllist/TCellNamesReportCtrl.h"

namespace vapp_library_browser {

namespace {

using TReport = TCellNamesReportCtrl;

// In the flags of a drag that begins.
constexpr UINT cnRightButton = 2;

CString FormatOfThisProcess() {
    CString format;
    format.Format("VornexEDALibCellView%lX", vapp_platform::OwnProcessNumber());
    return format;
}

}  // namespace

CLibCellViewOleData::CLibCellViewOleData(const CStringU& designName, const TLibCellView& lcv,
                                         bool rightButton)
    : design(designName),
      library(lcv.library),
      cell(lcv.cell),
      view(lcv.view),
      startedByRightButton(rightButton) {}

CLibCellViewOleData::CLibCellViewOleData(const CLibCellViewOleData& other) {
    Copy(other);
}

CLibCellViewOleData& CLibCellViewOleData::operator=(const CLibCellViewOleData& other) {
    if (this != &other) Copy(other);
    return *this;
}

CLibCellViewOleData::~CLibCellViewOleData() = default;

void CLibCellViewOleData::Copy(const CLibCellViewOleData& other) {
    design = other.design;
    library = other.library;
    cell = other.cell;
    view = other.view;
    sortKey = other.sortKey;
    startedByRightButton = other.startedByRightButton;
}

CLibCellViewOleDataSource::CLibCellViewOleDataSource() = default;

CLibCellViewOleDataSource::~CLibCellViewOleDataSource() = default;

const CString CLibCellViewOleDataSource::ClipboardFormatLibCellView = FormatOfThisProcess();

bool TReport::OnBeginDrag(CPoint point, UINT flags) {
    return QueryDragAndDrop((flags & cnRightButton) != 0, point);
}

bool TReport::QueryDragAndDrop(bool rightButton, CPoint point) {
    if (!m_populated) return false;
    CRect row;
    const TLibCellView cell = HitTest(point, &row);
    return !cell.cell.IsEmpty() && StartDragAndDrop(rightButton, cell, &row);
}

bool TReport::StartDragAndDrop(bool rightButton, const TLibCellView& cell, const CRect* start) {
    // One pointer drags one thing; the source of the drag that is going on must stay.
    if (m_inDragDrop) return false;
    const HostCallScope scope;
    const TLibraryView* view = m_pane.GetLibraryView();
    m_dataSource = std::make_unique<CLibCellViewOleDataSource>();
    m_dataSource->CacheData(
        CLibCellViewOleDataSource::ClipboardFormatLibCellView,
        CLibCellViewOleData(view != nullptr ? view->GetSelectedDesign() : CStringU(), cell, rightButton));
    // The same as the clipboard gets for such a row.
    m_dataSource->SetText(cell.Join(" "));
    const FlagGuard dragging(m_inDragDrop);
    return m_dataSource->DoDragDrop(cnDropCopy | cnDropLink, start != nullptr ? *start : CRect()) !=
           cnDropNone;
}

}  // namespace vapp_library_browser
