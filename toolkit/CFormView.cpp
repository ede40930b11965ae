/// @file
/// A view of controls: looks up places and texts in its template.
#include "vapp/toolkit/CFormView.h"

#include <algorithm>

#include "vapp/text/Translate.h"

namespace {

const DialogItem* FindItem(const DialogTemplate& dialog, UINT id) {
    const auto found = std::find_if(dialog.items.begin(), dialog.items.end(),
                                    [id](const DialogItem& item) { return item.id == id; });
    return found == dialog.items.end() ? nullptr : &*found;
}

// Window texts are in the active code page, translations in UTF-8.
CString ItemText(const DialogItem& item) {
    return CStringU(vlang::gTranslate(item.text), TextEncoding::Utf8Auto).ToAnsi();
}

}  // namespace

CFormView::CFormView(const DialogTemplate& dialog) : m_template(dialog) {}

CFormView::~CFormView() {
    DestroyWindow();
}

CRect CFormView::GetTemplateRect(UINT id) const {
    const DialogItem* item = FindItem(m_template, id);
    return item != nullptr ? item->rect : CRect();
}

void CFormView::CreateItem(CWnd& control, UINT id) {
    if (control.IsWindow()) return;
    const DialogItem* item = FindItem(m_template, id);
    if (item != nullptr) control.SetWindowText(ItemText(*item));
    control.Create(this, id, item != nullptr ? item->rect : CRect());
}
