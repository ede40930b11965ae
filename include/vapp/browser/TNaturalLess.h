/// @file
/// TNaturalLess: the order of library names in the library pane.
#pragma once

#include "vapp/Export.h"
#include "vapp/text/CStringU.h"

namespace vapp_library_browser {

/// Natural order of names, digits by value, with case. Names that differ only in the script of their digits
/// are equal.
struct VAPP_EXPORT TNaturalLess {
    [[nodiscard]] bool operator()(const CStringU& left, const CStringU& right) const;
};

}  // namespace vapp_library_browser
