/// @file
/// A push button, with a text or an image.
#pragma once

#include "vapp/toolkit/CWnd.h"

/// A button.
class VAPP_EXPORT CButton : public CWnd {
public:
    CButton();
    ~CButton() override;

    /// Resource number of the 16 by 16 image; 0 for none.
    [[nodiscard]] UINT GetImageResource() const { return m_image; }
    void SetImageResource(UINT resource);
    /// The user pressed it: notifies the parent (cnButtonClicked).
    void Click();

protected:
    std::unique_ptr<Peer> CreatePeer(PeerFactory& factory) override;

private:
    UINT m_image = 0;
};

/// The button of the report toolkit, with the same operations.
using CXTPButton = CButton;
