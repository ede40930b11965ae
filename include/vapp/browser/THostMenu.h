/// @file
/// THostMenu: the host's part of a menu that a list is building.
///
/// While a list asks its host for items, the host adds them one by one, in front of whatever the list has
/// there already. It is not the menu: it only keeps where the next item goes and which number it gets.
///
/// The surprise: outside of the building nothing is added, and nobody is told. A sub-menu that the host
/// begins and never ends is lost with all its items.
#pragma once

#include <memory>

#include "vapp/Export.h"
#include "vapp/text/CStringU.h"
#include "vapp/toolkit/CMenu.h"

namespace vapp_library_browser {

/// Where a host's items go. Window thread only.
class VAPP_EXPORT THostMenu {
public:
    THostMenu();
    THostMenu(const THostMenu&) = delete;
    THostMenu& operator=(const THostMenu&) = delete;
    ~THostMenu();

    /// Items go into this menu, from its first place on, numbered from `firstId` on, until `Close`. The menu
    /// is not owned.
    void Open(CMenu& menu, UINT firstId);
    /// Nothing is added any more; an unfinished sub-menu is dropped.
    void Close();
    [[nodiscard]] bool IsOpen() const { return m_popupMenu != nullptr; }

    /// The number that the next item of the host should have.
    [[nodiscard]] UINT GetNextId() const { return m_nextId; }
    /// Adds an item to the open sub-menu, or else to the menu, and raises the next number, whatever number
    /// the item has. Text in the active code page; an `&` in it marks the key.
    void AddItem(UINT id, const CString& text, bool disabled, bool checked, bool isDefault);
    /// Adds a separator in the same place; the next number stays.
    void AddSeparator();
    /// Begins a sub-menu, also in place of an unfinished one.
    void BeginSubmenu(const CString& title);
    /// Puts the sub-menu into the menu; nothing without one.
    void EndSubmenu();

    /// Open for the length of a block.
    class TScope {
    public:
        TScope(THostMenu& hostMenu, CMenu& menu, UINT firstId) : m_hostMenu(hostMenu) {
            m_hostMenu.Open(menu, firstId);
        }
        TScope(const TScope&) = delete;
        TScope& operator=(const TScope&) = delete;
        ~TScope() { m_hostMenu.Close(); }

    private:
        THostMenu& m_hostMenu;
    };

private:
    CMenu* m_popupMenu = nullptr;
    std::unique_ptr<CMenu> m_subMenu;
    CStringU m_subMenuTitle;
    UINT m_nextId = 0;
    int m_popupInsertPos = 0;
    int m_subMenuInsertPos = 0;
};

}  // namespace vapp_library_browser
