/// @file
/// The box with which the library itself tells the user something: that a worker could not be started, or,
/// where no toolkit shows boxes, that the processor lacks something.
#pragma once

#include "vapp/Export.h"

/// Shows a text (UTF-8) under a caption and comes back when the user has read it.
using TShowMessageBox = void (*)(const char* text, const char* caption);

/// Sets who shows the box; null returns to the system's own: a plain message box on Windows, elsewhere a line
/// on standard error. It is called on the thread that has something to tell. May be called from any thread.
VAPP_EXPORT void gSetMessageBox(TShowMessageBox show) noexcept;
