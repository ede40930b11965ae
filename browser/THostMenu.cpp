/// @file
/// Two places to insert at, one in the menu and one in the sub-menu, and a number.
#include "vapp/browser/THostMenu.h"

#include <utility>

namespace vapp_library_browser {

THostMenu::THostMenu() = default;

THostMenu::~THostMenu() = default;

void THostMenu::Open(CMenu& menu, UINT firstId) {
    Close();
    m_popupMenu = &menu;
    m_nextId = firstId;
    m_popupInsertPos = 0;
}

void THostMenu::Close() {
    m_popupMenu = nullptr;
    m_subMenu.reset();
    m_subMenuTitle.Empty();
}

void THostMenu::AddItem(UINT id, const CString& text, bool disabled, bool checked, bool isDefault) {
    if (m_popupMenu == nullptr) return;
    CMenu& menu = m_subMenu ? *m_subMenu : *m_popupMenu;
    const int position = m_subMenu ? m_subMenuInsertPos++ : m_popupInsertPos++;
    // By its place: the host may have given its number to another item as well.
    CMenu::TItem& item = menu.Insert(position, id, CStringU(text));
    item.isEnabled = !disabled;
    item.isChecked = checked;
    if (isDefault) menu.SetDefaultAt(position);
    ++m_nextId;
}

void THostMenu::AddSeparator() {
    if (m_popupMenu == nullptr) return;
    if (m_subMenu) {
        m_subMenu->InsertSeparator(m_subMenuInsertPos++);
    } else {
        m_popupMenu->InsertSeparator(m_popupInsertPos++);
    }
}

void THostMenu::BeginSubmenu(const CString& title) {
    if (m_popupMenu == nullptr) return;
    m_subMenuTitle = CStringU(title);
    m_subMenu = std::make_unique<CMenu>();
    m_subMenuInsertPos = 0;
}

void THostMenu::EndSubmenu() {
    if (m_popupMenu == nullptr || !m_subMenu) return;
    m_popupMenu->InsertPopup(m_popupInsertPos++, m_subMenuTitle, std::move(m_subMenu));
    m_subMenuTitle.Empty();
}

}  // namespace vapp_library_browser
