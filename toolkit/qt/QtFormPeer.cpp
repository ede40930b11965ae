/// @file
/// No layout object of Qt's: the control knows where each child stands.
#include "toolkit/qt/QtFormPeer.h"

#include "vapp/toolkit/CView.h"

namespace vapp_qt {

QtFormPeer::QtFormPeer(CView& view) : QtPeer(view, new QWidget(gClientWidgetAbove(view))) {}

}  // namespace vapp_qt
