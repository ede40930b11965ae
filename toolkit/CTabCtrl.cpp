/// @file
/// The tab strip.
#include "vapp/toolkit/CTabCtrl.h"

#include <algorithm>

CTabCtrl::CTabCtrl() = default;

CTabCtrl::~CTabCtrl() {
    DestroyWindow();
}

void CTabCtrl::InsertItem(int index, const CString& text) {
    const int place = std::clamp(index, 0, GetItemCount());
    m_items.insert(m_items.begin() + place, text);
    if (GetItemCount() == 1) {
        m_current = 0;
    } else if (m_current >= place) {
        ++m_current;
    }
    TellPeer(cnChangeItems | cnChangeSelection);
}

CString CTabCtrl::GetItemText(int index) const {
    return index >= 0 && index < GetItemCount() ? m_items[static_cast<std::size_t>(index)] : CString();
}

void CTabCtrl::SetItemText(int index, const CString& text) {
    if (index < 0 || index >= GetItemCount() || m_items[static_cast<std::size_t>(index)] == text) return;
    m_items[static_cast<std::size_t>(index)] = text;
    TellPeer(cnChangeItems);
}

void CTabCtrl::SetMinWidthText(const CString& text) {
    if (m_minWidthText == text) return;
    m_minWidthText = text;
    TellPeer(cnChangeLook | cnChangeItems);
}

void CTabCtrl::SetCurSel(int index) {
    const int current = index >= 0 && index < GetItemCount() ? index : -1;
    if (m_current == current) return;
    m_current = current;
    TellPeer(cnChangeSelection);
}

void CTabCtrl::PickedByUser(int index) {
    if (index < 0 || index >= GetItemCount() || index == m_current) return;
    SetCurSel(index);
    Notification notification;
    notification.code = cnTabSelectionChanged;
    NotifyParent(notification);
}

void CTabCtrl::ContextClickedByUser(int index, CPoint screen) {
    if (index < 0 || index >= GetItemCount()) return;
    NotifyTabClick click;
    click.code = cnTabContextClicked;
    click.tab = index;
    click.screen = screen;
    NotifyParent(click);
}

std::unique_ptr<Peer> CTabCtrl::CreatePeer(PeerFactory& factory) {
    return factory.CreateTab(*this);
}
