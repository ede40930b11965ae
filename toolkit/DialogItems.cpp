/// @file
/// Looks up places and texts in a template.
#include "toolkit/DialogItems.h"

#include <algorithm>

#include "text/TranslatedText.h"

const DialogItem* gFindDialogItem(const DialogTemplate& dialog, UINT id) {
    const auto found = std::find_if(dialog.items.begin(), dialog.items.end(),
                                    [id](const DialogItem& item) { return item.id == id; });
    return found == dialog.items.end() ? nullptr : &*found;
}

void gCreateDialogItem(CWnd& parent, const DialogTemplate& dialog, CWnd& control, UINT id) {
    if (control.IsWindow()) return;
    const DialogItem* item = gFindDialogItem(dialog, id);
    if (item != nullptr) control.SetWindowText(gTranslateWindowText(item->text));
    control.Create(&parent, id, item != nullptr ? item->rect : CRect());
}

CString gTranslateWindowText(const char* text) {
    return vapp_text::TranslatedText(text).ToAnsi();
}
