/// @file
/// The push button.
#include "vapp/toolkit/CButton.h"

CButton::CButton() = default;

CButton::~CButton() {
    DestroyWindow();
}

void CButton::SetImageResource(UINT resource) {
    if (m_image == resource) return;
    m_image = resource;
    TellPeer(cnChangeLook);
}

void CButton::Click() {
    if (!IsWindowEnabled()) return;
    Notification notification;
    notification.code = cnButtonClicked;
    NotifyParent(notification);
}

std::unique_ptr<Peer> CButton::CreatePeer(PeerFactory& factory) {
    return factory.CreateButton(*this);
}
