/// @file
/// TLibraryListCtrl: the list of libraries in the library pane. It decides how a row looks; its rows are
/// filled by TLibraryView, and pixels are drawn by a peer.
///
/// The surprise: nothing about a row is remembered. Each painting of a row asks the database again, one line
/// outside of the editor mode and up to three in it.
#pragma once

#include <optional>

#include "vapp/Export.h"
#include "vapp/browser/THostMenu.h"
#include "vapp/toolkit/CListCtrl.h"

namespace vapp_library_browser {

class TLibraryView;

/// Icons that mark a library in the editor mode.
inline constexpr UINT cnIconUnresolvedLibrary = 366;
inline constexpr UINT cnIconReadOnlyLibrary = 367;

/// The owner-drawn list; a child of a TLibraryView (without one, rows have the base class's look).
class VAPP_EXPORT TLibraryListCtrl : public CListCtrl {
public:
    TLibraryListCtrl();
    ~TLibraryListCtrl() override;

    /// Asks the database and words the look of the row: the top library of the design in the window's text
    /// colour and the others in blue, reserved libraries on a tint, those with unsaved changes also bold.
    /// cnNoColor stands for the desktop's own colour of the place. Empty for a row that isn't there.
    [[nodiscard]] ListItemLook DrawItem(int index) override;

    // The host's items, for the time in which it answers WM_LN_BUILDLIBRARYMENU; see THostMenu.
    [[nodiscard]] bool IsBuildingMenu() const { return m_hostMenu.IsOpen(); }
    [[nodiscard]] UINT GetNextLibraryListPopupCmdId() const { return m_hostMenu.GetNextId(); }
    void AddLibraryListMenuItem(UINT id, const CString& text, bool disabled, bool checked, bool isDefault) {
        m_hostMenu.AddItem(id, text, disabled, checked, isDefault);
    }
    void BeginLibraryListSubmenu(const CString& text) { m_hostMenu.BeginSubmenu(text); }
    void EndLibraryListSubmenu() { m_hostMenu.EndSubmenu(); }

    /// Number of the timer that looks whether the pointer has left the rows.
    static constexpr UINT cnTipTimer = 1499;
    /// The path of the library under the pointer, also sent to the host as a status text; starts the timer.
    /// Nothing over no row, and for a library without a path.
    [[nodiscard]] std::optional<CStringU> OnToolTipNotify() override;
    /// Once the pointer is over no row, ends the timer and clears the status text.
    void OnTipTimer() override;
    [[nodiscard]] bool IsTipTimerRunning() const override { return m_tipTimerRuns; }

protected:
    /// Asks the host to fill a menu, shows it, and runs what the user picks.
    void OnContextMenu(CWnd& from, CPoint screen) override;
    void OnDestroy() override;

private:
    [[nodiscard]] int RowUnderCursor() const;
    void ClearStatus();

    THostMenu m_hostMenu;
    bool m_tipTimerRuns = false;
};

}  // namespace vapp_library_browser
