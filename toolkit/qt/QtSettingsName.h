/// @file
/// Names under which settings stand in QSettings.
///
/// To QSettings a slash divides a name into a path, in the registry a backslash does so too, and it knows no
/// empty part of a path. A section's path is divided at its backslashes, and whatever else could be taken for
/// a division is written as a percent sign and two digits. Nobody reads names back, they only have to differ
/// where section or key differ.
#pragma once

#include <QString>

#include "vapp/text/CString.h"

namespace vapp_qt {

/// The name of a value. Names that are no UTF-8 are fit as well.
[[nodiscard]] QString gSettingsName(const CString& section, const CString& key);

}  // namespace vapp_qt
