/// @file
/// A top-level window, which keeps its first child as large as itself.
#include "vapp/toolkit/CFrameWnd.h"

CFrameWnd::CFrameWnd() {
    ShowWindow(false);
}

CFrameWnd::~CFrameWnd() {
    DestroyWindow();
}

bool CFrameWnd::CreateFrame(const CString& title, const CRect& rect) {
    if (IsWindow()) return false;
    SetWindowText(title);
    return Create(nullptr, 0, rect);
}

void CFrameWnd::OnSize(UINT type, int cx, int cy) {
    CWnd::OnSize(type, cx, cy);
    // A minimised frame has no client area; what is in it keeps the size that it comes back to.
    if (type == cnSizeMinimized || GetChildren().empty()) return;
    GetChildren().front()->MoveWindow({0, 0, cx, cy});
}

std::unique_ptr<Peer> CFrameWnd::CreatePeer(PeerFactory& factory) {
    return factory.CreateFrame(*this);
}
