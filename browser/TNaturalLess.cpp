/// @file
/// The order of library names, by the system's natural order.
#include "vapp/browser/TNaturalLess.h"

#include "text/NaturalOrder.h"

namespace vapp_library_browser {

bool TNaturalLess::operator()(const CStringU& left, const CStringU& right) const {
    return vapp_text::CompareNatural(left, right, false) < 0;
}

}  // namespace vapp_library_browser
