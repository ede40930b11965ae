/// @file
/// A pane: a plain surface on which the control places its children.
#pragma once

#include "toolkit/qt/QtPeer.h"

class CView;

namespace vapp_qt {

class QtFormPeer : public QtPeer {
public:
    explicit QtFormPeer(CView& view);
};

}  // namespace vapp_qt
