/// @file
/// A text of several lines.
#pragma once

#include "toolkit/qt/QtPeer.h"

class CEdit;

namespace vapp_qt {

class QtTextPeer : public QtPeer {
public:
    explicit QtTextPeer(CEdit& edit);

    void Changed(UINT changes) override;

private:
    void ApplyText();

    CEdit& m_edit;
};

}  // namespace vapp_qt
