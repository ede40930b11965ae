/// @file
/// Shows the box that a host can replace (vapp/platform/MessageBox.h).
#pragma once

#include "vapp/platform/MessageBox.h"
#include "vapp/text/CString.h"

namespace vapp_platform {

/// Shows the box, by the host's function if it has set one.
void ShowMessageBox(const CString& text, const CString& caption);

/// The system's own box. Implemented once for each system.
void ShowSystemMessageBox(const char* text, const char* caption) noexcept;

}  // namespace vapp_platform
