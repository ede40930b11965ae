/// @file
/// The dialog of the excluded views.
///
/// NATIVE: the setting is UTF-8, the control's text is in the active code page.
#include "vapp/browser/CExcludeDlg.h"

#include <array>

#include "toolkit/DialogItems.h"
#include "vapp/browser/ExcludeViewNames.h"
#include "vapp/browser/TProfileSection.h"

namespace vapp_library_browser {

namespace {

// In the order in which the keyboard walks.
constexpr std::array<DialogItem, 5> cnExcludeItems = {{
    {CExcludeDlg::cnEditId, {12, 36, 388, 168}},
    {CExcludeDlg::cnResetId, {12, 180, 152, 208}, "__$$Translatable$$_Reset to default"},
    {IDOK, {212, 180, 294, 208}, "__$$Translatable$$_OK"},
    {IDCANCEL, {306, 180, 388, 208}, "__$$Translatable$$_Cancel"},
    {CExcludeDlg::cnLabelId,
     {12, 10, 388, 32},
     "__$$Translatable$$_View names to filter out of cell view list:"},
}};
constexpr DialogTemplate cnExcludeTemplate = {CExcludeDlg::cnDialog, {400, 220}, cnExcludeItems};

}  // namespace

CExcludeDlg::CExcludeDlg(CWnd* owner) : CDialog(cnExcludeTemplate, owner) {
    SetWindowText(gTranslateWindowText("__$$Translatable$$_Exclude These View Names"));
    m_edit.SetMultiLine(true);
}

CExcludeDlg::~CExcludeDlg() {
    // While the controls are still there to be told.
    DestroyWindow();
}

void CExcludeDlg::OnCreate() {
    CDialog::OnCreate();
    const std::array<CWnd*, cnExcludeItems.size()> controls = {&m_edit, &m_reset, &m_ok, &m_cancel, &m_label};
    for (std::size_t i = 0; i < controls.size(); ++i)
        CreateItem(*controls[i], cnExcludeItems[i].id);
    m_edit.SetAccessibleName(m_label.GetWindowText());
}

int CExcludeDlg::OnInitDialog() {
    CDialog::OnInitDialog();
    TProfileSection(false).ExchangeText(csExcludeViewNamesKey, m_setting, csDefaultExcludeViewNames);
    m_excludeViews = m_setting.ToAnsi();
    m_edit.SetWindowText(m_excludeViews);
    return 1;
}

void CExcludeDlg::OnOK() {
    m_excludeViews = m_edit.GetWindowText();
    // What the code page doesn't have was shown as a question mark: as long as nobody touches the text, it is
    // kept.
    if (m_excludeViews != m_setting.ToAnsi()) m_setting = CStringU(m_excludeViews);
    TProfileSection(true).ExchangeText(csExcludeViewNamesKey, m_setting, CStringU());
    CDialog::OnOK();
}

void CExcludeDlg::OnResetToDefault() {
    m_excludeViews = csDefaultExcludeViewNames;
    m_edit.SetWindowText(m_excludeViews);
}

bool CExcludeDlg::OnNotify(Notification& notification, LRESULT& result) {
    if (notification.code == cnButtonClicked && notification.id == cnResetId) {
        OnResetToDefault();
        return true;
    }
    return CDialog::OnNotify(notification, result);
}

// The text takes the room that a larger window gives, the buttons stay below it.
void CExcludeDlg::OnSize(UINT type, int cx, int cy) {
    CDialog::OnSize(type, cx, cy);
    if (type == cnSizeMinimized || !m_label.IsWindow()) return;
    const int wider = cx - cnExcludeTemplate.size.cx;
    const int higher = cy - cnExcludeTemplate.size.cy;
    const CRect edit = cnExcludeItems[0].rect;
    m_edit.MoveWindow({edit.left, edit.top, edit.right + wider, edit.bottom + higher});
    m_reset.MoveWindow(cnExcludeItems[1].rect.Offset({0, higher}));
    m_ok.MoveWindow(cnExcludeItems[2].rect.Offset({wider, higher}));
    m_cancel.MoveWindow(cnExcludeItems[3].rect.Offset({wider, higher}));
}

}  // namespace vapp_library_browser
