/// @file
/// A view of controls: asks its template for their places and texts.
#include "vapp/toolkit/CFormView.h"

#include "toolkit/DialogItems.h"

CFormView::CFormView(const DialogTemplate& dialog) : m_template(dialog) {}

CFormView::~CFormView() {
    DestroyWindow();
}

CRect CFormView::GetTemplateRect(UINT id) const {
    const DialogItem* item = gFindDialogItem(m_template, id);
    return item != nullptr ? item->rect : CRect();
}

void CFormView::CreateItem(CWnd& control, UINT id) {
    gCreateDialogItem(*this, m_template, control, id);
}
