/// @file
/// CExcludeDlg: lets the user edit the one setting that hides views from the cell list by name.
///
/// It edits the text and leaves it at that: names are neither checked nor divided here, and no list is
/// refreshed. Who shows the dialog does so when it ended with IDOK.
#pragma once

#include "vapp/Export.h"
#include "vapp/text/CStringU.h"
#include "vapp/toolkit/CButton.h"
#include "vapp/toolkit/CDialog.h"
#include "vapp/toolkit/CEdit.h"
#include "vapp/toolkit/CStatic.h"

namespace vapp_library_browser {

/// The dialog "Exclude These View Names".
class VAPP_EXPORT CExcludeDlg final : public CDialog {
public:
    static constexpr UINT cnDialog = 4004;
    static constexpr UINT cnEditId = 4000;
    static constexpr UINT cnResetId = 4001;
    static constexpr UINT cnLabelId = 0xFFFF;

    /// @param owner  the window that waits; null for the application's main window. Not owned.
    explicit CExcludeDlg(CWnd* owner = nullptr);
    ~CExcludeDlg() override;

    /// The names in the active code page, as the dialog read them or as the user confirmed them.
    [[nodiscard]] const CString& GetExcludeViews() const { return m_excludeViews; }

protected:
    void OnCreate() override;
    /// Reads the setting; an empty one is a setting too, and not the default.
    int OnInitDialog() override;
    /// Stores the text as it stands.
    void OnOK() override;
    bool OnNotify(Notification& notification, LRESULT& result) override;
    void OnSize(UINT type, int cx, int cy) override;

private:
    void OnResetToDefault();

    CStringU m_setting;  ///< as it was read, with what the code page doesn't have
    CString m_excludeViews;
    CEdit m_edit;
    CButton m_reset;
    CButton m_ok;
    CButton m_cancel;
    CStatic m_label;
};

}  // namespace vapp_library_browser
