/// @file
/// A push button with a text or an image.
#pragma once

#include "toolkit/qt/QtPeer.h"

class CButton;

namespace vapp_qt {

class QtButtonPeer : public QtPeer {
public:
    explicit QtButtonPeer(CButton& button);

    void Changed(UINT changes) override;

private:
    CButton& m_button;
};

}  // namespace vapp_qt
