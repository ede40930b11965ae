/// @file
/// What a host's own widgets read of a drag that has come from one of the controls.
#pragma once

#include <any>

#include "vapp/text/CString.h"
#include "vapp/toolkit/qt/QtExport.h"

class QMimeData;

/// The data that a control drags under a format, to be asked in the events of a drag (`event->mimeData()`).
/// A copy; empty if the drag is none of this process's controls, has no such format, or has lost its source
/// meanwhile.
///
/// The names of the formats stand in `data.formats()` as well, so that `data.hasFormat(...)` answers fast.
[[nodiscard]] VAPP_QT_EXPORT std::any gDraggedData(const QMimeData& data, const CString& format);
