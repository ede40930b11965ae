/// @file
/// A line of text.
#pragma once

#include "toolkit/qt/QtPeer.h"

class CEdit;

namespace vapp_qt {

class QtEditPeer : public QtPeer {
public:
    explicit QtEditPeer(CEdit& edit);

    void Changed(UINT changes) override;

private:
    void ApplyText();

    CEdit& m_edit;
};

}  // namespace vapp_qt
