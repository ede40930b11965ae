/// @file
/// The base of all windows: a place in a tree, a rectangle, a text, a few flags, messages. A window is plain
/// state; its peer, if there is one, makes it visible.
#pragma once

#include <memory>
#include <vector>

#include "vapp/Export.h"
#include "vapp/text/CStringU.h"
#include "vapp/toolkit/BasicTypes.h"
#include "vapp/toolkit/CObject.h"
#include "vapp/toolkit/CRect.h"
#include "vapp/toolkit/InputTypes.h"
#include "vapp/toolkit/Notification.h"
#include "vapp/toolkit/Peer.h"

/// A window. All of it belongs to the thread that runs the windows.
///
/// Coordinates: `GetRect` is relative to the parent's client area; "screen" means relative to the screen's
/// corner. Units are the pixels of the logic (device independent where the adapter scales).
class VAPP_EXPORT CWnd : public CObject {
public:
    CWnd();
    /// Destroys the window if that has not happened. A class that overrides `OnDestroy` calls `DestroyWindow`
    /// in its own destructor, while the override still counts.
    ~CWnd() override;

    /// Makes the window: it joins the parent's children (not owned by it), takes the identifier and
    /// rectangle, gets a peer if an adapter is installed, and `OnCreate` runs, when children's peers find
    /// this one. `OnSize` does not follow. False if it exists already, or the parent does not or is about to
    /// go.
    bool Create(CWnd* parent, UINT id, const CRect& rect = {});
    /// Ends the window: `OnDestroy`, then the children, then the peer; then it leaves its parent. The
    /// keyboard goes to nobody, and the application has no main window any more, if this was it. The object
    /// stays and can be created again. A call in the middle of it does nothing.
    void DestroyWindow();
    /// True between `Create` and the end of `DestroyWindow`.
    [[nodiscard]] bool IsWindow() const { return m_created; }

    [[nodiscard]] CWnd* GetParent() const { return m_parent; }
    /// The topmost window of this tree.
    [[nodiscard]] CWnd* GetTopLevelParent();
    [[nodiscard]] const std::vector<CWnd*>& GetChildren() const { return m_children; }
    [[nodiscard]] UINT GetDlgCtrlID() const { return m_id; }
    /// The direct child with the identifier, or null.
    [[nodiscard]] CWnd* GetDlgItem(UINT id) const;

    [[nodiscard]] const CString& GetWindowText() const { return m_text; }
    /// Text in the active code page.
    void SetWindowText(const CString& text);
    /// Name for assistive technology and tests; empty means the window text.
    [[nodiscard]] const CString& GetAccessibleName() const { return m_accessibleName; }
    void SetAccessibleName(const CString& name);

    [[nodiscard]] const CRect& GetRect() const { return m_rect; }
    /// The client area, without scroll bars: left and top are 0.
    [[nodiscard]] CRect GetClientRect() const;
    /// The rectangle on the screen.
    [[nodiscard]] CRect GetWindowRect() const;
    [[nodiscard]] CPoint ScreenToClient(CPoint point) const;
    [[nodiscard]] CPoint ClientToScreen(CPoint point) const;
    /// Moves and sizes within the parent; `OnMove` follows if the place is another, then `OnSize` if the size
    /// is.
    void MoveWindow(const CRect& rect);
    /// `MoveWindow` as the peer calls it after the user or the desktop resized: the peer isn't told again.
    void MovedByPeer(const CRect& rect);
    /// What the peer keeps of the rectangle at its right and its bottom, for scroll bars; nothing at first.
    /// `OnSize` follows if the client area is another then.
    void ReservedByPeer(CSize bars);

    [[nodiscard]] bool IsWindowVisible() const { return m_visible; }
    void ShowWindow(bool show);
    [[nodiscard]] bool IsWindowEnabled() const { return m_enabled; }
    void EnableWindow(bool enable);

    /// Whether this window shows the tool tips that the logic words; off at first. State alone: who shows
    /// tips reads it.
    void EnableToolTips(bool enable) { m_toolTipsEnabled = enable; }
    [[nodiscard]] bool AreToolTipsEnabled() const { return m_toolTipsEnabled; }

    /// The window that has the keyboard, or null.
    [[nodiscard]] static CWnd* GetFocus();
    /// Takes the keyboard; the peer follows.
    void SetFocus();
    /// `SetFocus` as the peer reports it.
    void FocusedByPeer(bool focused);
    /// Whether keys mean something here at the moment: a window that exists, is shown and enabled. Controls
    /// that only show say no.
    [[nodiscard]] virtual bool TakesFocus() const;

    /// While off, the peer isn't told of changes; turning it on tells all of them at once and paints anew.
    void SetRedraw(bool redraw);
    [[nodiscard]] bool GetRedraw() const { return m_redraw; }
    /// Asks for painting later. Counts up `GetInvalidateCount`, so that logic can be tested without pixels.
    void Invalidate(bool erase = true);
    [[nodiscard]] unsigned GetInvalidateCount() const { return m_invalidateCount; }
    /// Paints now.
    void UpdateWindow();

    /// Delivers a message and gives the answer.
    LRESULT SendMessage(UINT message, WPARAM wParam = 0, LPARAM lParam = 0);
    /// A control tells this window something. True when handled; `result` is the answer then.
    bool SendNotify(Notification& notification, LRESULT& result);
    /// Tells the parent; 0 if nobody handles it.
    LRESULT NotifyParent(Notification& notification);

    /// The user asked, at a point of the screen, for the menu of what is there: `OnContextMenu` follows.
    void ContextMenuByPeer(CPoint screen);
    /// The user pressed a key that the widget may have an own use for: `OnKey` follows. True if the key has
    /// done its work, and the widget shall leave it alone.
    bool KeyByPeer(TKey key, TModifiers modifiers);

    [[nodiscard]] Peer* GetPeer() const { return m_peer.get(); }

protected:
    /// Answers messages; a host's main window overrides this to answer WM_LN_... The base answers 0.
    virtual LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam);
    /// A child's notification. The base doesn't handle any.
    virtual bool OnNotify(Notification& notification, LRESULT& result);
    /// The window and its peer exist now; children are created here.
    virtual void OnCreate();
    /// The window is about to go.
    virtual void OnDestroy();
    /// The client size has changed.
    virtual void OnSize(UINT type, int cx, int cy);
    /// The window stands elsewhere in its parent.
    virtual void OnMove(int x, int y);
    /// The keyboard came here.
    virtual void OnSetFocus();
    /// Shows the menu of a point in `from`, this window or one in it. The base leaves it to the parent.
    virtual void OnContextMenu(CWnd& from, CPoint screen);
    /// A key in `from`, this window or one in it; true if it has done its work. The base leaves it to the
    /// parent.
    virtual bool OnKey(CWnd& from, TKey key, TModifiers modifiers);
    /// Makes the peer of this kind of window; the base makes none.
    virtual std::unique_ptr<Peer> CreatePeer(PeerFactory& factory);

    /// The child that had the keyboard last, itself or a window in it; null if none had it that still exists.
    [[nodiscard]] CWnd* GetLastFocusedChild() const { return m_lastFocusedChild; }
    /// Tells the peer, unless redraw is off.
    void TellPeer(UINT changes);

private:
    void FocusCame();
    void Place(const CRect& rect, bool tellPeer);
    void DestroyChildren();
    void RemoveChild(CWnd* child);

    CWnd* m_parent = nullptr;
    std::vector<CWnd*> m_children;
    CWnd* m_lastFocusedChild = nullptr;  ///< one of the children, or null
    std::unique_ptr<Peer> m_peer;
    CString m_text;
    CString m_accessibleName;
    CRect m_rect;
    CSize m_reserved;
    UINT m_id = 0;
    UINT m_pendingChanges = 0;
    unsigned m_invalidateCount = 0;
    bool m_created = false;
    bool m_destroying = false;
    bool m_visible = true;
    bool m_enabled = true;
    bool m_redraw = true;
    bool m_toolTipsEnabled = false;
};

/// Type word of `OnSize` for a minimised window.
inline constexpr UINT cnSizeMinimized = 1;
