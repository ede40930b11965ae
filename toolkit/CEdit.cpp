/// @file
/// The edit control. What a program sets by SetWindowText is not told to the parent, only what the user
/// types.
#include "vapp/toolkit/CEdit.h"

CEdit::CEdit() = default;

CEdit::~CEdit() {
    DestroyWindow();
}

void CEdit::SetCueText(const CString& cue) {
    if (m_cue == cue) return;
    m_cue = cue;
    TellPeer(cnChangeLook);
}

void CEdit::EditedByUser(const CString& text) {
    if (GetWindowText() == text) return;
    SetWindowText(text);
    Notification notification;
    notification.code = cnEditChanged;
    NotifyParent(notification);
}

std::unique_ptr<Peer> CEdit::CreatePeer(PeerFactory& factory) {
    return factory.CreateEdit(*this);
}
