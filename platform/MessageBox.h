/// @file
/// Shows the box that a host can replace (vapp/platform/MessageBox.h).
#pragma once

#include "vapp/platform/MessageBox.h"
#include "vapp/text/CString.h"

namespace vapp_platform {

/// How the system's own box looks.
enum class BoxStyle { Plain, Error };

/// Shows the box, by the host's function if it has set one.
void ShowMessageBox(const CString& text, const CString& caption, BoxStyle style);

/// The system's own box. Implemented once for each system.
void ShowSystemMessageBox(const char* text, const char* caption, BoxStyle style) noexcept;

}  // namespace vapp_platform
