/// @file
/// The edit control. What a program sets by SetWindowText is not told to the parent, only what the user
/// types.
#include "vapp/toolkit/CEdit.h"

#include <string_view>

CEdit::CEdit() = default;

CEdit::~CEdit() {
    DestroyWindow();
}

void CEdit::SetCueText(const CString& cue) {
    if (m_cue == cue) return;
    m_cue = cue;
    TellPeer(cnChangeLook);
}

// What is pasted into a single line may have several: the first one counts, as nobody would see the others.
void CEdit::EditedByUser(const CString& text) {
    const std::string_view whole = text.View();
    const CString taken(IsMultiLine() ? whole : whole.substr(0, whole.find_first_of("\r\n")));
    if (GetWindowText() == taken) return;
    SetWindowText(taken);
    Notification notification;
    notification.code = cnEditChanged;
    NotifyParent(notification);
}

std::unique_ptr<Peer> CEdit::CreatePeer(PeerFactory& factory) {
    return factory.CreateEdit(*this);
}
