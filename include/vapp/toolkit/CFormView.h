/// @file
/// A view made of controls that stand as a dialog template says.
#pragma once

#include "vapp/toolkit/CView.h"
#include "vapp/toolkit/DialogTemplate.h"

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
    /// Hands the keyboard to the control that had it last, else to the first that takes it.
    void OnSetFocus() override;

private:
    const DialogTemplate& m_template;
};
