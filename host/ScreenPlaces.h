#pragma once
/// Where the parts of the navigator stand on the screen, for whoever points at them: a script, or a test with
/// a real mouse. Computed from the controls, so that it is the same with and without a screen.

#include <optional>
#include <string>

#include "vapp/toolkit/CRect.h"

namespace vapp_library_browser {
class TLibraryBrowser;
}

namespace navigator {

/// The row of a library, or nothing if it isn't shown.
[[nodiscard]] std::optional<CRect> gPlaceOfLibrary(vapp_library_browser::TLibraryBrowser& browser,
                                                   const std::string& library);
/// A column's header, as far as it is seen.
[[nodiscard]] std::optional<CRect> gPlaceOfHeader(vapp_library_browser::TLibraryBrowser& browser,
                                                  const std::string& caption);
/// A row of the cell list.
[[nodiscard]] std::optional<CRect> gPlaceOfRow(vapp_library_browser::TLibraryBrowser& browser, int row);
/// A control of the cell pane, by its identifier.
[[nodiscard]] std::optional<CRect> gPlaceOfControl(vapp_library_browser::TLibraryBrowser& browser, int id);
/// A pane, 0 to 2, and the bar below it, 0 or 1.
[[nodiscard]] std::optional<CRect> gPlaceOfPane(vapp_library_browser::TLibraryBrowser& browser, int pane);
[[nodiscard]] std::optional<CRect> gPlaceOfBar(vapp_library_browser::TLibraryBrowser& browser, int bar);

/// The number of a library's row in the library list, or -1.
[[nodiscard]] int gRowOfLibrary(vapp_library_browser::TLibraryBrowser& browser, const std::string& library);

}  // namespace navigator
