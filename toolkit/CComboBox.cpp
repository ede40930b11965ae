/// @file
/// The drop-down list.
#include "vapp/toolkit/CComboBox.h"

#include <algorithm>

CComboBox::CComboBox(bool sorted) : m_sorted(sorted) {}

CComboBox::~CComboBox() {
    DestroyWindow();
}

void CComboBox::ResetContent() {
    m_items.clear();
    m_current = -1;
    TellPeer(cnChangeItems | cnChangeSelection);
}

int CComboBox::AddString(const CStringU& text) {
    const auto less = [](const CStringU& left, const CStringU& right) {
        return left.CompareNoCase(right) < 0;
    };
    const auto place =
        m_sorted ? std::upper_bound(m_items.begin(), m_items.end(), text, less) : m_items.end();
    return InsertString(static_cast<int>(place - m_items.begin()), text);
}

int CComboBox::InsertString(int index, const CStringU& text) {
    const int place = index == -1 ? GetCount() : index;
    if (place < 0 || place > GetCount()) return -1;
    m_items.insert(m_items.begin() + place, text);
    if (m_current >= place) ++m_current;
    TellPeer(cnChangeItems | cnChangeSelection);
    return place;
}

CStringU CComboBox::GetLBText(int index) const {
    return index >= 0 && index < GetCount() ? m_items[static_cast<std::size_t>(index)] : CStringU();
}

int CComboBox::FindStringExact(int start, const CStringU& text) const {
    const int count = GetCount();
    const int first = start >= 0 && start < count ? start + 1 : 0;
    for (int step = 0; step < count; ++step) {
        const int index = first + step < count ? first + step : first + step - count;
        if (m_items[static_cast<std::size_t>(index)].EqualsNoCase(text)) return index;
    }
    return -1;
}

void CComboBox::SetCurSel(int index) {
    const int current = index >= 0 && index < GetCount() ? index : -1;
    if (m_current == current) return;
    m_current = current;
    TellPeer(cnChangeSelection);
}

void CComboBox::PickedByUser(int index) {
    if (index < 0 || index >= GetCount()) return;
    SetCurSel(index);
    Notification notification;
    notification.code = cnComboSelectionChanged;
    NotifyParent(notification);
}

void CComboBox::ClosedByUser() {
    Notification notification;
    notification.code = cnComboClosedUp;
    NotifyParent(notification);
}

std::unique_ptr<Peer> CComboBox::CreatePeer(PeerFactory& factory) {
    return factory.CreateCombo(*this);
}
