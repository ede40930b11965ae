/// @file
/// A view made of controls that stand as a dialog template says.
#pragma once

#include <span>

#include "vapp/toolkit/CView.h"

/// One control of a dialog template: where it stands at first.
struct DialogItem {
    UINT id = 0;
    CRect rect;
    const char* text = "";  ///< initial window text, or a translatable key
};

/// A dialog as data: resource number, its natural size, its controls.
struct DialogTemplate {
    UINT resource = 0;
    CSize size;
    std::span<const DialogItem> items;
};

/// A view with controls. The deriving class owns the controls as members and creates them in `OnCreate`.
class VAPP_EXPORT CFormView : public CView {
public:
    /// The template must outlive the view (a constant table).
    explicit CFormView(const DialogTemplate& dialog);
    ~CFormView() override;

    [[nodiscard]] const DialogTemplate& GetTemplate() const { return m_template; }
    /// Where the template puts the control; empty if it has none of that identifier.
    [[nodiscard]] CRect GetTemplateRect(UINT id) const;

protected:
    /// Creates a member control at its place in the template, with its text.
    void CreateItem(CWnd& control, UINT id);

private:
    const DialogTemplate& m_template;
};
