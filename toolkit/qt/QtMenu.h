/// @file
/// A menu of the toolkit on the screen.
#pragma once

#include "vapp/toolkit/CMenu.h"

namespace vapp_qt {

/// Shows the menu at the point, over the owner's widget, and waits: the identifier of the command that was
/// picked; 0 for none, and if the owner has no widget.
[[nodiscard]] UINT gTrackMenu(const CMenu& menu, const CWnd& owner, CPoint screen, TMenuAlign align);

}  // namespace vapp_qt
