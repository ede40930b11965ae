/// @file
/// The host's column chooser: a window of the report's toolkit in which the user picks columns.
///
/// The navigator only keeps the pointer, one for the process, for whoever connects the report to it. The
/// class stays opaque here.
#pragma once

#include "vapp/Export.h"

class CXTPReportSubListControl;

namespace vapp_library_browser {

/// The chooser that the last TLibraryBrowser::Initialize was given, or null. Not owned.
[[nodiscard]] VAPP_EXPORT CXTPReportSubListControl*& gColumnChooser();

}  // namespace vapp_library_browser
