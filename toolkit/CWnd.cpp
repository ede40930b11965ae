/// @file
/// Windows: the tree, the order of coming and going, and what a peer is told of it.
///
/// The care in here is for callbacks. Every virtual function and every notification may come back and change
/// or destroy this window, so that nothing is assumed after one that was only checked before it.
#include "vapp/toolkit/CWnd.h"

#include <algorithm>
#include <utility>

#include "vapp/toolkit/CWinAppEx.h"

namespace {

CWnd* s_focused = nullptr;

void ForgetMainWnd(const CWnd* window) {
    CWinAppEx* app = CWinAppEx::GetApp();
    if (app != nullptr && app->GetMainWnd() == window) app->SetMainWnd(nullptr);
}

}  // namespace

CWnd::CWnd() = default;

CWnd::~CWnd() {
    DestroyWindow();
    // Also for a window that was never made: an application may name its main window before that.
    ForgetMainWnd(this);
}

bool CWnd::Create(CWnd* parent, UINT id, const CRect& rect) {
    if (m_created) return false;
    if (parent != nullptr && (!parent->m_created || parent->m_destroying)) return false;
    m_created = true;
    m_parent = parent;
    m_id = id;
    m_rect = rect;
    if (parent != nullptr) parent->m_children.push_back(this);
    if (PeerFactory* factory = PeerFactory::Installed()) m_peer = CreatePeer(*factory);
    TellPeer(cnChangeAll);
    OnCreate();
    return m_created;
}

void CWnd::DestroyWindow() {
    if (!m_created || m_destroying) return;
    m_destroying = true;
    OnDestroy();  // NOLINT(clang-analyzer-optin.cplusplus.VirtualCall): see the destructor in the header
    DestroyChildren();
    if (s_focused == this) s_focused = nullptr;
    // The widget's end may report to this window, which then has no peer to answer to.
    std::exchange(m_peer, nullptr).reset();
    ForgetMainWnd(this);
    if (m_parent != nullptr) m_parent->RemoveChild(this);
    m_parent = nullptr;
    m_reserved = {};
    m_pendingChanges = 0;
    m_redraw = true;
    m_created = false;
    m_destroying = false;
}

void CWnd::DestroyChildren() {
    while (!m_children.empty()) {
        CWnd* child = m_children.front();
        child->DestroyWindow();
        if (std::find(m_children.begin(), m_children.end(), child) == m_children.end()) continue;
        // This child is in the middle of its own end, further up on the stack. It goes on without its parent,
        // and without pixels, which can't outlive the parent's.
        child->m_peer.reset();
        child->m_parent = nullptr;
        RemoveChild(child);
    }
}

void CWnd::RemoveChild(CWnd* child) {
    std::erase(m_children, child);
    if (m_lastFocusedChild == child) m_lastFocusedChild = nullptr;
}

CWnd* CWnd::GetTopLevelParent() {
    CWnd* window = this;
    while (window->m_parent != nullptr)
        window = window->m_parent;
    return window;
}

CWnd* CWnd::GetDlgItem(UINT id) const {
    const auto found = std::find_if(m_children.begin(), m_children.end(),
                                    [id](const CWnd* child) { return child->m_id == id; });
    return found == m_children.end() ? nullptr : *found;
}

void CWnd::SetWindowText(const CString& text) {
    if (m_text == text) return;
    m_text = text;
    TellPeer(cnChangeText);
}

void CWnd::SetAccessibleName(const CString& name) {
    if (m_accessibleName == name) return;
    m_accessibleName = name;
    TellPeer(cnChangeText);
}

CRect CWnd::GetClientRect() const {
    const auto without = [](int whole, int reserved) {
        return whole > 0 ? std::max(whole - reserved, 0) : whole;
    };
    return {0, 0, without(m_rect.Width(), m_reserved.cx), without(m_rect.Height(), m_reserved.cy)};
}

CRect CWnd::GetWindowRect() const {
    return CRect(0, 0, m_rect.Width(), m_rect.Height()).Offset(ClientToScreen({}));
}

CPoint CWnd::ScreenToClient(CPoint point) const {
    const CPoint origin = ClientToScreen({});
    return {point.x - origin.x, point.y - origin.y};
}

CPoint CWnd::ClientToScreen(CPoint point) const {
    for (const CWnd* window = this; window != nullptr; window = window->m_parent) {
        point.x += window->m_rect.left;
        point.y += window->m_rect.top;
    }
    return point;
}

void CWnd::MoveWindow(const CRect& rect) {
    Place(rect, true);
}

void CWnd::MovedByPeer(const CRect& rect) {
    Place(rect, false);
}

void CWnd::Place(const CRect& rect, bool tellPeer) {
    if (m_rect == rect) return;
    const bool moved = m_rect.TopLeft() != rect.TopLeft();
    const bool resized = m_rect.Size() != rect.Size();
    m_rect = rect;
    if (tellPeer) TellPeer(cnChangeRect);
    if (moved && m_created) OnMove(rect.left, rect.top);
    if (resized && m_created) OnSize(0, GetClientRect().Width(), GetClientRect().Height());
}

void CWnd::ReservedByPeer(CSize bars) {
    const CSize before = GetClientRect().Size();
    m_reserved = {std::max(bars.cx, 0), std::max(bars.cy, 0)};
    const CSize now = GetClientRect().Size();
    if (now != before && m_created) OnSize(0, now.cx, now.cy);
}

void CWnd::ShowWindow(bool show) {
    if (m_visible == show) return;
    m_visible = show;
    TellPeer(cnChangeVisible);
}

void CWnd::EnableWindow(bool enable) {
    if (m_enabled == enable) return;
    m_enabled = enable;
    TellPeer(cnChangeEnabled);
}

CWnd* CWnd::GetFocus() {
    return s_focused;
}

void CWnd::SetFocus() {
    if (!m_created || m_destroying) return;
    // First this, so that the widget's report of what we are about to ask for finds nothing new.
    const bool came = std::exchange(s_focused, this) != this;
    TellPeer(cnChangeFocus);
    if (came && m_created) FocusCame();
}

void CWnd::FocusedByPeer(bool focused) {
    if (!m_created || m_destroying) return;
    if (focused) {
        if (std::exchange(s_focused, this) != this) FocusCame();
    } else if (s_focused == this) {
        s_focused = nullptr;
    }
}

void CWnd::FocusCame() {
    for (CWnd* window = this; window->m_parent != nullptr; window = window->m_parent)
        window->m_parent->m_lastFocusedChild = window;
    OnSetFocus();
}

bool CWnd::TakesFocus() const {
    return m_created && !m_destroying && m_visible && m_enabled;
}

void CWnd::SetRedraw(bool redraw) {
    if (m_redraw == redraw) return;
    m_redraw = redraw;
    if (!redraw) return;
    TellPeer(std::exchange(m_pendingChanges, 0u));
    if (m_peer) m_peer->Invalidate(true);
}

void CWnd::Invalidate(bool erase) {
    ++m_invalidateCount;
    if (m_peer && m_redraw) m_peer->Invalidate(erase);
}

void CWnd::UpdateWindow() {
    if (m_peer && m_redraw) m_peer->UpdateNow();
}

LRESULT CWnd::SendMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    return m_created ? WindowProc(message, wParam, lParam) : 0;
}

bool CWnd::SendNotify(Notification& notification, LRESULT& result) {
    return m_created && OnNotify(notification, result);
}

LRESULT CWnd::NotifyParent(Notification& notification) {
    if (m_parent == nullptr) return 0;
    notification.from = this;
    notification.id = m_id;
    LRESULT result = 0;
    return m_parent->SendNotify(notification, result) ? result : 0;
}

void CWnd::TellPeer(UINT changes) {
    if (!m_peer || changes == 0) return;
    if (m_redraw) {
        m_peer->Changed(changes);
    } else {
        m_pendingChanges |= changes;
    }
}

LRESULT CWnd::WindowProc(UINT /*message*/, WPARAM /*wParam*/, LPARAM /*lParam*/) {
    return 0;
}

bool CWnd::OnNotify(Notification& /*notification*/, LRESULT& /*result*/) {
    return false;
}

void CWnd::OnCreate() {}

void CWnd::OnDestroy() {}

void CWnd::OnSize(UINT /*type*/, int /*cx*/, int /*cy*/) {}

void CWnd::OnMove(int /*x*/, int /*y*/) {}

void CWnd::OnSetFocus() {}

void CWnd::ContextMenuByPeer(CPoint screen) {
    if (m_created) OnContextMenu(*this, screen);
}

bool CWnd::KeyByPeer(TKey key, TModifiers modifiers) {
    return m_created && OnKey(*this, key, modifiers);
}

void CWnd::OnContextMenu(CWnd& from, CPoint screen) {
    if (m_parent != nullptr) m_parent->OnContextMenu(from, screen);
}

bool CWnd::OnKey(CWnd& from, TKey key, TModifiers modifiers) {
    return m_parent != nullptr && m_parent->OnKey(from, key, modifiers);
}

std::unique_ptr<Peer> CWnd::CreatePeer(PeerFactory& /*factory*/) {
    return nullptr;
}
