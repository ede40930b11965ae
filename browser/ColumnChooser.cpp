/// @file
/// The one column chooser of the process.
#include "vapp/browser/ColumnChooser.h"

namespace vapp_library_browser {

CXTPReportSubListControl*& gColumnChooser() {
    static CXTPReportSubListControl* s_chooser = nullptr;
    return s_chooser;
}

}  // namespace vapp_library_browser
