/// @file
/// A column tells every change to the header of its report, through which all changes of columns go.
#include "vapp/toolkit/CXTPReportColumn.h"

#include "vapp/toolkit/CXTPReportControl.h"

CXTPReportColumn::CXTPReportColumn(int itemIndex, const CString& caption, const CString& internalName,
                                   int width, bool autoSize, int icon, bool sortable, bool visible)
    : m_caption(caption),
      m_internalName(internalName),
      m_itemIndex(itemIndex),
      m_width(width),
      m_icon(icon),
      m_autoSize(autoSize),
      m_sortable(sortable),
      m_visible(visible) {}

CXTPReportColumn::~CXTPReportColumn() = default;

void CXTPReportColumn::SetWidth(int width) {
    if (m_width == width) return;
    m_width = width;
    TellHeader(TColumnsChange::Width);
}

void CXTPReportColumn::SetVisible(bool visible) {
    if (m_visible == visible) return;
    m_visible = visible;
    TellHeader(TColumnsChange::Visibility);
}

void CXTPReportColumn::TellHeader(TColumnsChange change) {
    if (m_control == nullptr) return;
    m_control->GetReportHeader().OnColumnsChanged(static_cast<int>(change), this);
}
