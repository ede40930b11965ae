/// @file
/// The border between a control and whatever shows it. A control works whole without a peer. With one, it
/// says what changed; the peer reads the new state from the control and shows it. What the user does travels
/// the other way: the peer calls the control's own operations (clicks, keys, resizing), and never keeps a
/// state that the control has. A toolkit adapter implements these classes and installs one `PeerFactory`.
#pragma once

#include <memory>
#include <optional>
#include <vector>

#include "vapp/Export.h"
#include "vapp/toolkit/BasicTypes.h"
#include "vapp/toolkit/CPoint.h"
#include "vapp/toolkit/CRect.h"

class ClipboardPeer;
class CWnd;
class CFrameWnd;
class CSplitterWnd;
class CView;
class CStatic;
class CEdit;
class CButton;
class CTabCtrl;
class CComboBox;
class CDialog;
class CMenu;
class CListCtrl;
class CXTPReportControl;
class TMessageBox;
class TSplashScreen;
enum class TMenuAlign;

/// What changed in a control; several may be told at once.
enum PeerChange : UINT {
    cnChangeText = 1u << 0,       ///< window text
    cnChangeVisible = 1u << 1,    ///< shown or hidden
    cnChangeEnabled = 1u << 2,    ///< enabled or disabled
    cnChangeRect = 1u << 3,       ///< position or size in the parent
    cnChangeItems = 1u << 4,      ///< rows, items, tabs, panes
    cnChangeSelection = 1u << 5,  ///< selected items
    cnChangeFocusItem = 1u << 6,  ///< the focused row
    cnChangeScroll = 1u << 7,     ///< the first row shown
    cnChangeColumns = 1u << 8,    ///< set, order, width, visibility of columns, freeze count
    cnChangeSort = 1u << 9,       ///< sort order
    cnChangeLook = 1u << 10,      ///< colours, fonts, texts of emptiness, images
    cnChangeFocus = 1u << 11,     ///< the keyboard focus came to this control
    cnChangeAll = (1u << 11) - 1  ///< all of the above but the focus: what a new peer is told
};

/// Shows one control. Destroyed by its control, before the control's window goes.
class VAPP_EXPORT Peer {
public:
    Peer() = default;
    Peer(const Peer&) = delete;
    Peer& operator=(const Peer&) = delete;
    virtual ~Peer();

    /// The named things changed; the peer reads them anew from its control. It must not destroy the control
    /// from here. Whatever its widget reports meanwhile it may pass on: a control that is told what it has
    /// already does nothing.
    virtual void Changed(UINT changes) = 0;
    /// Paint again when convenient; `erase` asks for the background too.
    virtual void Invalidate(bool erase) = 0;
    /// Paint now what was invalidated.
    virtual void UpdateNow() = 0;
    /// Adapter's own handle (a `QWidget*` for the Qt adapter), never null.
    [[nodiscard]] virtual void* NativeHandle() const = 0;
};

/// Makes peers; one per process, installed by an adapter before the first window is created. A function may
/// answer null: the control then stays without pixels.
class VAPP_EXPORT PeerFactory {
public:
    PeerFactory() = default;
    PeerFactory(const PeerFactory&) = delete;
    PeerFactory& operator=(const PeerFactory&) = delete;
    virtual ~PeerFactory();

    virtual std::unique_ptr<Peer> CreateFrame(CFrameWnd& frame) = 0;
    virtual std::unique_ptr<Peer> CreateSplitter(CSplitterWnd& splitter) = 0;
    virtual std::unique_ptr<Peer> CreateForm(CView& view) = 0;
    virtual std::unique_ptr<Peer> CreateStatic(CStatic& text) = 0;
    virtual std::unique_ptr<Peer> CreateEdit(CEdit& edit) = 0;
    virtual std::unique_ptr<Peer> CreateButton(CButton& button) = 0;
    virtual std::unique_ptr<Peer> CreateTab(CTabCtrl& tab) = 0;
    virtual std::unique_ptr<Peer> CreateCombo(CComboBox& combo) = 0;
    virtual std::unique_ptr<Peer> CreateList(CListCtrl& list) = 0;
    virtual std::unique_ptr<Peer> CreateReport(CXTPReportControl& report) = 0;
    /// An adapter that shows no dialogs leaves this and the next one as they are.
    virtual std::unique_ptr<Peer> CreateDialogWindow(CDialog& dialog);
    /// Handles events, with the dialog in front of its owner, until it isn't visible any more. It may be
    /// destroyed meanwhile. False, at once, if it can't be shown.
    virtual bool WaitFor(CDialog& dialog);

    /// An adapter that shows no splash leaves this as it is.
    virtual std::unique_ptr<Peer> CreateSplash(TSplashScreen& splash);

    /// Shows a box and waits for the user: the answer of one of its buttons, or of its closing. Nothing, as
    /// here, if it can't be shown.
    virtual std::optional<int> ShowMessageBox(const TMessageBox& box);

    /// Shows a menu at a point of the screen and waits: the identifier of the command that was picked, 0 for
    /// none. 0, at once, as here, if it can't be shown.
    virtual UINT TrackMenu(const CMenu& menu, CWnd& owner, CPoint screen, TMenuAlign align);

    /// The monitors' areas on the screen, the primary one first. None, as here, where they aren't known.
    [[nodiscard]] virtual std::vector<CRect> MonitorAreas() const;

    /// Position of the pointer on the screen.
    [[nodiscard]] virtual CPoint CursorPosition() const = 0;

    /// The toolkit's clipboard (the factory's own), or null: texts then stay in the process.
    [[nodiscard]] virtual ClipboardPeer* GetClipboard();

    /// The installed factory, or null: no pixels.
    [[nodiscard]] static PeerFactory* Installed();
    /// Installs a factory (not owned; must outlive all windows), or none by null. Window thread only.
    static void Install(PeerFactory* factory);
};
