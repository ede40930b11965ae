/// @file
/// Drags of the toolkit's controls, by Qt.
#pragma once

#include "vapp/toolkit/COleDataSource.h"

namespace vapp_qt {

/// Drags what the source has and waits for the end: the effect of the drop, or none. None, at once, without
/// an application object, on another thread, in the course of another drag, and where the platform has no
/// drags. The source may end meanwhile: its data is then not to be had any more.
[[nodiscard]] UINT gRunDrag(COleDataSource& source, UINT effects, const CRect& start);

}  // namespace vapp_qt
