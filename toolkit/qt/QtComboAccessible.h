/// @file
/// What assistive technology reads of a drop-down list: its name, and apart from that what is chosen.
#pragma once

namespace vapp_qt {

/// Lets Qt's accessibility know the drop-down lists. Again does no harm.
void gInstallComboAccessibility();

}  // namespace vapp_qt
