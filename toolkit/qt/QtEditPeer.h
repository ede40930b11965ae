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
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void ApplyText();

    CEdit& m_edit;
};

}  // namespace vapp_qt
