/// @file
/// The steps of a dialog. The waiting itself is the peer's, which alone knows the desktop's events.
#include "vapp/toolkit/CDialog.h"

#include "toolkit/DialogItems.h"
#include "vapp/toolkit/CWinAppEx.h"

CDialog::CDialog(const DialogTemplate& dialog, CWnd* owner) : m_template(dialog), m_owner(owner) {
    // Nobody sees it half filled.
    ShowWindow(false);
}

CDialog::~CDialog() {
    DestroyWindow();
}

int CDialog::DoModal() {
    if (!Open()) return -1;
    // Initialising may have ended it already.
    if (m_isWaiting) {
        ShowWindow(true);
        PeerFactory* factory = PeerFactory::Installed();
        if (factory == nullptr || !factory->WaitFor(*this)) ClosedByPeer();
    }
    m_isWaiting = false;
    ShowWindow(false);
    DestroyWindow();
    return m_result;
}

bool CDialog::Open() {
    if (IsWindow()) return false;
    m_result = IDCANCEL;
    m_isWaiting = true;
    // In the tree of windows it is a top-level one: its place doesn't depend on its owner's.
    if (!Create(nullptr, m_template.resource, {0, 0, m_template.size.cx, m_template.size.cy})) return false;
    if (OnInitDialog() != 0 && IsWindow() && !GetChildren().empty()) GetChildren().front()->SetFocus();
    return true;
}

CWnd* CDialog::GetOwner() const {
    return m_owner != nullptr ? m_owner : gGetMainWnd();
}

void CDialog::ClosedByPeer() {
    if (m_isWaiting) OnCancel();
}

int CDialog::OnInitDialog() {
    return 1;
}

void CDialog::OnOK() {
    EndDialog(IDOK);
}

void CDialog::OnCancel() {
    EndDialog(IDCANCEL);
}

void CDialog::EndDialog(int result) {
    m_result = result;
    m_isWaiting = false;
    ShowWindow(false);
}

void CDialog::CreateItem(CWnd& control, UINT id) {
    gCreateDialogItem(*this, m_template, control, id);
}

bool CDialog::OnNotify(Notification& notification, LRESULT& /*result*/) {
    if (notification.code != cnButtonClicked) return false;
    if (notification.id == static_cast<UINT>(IDOK)) {
        OnOK();
    } else if (notification.id == static_cast<UINT>(IDCANCEL)) {
        OnCancel();
    } else {
        return false;
    }
    return true;
}

std::unique_ptr<Peer> CDialog::CreatePeer(PeerFactory& factory) {
    return factory.CreateDialogWindow(*this);
}
