/// @file
/// Colours and the no-items text.
#include "vapp/toolkit/CXTPReportPaintManager.h"

#include "vapp/toolkit/CXTPReportControl.h"

COLORREF CXTPReportPaintManager::GetColor(TReportColor color) const {
    return m_colors[static_cast<int>(color)];
}

void CXTPReportPaintManager::SetCustomColor(TReportColor color, COLORREF value) {
    CXTPPaintManagerColor& changed = m_colors[static_cast<int>(color)];
    if (changed.GetCustomValue() == value) return;
    changed.SetCustomValue(value);
    m_control.PartChanged(cnChangeLook);
}

bool CXTPReportPaintManager::IsDefaultColor(TReportColor color) const {
    return m_colors[static_cast<int>(color)].IsDefault();
}

void CXTPReportPaintManager::SetNoItemsText(const CString& text) {
    if (m_noItemsText == text) return;
    m_noItemsText = text;
    m_control.PartChanged(cnChangeLook);
}
