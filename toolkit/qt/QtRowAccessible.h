/// @file
/// What assistive technology reads of a view of rows: a table, its cells made when they are asked for.
#pragma once

namespace vapp_qt {

/// Lets Qt's accessibility know the views of rows. Again does no harm.
void gInstallRowAccessibility();

}  // namespace vapp_qt
