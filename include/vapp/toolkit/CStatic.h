/// @file
/// A text, a picture or a frame that takes no input.
#pragma once

#include "vapp/toolkit/CWnd.h"

/// A static control.
class VAPP_EXPORT CStatic : public CWnd {
public:
    enum class TKind { Text, Frame, Picture };

    explicit CStatic(TKind kind = TKind::Text);
    ~CStatic() override;

    [[nodiscard]] TKind GetKind() const { return m_kind; }
    /// The picture shown; null clears. Not owned: whoever gives it keeps it alive while it is shown.
    void SetImage(HBITMAP bitmap);
    [[nodiscard]] HBITMAP GetImage() const { return m_image; }
    [[nodiscard]] bool TakesFocus() const override { return false; }

protected:
    std::unique_ptr<Peer> CreatePeer(PeerFactory& factory) override;

private:
    TKind m_kind;
    HBITMAP m_image = nullptr;
};
