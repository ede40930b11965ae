/// @file
/// A top-level window.
#pragma once

#include "vapp/toolkit/CWnd.h"

/// The frame of a host tool. Its first child fills the client area.
class VAPP_EXPORT CFrameWnd : public CWnd {
public:
    CFrameWnd();
    ~CFrameWnd() override;

    /// Makes the frame without a parent. It stays hidden until `ShowWindow`, so that nobody sees it half
    /// filled.
    bool CreateFrame(const CString& title, const CRect& rect);

protected:
    void OnSize(UINT type, int cx, int cy) override;
    std::unique_ptr<Peer> CreatePeer(PeerFactory& factory) override;
};
