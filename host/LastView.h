#pragma once
/// What the user was looking at when the program ended: design, libraries, order of the cells. The library
/// keeps its columns and heights itself; this is the host's part, so that a window comes back whole.

class CWinAppEx;

namespace vapp_library_browser {
class TLibraryBrowser;
}

namespace navigator {

/// Keeps it in the application's settings.
void gKeepView(CWinAppEx& app, const vapp_library_browser::TLibraryBrowser& browser);

/// Chooses the design and the libraries again, as far as there are such; to be called when the lists are
/// filled. False if there is no such design.
bool gRestoreChoice(const CWinAppEx& app, vapp_library_browser::TLibraryBrowser& browser);
/// Sorts as before, by those columns that there are.
void gRestoreOrder(const CWinAppEx& app, vapp_library_browser::TLibraryBrowser& browser);

}  // namespace navigator
