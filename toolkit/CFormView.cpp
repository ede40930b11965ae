/// @file
/// A view of controls: asks its template for their places and texts.
#include "vapp/toolkit/CFormView.h"

#include <algorithm>

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

// Keys mean nothing to the view itself. One without such a control keeps the keyboard.
void CFormView::OnSetFocus() {
    CView::OnSetFocus();
    CWnd* control = GetLastFocusedChild();
    if (control == nullptr || !control->TakesFocus()) {
        const std::vector<CWnd*>& controls = GetChildren();
        const auto first = std::find_if(controls.begin(), controls.end(),
                                        [](const CWnd* each) { return each->TakesFocus(); });
        control = first != controls.end() ? *first : nullptr;
    }
    if (control != nullptr) control->SetFocus();
}
