/// @file
/// A menu that pops up: commands, separators and sub-menus as plain data, and the one question which command
/// the user picks.
#pragma once

#include <memory>
#include <optional>
#include <vector>

#include "vapp/Export.h"
#include "vapp/text/CStringU.h"
#include "vapp/toolkit/BasicTypes.h"
#include "vapp/toolkit/CObject.h"
#include "vapp/toolkit/CPoint.h"

class CWnd;

/// On which side of the point a menu opens.
enum class TMenuAlign {
    Left,  ///< its left edge stands at the point
    Right  ///< its right edge does
};

/// A menu. Texts may hold an `&` in front of the letter that is the item's key; `&&` is the sign itself, see
/// `gMenuTextOf`. Operations by identifier look into sub-menus too, and do nothing if there is no such item;
/// of several with one identifier they mean the last, as what others add to a menu stands ahead of what its
/// owner knows. Positions out of range are kept within the menu for insertion and ignored otherwise.
class VAPP_EXPORT CMenu : public CObject {
public:
    struct TItem {
        enum class TKind { Command, Separator, Popup };
        TKind kind = TKind::Command;
        UINT id = 0;  ///< of a command; 0 for the others
        CStringU text;
        bool isChecked = false;
        bool isEnabled = true;
        bool isDefault = false;          ///< stands out; one of a menu at most
        std::unique_ptr<CMenu> subMenu;  ///< of a popup, never null there
    };

    CMenu();
    ~CMenu() override;

    [[nodiscard]] int GetItemCount() const { return static_cast<int>(m_items.size()); }
    /// The item at a position, or null.
    [[nodiscard]] const TItem* GetItem(int position) const;
    /// The command with the identifier, or null.
    [[nodiscard]] const TItem* FindItem(UINT id) const;
    /// The menu, this one or one below, that has the command among its own items; or null.
    [[nodiscard]] CMenu* FindOwner(UINT id);
    [[nodiscard]] CMenu* GetSubMenu(int position) const;

    void Append(UINT id, const CStringU& text) { Insert(GetItemCount(), id, text); }
    /// Appends a command that is checked or not. Check would look for it among all that are there before.
    void AppendChecked(UINT id, const CStringU& text, bool checked);
    void AppendSeparator() { InsertSeparator(GetItemCount()); }
    /// Adds an empty sub-menu and gives it back.
    CMenu& AppendPopup(const CStringU& text);
    /// The new item, whose state may be set until the menu is changed again.
    TItem& Insert(int position, UINT id, const CStringU& text);
    void InsertSeparator(int position);
    /// A null menu adds nothing.
    void InsertPopup(int position, const CStringU& text, std::unique_ptr<CMenu> subMenu);
    void RemoveAt(int position);
    /// Takes the command away.
    void Delete(UINT id);

    void Check(UINT id, bool checked);
    [[nodiscard]] bool IsChecked(UINT id) const;
    void Enable(UINT id, bool enabled);
    [[nodiscard]] bool IsEnabled(UINT id) const;
    /// Makes the command the default of its menu, in place of any other there.
    void SetDefault(UINT id);
    /// The same for the item at a place, whatever its number is.
    void SetDefaultAt(int position);
    /// Whether the user can pick a command of this number here or in a sub-menu.
    [[nodiscard]] bool Offers(UINT id) const;

    /// Shows the menu at a point of the screen and waits for the user. The identifier of the picked command;
    /// 0 if none was picked, if it could not be picked (disabled, not here), and where nobody can show menus.
    /// Must live until this returns; the owner may go meanwhile.
    [[nodiscard]] UINT Track(CWnd& owner, CPoint screen, TMenuAlign align = TMenuAlign::Left) const;

private:
    [[nodiscard]] TItem* Find(UINT id);
    [[nodiscard]] int PositionOf(const TItem& item) const;
    TItem& Place(int position, TItem item);

    std::vector<TItem> m_items;
};

/// A name as the text of an item: it is shown as it stands, and no letter of it becomes a key.
[[nodiscard]] VAPP_EXPORT CStringU gMenuTextOf(const CStringU& name);
