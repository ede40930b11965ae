/// @file
/// One light and one dark look for the whole application.
#pragma once

#include "vapp/toolkit/qt/QtExport.h"

/// Gives the application a style and a palette in which light or dark is complete: menus, fields, scroll bars
/// and dialogs. Lists and reports take their colours from their controls as well, which ask the host; a host
/// calls this with the same answer. A QApplication must exist; may be called again at any time.
VAPP_QT_EXPORT void gApplyTheme(bool dark);
