/// @file
/// Boxes that ask the user.
#pragma once

#include "vapp/toolkit/TMessageBox.h"

namespace vapp_qt {

/// Shows the box and waits for an answer, which is one of its buttons', or that of its closing.
[[nodiscard]] int gShowMessageBox(const TMessageBox& box);

}  // namespace vapp_qt
