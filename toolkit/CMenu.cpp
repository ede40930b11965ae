/// @file
/// The menu as data. Showing it is the installed peer factory's business; what that answers is checked
/// against the menu, so that nobody acts on a command that was not offered.
#include "vapp/toolkit/CMenu.h"

#include <algorithm>
#include <ranges>
#include <utility>

#include "vapp/toolkit/Peer.h"

CMenu::CMenu() = default;

CMenu::~CMenu() = default;

const CMenu::TItem* CMenu::GetItem(int position) const {
    return position >= 0 && position < GetItemCount() ? &m_items[static_cast<std::size_t>(position)]
                                                      : nullptr;
}

const CMenu::TItem* CMenu::FindItem(UINT id) const {
    for (const TItem& item : std::views::reverse(m_items)) {
        if (item.kind == TItem::TKind::Command && item.id == id) return &item;
        if (!item.subMenu) continue;
        if (const TItem* below = item.subMenu->FindItem(id)) return below;
    }
    return nullptr;
}

CMenu::TItem* CMenu::Find(UINT id) {
    return const_cast<TItem*>(std::as_const(*this).FindItem(id));
}

CMenu* CMenu::FindOwner(UINT id) {
    for (TItem& item : std::views::reverse(m_items)) {
        if (item.kind == TItem::TKind::Command && item.id == id) return this;
        if (!item.subMenu) continue;
        if (CMenu* below = item.subMenu->FindOwner(id)) return below;
    }
    return nullptr;
}

int CMenu::PositionOf(const TItem& item) const {
    return static_cast<int>(&item - m_items.data());
}

CMenu* CMenu::GetSubMenu(int position) const {
    const TItem* item = GetItem(position);
    return item != nullptr ? item->subMenu.get() : nullptr;
}

CMenu::TItem& CMenu::Place(int position, TItem item) {
    return *m_items.insert(m_items.begin() + std::clamp(position, 0, GetItemCount()), std::move(item));
}

CMenu& CMenu::AppendPopup(const CStringU& text) {
    InsertPopup(GetItemCount(), text, std::make_unique<CMenu>());
    return *m_items.back().subMenu;
}

CMenu::TItem& CMenu::Insert(int position, UINT id, const CStringU& text) {
    TItem item;
    item.id = id;
    item.text = text;
    return Place(position, std::move(item));
}

void CMenu::AppendChecked(UINT id, const CStringU& text, bool checked) {
    Append(id, text);
    m_items.back().isChecked = checked;
}

void CMenu::InsertSeparator(int position) {
    TItem item;
    item.kind = TItem::TKind::Separator;
    Place(position, std::move(item));
}

void CMenu::InsertPopup(int position, const CStringU& text, std::unique_ptr<CMenu> subMenu) {
    if (!subMenu) return;
    TItem item;
    item.kind = TItem::TKind::Popup;
    item.text = text;
    item.subMenu = std::move(subMenu);
    Place(position, std::move(item));
}

void CMenu::RemoveAt(int position) {
    if (GetItem(position) != nullptr) m_items.erase(m_items.begin() + position);
}

void CMenu::Delete(UINT id) {
    CMenu* const owner = FindOwner(id);
    if (owner == nullptr) return;
    owner->RemoveAt(owner->PositionOf(*owner->Find(id)));
}

void CMenu::Check(UINT id, bool checked) {
    if (TItem* item = Find(id)) item->isChecked = checked;
}

bool CMenu::IsChecked(UINT id) const {
    const TItem* item = FindItem(id);
    return item != nullptr && item->isChecked;
}

void CMenu::Enable(UINT id, bool enabled) {
    if (TItem* item = Find(id)) item->isEnabled = enabled;
}

bool CMenu::IsEnabled(UINT id) const {
    const TItem* item = FindItem(id);
    return item != nullptr && item->isEnabled;
}

void CMenu::SetDefault(UINT id) {
    CMenu* const owner = FindOwner(id);
    if (owner != nullptr) owner->SetDefaultAt(owner->PositionOf(*owner->Find(id)));
}

void CMenu::SetDefaultAt(int position) {
    if (GetItem(position) == nullptr) return;
    for (TItem& item : m_items)
        item.isDefault = false;
    m_items[static_cast<std::size_t>(position)].isDefault = true;
}

bool CMenu::Offers(UINT id) const {
    return std::any_of(m_items.begin(), m_items.end(), [id](const TItem& item) {
        if (item.subMenu) return item.subMenu->Offers(id);
        return item.kind == TItem::TKind::Command && item.id == id && item.isEnabled;
    });
}

UINT CMenu::Track(CWnd& owner, CPoint screen, TMenuAlign align) const {
    PeerFactory* factory = PeerFactory::Installed();
    if (factory == nullptr || m_items.empty()) return 0;
    const UINT picked = factory->TrackMenu(*this, owner, screen, align);
    return Offers(picked) ? picked : 0;
}

CStringU gMenuTextOf(const CStringU& name) {
    CStringU text(name);
    text.Replace(CStringU("&"), CStringU("&&"));
    return text;
}
