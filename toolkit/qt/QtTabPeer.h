/// @file
/// A strip of tabs below what they switch.
#pragma once

#include "toolkit/qt/QtPeer.h"

class CTabCtrl;

namespace vapp_qt {

class QtTabPeer : public QtPeer {
public:
    explicit QtTabPeer(CTabCtrl& tabs);

    void Changed(UINT changes) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void Picked(int index);
    void ApplyTabs();

    CTabCtrl& m_tabs;
};

}  // namespace vapp_qt
